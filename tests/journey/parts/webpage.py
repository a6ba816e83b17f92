"""The web page of a puzzle: the files that the menu writes, and what is handed to the browser; no browser is there."""
import os

from checks import check, equal, until_equal
from desktop import until
from picture import Picture
from puzzlefiles import TRAIN, WINE, names, write_puzzle

CLUES = ["0 - V. drank van druiven", "0 - H. rijdt op rails"]


def walk(journey):
    opened = take_the_place_of_the_browser(journey)
    field, large = write_puzzle(journey.puzzles, "Reisdoornl")
    run = journey.start()
    run.open_puzzle("Reisdoornl")
    until_equal("the field", run.main.picture, field)
    export(journey, run, opened, 1, [])
    equal("the picture", picture(journey), large)

    saved = journey.puzzles / "Reisdoornl.lst"
    saved.write_bytes(saved.read_bytes().replace(b"\r\n1\r\n", b"\r\n3\r\n", 1))  # as a Kruiswoord
    run.open_puzzle("Reisdoornl")
    run.main.window.find("label", "Soortpuzzel : Kruiswoord")
    export(journey, run, opened, 2, CLUES)
    equal("rows", run.main.rows(), [WINE, TRAIN])
    until_equal("the field", run.main.picture, field)
    run.quit()


def take_the_place_of_the_browser(journey):
    """What the system opens documents with writes down what it gets. Gives where."""
    folder, opened = journey.desktop.temp / "bin", journey.desktop.temp / "opened"
    folder.mkdir()
    stand_in = folder / "xdg-open"
    stand_in.write_text(f'#!/bin/sh\nprintf "%s\\n" "$@" >> "{opened}"\n', encoding="utf-8")
    stand_in.chmod(0o755)
    os.environ["PATH"] = f"{folder}:{os.environ['PATH']}"
    return opened


def export(journey, run, opened, times, clues):
    """Makes the page for the so-many-th time."""
    run.program.menu("Website", "Html webpagina maken", f"menu-website-{times}")
    lines = until("the browser", lambda: opened.exists() and len(found := opened.read_text().splitlines()) == times and found)
    html = journey.map / "Html"
    equal("opened", lines, [(html / "Reisdoornl.html").as_uri()] * times)
    equal("files", names(html), ["Images", "Reisdoornl.html"])
    equal("pictures", names(html / "Images"), ["Reisdoornl.bmp"])
    page = (html / "Reisdoornl.html").read_bytes().decode("cp1252").split("\r\n")
    check("      <SPAN class=kop>Puzzelnaam : Reisdoornl</SPAN>" in page, "no heading")
    equal("the end of the page", page[-4:], ["", "</body>", "</html>", ""])
    begin, end = "      <SPAN class=tekst><b>", "</b></SPAN><br>"
    equal("clues", [line[len(begin):-len(end)] for line in page if line.startswith(begin)], clues)


def picture(journey):
    return Picture.from_bmp((journey.map / "Html" / "Images" / "Reisdoornl.bmp").read_bytes())
