"""Walks a part of the road through the built program as its user does, on a desktop of its own, with pointer and keys.

    /usr/bin/python3 journey.py PART PROGRAM OUTPUT_FOLDER

PART is a file of the folder "parts": a module with a function walk(journey), and SCREEN, a width and a height, when it
wants a screen of another size. Keeps a numbered picture of every window in OUTPUT_FOLDER. Exit code 0 when everything was
as it should be; 1 else, with a message, the picture "failure" and what the accessibility tree held.
"""
import importlib
import pathlib
import re
import signal
import sys
import traceback

sys.dont_write_bytecode = True  # the folder of the sources stays as it is

from checks import check, equal
from desktop import Desktop
from steps import Run

SCREEN = 1400, 1000


class Journey:
    """A folder for the program, and the runs of the program on it."""

    def __init__(self, desktop, program):
        self.desktop, self.path = desktop, program
        self.map = desktop.temp / "map"
        self.puzzles = self.map / "Puzzels"
        self.puzzles.mkdir(parents=True)
        self.pictures = desktop.home / "Pictures"
        self.settings_file = self.map / "Rasteratelier.ini"
        self.log = (desktop.output / "program.log").open("wb")
        self.programs = []

    def launch(self, folder, scale=1.0):
        """Starts the program on a folder; nothing is expected of it yet."""
        # Here and not above: the import connects to the accessibility bus of the desktop that is there.
        from controls import Program

        self.programs.append(Program(self.desktop, [str(self.path), "--map", str(folder)], self.log, scale))
        return Run(self.programs[-1])

    def start(self, shot=None, scale=1.0):
        """Starts the program on the journey's folder and waits for its main window."""
        run = self.launch(self.map, scale)
        run.started(shot)
        return run

    def check_settings(self):
        lines = self.settings_file.read_bytes().decode("cp1252").split("\r\n")
        equal("settings", lines[:4], ['"Tessel Hoeksma Software 2017"', '"' + "-" * 26 + '"', "230,250,190", "1"])
        check(re.fullmatch(r'"[^"]+"', lines[4]), f"page text {lines[4]!r}")
        equal("end of the settings", lines[5:], [""])

    def said(self):
        """What the programs said."""
        return (self.desktop.output / "program.log").read_text(encoding="utf-8", errors="replace")

    def check_said(self):
        # We ask for all rows of a list, which may go meanwhile; the toolkit says so of the one that has gone.
        asked = "QAccessibleTree::indexFromLogical: invalid index", "QAccessibleTable::child: Invalid index"
        said = "\n".join(line for line in self.said().splitlines() if not any(words in line for words in asked))
        bad = re.findall(r"^.*(?:runtime error:|Sanitizer|Q[A-Za-z]+::).*$", said, re.MULTILINE)
        equal("warnings of the program", bad, [])


def load(path):
    """A part, as the module that its file is."""
    sys.path.insert(0, str(path.parent))
    return importlib.import_module(path.stem)


def main(part, program, output):
    output.mkdir(parents=True, exist_ok=True)
    for old in [*output.glob("[0-9][0-9]-*.png"), *output.glob("tree.txt")]:
        old.unlink()
    with Desktop(output, *getattr(part, "SCREEN", SCREEN)) as desktop:
        journey = Journey(desktop, program)
        try:
            part.walk(journey)
            journey.check_said()
        except Exception:  # whatever it is: what was on the screen tells most
            traceback.print_exc()
            print(f"FAILED, see {desktop.shot('failure')}\n{journey.said()[-3000:]}", flush=True)
            trees = "\n".join(one.describe() for one in journey.programs)
            (output / "tree.txt").write_text(trees, encoding="utf-8")
            return 1
    print(f"all as it should be; {desktop.shots} pictures in {output}")
    return 0


if __name__ == "__main__":
    if len(sys.argv) != 4:
        sys.exit(__doc__)
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(1))
    sys.exit(main(load(pathlib.Path(sys.argv[1])), *(pathlib.Path(word).resolve() for word in sys.argv[2:])))
