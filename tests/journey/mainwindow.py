"""The main window, as far as it can be seen."""
from checks import until_equal
from desktop import until

CELL = 30
FRAME = CELL * CELL - 26 * 26  # pixels of an outline two thick


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
    """Its pictures are told in pixels of an unscaled screen."""

    def __init__(self, program, title, shot=None):
        self.program, self.desktop, self.title = program, program.desktop, title
        self.window = program.window(title, shot)
        self.field = self.window.find("filler", "Puzzelveld")
        self.list = self.window.find("tree", "Lijst van geplaatste woorden")

    def status(self):
        """The cell under the pointer, and the clock."""
        bar = self.window.find("frame", "Statusbalk")
        return until("both texts of the status bar", lambda: len(found := bar.names()) == 2 and found)

    def count(self):
        return self.window.find("frame", "Lijst").names()[-1]

    def rows(self):
        return [[cell.accessible and cell.name for cell in row] for row in self.list.cells()]

    def choose_row(self, row):
        self.list.cells()[row][1].click()

    def cell_middle(self, place):
        """Where a cell such as "C-05" is on the screen."""
        left, top, _, _ = self.field.box()
        column, row = ord(place[0]) - ord("A"), int(place[2:]) - 1
        step = CELL * self.program.scale
        return round(left + (column + 0.5) * step), round(top + (row + 0.5) * step)

    def picture(self):
        """The puzzle field as it is on the screen."""
        return self.desktop.screen().part(*self.field.box())

    def cell(self, place, field=None):
        """The inside of a cell, without its grid lines."""
        return part_of_cell(field or self.picture(), place, 1, 1, 29, 29)

    def ink(self, *places):
        """How much stands in the middle of each cell, where a letter is and no arrow of a neighbour comes."""
        field = self.picture()
        return [part_of_cell(field, place, 13, 5, 14, 20).count(is_ink) for place in places]

    def red_cells(self):
        """The cells that the red line touches."""
        field = self.picture()
        columns, rows = field.width // CELL, field.height // CELL
        places = [f"{chr(ord('A') + column)}-{row + 1:02}" for column in range(columns) for row in range(rows)]
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
