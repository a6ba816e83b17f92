"""A crossword for a magazine, from an empty folder to its sheets and its web page: black cells, a number, words with their clues,
and a letter."""
from checks import check, equal, until_equal
from desktop import until
from mainwindow import is_black, is_ink
from picture import Picture
from publish import Publication

BEE = ["A-01 / 1-H", "maakt honing", "bij", "1"]
BOAT = ["A-01 / 1-V", "Vaart op zee", "boot", "1"]
HOLD = ["D-01 / 4-V", "ligt onder het dek", "ruim", "3"]
SHEETS = [[], ["Horizontaal Vertikaal", "1. maakt honing 1. vaart op zee", "3. ligt onder het dek"]]
HORIZONTAL, VERTICAL = "Oplossing Horizontaal Plaatsen", "Oplossing Vertikaal Plaatsen"
CLUES = ["1 - H. maakt honing", "1 - V. Vaart op zee", "3 - V. ligt onder het dek"]


def walk(journey):
    puzzle = Publication(journey, "Kruiswoord", "kruis", 9, 10)
    run = journey.start()
    puzzle.begin(run)
    black_cells(run)
    number(run)
    word(run, BEE, HORIZONTAL, "A-01", "B-01")
    word(run, BOAT, VERTICAL, "A-02", "A-03", "A-04")
    word(run, HOLD, VERTICAL, "D-01", "D-02", "D-03", "D-04")
    letter(run)
    run.save(run.save_dialog("save"))
    puzzle.publish(run, [BEE, BOAT, HOLD], SHEETS, CLUES)
    check_sheet(journey)


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


def word(run, row, direction, *places):
    """With the number of its clue, when that is another than the one that stands there at first."""
    place, rest = row[0].split(" / ")
    rows = run.main.rows()
    window = run.solution_dialog(place, rest.split("-")[0])
    run.fill_solution(window, row[1], row[2], len(row[2].replace("ij", "y")), direction)
    if row[3] != "1":
        [combo] = window.all("combo box")
        run.write(combo, row[3])
    run.desktop.shot(f"solution-{row[2]}-filled")
    run.place_solution(window, [*rows, row])
    until("the letters", lambda: min(run.main.ink(*places)) > 12)


def letter(run):
    """By the keys of the scroll bar, which has the focus."""
    window, bar = dialog(run, "F-06", 51, "Letter plaatsen", "1 Letter", "letter")
    window.find("label", "A")
    for key, value, shown in (("End", 26, "IJ"), ("Left", 25, "Z")):
        run.desktop.key(key)
        until_equal("place of the letter", bar.value, value)
        window.find("label", shown)
    run.desktop.shot("letter-chosen")
    close(run, window)
    until("the letter", lambda: run.main.ink("F-06")[0] > 12)
    run.desktop.shot("crossword")


def check_sheet(journey):
    """Numbers and black cells stand on it, and no letters."""
    large = Picture.from_bmp((journey.puzzles / "kruis2.bmp").read_bytes())
    def ink(column, row):
        return large.part(column * 120 + 3, row * 120 + 3, 117, 117).count(is_ink)
    equal("a black cell on the large board", ink(2, 0), 111 * 111)
    check(all(10 < ink(column, 0) < 500 for column in (0, 3)), "no numbers on the large board")
    equal("letters on the large board", [ink(column, row) for column, row in ((1, 0), (0, 1), (3, 1), (5, 5))], [0, 0, 0, 0])
