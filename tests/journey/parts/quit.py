"""Leaving the program: a question when the puzzle has changed, the settings written, the files of the puzzle untouched."""
from checks import check, equal, until_equal
from mainwindow import MainWindow
from puzzlefiles import TRAIN, WINE, write_puzzle

QUESTION = "Puzzel is gewijzigd, wil je toch afsluiten?"


def walk(journey):
    write_puzzle(journey.puzzles, "Reisdoornl")
    files = contents(journey.puzzles)
    run = journey.start()
    run.open_puzzle("Reisdoornl")
    run.place_clue("F-02", 16, 5, "boven\n\nonder", 3)
    journey.settings_file.unlink()

    stay(run)
    check(not journey.settings_file.exists(), "settings were written by a program that stays")
    run.program.menu("Bestand", "Exit")
    run.message("Afsluiten", QUESTION, "Ja", code=0)
    journey.check_settings()
    equal("files of the puzzle", contents(journey.puzzles), files)

    run = journey.start("main-again")
    journey.settings_file.unlink()
    run.quit()
    journey.check_settings()


def stay(run):
    """Asks to quit, and is answered no."""
    before = run.main.picture()
    run.push(run.main.window, "Programma Stoppen")
    run.message("Afsluiten", QUESTION, "Nee", "quit-question")
    run.main = MainWindow(run.program, run.main.title, "not-quit")
    until_equal("the field", run.main.picture, before)
    equal("rows", run.main.rows(), [WINE, TRAIN])


def contents(folder):
    return {path.name: path.read_bytes() for path in folder.iterdir()}
