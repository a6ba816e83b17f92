"""A puzzle printed on the queues of a print server: on the default one, on one that is chosen, and on one that has gone."""
import re

from checks import equal
from pdf import pictures, tell
from printserver import EDGE, PrintServer
from puzzlefiles import write_puzzle


def walk(journey):
    server = PrintServer(journey.desktop, "Balie", "Zolder")
    small, large = write_puzzle(journey.puzzles, "Reisdoornl")
    run = journey.start()
    run.open_puzzle("Reisdoornl")
    print_on(run, "Balie", shot="queue")
    read_back(server, "Balie", 1, small, large)

    choose(run, "Balie", "Zolder")
    print_on(run, "Zolder")
    read_back(server, "Zolder", 2, small, large)

    open_dialog(run, "Zolder", "queue-stays")
    server.stop()
    server.start("Balie")
    push_print(run, "Zolder")  # it goes nowhere: the next one is the third
    print_on(run, "Balie")
    read_back(server, "Balie", 3, small, large)

    open_dialog(run, "Balie")
    server.stop()
    push_print(run, "Balie")
    open_dialog(run, "PDF-bestand", "queues-gone")
    run.push(run.program.window(title("PDF-bestand")), "Annuleren")
    run.program.until_closed(title("PDF-bestand"))
    run.quit()


def title(queue):
    return f"Puzzel afdrukken ({queue})"


def open_dialog(run, queue, shot=None):
    run.program.menu("Bestand", "Puzzel afdrukken")
    return run.program.window(title(queue), shot)


def push_print(run, queue):
    run.push(run.program.window(title(queue)), "Afdrukken")
    run.program.until_closed(title(queue))


def print_on(run, queue, shot=None):
    open_dialog(run, queue, shot)
    push_print(run, queue)


def choose(run, before, after):
    """Another queue by its name; it stays the chosen one when nothing is printed on it."""
    dialog = open_dialog(run, before)
    [combo] = dialog.all("combo box")
    equal("printers", [one.name for one in combo.tree("list item")], ["Balie", "Zolder", "PDF-bestand"])
    run.write(combo, after)
    run.push(run.program.window(title(after), "queue-chosen"), "Annuleren")
    run.program.until_closed(title(after))


def read_back(server, queue, number, small, large):
    path, *job = server.printed(queue)
    equal("number, title and copies of the job", job, [number, "Reisdoornl", 1])
    information = tell("pdfinfo", path)
    for what, value in (("Pages", "3"), ("Page size", "595 x 842 pts (A4)"), ("Title", "Reisdoornl")):
        equal(what, re.findall(rf"^{what}: +(.*)$", information, re.MULTILINE), [value])
    words = re.findall(r'xMin="([\d.]+)" yMin="([\d.]+)".*>(.*)</word>', tell("pdftotext", "-raw", "-bbox", path, "-"))
    # The head stands at 600, 300 twips from where the printer can print, the heads of the list at 900.
    for word, x, y in (("Puzzelnaam", 600, 300), ("Vaknummer", 600, 900), ("Oplossing", 5700, 900)):
        places = [tuple(round(float(one) - EDGE) for one in place) for *place, text in words if text == word]
        equal(f"where {word} is", places, [(x // 20, y // 20)])
    equal("pictures", pictures(path), [(page, board.width, board.height) for page, board in ((1, small), (2, large))])
