"""From the dialog of a new puzzle, and from a made puzzle to all that a magazine wants of it: its files, its printed sheets, its
web page; and the puzzle once more when the program is started again. No browser is there."""
import os
import re

import pdf
from checks import equal, until_equal
from desktop import until
from mainwindow import MainWindow
from picture import Picture
from puzzlefiles import jpeg_size, list_file, names

KINDS = "Zweeds", "Woordzoeker", "Kruiswoord", "Sudoku", "Filippine"
OPTIONS = "Zweedse Puzzel", "Woordzoeker", "Kruiswoord Puzzel", "Sudoku Puzzel", "Filippine Puzzel"
# What is printed: the page, and whether it is the large board.
PICTURES = {"Zweeds": [(1, False), (2, True)], "Woordzoeker": [(1, False)], "Kruiswoord": [(1, True)],
            "Sudoku": [(1, False), (1, True)], "Filippine": [(1, False)]}
WITH_SHEET = "Zweeds", "Kruiswoord"  # their page shows the large board


class Publication:
    """A puzzle that is to be made, in small letters. To be there before the program starts: no print queue and no browser is
    found then."""

    def __init__(self, journey, kind, name, columns, rows):
        self.journey, self.kind, self.name, self.columns, self.rows = journey, kind, name, columns, rows
        self.title = name.capitalize()
        os.environ["CUPS_SERVER"] = str(journey.desktop.temp / "no-queues")
        self.opened = take_the_place_of_the_browser(journey)

    def begin(self, run, typed=None):
        """A new puzzle by the menu; its name may be typed otherwise than it becomes."""
        run.program.menu("Bestand", "Nieuwe puzzel ontwerpen")
        if self.kind in ("Sudoku", "Filippine"):  # of one size
            window = run.program.window("Nieuwe puzzel ontwerpen")
            run.write(window.find("text", "Naam Puzzel"), typed or self.name)
        else:
            window = run.fill_new(typed or self.name, self.columns, self.rows)
        window.find("radio button", OPTIONS[KINDS.index(self.kind)]).click()
        run.desktop.shot("new-filled")
        run.push(window, "Ok")
        run.main = MainWindow(run.program, f"Raster Atelier ({self.columns}x{self.rows})", "new-empty")
        run.main.window.find("label", f"Soortpuzzel : {self.kind}")
        run.main.window.find("menu item", self.name)

    def publish(self, run, words, sheets, clues, *options):
        """Of the puzzle that was saved: its files; then prints, exports, quits and starts again. The words are the rows of the
        list; the sheets what stands on each page under its head, a text for each line; the clues what the web page tells of
        the words; the options what is ticked in the dialog of printing."""
        small, large = self.check_files(words)
        until_equal("the field that was saved", run.main.picture, small)
        self.print(run, sheets, (small, large), options)
        self.export(run, large if self.kind in WITH_SHEET else small, clues)
        equal("rows", run.main.rows(), words)
        run.quit()
        again = self.journey.start()
        again.open_puzzle(self.title, self.columns, self.rows, "opened-again")
        until_equal("rows", again.main.rows, words)
        again.main.window.find("label", f"Soortpuzzel : {self.kind}")
        again.main.window.find("menu item", self.title)
        until_equal("the field", again.main.picture, small)
        again.quit()

    def check_files(self, words):
        """Gives both boards."""
        files = [f"{self.title}.lst", f"{self.name}1.bmp", f"{self.name}2.bmp"]
        equal("files of the puzzle", names(self.journey.puzzles), files)
        beside = [name for name in names(self.journey.map) if name != "Woordlijsten"]
        equal("files beside them", beside, ["Puzzels", "Rasteratelier.ini"])
        wanted = list_file(self.columns, self.rows, words, KINDS.index(self.kind) + 1)
        equal(files[0], (self.journey.puzzles / files[0]).read_bytes(), wanted)
        small, large = [Picture.from_bmp((self.journey.puzzles / file).read_bytes()) for file in files[1:]]
        equal("size of the board", (small.width, small.height), (self.columns * 30 + 1, self.rows * 30 + 1))
        size = self.columns * 120 + 3, self.rows * 120 + 3
        equal("size of the large board", (large.width, large.height), size)
        equal("pictures", names(self.journey.pictures), [f"{self.title}.jpg"])
        equal("size of the JPEG", jpeg_size((self.journey.pictures / f"{self.title}.jpg").read_bytes()), size)
        return small, large

    def print(self, run, sheets, boards, options):
        """By the dialog, to a PDF file."""
        path = self.journey.desktop.home / f"{self.name}.pdf"
        run.program.menu("Bestand", "Puzzel afdrukken")
        window = run.program.window(pdf.DIALOG, "print")
        for option in options:
            window.find("check box", option).click()
        run.push(window, "Afdrukken")
        pdf.type_file(run, run.program.window(pdf.FILES, "print-file"), path)
        found = [[" ".join(line.split()) for line in page.splitlines() if line.strip()]
                 for page in pdf.pages(self.journey, path)]
        head = f"Puzzelnaam : {self.name}"
        equal("head", found[0][:1], [head])
        equal("sheets", [page[:-1] for page in [found[0][1:], *found[1:]]], sheets)
        wanted = [(page, boards[large].width, boards[large].height) for page, large in PICTURES[self.kind]]
        equal("pictures", pdf.pictures(path), wanted)

    def export(self, run, picture, clues):
        """The web page: its files, and what is handed to the browser."""
        run.program.menu("Website", "Html webpagina maken", "menu-website")
        lines = until("the browser", lambda: self.opened.exists() and self.opened.read_text().splitlines())
        html = self.journey.map / "Html"
        equal("opened", lines, [(html / f"{self.name}.html").as_uri()])
        equal("files", names(html), ["Images", f"{self.name}.html"])
        equal("pictures", names(html / "Images"), [f"{self.name}.bmp"])
        equal("the picture", Picture.from_bmp((html / "Images" / f"{self.name}.bmp").read_bytes()), picture)
        page = (html / f"{self.name}.html").read_bytes().decode("cp1252")
        body = re.sub("<[^>]*>", "", page.partition("<body")[2].partition(">")[2])
        told = [line.strip() for line in body.split("\r\n") if line.strip()]
        equal("the page", told, [f"Puzzelnaam : {self.name}", *clues])
        equal("the end of the page", page[-20:], "\r\n\r\n</body>\r\n</html>\r\n"[-20:])


def take_the_place_of_the_browser(journey):
    """What the system opens documents with writes down what it gets. Gives where."""
    folder, opened = journey.desktop.temp / "bin", journey.desktop.temp / "opened"
    folder.mkdir()
    stand_in = folder / "xdg-open"
    stand_in.write_text(f'#!/bin/sh\nprintf "%s\\n" "$@" >> "{opened}"\n', encoding="utf-8")
    stand_in.chmod(0o755)
    os.environ["PATH"] = f"{folder}:{os.environ['PATH']}"
    return opened
