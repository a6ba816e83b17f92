"""From an empty folder to a saved puzzle that opens again."""
import re

from checks import check, equal, until_equal
from desktop import until
from mainwindow import MainWindow, is_white
from picture import Picture
from puzzlefiles import TRAIN, WINE, jpeg_size, list_file, names

MAIN = "Raster Atelier (10x9)"


def walk(journey):
    run = journey.start("main-empty")
    empty_folder(journey, run)
    new_puzzle(run)
    clue_cell(run)
    first_word(run)
    second_word(run)
    save(run)
    saved = check_files(journey)
    until_equal("the field that was saved", run.main.picture, saved)
    run.quit()
    open_again(journey, saved)


def empty_folder(journey, run):
    journey.check_settings()
    until("the clock", lambda: re.fullmatch(r".*\d.* / \d{1,2}:\d\d:\d\d", run.main.status()[1]))
    equal("items", run.main.count(), "0 Items")
    equal("field", run.main.field.box()[2:], (481, 571))
    run.desktop.key("Escape")
    run.desktop.key("Escape")


def new_puzzle(run):
    run.program.menu("Bestand", "Nieuwe puzzel ontwerpen", "menu-file")
    run.push(run.program.window("Nieuwe puzzel ontwerpen", "new"), "Ok")
    run.message("Rasteratelier", "Naam Puzzel invullen a.u.b. (Alleen letters a..z)", "OK", "new-no-name")
    window = run.fill_new("reis door nl ", 10, 9)
    run.desktop.shot("new-filled")
    run.push(window, "Ok")
    run.main = MainWindow(run.program, MAIN, "main-10x9")
    run.main.window.find("menu item", "reisdoornl")
    equal("field", run.main.field.box()[2:], (301, 271))


def clue_cell(run):
    equal("white of A-01 at first", run.main.cell("A-01").count(is_white), 29 * 29)
    run.place_clue("A-01", 1, 3, "rode\nwijn", 2)


def first_word(run):
    window = run.solution_dialog("B-01", 2, "solution-B-01")
    run.push(window, "Ok")
    run.message("Error", "Omschrijving en/of Oplossing intypen...", "OK", "solution-empty")
    window = run.program.window("Oplossing Plaatsen op B-01 / 2")
    equal("ink where the word is to come", run.main.ink("B-01", "B-02", "B-03", "B-04", "C-01"), [0, 0, 0, 0, 0])
    run.fill_solution(window, "drank van druiven", "Wijn", 3, "Oplossing Vertikaal Plaatsen")
    run.desktop.shot("solution-filled")
    run.place_solution(window, [WINE])
    until("the letters W, IJ, N", lambda: min(run.main.ink("B-01", "B-02", "B-03")) > 12)
    equal("ink behind the word", run.main.ink("B-04", "C-01"), [0, 0])
    equal("items", run.main.count(), "1 Items")


def second_word(run):
    window = run.solution_dialog("C-05", 43, "solution-C-05")
    run.fill_solution(window, "rijdt op rails", "trein", 5, "Oplossing Horizontaal Plaatsen")
    run.place_solution(window, [WINE, TRAIN])
    until("the letters of the train", lambda: min(run.main.ink("C-05", "D-05", "E-05", "F-05", "G-05")) > 12)
    equal("ink behind the word", run.main.ink("H-05", "C-06"), [0, 0])
    equal("items", run.main.count(), "2 Items")
    run.desktop.shot("two-words")


def save(run):
    window = run.save_dialog("save")
    equal("name", window.find("text", "Naam van de puzzel").text(), "reisdoornl")
    run.push(window, "Opslaan")
    until("the progress half way", lambda: any(
        30 <= int(match[1]) <= 90 for match in map(re.compile(r"(\d+)%").fullmatch, window.names()) if match))
    run.desktop.shot("save-busy")
    bar = run.desktop.screen().part(*window.find("filler", "Voortgang").box())
    check(bar.count(lambda *rgb: rgb == (0, 240, 0)) > 300 * 0.25 * 20, "no green bar")
    run.program.until_closed("Puzzel opslaan")


def check_files(journey):
    """Gives the field that was saved."""
    equal("files of the puzzle", names(journey.puzzles), ["Reisdoornl.lst", "reisdoornl1.bmp", "reisdoornl2.bmp"])
    equal("files beside them", names(journey.map), ["Puzzels", "Rasteratelier.ini"])
    equal("Reisdoornl.lst", (journey.puzzles / "Reisdoornl.lst").read_bytes(), list_file(10, 9, [WINE, TRAIN]))
    large = Picture.from_bmp((journey.puzzles / "reisdoornl2.bmp").read_bytes())
    equal("size of the large board", (large.width, large.height), (1203, 1083))
    equal("colour of a clue cell on the large board", large.pixel(10, 110), (230, 250, 190))
    equal("pictures", names(journey.pictures), ["Reisdoornl.jpg"])
    equal("size of the JPEG", jpeg_size((journey.pictures / "Reisdoornl.jpg").read_bytes()), (1203, 1083))
    saved = Picture.from_bmp((journey.puzzles / "reisdoornl1.bmp").read_bytes())
    equal("size of the board", (saved.width, saved.height), (301, 271))
    return saved


def open_again(journey, saved):
    run = journey.start("main-again")
    run.open_puzzle("Reisdoornl", shot="main-opened")
    until_equal("rows", run.main.rows, [WINE, TRAIN])
    equal("items", run.main.count(), "2 Items")
    run.main.window.find("menu item", "Reisdoornl")
    until_equal("the field", run.main.picture, saved)
