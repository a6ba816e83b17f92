"""A Filippine for a magazine, from an empty folder to its sheet and its web page: answers, the search word, both wipings."""
from checks import check, equal, until_equal
from desktop import until
from mainwindow import FRAME, is_ink, part_of_cell
from publish import Publication

FLOWER = ["02", "hoog en geel", "zonnebloemen", "-"]
BEAR = ["03", "wit en groot", "ijsbeer", "-"]
FLOWER_CELLS = [f"{letter}-02" for letter in "EFGHIJKLMNOP"]
BEAR_CELLS = [f"{letter}-03" for letter in "DEFGHI"]
NUMBERS = "D-02", "C-03"


def walk(journey):
    puzzle = Publication(journey, "Filippine", "rijen", 16, 19)
    run = journey.start()
    puzzle.begin(run)
    nothing_typed(run)
    answer(run, "D-02", FLOWER, 12, [FLOWER], FLOWER_CELLS)
    answer(run, "C-03", BEAR, 6, [FLOWER, BEAR], BEAR_CELLS)
    search_word(run)
    wipe_raster(run)
    wipe_letters(run)
    run.save(run.save_dialog("save"))
    puzzle.publish(run, [FLOWER, BEAR], [["2. HOOG EN GEEL", "3. WIT EN GROOT"]], ["2.  hoog en geel", "3.  wit en groot"])


def is_raster(red, green, blue):
    return (red, green, blue) == (150, 150, 150)


def dialog(run, place, shot=None):
    """The editor, which a click on a cell opens at once."""
    row = place[2:]
    run.desktop.point(*run.main.cell_middle(place))
    until_equal("the row in the status bar", lambda: run.main.status()[0], row)
    run.desktop.click(*run.main.cell_middle(place))
    window = run.program.window(f"Oplossing Plaatsen op {row}", shot)
    until_equal("frame round the cell", run.main.frame, FRAME)
    equal("number at first", window.find("scroll bar", "Vaknummer").value(), int(row))
    return window


def close(run, window, button="Ok"):
    run.push(window, button)
    run.program.until_closed(window.name)
    until_equal("frame round the cell", run.main.frame, 0)


def nothing_typed(run):
    window = dialog(run, "P-19", "filippine-dialog")
    run.push(window, "Ok")
    run.message("Error", "Omschrijving en/of Oplossing intypen...", "OK")
    close(run, run.program.window("Oplossing Plaatsen op 19"), "Annuleren")
    equal("rows", run.main.rows(), [])


def answer(run, place, row, length, rows, cells):
    window = dialog(run, place)
    run.write(window.find("text", "Omschrijving"), row[1])
    run.write(window.find("text", "Oplossing"), row[2])
    window.find("label", f"Oplossing ({length})")
    run.desktop.shot(f"filippine-{place}-filled")
    close(run, window)
    until_equal("rows", run.main.rows, rows)
    until("the letters", lambda: min(run.main.ink(*cells)) > 10)
    check(run.main.cell(place).count(is_ink) > 500, "no black number cell")
    equal("items", run.main.count(), f"{len(rows)} Items")


def search_word(run):
    """In the column of the second letter of the one and the third of the other answer."""
    window = dialog(run, "F-02")
    window.find("radio button", "Vertikaal (Het te zoeken woord)").click()
    until_equal("clue", window.find("text", "Omschrijving").text, "n.v.t.")
    run.write(window.find("text", "Oplossing"), "ob")
    run.desktop.shot("filippine-search-word")
    close(run, window)
    until_equal("red of the cells", lambda: [reds(run, place) for place in ("E-02", "F-02", "F-03", "G-03")],
                [240, 174, 174, 240])
    equal("rows", run.main.rows(), [FLOWER, BEAR])
    run.desktop.shot("filippine-filled")


def reds(run, place):
    """The red component of the background of a cell."""
    return part_of_cell(run.main.picture(), place, 5, 5, 1, 1).pixel(0, 0)[0]


def wipe_raster(run):
    check(run.main.picture().count(is_raster) > 10000, "no raster")
    run.program.menu("Bewerken", "Verwijder raster Filippine", "filippine-menu")
    until_equal("raster", lambda: run.main.picture().count(is_raster), 0)
    check(min(run.main.ink(*FLOWER_CELLS, *BEAR_CELLS)) > 10, "a letter has gone with the raster")
    run.desktop.shot("filippine-without-raster")


def wipe_letters(run):
    """From left to right."""
    run.program.menu("Bewerken", "Verwijder letters Filippine")
    def halfway():
        ink = run.main.ink(*FLOWER_CELLS)
        gone = next((index for index, one in enumerate(ink) if one > 0), len(ink))
        check(all(one > 10 for one in ink[gone:]), f"a letter went too soon: {ink}")
        return 2 <= gone <= 10
    until("some letters gone", halfway)
    run.desktop.shot("filippine-half-wiped")
    until_equal("letters", lambda: max(run.main.ink(*FLOWER_CELLS, *BEAR_CELLS)), 0)
    check(all(run.main.cell(place).count(is_ink) > 500 for place in NUMBERS), "a number has gone")
    equal("red of the cells", [reds(run, place) for place in ("E-02", "F-02", "F-03", "G-03", "G-04")],
          [240, 174, 174, 240, 255])
    run.desktop.shot("filippine-wiped")
