"""What can be done by keyboard alone; the pointer is never used."""
from checks import equal, until_equal
from mainwindow import MainWindow
from puzzlefiles import TRAIN, WINE, names, write_puzzle

FILE_MENU = ["Nieuwe puzzel ontwerpen", "Puzzel openen", "Puzzel opslaan"]  # its first items, and the titles they open
CANCEL, OK = ("push button", "Annuleren"), ("push button", "Ok")
REMOVE = "push button", "Puzzel verwijderen"
LIST = "tree", "Lijst van geplaatste woorden"


def walk(journey):
    field, _ = write_puzzle(journey.puzzles, "Reisdoornl")
    write_puzzle(journey.puzzles, "bergen")
    keys = Keys(journey.start())
    escape(keys)
    new_puzzle(keys)
    open_puzzle(keys, field)
    delete_puzzle(keys, journey.puzzles)
    delete_row(keys)
    leave(keys)
    journey.check_settings()


class Keys:
    """Presses keys, and waits each time until the focus is where it then should be."""

    def __init__(self, run):
        self.run, self.desktop, self.program = run, run.desktop, run.program

    def press(self, key, role, name):
        self.desktop.key(key)
        self.program.until_focus(role, name)

    def choose(self, down):
        """An item of the first menu, by how far it is down."""
        self.program.until_focus(*LIST)
        self.desktop.hold("alt")
        self.program.until_focus("menu item", "Bestand")
        for name in FILE_MENU[: down + 1]:
            self.press("Down", "menu item", name)
        self.desktop.key("Return")

    def tab_to(self, *stops):
        for role, name in stops:
            self.press("Tab", role, name)


def escape(keys):
    """Each dialog closes by Escape."""
    for item, title in enumerate(FILE_MENU):
        keys.choose(item)
        keys.program.window(title)
        keys.press("Escape", *LIST)
        keys.program.until_closed(title)


def new_puzzle(keys):
    keys.choose(0)
    window = keys.program.window("Nieuwe puzzel ontwerpen", "new")
    keys.program.until_focus("text", "Naam Puzzel")
    keys.tab_to(CANCEL, OK)
    keys.desktop.key("space")
    box = keys.program.window("Rasteratelier", "new-no-name")
    equal("message", box.names(), ["Naam Puzzel invullen a.u.b. (Alleen letters a..z)"])
    keys.press("Return", "text", "Naam Puzzel")
    keys.desktop.type("bergen aan zee")
    keys.tab_to(CANCEL, OK, ("combo box", "16"))
    keys.desktop.type("12")
    window.find("label", "Vakjes Horizontaal (12)")
    keys.tab_to(("combo box", "19"))
    keys.desktop.type("9")
    window.find("label", "Vakjes Vertikaal (9)")
    keys.tab_to(("radio button", "Zweedse Puzzel"))
    keys.press("Down", "radio button", "Woordzoeker")
    keys.tab_to(("text", "Naam Puzzel"), CANCEL, OK)
    keys.desktop.shot("new-filled")
    keys.desktop.key("Return")
    keys.run.main = MainWindow(keys.program, "Raster Atelier (12x9)", "main-12x9")
    keys.run.main.window.find("menu item", "bergenaanzee")
    keys.run.main.window.find("label", "Soortpuzzel : Woordzoeker")
    equal("field", keys.run.main.field.box()[2:], (361, 271))


def open_puzzle(keys, field):
    keys.choose(1)
    keys.program.window("Puzzel openen", "open")
    keys.program.until_focus("list", "Puzzels")
    keys.press("Down", "list item", "bergen")
    keys.press("Down", "list item", "Reisdoornl")
    keys.tab_to(REMOVE, CANCEL, OK)
    keys.desktop.shot("open-chosen")
    keys.desktop.key("space")
    keys.run.main = MainWindow(keys.program, "Zweedse Raster Atelier (10x9)", "main-opened")
    until_equal("rows", keys.run.main.rows, [WINE, TRAIN])
    until_equal("the field", keys.run.main.picture, field)


def delete_puzzle(keys, folder):
    keys.choose(1)
    window = keys.program.window("Puzzel openen")
    keys.program.until_focus("list", "Puzzels")
    keys.press("Down", "list item", "bergen")
    keys.tab_to(REMOVE)
    keys.desktop.key("space")
    box = keys.program.window("Delete", "delete-puzzle")
    equal("question", box.names(), ["Wilt je deze puzzel 'bergen' verwijderen?"])
    keys.desktop.key("j")
    keys.program.until_closed("Delete")
    until_equal("puzzles", lambda: window.find("list", "Puzzels").names("list item"), ["Reisdoornl"])
    equal("files", names(folder), ["Reisdoornl.lst", "Reisdoornl1.bmp", "Reisdoornl2.bmp"])
    keys.press("Escape", *LIST)
    keys.program.until_closed("Puzzel openen")


def delete_row(keys):
    """The rows are walked through with the arrows; the question is answered by its letters."""
    wipe = "push button", "Verwijder een item uit bovenstaande lijst"
    keys.press("Down", "table cell", TRAIN[0])
    until_equal("red line", keys.run.main.red_cells, ["C-05", "D-05", "E-05", "F-05", "G-05"])
    keys.press("Up", "table cell", WINE[0])
    until_equal("red line", keys.run.main.red_cells, ["B-01", "B-02", "B-03"])
    keys.tab_to(wipe)
    for answer, rows in (("n", [WINE, TRAIN]), ("j", [TRAIN])):
        keys.desktop.key("space")
        box = keys.program.window("Delete", f"delete-row-{answer}")
        equal("question", box.names(), ["Wil je (wijn) verwijderen uit de lijst?"])
        keys.press(answer, *wipe)
        keys.program.until_closed("Delete")
        until_equal("rows", keys.run.main.rows, rows)


def leave(keys):
    stops = [("list", "Gevonden woorden"), ("scroll bar", "Woordlengte"), ("push button", "Start zoeken op woordlengte"),
             ("list", "Woorden van de lijst"), ("combo box", "Alles"), ("list", "Woordlijsten"), ("push button", "Load"),
             ("push button", "Uitleg en Hulp"), ("push button", "Over de ontwerper"), ("push button", "Programma Stoppen")]
    keys.tab_to(*stops)
    keys.desktop.shot("stop-focused")
    keys.desktop.key("Return")
    equal("exit code", keys.program.ended(), 0)
