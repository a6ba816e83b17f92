"""A puzzle printed to a PDF file, and what stands on its pages."""
import re
import subprocess

from checks import check, equal, until_equal
from desktop import until

DIALOG = "Puzzel afdrukken (PDF-bestand)"
FILES = "Afdrukken naar een PDF-bestand"
FOOT = "https://www.rasteratelier.example/"


def type_file(run, files, path, shot=None, dialog=DIALOG):
    """Chooses a file that isn't there yet, in the dialog of files that is open; prints to it. The dialog that ends with the
    job has closed then."""
    run.desktop.key("ctrl+a")
    typed = str(path.with_suffix(""))
    run.desktop.type(typed)
    until_equal("the file in its box", lambda: [box.text() for box in files.all("text")], [typed])
    if shot:
        run.desktop.shot(shot)
    run.desktop.key("Return")
    run.program.until_closed(dialog)
    until(f"{path} is written", path.exists)


def tell(*command):
    return subprocess.run(command, capture_output=True, text=True, check=True).stdout


def pages(journey, path):
    """The text of each page, as it is laid out; each has the foot. Their pictures are kept."""
    texts = tell("pdftotext", "-layout", path, "-").split("\f")[:-1]
    equal("pages", re.findall(r"^Pages: +(\d+)$", tell("pdfinfo", path), re.MULTILINE), [str(len(texts))])
    for text in texts:
        check(FOOT in text, f"no foot: {text!r}")
    tell("pdftoppm", "-png", "-r", "60", path, journey.desktop.output / "page")
    return texts


def pictures(path):
    """Of each the page, the width and the height."""
    found = re.findall(r"^ +(\d) +\d+ image +(\d+) +(\d+) .* image +no ", tell("pdfimages", "-list", path), re.MULTILINE)
    return [tuple(map(int, one)) for one in found]
