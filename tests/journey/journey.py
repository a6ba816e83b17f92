"""Walks through the built program as its user does, on a desktop of its own, with pointer and keys.

    /usr/bin/python3 journey.py PROGRAM OUTPUT_FOLDER

Keeps a numbered picture of every window in OUTPUT_FOLDER. Exit code 0 when everything was as it should be; 1 else, with
a message, the picture "failure" and what the accessibility tree held.
"""
import pathlib
import re
import signal
import sys
import traceback

sys.dont_write_bytecode = True  # the folder of the sources stays as it is

from desktop import Desktop, until
from picture import Picture

CELL = 30
FRAME = CELL * CELL - 26 * 26  # pixels of an outline two thick
MAIN_16X19 = "Raster Atelier (16x19)"
MAIN = "Raster Atelier (10x9)"
OPENED = "Zweedse Raster Atelier (10x9)"
DASHES = "-" * 28
WINE = ["B-01 / 2-V", "drank van druiven", "wijn", "-"]
TRAIN = ["C-05 / 43-H", "rijdt op rails", "trein", "-"]


def check(condition, message):
    if not condition:
        raise AssertionError(message)


def equal(what, found, wanted):
    check(found == wanted, f"{what}: {found!r}, not {wanted!r}")


def until_equal(what, look, wanted):
    found = []

    def same():
        found[:] = [look()]
        return found[0] == wanted

    try:
        until(what, same)
    except AssertionError as late:
        raise AssertionError(f"{late}; it stays {found[0]!r}, not {wanted!r}") from None


def is_red(red, green, blue):
    return (red, green, blue) == (255, 0, 0)


def is_ink(red, green, blue):
    return max(red, green, blue) < 130


def is_white(red, green, blue):
    return (red, green, blue) == (255, 255, 255)


def is_clue(red, green, blue):
    return (red, green, blue) == (229, 248, 194)


def is_frame(red, green, blue):
    return (red, green, blue) == (0, 200, 0)


def is_black(red, green, blue):
    return (red, green, blue) == (60, 60, 60)


class MainWindow:
    """The main window, as far as it can be seen."""

    def __init__(self, program, title, shot=None):
        self.program, self.desktop, self.title = program, program.desktop, title
        self.window = program.window(title, shot)
        self.field = self.window.find("filler", "Puzzelveld")
        self.list = self.window.find("tree", "Lijst van geplaatste woorden")

    def status(self):
        return self.window.find("frame", "Statusbalk").names()

    def count(self):
        return self.window.find("frame", "Lijst").names()[-1]

    def rows(self):
        self.list.accessible.clear_cache()
        table = self.list.accessible.queryTable()
        cells = [[table.getAccessibleAt(row, column) for column in range(4)] for row in range(table.nRows)]
        return [[cell and cell.name for cell in row] for row in cells]

    def row_middle(self, row):
        box = self.list.accessible.queryTable().getAccessibleAt(row, 1).queryComponent().getExtents(0)
        return box.x + box.width // 2, box.y + box.height // 2

    def cell_middle(self, place):
        """Where a cell such as "C-05" is on the screen."""
        left, top, _, _ = self.field.box()
        return left + (ord(place[0]) - ord("A")) * CELL + 15, top + (int(place[2:]) - 1) * CELL + 15

    def picture(self):
        """The puzzle field as it is on the screen."""
        return self.desktop.screen().part(*self.field.box())

    def cell(self, place, field=None):
        """The inside of a cell, without its grid lines."""
        return part_of_cell(field or self.picture(), place, 1, 1, 29, 29)

    def ink(self, place):
        """How much stands in the middle of a cell, where a letter is and no arrow of a neighbour comes."""
        return part_of_cell(self.picture(), place, 13, 5, 14, 20).count(is_ink)

    def red_cells(self):
        """The cells that the red line touches."""
        field = self.picture()
        places = [f"{chr(ord('A') + column)}-{row + 1:02}" for column in range(10) for row in range(9)]
        return [place for place in places if self.cell(place, field).count(is_red) > 0]

    def frame(self):
        """How many pixels there are of the green frame round the chosen cell."""
        return self.picture().count(is_frame)

    def open_popup(self, place, number):
        """Points at a cell and clicks it, once the status bar tells that it is the one."""
        self.desktop.point(*self.cell_middle(place))
        until_equal("the cell in the status bar", lambda: self.status()[0], f"{place} / {number}")
        self.desktop.click(*self.cell_middle(place))


def part_of_cell(field, place, x, y, width, height):
    return field.part((ord(place[0]) - ord("A")) * CELL + x, (int(place[2:]) - 1) * CELL + y, width, height)


class Journey:
    def __init__(self, desktop, program):
        self.desktop, self.path = desktop, program
        self.map = desktop.temp / "map"
        self.puzzles = self.map / "Puzzels"
        self.puzzles.mkdir(parents=True)
        self.log = (desktop.output / "program.log").open("wb")
        self.program = self.main = self.saved = None

    def launch(self, folder):
        # Here and not above: the import connects to the accessibility bus of the desktop that is there.
        from controls import Program

        self.program = Program(self.desktop, [str(self.path), "--map", str(folder)], self.log)

    def start(self, shot):
        self.launch(self.map)
        self.main = MainWindow(self.program, MAIN_16X19, shot)

    # Small steps

    def click(self, control):
        left, top, width, height = control.box()
        self.desktop.click(left + width // 2, top + height // 2)

    def push(self, window, name):
        self.click(window.find("push button", name))

    def write(self, control, text):
        """Types into a box, in the place of what is in it."""
        left, top, _, height = control.box()
        self.desktop.click(left + 12, top + min(height // 2, 12))
        self.desktop.key("ctrl+a")
        self.desktop.type(text)

    def message(self, title, text, answer, shot):
        """A message box: what it says, and the answer to it."""
        box = self.program.window(title, shot)
        equal(f"message '{title}'", box.names(), [text])
        self.push(box, answer)
        self.program.until_closed(title)

    def settings(self):
        lines = (self.map / "Rasteratelier.ini").read_bytes().decode("cp1252").split("\r\n")
        equal("settings", lines[:4], ['"Tessel Hoeksma Software 2017"', '"' + "-" * 26 + '"', "230,250,190", "1"])
        check(re.fullmatch(r'"[^"]+"', lines[4]), f"page text {lines[4]!r}")
        equal("end of the settings", lines[5:], [""])

    # The road

    def empty_folder(self):
        self.start("main-empty")
        self.settings()
        until("the clock", lambda: re.fullmatch(r".*\d.* / \d{1,2}:\d\d:\d\d", self.main.status()[1]))
        equal("items", self.main.count(), "0 Items")
        equal("field", self.main.field.box()[2:], (481, 571))
        self.desktop.key("Escape")
        self.desktop.key("Escape")

    def new_puzzle(self):
        self.program.menu("Bestand", "Nieuwe puzzel ontwerpen", "menu-file")
        window = self.program.window("Nieuwe puzzel ontwerpen", "new")
        self.push(window, "Ok")
        self.message("Rasteratelier", "Naam Puzzel invullen a.u.b. (Alleen letters a..z)", "OK", "new-no-name")
        window = self.program.window("Nieuwe puzzel ontwerpen")
        self.write(window.find("text", "Naam Puzzel"), "reis door nl ")
        width, height = window.all("combo box")
        for combo, size, label in ((width, "10", "Vakjes Horizontaal (10)"), (height, "9", "Vakjes Vertikaal (9)")):
            self.write(combo, size)
            window.find("label", label)
        self.desktop.shot("new-filled")
        self.push(window, "Ok")
        self.main = MainWindow(self.program, MAIN, "main-10x9")
        self.main.window.find("menu item", "reisdoornl")
        equal("field", self.main.field.box()[2:], (301, 271))

    def clue_cell(self):
        equal("white of A-01 at first", self.main.cell("A-01").count(is_white), 29 * 29)
        self.place_clue("A-01", 1, 3, "rode\nwijn", 2)

    def place_clue(self, place, number, kind, text, lines):
        """Makes an information cell of a cell, and waits until it is seen."""
        title = f"Informatievakje Plaatsen op {place} / {number}"
        self.main.open_popup(place, number)
        self.program.popup("Informatievakje plaatsen", f"popup-{place}")
        window = self.program.window(title, f"clue-{place}")
        until_equal("frame round the cell", self.main.frame, FRAME)
        self.choose_kind(window, kind)
        self.write(window.find("text", "Omschrijving"), text)
        window.find("label", f"Regel {lines}")
        self.desktop.shot(f"clue-{place}-filled")
        self.push(window, "Ok")
        self.program.until_closed(title)
        until_equal("frame round the cell", self.main.frame, 0)
        until(f"{place} turns green", lambda: self.main.cell(place).count(is_clue) > 500)
        self.desktop.shot(f"clue-{place}-placed")

    def choose_kind(self, window, kind):
        """Goes on with the arrow of the scroll bar until the kind is there."""
        bar = window.find("scroll bar", "Soort Vakje")
        left, top, width, height = bar.box()
        equal("kind at first", bar.value(), 1)
        for step in range(2, kind + 1):
            self.desktop.click(left + width - 6, top + height // 2)
            until_equal("kind", bar.value, step)
        window.find("label", str(kind))

    def solutions(self):
        window = self.solution_window("B-01", 2)
        self.push(window, "Ok")
        self.message("Error", "Omschrijving en/of Oplossing intypen...", "OK", "solution-empty")
        window = self.program.window("Oplossing Plaatsen op B-01 / 2")
        equal("ink where the word is to come", self.ink("B-01", "B-02", "B-03", "B-04", "C-01"), [0, 0, 0, 0, 0])
        self.fill_solution(window, "drank van druiven", "Wijn", 3, "Oplossing Vertikaal Plaatsen")
        self.desktop.shot("solution-filled")
        self.place_solution(window, [WINE])
        until("the letters W, IJ, N", lambda: min(self.ink("B-01", "B-02", "B-03")) > 12)
        equal("ink behind the word", self.ink("B-04", "C-01"), [0, 0])
        equal("items", self.main.count(), "1 Items")

        window = self.solution_window("C-05", 43)
        self.fill_solution(window, "rijdt op rails", "trein", 5, "Oplossing Horizontaal Plaatsen")
        self.place_solution(window, [WINE, TRAIN])
        until("the letters of the train", lambda: min(self.ink("C-05", "D-05", "E-05", "F-05", "G-05")) > 12)
        equal("ink behind the word", self.ink("H-05", "C-06"), [0, 0])
        equal("items", self.main.count(), "2 Items")
        self.desktop.shot("two-words")

    def ink(self, *places):
        return [self.main.ink(place) for place in places]

    def solution_window(self, place, number):
        self.main.open_popup(place, number)
        self.program.popup("Omschrijving en/of oplossing plaatsen")
        return self.program.window(f"Oplossing Plaatsen op {place} / {number}", f"solution-{place}")

    def fill_solution(self, window, clue, word, length, direction):
        self.write(window.find("text", "Omschrijving"), clue)
        self.write(window.find("text", "Oplossing"), word)
        window.find("label", f"Oplossing ({length})")
        self.click(window.find("radio button", direction))
        equal("clue in its box", window.find("text", "Omschrijving").text(), clue)

    def place_solution(self, window, rows):
        title = window.name
        self.push(window, "Ok")
        self.program.until_closed(title)
        until_equal("rows", self.main.rows, rows)
        until_equal("frame round the cell", self.main.frame, 0)

    def red_line(self):
        equal("red line at first", self.main.red_cells(), [])
        self.desktop.click(*self.main.row_middle(1))
        until_equal("red line of the second row", self.main.red_cells,
                    ["C-05", "D-05", "E-05", "F-05", "G-05"])
        self.desktop.shot("line-horizontal")
        self.desktop.click(*self.main.row_middle(0))
        until_equal("red line of the first row", self.main.red_cells, ["B-01", "B-02", "B-03"])
        self.desktop.shot("line-vertical")

    def save(self):
        self.program.menu("Bestand", "Puzzel opslaan")
        window = self.program.window("Puzzel opslaan", "save")
        equal("name", window.find("text", "Naam van de puzzel").text(), "reisdoornl")
        self.push(window, "Opslaan")
        until("the progress half way", lambda: any(
            30 <= int(match[1]) <= 90 for match in map(re.compile(r"(\d+)%").fullmatch, window.names()) if match))
        self.desktop.shot("save-busy")
        bar = self.desktop.screen().part(*window.find("filler", "Voortgang").box())
        check(bar.count(lambda *rgb: rgb == (0, 240, 0)) > 300 * 0.25 * 20, "no green bar")
        self.program.until_closed("Puzzel opslaan")
        self.check_files()

    def check_files(self):
        equal("files of the puzzle", sorted(path.name for path in self.puzzles.iterdir()),
              ["Reisdoornl.lst", "reisdoornl1.bmp", "reisdoornl2.bmp"])
        equal("files beside them", sorted(path.name for path in self.map.iterdir()), ["Puzzels", "Rasteratelier.ini"])
        wanted = ["Tessel Hoeksma Software ® 2018", "1", "10", "9", DASHES, *WINE, DASHES, *TRAIN, DASHES, ""]
        equal("Reisdoornl.lst", (self.puzzles / "Reisdoornl.lst").read_bytes(), "\r\n".join(wanted).encode("cp1252"))
        large = Picture.from_bmp((self.puzzles / "reisdoornl2.bmp").read_bytes())
        equal("size of the large board", (large.width, large.height), (1203, 1083))
        equal("colour of a clue cell on the large board", large.pixel(10, 110), (230, 250, 190))
        equal("pictures", [path.name for path in (self.desktop.home / "Pictures").iterdir()], ["Reisdoornl.jpg"])
        equal("size of the JPEG", jpeg_size((self.desktop.home / "Pictures" / "Reisdoornl.jpg").read_bytes()),
              (1203, 1083))
        self.saved = Picture.from_bmp((self.puzzles / "reisdoornl1.bmp").read_bytes())
        equal("size of the board", (self.saved.width, self.saved.height), (301, 271))

    def delete_row(self):
        self.desktop.click(*self.main.row_middle(1))
        until_equal("red line", lambda: len(self.main.red_cells()), 5)
        wipe = "Verwijder een item uit bovenstaande lijst"
        for answer, rows in (("Nee", [WINE, TRAIN]), ("Ja", [WINE])):
            self.push(self.main.window, wipe)
            # A window manager may leave the blank before the title away.
            title = until("the question", lambda: next(
                (one.name for one in self.program.windows() if one.name.strip() == "Delete"), None))
            self.message(title, "Wil je (trein) verwijderen uit de lijst?", answer, f"delete-row-{answer.lower()}")
            until_equal("rows", self.main.rows, rows)
        equal("items", self.main.count(), "1 Items")
        until_equal("red line", self.main.red_cells, [])
        until_equal("the field", self.main.picture, self.saved)

    def quit_with_changes(self):
        self.place_clue("F-02", 16, 5, "boven\n\nonder", 3)
        before = self.main.picture()

        question = "Puzzel is gewijzigd, wil je toch afsluiten?"
        self.push(self.main.window, "Programma Stoppen")
        self.message("Afsluiten", question, "Nee", "quit-question")
        self.main = MainWindow(self.program, MAIN, "not-quit")
        until_equal("the field", self.main.picture, before)
        equal("rows", self.main.rows(), [WINE])
        self.program.menu("Bestand", "Exit")
        box = self.program.window("Afsluiten")
        equal("question", box.names(), [question])
        self.push(box, "Ja")
        equal("exit code", self.program.ended(), 0)
        self.settings()

    def open_again(self):
        self.start("main-again")
        self.program.menu("Bestand", "Puzzel openen")
        window = self.program.window("Puzzel openen", "open")
        puzzles = window.find("list", "Puzzels")
        equal("puzzles", puzzles.names("list item"), ["Reisdoornl"])
        self.click(puzzles.find("list item", "Reisdoornl"))
        self.desktop.shot("open-chosen")
        self.push(window, "Ok")
        self.main = MainWindow(self.program, OPENED, "main-opened")
        until_equal("rows", self.main.rows, [WINE, TRAIN])
        equal("items", self.main.count(), "2 Items")
        self.main.window.find("menu item", "Reisdoornl")
        until_equal("the field", self.main.picture, self.saved)

    def messages(self):
        self.push(self.main.window, "Over de ontwerper")
        window = self.program.window("About Rasteratelier...", "about")
        told = "\n".join(window.names())
        check(re.search(rf"^Version : \d+\.\d+\.\d+ / {self.path.stat().st_size}$", told, re.MULTILINE), told)
        self.push(window, "Sluiten")
        self.program.until_closed("About Rasteratelier...")

        self.program.menu("Tools", "Copy puzzelveld naar Clipboard", "menu-tools")
        told = "Puzzel is gecopyeerd naar Clipboard en...\nbeschikbaar in diverse tekenprogramma's."
        self.message("Rasteratelier", told, "OK", "clipboard")
        self.program.menu("Help", "Speciale tekens", "menu-help")
        window = self.program.window("Rasteratelier", "special-characters")
        lines = re.split(r"[\r\n]+", "\n".join(window.names()))
        equal("special characters", (lines[0], lines[2], lines[-1], len(lines)),
              ("Bijzondere combinaties", "á  = Ctrl-Alt - a / 160", "¾ = Ctrl-Alt - 8", 17))
        self.push(window, "OK")
        self.program.until_closed("Rasteratelier")

    def black_cell(self):
        self.program.window(OPENED)
        for shot in ("black-cell", "black-cell-again"):
            self.desktop.click(*self.main.cell_middle("J-09"), button=3)
            until_equal("black in J-09", lambda: self.main.cell("J-09").count(is_black), 27 * 27)
            equal("the corner of a black cell", self.main.cell("J-09").pixel(0, 0), (255, 255, 255))
            self.desktop.shot(shot)
            self.desktop.click(*self.main.cell_middle("J-09"), button=3)
            until_equal("the field", self.main.picture, self.saved)

    def quit_without_question(self):
        self.push(self.main.window, "Programma Stoppen")
        equal("exit code", self.program.ended(), 0)
        self.settings()

    def failed_start(self, folder, about, shot):
        """A start that ends with a message and exit code 1."""
        self.launch(folder)
        box = self.program.window("Rasteratelier", shot)
        check(len(box.names()) == 1 and str(about) in box.names()[0], f"the message does not name {about}: {box.names()}")
        self.push(box, "OK")
        equal("exit code", self.program.ended(), 1)

    def damaged_starts(self):
        settings = self.map / "Rasteratelier.ini"
        settings.write_bytes(b'"kop"\r\n"streep"\r\nrood,groen')
        self.failed_start(self.map, settings, "damaged-settings")
        equal("the damaged settings", settings.read_bytes(), b'"kop"\r\n"streep"\r\nrood,groen')
        self.failed_start(self.map / "weg", self.map / "weg", "no-folder")

    def said_nothing_bad(self):
        self.log.close()
        said = (self.desktop.output / "program.log").read_text(encoding="utf-8", errors="replace")
        bad = re.findall(r"^.*(?:runtime error:|Sanitizer|Q[A-Za-z]+::).*$", said, re.MULTILINE)
        equal("warnings of the program", bad, [])

    def whole(self):
        for step in (self.empty_folder, self.new_puzzle, self.clue_cell, self.solutions, self.red_line, self.save,
                     self.delete_row, self.quit_with_changes, self.open_again, self.messages, self.black_cell,
                     self.quit_without_question, self.damaged_starts, self.said_nothing_bad):
            print(step.__name__, flush=True)
            step()


def jpeg_size(data):
    """Width and height by the frame header of a JPEG file."""
    check(data[:3] == b"\xff\xd8\xff", "no JPEG")
    at = 2
    while data[at + 1] not in (0xC0, 0xC1, 0xC2):
        at += 2 + int.from_bytes(data[at + 2 : at + 4], "big")
    return int.from_bytes(data[at + 7 : at + 9], "big"), int.from_bytes(data[at + 5 : at + 7], "big")


def main(program, output):
    output.mkdir(parents=True, exist_ok=True)
    for old in output.glob("[0-9][0-9]-*.png"):
        old.unlink()
    with Desktop(output) as desktop:
        journey = Journey(desktop, program)
        try:
            journey.whole()
        except Exception:  # whatever it is: what was on the screen tells most
            traceback.print_exc()
            print(f"FAILED, see {desktop.shot('failure')}", flush=True)
            (output / "tree.txt").write_text(journey.program.describe() if journey.program else "", encoding="utf-8")
            return 1
    print(f"all as it should be; {desktop.shots} pictures in {output}")
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 3:
        sys.exit(__doc__)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    sys.exit(main(pathlib.Path(sys.argv[1]).resolve(), pathlib.Path(sys.argv[2]).resolve()))
