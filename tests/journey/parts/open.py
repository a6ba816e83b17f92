"""The dialog of puzzles: what is in its list, one that is opened to the pixel, one that is deleted after a question."""
from checks import equal, until_equal
from mainwindow import MainWindow
from puzzlefiles import TRAIN, WINE, names, write_puzzle


def walk(journey):
    small, _ = write_puzzle(journey.puzzles, "Reisdoornl")
    write_puzzle(journey.puzzles, "bergen", 16, 19, [])
    run = journey.start()
    opened(run, small)
    other_size(journey, run)
    deleted(journey, run)


def opened(run, field):
    window, puzzles = run.open_dialog("open")
    equal("puzzles", puzzles.names("list item"), ["bergen", "Reisdoornl"])
    puzzles.find("list item", "Reisdoornl").click()
    run.desktop.shot("open-chosen")
    run.push(window, "Ok")
    run.main = MainWindow(run.program, "Zweedse Raster Atelier (10x9)", "main-opened")
    until_equal("rows", run.main.rows, [WINE, TRAIN])
    equal("items", run.main.count(), "2 Items")
    run.main.window.find("menu item", "Reisdoornl")
    until_equal("the field", run.main.picture, field)


def other_size(journey, run):
    """Another puzzle leaves nothing of the first; a double click opens it."""
    field, _ = write_puzzle(journey.puzzles, "bergen", 16, 19, [])
    _, puzzles = run.open_dialog()
    puzzles.find("list item", "bergen").click(2)
    run.main = MainWindow(run.program, "Zweedse Raster Atelier (16x19)", "main-other-size")
    until_equal("rows", run.main.rows, [])
    equal("items", run.main.count(), "0 Items")
    run.main.window.find("menu item", "bergen")
    until_equal("the field", run.main.picture, field)


def deleted(journey, run):
    others = ["bergen.lst", "bergen1.bmp", "bergen2.bmp"]
    own = ["Reisdoornl.lst", "Reisdoornl1.bmp", "Reisdoornl2.bmp"]
    window, puzzles = run.open_dialog()
    puzzles.find("list item", "Reisdoornl").click()
    for answer, listed, files in (("Nee", ["bergen", "Reisdoornl"], own + others), ("Ja", ["bergen"], others)):
        run.push(window, "Puzzel verwijderen")
        question = "Wilt je deze puzzel 'Reisdoornl' verwijderen?"
        run.message("Delete", question, answer, f"delete-puzzle-{answer.lower()}")
        window = run.program.window("Puzzel openen")
        until_equal("puzzles", lambda: puzzles.names("list item"), listed)
        equal("files", names(journey.puzzles), sorted(files))
    run.desktop.shot("deleted")
    run.push(window, "Annuleren")
    run.program.until_closed("Puzzel openen")
