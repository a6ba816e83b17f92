"""A cell that turns black and white again by the right button; the puzzle doesn't count as changed by it."""
from checks import equal, until_equal
from mainwindow import is_black
from puzzlefiles import write_puzzle


def walk(journey):
    field, _ = write_puzzle(journey.puzzles, "Reisdoornl")
    run = journey.start()
    run.open_puzzle("Reisdoornl")
    until_equal("the field", run.main.picture, field)
    for shot in ("black-cell", "black-cell-again"):
        run.desktop.click(*run.main.cell_middle("J-09"), button=3)
        until_equal("black in J-09", lambda: run.main.cell("J-09").count(is_black), 27 * 27)
        equal("the corner of a black cell", run.main.cell("J-09").pixel(0, 0), (255, 255, 255))
        run.desktop.shot(shot)
        run.desktop.click(*run.main.cell_middle("J-09"), button=3)
        until_equal("the field", run.main.picture, field)
    run.quit()
