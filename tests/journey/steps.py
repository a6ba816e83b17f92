"""The steps that the parts share, in the windows of one run of the program."""
from checks import check, equal, until_equal
from desktop import until
from mainwindow import FRAME, MainWindow, is_clue

MAIN = "Raster Atelier (16x19)"  # the main window as it starts


class Run:
    """One run of the program, from its start to its end."""

    def __init__(self, program):
        self.program, self.desktop = program, program.desktop
        self.main = None

    def started(self, shot=None):
        """Waits for the main window of a program that starts well."""
        self.main = MainWindow(self.program, MAIN, shot)

    # Small steps

    def push(self, window, name):
        window.find("push button", name).click()

    def write(self, control, text):
        """Types into a box, in the place of what is in it."""
        left, top, _, height = control.box()
        self.desktop.click(left + 12, top + min(height // 2, 12))
        self.desktop.key("ctrl+a")
        self.desktop.type(text)

    def message(self, title, text, answer, shot=None, code=None):
        """A message box: what it says, and the answer to it. With a code: the program ends with that."""
        box = self.program.window(title, shot)
        equal(f"message '{title}'", box.names(), [text])
        self.push(box, answer)
        if code is None:
            self.program.until_closed(title)
        else:
            equal("exit code", self.program.ended(), code)

    def failed(self, about, shot):
        """The message of a start that fails; it names what it is about, and the program ends with exit code 1."""
        box = self.program.window("Rasteratelier", shot)
        check(len(box.names()) == 1 and str(about) in box.names()[0], f"the message does not name {about}: {box.names()}")
        self.push(box, "OK")
        equal("exit code", self.program.ended(), 1)

    def quit(self):
        """By the button, when there is nothing to ask."""
        self.push(self.main.window, "Programma Stoppen")
        equal("exit code", self.program.ended(), 0)

    # A puzzle

    def fill_new(self, name, columns, rows):
        """Fills the dialog of a new puzzle, which is open."""
        window = self.program.window("Nieuwe puzzel ontwerpen")
        self.write(window.find("text", "Naam Puzzel"), name)
        width, height = window.all("combo box")
        for combo, size, label in ((width, columns, "Vakjes Horizontaal"), (height, rows, "Vakjes Vertikaal")):
            self.write(combo, str(size))
            window.find("label", f"{label} ({size})")
        return window

    def save(self, window):
        """In the dialog that is open; there is nothing to ask."""
        self.push(window, "Opslaan")
        self.program.until_closed("Puzzel opslaan")

    def open_dialog(self, shot=None):
        """The dialog of puzzles, and the list in it."""
        self.program.menu("Bestand", "Puzzel openen")
        window = self.program.window("Puzzel openen", shot)
        return window, window.find("list", "Puzzels")

    def open_puzzle(self, name, columns=10, rows=9, shot=None):
        window, puzzles = self.open_dialog()
        puzzles.find("list item", name).click()
        self.push(window, "Ok")
        self.main = MainWindow(self.program, f"Zweedse Raster Atelier ({columns}x{rows})", shot)

    def save_dialog(self, shot=None):
        self.program.menu("Bestand", "Puzzel opslaan")
        return self.program.window("Puzzel opslaan", shot)

    # A cell

    def clue_dialog(self, place, number, shot=None):
        self.main.open_popup(place, number)
        self.program.popup("Informatievakje plaatsen", f"popup-{place}" if shot else None)
        return self.program.window(f"Informatievakje Plaatsen op {place} / {number}", shot)

    def place_clue(self, place, number, kind, text, lines):
        """Makes an information cell of a cell, and waits until it is seen."""
        window = self.clue_dialog(place, number, f"clue-{place}")
        until_equal("frame round the cell", self.main.frame, FRAME)
        self.choose_kind(window, kind)
        self.write(window.find("text", "Omschrijving"), text)
        window.find("label", f"Regel {lines}")
        self.desktop.shot(f"clue-{place}-filled")
        self.push(window, "Ok")
        self.program.until_closed(window.name)
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

    def solution_dialog(self, place, number, shot=None):
        self.main.open_popup(place, number)
        self.program.popup("Omschrijving en/of oplossing plaatsen")
        return self.program.window(f"Oplossing Plaatsen op {place} / {number}", shot)

    def fill_solution(self, window, clue, word, length, direction):
        self.write(window.find("text", "Omschrijving"), clue)
        self.write(window.find("text", "Oplossing"), word)
        window.find("label", f"Oplossing ({length})")
        window.find("radio button", direction).click()
        equal("clue in its box", window.find("text", "Omschrijving").text(), clue)

    def place_solution(self, window, rows):
        """Ok, and the rows that there are then."""
        self.push(window, "Ok")
        self.program.until_closed(window.name)
        until_equal("rows", self.main.rows, rows)
        until_equal("frame round the cell", self.main.frame, 0)
