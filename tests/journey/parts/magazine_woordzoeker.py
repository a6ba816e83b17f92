"""A word search for a magazine, from an empty folder to its sheet and its web page: its words are placed by hand and the cells
between them filled. Before it, one is drawn of typed words in its own window and put on the board."""
import time

from checks import check, equal, until_equal
from desktop import until
from mainwindow import MainWindow
from publish import Publication

TIGER = ["A-01 / 1-H", "", "tijger", "-"]
LION = ["A-02 / 11-R", "", "leeuw", "-"]
DUCK = ["J-05 / 50-V", "", "eend", "-"]
WORDS = [TIGER, LION, DUCK]
CAPITALS = ["TIJGER", "LEEUW", "EEND"]


def walk(journey):
    puzzle = Publication(journey, "Woordzoeker", "dieren", 10, 9)
    run = journey.start()
    automatic(run)
    puzzle.begin(run)
    place(run, TIGER, 5, "Oplossing Horizontaal Plaatsen")
    place(run, LION, 5, "Diagonaal naar rechtsonder Plaatsen")
    place(run, DUCK, 4, "Oplossing Vertikaal Plaatsen", backwards=True)
    fill(run)
    run.save(run.save_dialog("save"))
    puzzle.publish(run, WORDS, [CAPITALS], CAPITALS)


def places(columns, rows):
    """All cells of a field."""
    return [f"{chr(65 + column)}-{row + 1:02}" for row in range(rows) for column in range(columns)]


def automatic(run):
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
    check(min(run.main.ink(*places(12, 15))) > 3, "a cell without a letter")


def draw(run, window, box, before):
    """Draws a puzzle, and gives the picture of it."""
    time.sleep(0.6)  # two presses in one place are a double click, which is one, when they come sooner
    run.push(window, "Draw puzzel")
    def drawn():
        time.sleep(0.1)
        picture = run.desktop.screen().part(*box)
        return picture if picture != before and picture.count(lambda *rgb: max(rgb) < 60) > 500 else None
    return until("the grid", drawn)


def place(run, row, length, direction, backwards=False):
    cell, rest = row[0].split(" / ")
    rows = run.main.rows()
    window = run.solution_dialog(cell, rest.split("-")[0])
    run.write(window.find("text", "Oplossing"), row[2])
    window.find("label", f"Oplossing ({length})")
    window.find("radio button", direction).click()
    if backwards:
        window.find("check box", "Oplossing omgekeerd").click()
    run.desktop.shot(f"solution-{row[2]}-filled")
    run.place_solution(window, [*rows, row])


def letters(run):
    """The cells that hold one."""
    cells = places(10, 9)
    return [cell for cell, ink in zip(cells, run.main.ink(*cells)) if ink > 3]


def fill(run):
    """The words stay what they are."""
    wanted = ["A-01", "B-01", "C-01", "D-01", "E-01", "A-02", "B-03", "C-04", "D-05", "J-05", "E-06", "J-06", "J-07", "J-08"]
    until_equal("letters", lambda: letters(run), wanted)
    before = run.main.picture()
    run.main.open_popup("F-06", 56)
    run.program.popup("Lege vakjes opvullen", "popup-fill")
    run.message("Fill", "Wil je alle lege vakjes opvullen met willekeurige letters?", "Ja", "question-fill")
    until_equal("letters", lambda: letters(run), places(10, 9))
    run.desktop.point(700, 900)
    run.desktop.shot("filled")
    after = run.main.picture()
    equal("words", [run.main.cell(cell, after) for cell in wanted], [run.main.cell(cell, before) for cell in wanted])
