"""A crossword from nothing: black cells, a number, words and a letter; saved, and opened again."""
from checks import check, equal, until_equal
from desktop import until
from mainwindow import MainWindow, is_black, is_ink
from picture import Picture
from puzzlefiles import list_file, names

BEE = ["A-01 / 1-H", "maakt honing", "bij", "1"]
BOAT = ["A-01 / 1-V", "vaart op zee", "boot", "1"]


def walk(journey):
    run = journey.start()
    new_puzzle(run)
    black_cells(run)
    number(run)
    word(run, BEE, 2, "Oplossing Horizontaal Plaatsen", "A-01", "B-01")
    word(run, BOAT, 4, "Oplossing Vertikaal Plaatsen", "A-02", "A-03", "A-04")
    letter(run)
    save(journey, run)
    run.quit()


def new_puzzle(run):
    run.program.menu("Bestand", "Nieuwe puzzel ontwerpen")
    window = run.fill_new("kruis", 9, 10)
    window.find("radio button", "Kruiswoord Puzzel").click()
    run.push(window, "Ok")
    run.main = MainWindow(run.program, "Raster Atelier (9x10)", "crossword-empty")
    run.main.window.find("label", "Soortpuzzel : Kruiswoord")


def black_cells(run):
    for place in ("C-01", "B-02"):
        run.desktop.click(*run.main.cell_middle(place), button=3)
        until_equal(f"black in {place}", lambda: run.main.cell(place).count(is_black), 27 * 27)


def dialog(run, place, number, item, title, shot):
    """The dialog of an item of the pop-up of a cell, and its scroll bar."""
    run.main.open_popup(place, number)
    run.program.popup(item, f"{shot}-popup")
    window = run.program.window(f"{title} Plaatsen op {place} / {number}", shot)
    return window, window.all("scroll bar")[0]


def close(run, window):
    run.push(window, "Ok")
    run.program.until_closed(window.name)
    until_equal("frame round the cell", run.main.frame, 0)


def corner(run, place):
    """How much stands in the top left corner of a cell."""
    return run.main.cell(place).part(0, 0, 12, 10).count(is_ink)


def number(run):
    """By the arrow of the scroll bar; what is shown at first is not picked yet."""
    equal("ink in the corner", corner(run, "D-01"), 0)
    window, bar = dialog(run, "D-01", 4, "Vaknummer plaatsen", "Vaknummer", "number")
    left, top, width, height = bar.box()
    for value in (2, 3):
        run.desktop.click(left + width - 6, top + height // 2)
        until_equal("number", bar.value, value)
    window.find("label", "3")
    run.desktop.shot("number-chosen")
    close(run, window)
    until("a number in the corner", lambda: corner(run, "D-01") > 3)


def word(run, row, length, direction, *places):
    place, number = "A-01", 1
    rows = run.main.rows()
    window = run.solution_dialog(place, number)
    run.fill_solution(window, row[1], row[2], length, direction)
    run.place_solution(window, [*rows, row])
    until("the letters", lambda: min(run.main.ink(*places)) > 12)


def letter(run):
    """By the keys of the scroll bar, which has the focus."""
    window, bar = dialog(run, "D-04", 31, "Letter plaatsen", "1 Letter", "letter")
    window.find("label", "A")
    for key, value, shown in (("End", 26, "IJ"), ("Left", 25, "Z")):
        run.desktop.key(key)
        until_equal("place of the letter", bar.value, value)
        window.find("label", shown)
    run.desktop.shot("letter-chosen")
    close(run, window)
    until("the letter", lambda: run.main.ink("D-04")[0] > 12)
    run.desktop.shot("crossword")


def save(journey, run):
    run.save(run.save_dialog())
    equal("files", names(journey.puzzles), ["Kruis.lst", "kruis1.bmp", "kruis2.bmp"])
    equal("Kruis.lst", (journey.puzzles / "Kruis.lst").read_bytes(), list_file(9, 10, [BEE, BOAT], kind=3))
    saved = Picture.from_bmp((journey.puzzles / "kruis1.bmp").read_bytes())
    until_equal("the field that was saved", run.main.picture, saved)
    large = Picture.from_bmp((journey.puzzles / "kruis2.bmp").read_bytes())
    def ink(column, row):
        return large.part(column * 120 + 3, row * 120 + 3, 117, 117).count(is_ink)
    equal("a black cell on the large board", ink(2, 0), 111 * 111)
    check(all(10 < ink(column, 0) < 500 for column in (0, 3)), "no numbers on the large board")
    equal("letters on the large board", [ink(1, 0), ink(0, 1), ink(3, 3)], [0, 0, 0])
    run.open_puzzle("Kruis", 9, 10)
    until_equal("rows", run.main.rows, [BEE, BOAT])
    until_equal("the field", run.main.picture, saved)
