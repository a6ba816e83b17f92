"""A word search made of typed words and put on the board; a Sudoku shuffled and played."""
import time

from checks import check, equal, until_equal
from desktop import until
from mainwindow import MainWindow, is_white


def is_green(red, green, blue):
    return green > red + 60 and green > blue + 60


def is_dark_red(red, green, blue):
    return red > green + 60 and red > blue + 60


def is_tinted(red, green, blue):
    return (red, green, blue) == (235, 235, 205)


def walk(journey):
    run = journey.start()
    word_search(run)
    sudoku(run)
    run.quit()


def word_search(run):
    run.program.menu("Tools", "Automatische woordzoeker", "menu-tools")
    window = run.program.window("Automatische woordzoeker", "auto")
    for word in ("Ijsbeer", "leeuw", "tijger"):
        run.write(window.find("text", "Woord invoer"), word)
        window.find("label", f"Woord invoer ({len(word)})")
        run.push(window, "Woord toevoegen")
        window.find("label", "Woord invoer (0)")
    words = window.find("text", "Woordenlijst")
    until_equal("words", words.text, "IJSBEER\nLEEUW\nTIJGER")
    grid = window.find("filler", "Puzzelveld").box()
    first = draw(run, window, grid, None)
    run.desktop.shot("auto-drawn")
    second = draw(run, window, grid, first)
    check(first != second, "the same grid twice")
    run.push(window, "Puzzel exporteren naar hoofdveld")
    run.main = MainWindow(run.program, "Raster Atelier (12x15)", "auto-exported")
    run.main.window.find("label", "Soortpuzzel : Woordzoeker")
    equal("rows", run.main.rows(), [["-", "-", word, "-"] for word in ("IJSBEER", "LEEUW", "TIJGER")])
    places = [f"{chr(65 + column)}-{row + 1:02}" for row in range(15) for column in range(12)]
    check(min(run.main.ink(*places)) > 3, "a cell without a letter")


def draw(run, window, box, before):
    """Draws a puzzle, and gives the picture of it."""
    time.sleep(0.6)  # two presses in one place are a double click, which is one, when they come sooner
    run.push(window, "Draw puzzel")
    def drawn():
        time.sleep(0.1)
        picture = run.desktop.screen().part(*box)
        return picture if picture != before and picture.count(lambda *rgb: max(rgb) < 60) > 500 else None
    return until("the grid", drawn)


def sudoku(run):
    run.program.menu("Bestand", "Nieuwe puzzel ontwerpen")
    window = run.program.window("Nieuwe puzzel ontwerpen")
    window.find("radio button", "Sudoku Puzzel").click()
    run.write(window.find("text", "Naam Puzzel"), "cijfers")
    run.push(window, "Ok")
    run.main = MainWindow(run.program, "Raster Atelier (9x9)", "sudoku-empty")
    run.main.window.find("radio button", "Moeilijk").click()
    run.push(run.main.window, "Nieuwe puzzel")
    places = [f"{chr(65 + column)}-{row + 1:02}" for row in range(9) for column in range(9)]
    def given():
        field = run.main.picture()
        return [place for place in places if run.main.cell(place, field).count(is_tinted) > 300]
    until("given digits", lambda: len(given()) > 5)
    run.desktop.shot("sudoku-shuffled")
    hidden = next(place for place in places if place not in given())
    number = places.index(hidden) + 1
    colours = play(run, hidden, number)
    equal("right digits", colours.count("green"), 1)
    equal("wrong digits", colours.count("red"), 8)
    choose(run, hidden, number, "Hint", "sudoku-menu")
    until("a green hint", lambda: run.main.cell(hidden).count(is_green) > 5)
    run.desktop.shot("sudoku-hint")


def choose(run, place, number, item, shot=None):
    run.main.open_popup(place, number)
    run.program.popup(item, shot)


def play(run, place, number):
    """Each digit in turn; gives the colour that it comes in."""
    colours = []
    for digit in "123456789":
        choose(run, place, number, digit)
        until_equal("frame round the cell", run.main.frame, 0)
        cell = run.main.cell(place)
        colours.append("green" if cell.count(is_green) > 5 else "red" if cell.count(is_dark_red) > 5 else "none")
        run.desktop.point(700, 900)
    return colours
