"""The list of words: the red line over the word of a row, and a row that is deleted after a question."""
from checks import equal, until_equal
from puzzlefiles import TRAIN, WINE, write_puzzle


def walk(journey):
    field, _ = write_puzzle(journey.puzzles, "Reisdoornl")
    run = journey.start()
    run.open_puzzle("Reisdoornl")
    red_line(run)
    delete_row(run, field)
    run.quit()


def red_line(run):
    equal("red line at first", run.main.red_cells(), [])
    run.main.choose_row(1)
    until_equal("red line of the second row", run.main.red_cells, ["C-05", "D-05", "E-05", "F-05", "G-05"])
    run.desktop.shot("line-horizontal")
    run.main.choose_row(0)
    until_equal("red line of the first row", run.main.red_cells, ["B-01", "B-02", "B-03"])
    run.desktop.shot("line-vertical")


def delete_row(run, field):
    run.main.choose_row(1)
    until_equal("red line", lambda: len(run.main.red_cells()), 5)
    for answer, rows in (("Nee", [WINE, TRAIN]), ("Ja", [WINE])):
        run.push(run.main.window, "Verwijder een item uit bovenstaande lijst")
        run.message("Delete", "Wil je (trein) verwijderen uit de lijst?", answer, f"delete-row-{answer.lower()}")
        until_equal("rows", run.main.rows, rows)
    equal("items", run.main.count(), "1 Items")
    until_equal("red line", run.main.red_cells, [])
    until_equal("the field", run.main.picture, field)
