"""A Sudoku for a magazine, from an empty folder to its sheet and its web page: shuffled, and played a little."""
from checks import equal, until_equal
from desktop import until
from publish import Publication

PLACES = [f"{chr(65 + column)}-{row + 1:02}" for row in range(9) for column in range(9)]


def is_green(red, green, blue):
    return green > red + 60 and green > blue + 60


def is_dark_red(red, green, blue):
    return red > green + 60 and red > blue + 60


def is_tinted(red, green, blue):
    return (red, green, blue) == (235, 235, 205)


def walk(journey):
    puzzle = Publication(journey, "Sudoku", "cijfers", 9, 9)
    run = journey.start()
    puzzle.begin(run)
    shuffle(run)
    solve_one(run)
    run.save(run.save_dialog("save"))
    puzzle.publish(run, [], [[]], [], "Tevens oplossing afdrukken")


def given(run):
    """The cells of the digits that are given."""
    field = run.main.picture()
    return [place for place in PLACES if run.main.cell(place, field).count(is_tinted) > 300]


def shuffle(run):
    run.main.window.find("radio button", "Moeilijk").click()
    run.push(run.main.window, "Nieuwe puzzel")
    until("given digits", lambda: len(given(run)) > 5)
    run.desktop.shot("sudoku-shuffled")


def solve_one(run):
    """Each digit is tried in a cell, then the hint."""
    there = given(run)
    hidden = next(place for place in PLACES if place not in there)
    number = PLACES.index(hidden) + 1
    colours = play(run, hidden, number)
    equal("right digits", colours.count("green"), 1)
    equal("wrong digits", colours.count("red"), 8)
    choose(run, hidden, number, "Hint", "sudoku-menu")
    until("a green hint", lambda: run.main.cell(hidden).count(is_green) > 5)
    run.desktop.shot("sudoku-hint")


def choose(run, place, number, item, shot=None):
    run.main.open_popup(place, number)
    run.program.popup(item, shot)


def play(run, place, number):
    """Each digit in turn; gives the colour that it comes in."""
    colours = []
    for digit in "123456789":
        choose(run, place, number, digit)
        until_equal("frame round the cell", run.main.frame, 0)
        cell = run.main.cell(place)
        colours.append("green" if cell.count(is_green) > 5 else "red" if cell.count(is_dark_red) > 5 else "none")
        run.desktop.point(700, 900)
    return colours
