"""A Zweedse puzzel for a magazine, from an empty folder to its sheets and its web page. Its clue cells are of several kinds, and
one of its words comes from an installed list."""
import re
import shutil

from checks import check, equal, until_equal
from desktop import until
from mainwindow import is_white
from picture import Picture
from publish import Publication
from puzzlefiles import TRAIN, WINE, names

HEDGEHOG = ["E-05 / 45-V", "stekelig dier", "egel", "-"]
RAM = ["F-04 / 36-H", "mannelijk schaap", "ram", "-"]
WORDS = [WINE, TRAIN, RAM, HEDGEHOG]
HORIZONTAL, VERTICAL = "Oplossing Horizontaal Plaatsen", "Oplossing Vertikaal Plaatsen"
LIST_HEAD = ["Vaknummer Omschrijving Oplossing", "-" * 162]


def walk(journey):
    puzzle = Publication(journey, "Zweeds", "reisdoornl", 10, 9)
    run = journey.start("main-empty")
    empty_folder(journey, run)
    no_name(run)
    puzzle.begin(run, "reis door nl ")
    clue_cells(run)
    first_word(run)
    other_words(run)
    word_of_a_list(journey, run)
    save(run)
    puzzle.publish(run, WORDS, [[], [], [*LIST_HEAD, *(" ".join(row[:3]) for row in WORDS)]], [])
    check_colour(journey)


def empty_folder(journey, run):
    journey.check_settings()
    until("the clock", lambda: re.fullmatch(r".*\d.* / \d{1,2}:\d\d:\d\d", run.main.status()[1]))
    equal("items", run.main.count(), "0 Items")
    equal("field", run.main.field.box()[2:], (481, 571))
    equal("files", names(journey.map), ["Puzzels", "Rasteratelier.ini"])
    run.desktop.key("Escape")
    run.desktop.key("Escape")


def no_name(run):
    run.program.menu("Bestand", "Nieuwe puzzel ontwerpen", "menu-file")
    window = run.program.window("Nieuwe puzzel ontwerpen", "new")
    run.push(window, "Ok")
    run.message("Rasteratelier", "Naam Puzzel invullen a.u.b. (Alleen letters a..z)", "OK", "new-no-name")
    run.push(run.program.window("Nieuwe puzzel ontwerpen"), "Annuleren")
    run.program.until_closed("Nieuwe puzzel ontwerpen")


def clue_cells(run):
    equal("field", run.main.field.box()[2:], (301, 271))
    equal("white of A-01 at first", run.main.cell("A-01").count(is_white), 29 * 29)
    run.place_clue("A-01", 1, 3, "\nrode\nwijn", 3)  # an empty line first keeps the text off the edge
    run.place_clue("B-05", 42, 1, "\nrijdt\nop rails", 3)
    run.place_clue("E-04", 35, 5, "\nmannelijk\nschaap\n\nstekelig\ndier", 6)


def first_word(run):
    window = run.solution_dialog("B-01", 2, "solution-B-01")
    run.push(window, "Ok")
    run.message("Error", "Omschrijving en/of Oplossing intypen...", "OK", "solution-empty")
    window = run.program.window("Oplossing Plaatsen op B-01 / 2")
    equal("ink where the word is to come", run.main.ink("B-01", "B-02", "B-03", "B-04", "C-01"), [0, 0, 0, 0, 0])
    run.fill_solution(window, "drank van druiven", "Wijn", 3, VERTICAL)
    run.desktop.shot("solution-filled")
    run.place_solution(window, [WINE])
    until("the letters W, IJ, N", lambda: min(run.main.ink("B-01", "B-02", "B-03")) > 12)
    equal("ink behind the word", run.main.ink("B-04", "C-01"), [0, 0])
    equal("items", run.main.count(), "1 Items")


def other_words(run):
    for rows, length, places in ((WORDS[:2], 5, ["C-05", "D-05", "E-05", "F-05", "G-05"]),
                                 (WORDS[:3], 3, ["F-04", "G-04", "H-04"])):
        _, clue, word, _ = rows[-1]
        place, number = places[0], rows[-1][0].split()[2].split("-")[0]
        window = run.solution_dialog(place, number)
        run.fill_solution(window, clue, word, length, HORIZONTAL)
        run.place_solution(window, rows)
        until(f"the letters of {word}", lambda: min(run.main.ink(*places)) > 12)
    equal("ink behind the words", run.main.ink("H-05", "C-06", "I-04"), [0, 0, 0])


def word_of_a_list(journey, run):
    """It is found in its list by its first letters, and copied to where it is to stand."""
    shutil.copytree(journey.path.parent / "Woordlijsten", journey.map / "Woordlijsten")
    run.push(run.main.window, "Load")
    run.main.window.find("list", "Woordlijsten").find("list item", "Dieren").click()
    run.main.window.find("list", "Woorden van de lijst").find("list item", "AAP").click()
    run.desktop.type("egel")
    run.main.window.find("label", "4 Letters")
    run.desktop.shot("list-chosen")
    window = run.solution_dialog("E-05", 45)
    run.push(window, "Copy tekst vanaf hoofdscherm")
    until_equal("solution", window.find("text", "Oplossing").text, "egel")
    run.write(window.find("text", "Omschrijving"), HEDGEHOG[1])
    window.find("radio button", VERTICAL).click()
    run.desktop.shot("solution-copied")
    run.place_solution(window, WORDS)
    until("the letters of the hedgehog", lambda: min(run.main.ink("E-05", "E-06", "E-07", "E-08")) > 12)
    equal("items", run.main.count(), "4 Items")
    run.desktop.shot("all-words")


def save(run):
    window = run.save_dialog("save")
    equal("name", window.find("text", "Naam van de puzzel").text(), "reisdoornl")
    run.push(window, "Opslaan")
    until("the progress half way", lambda: any(
        30 <= int(match[1]) <= 90 for match in map(re.compile(r"(\d+)%").fullmatch, window.names()) if match))
    run.desktop.shot("save-busy")
    bar = run.desktop.screen().part(*window.find("filler", "Voortgang").box())
    check(bar.count(lambda *rgb: rgb == (0, 240, 0)) > 300 * 0.25 * 20, "no green bar")
    run.program.until_closed("Puzzel opslaan")


def check_colour(journey):
    large = Picture.from_bmp((journey.puzzles / "reisdoornl2.bmp").read_bytes())
    equal("colour of a clue cell on the large board", large.pixel(10, 110), (230, 250, 190))
