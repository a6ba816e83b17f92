"""A Zweedse puzzel of sixty rows, printed to a PDF file; in the dialogs by keys alone. First no file is chosen for it."""
import os
import re

import pdf
from checks import check, equal, until_equal
from desktop import until
from puzzlefiles import write_puzzle

ROWS = [[f"A-{1 + row % 9:02} / {1 + row}-H", f"omschrijving van {row}", f"woord{row}", "-"] for row in range(60)]


def walk(journey):
    os.environ["CUPS_SERVER"] = str(journey.desktop.temp / "no-queues")
    write_puzzle(journey.puzzles, "Reisdoornl", words=ROWS)
    run = journey.start()
    run.open_puzzle("Reisdoornl")
    before = run.main.picture()
    refused(run)
    printed = journey.desktop.home / "Mijn puzzel.pdf"
    pdf.type_file(run, print_by_keys(run, "print"), printed, "print-file-typed")
    read_back(pdf.pages(journey, printed))
    until_equal("the field", run.main.picture, before)
    equal("rows", run.main.rows(), ROWS)
    run.quit()


def print_by_keys(run, shot=None):
    """Opens the dialog and prints with the time; gives the box for the file."""
    run.program.menu("Bestand", "Puzzel afdrukken")
    dialog = run.program.window(pdf.DIALOG, shot)
    run.program.until_focus("combo box", "PDF-bestand")
    equal("the title", [name for name in dialog.names() if name.startswith("Zweeds")],
          ["Zweedse puzzel afdrukken op meerdere pagina's"])
    run.desktop.key("Tab")
    run.program.until_focus("check box", "Datum en tijd afdrukken")
    run.desktop.key("space")
    run.desktop.key("Tab")
    run.desktop.key("Tab")
    run.program.until_focus("push button", "Afdrukken")
    run.desktop.key("space")
    if shot:
        sweep(run, dialog)
    return run.program.window(pdf.FILES, shot and f"{shot}-file")


def sweep(run, dialog):
    """The line over the sample sheet goes from black to red."""
    sheet = dialog.find("filler", "Voorbeeld").box()

    def is_swept():
        picture = run.desktop.screen().part(*sheet)
        return any(all(picture.pixel(x, y) == picture.pixel(0, y) for x in range(picture.width))
                   and picture.pixel(0, y)[0] > 60 and picture.pixel(0, y)[1:] == (0, 0) for y in range(picture.height))
    until("the sweep", is_swept)
    run.desktop.shot("print-sweep")


def refused(run):
    """The dialog of files is left by Escape: nothing is printed, nothing is said."""
    print_by_keys(run)
    run.desktop.key("Escape")
    run.program.until_closed(pdf.DIALOG)
    equal("files", [path.name for path in run.desktop.home.rglob("*.pdf")], [])


def read_back(pages):
    equal("pages", len(pages), 4)
    check(re.search(r"Puzzelnaam : Reisdoornl +\d\d:\d\d:\d\d / \d\d-\d\d-\d{4}", pages[0]), f"head {pages[0]!r}")
    lists = [re.findall(r"^ *(\S+ / \d+-H) +(omschrijving van \d+) +(woord\d+)$", page, re.MULTILINE) for page in pages[2:]]
    equal("rows on the pages", [len(rows) for rows in lists], [54, 6])
    equal("rows", [list(row) for rows in lists for row in rows], [row[:3] for row in ROWS])
