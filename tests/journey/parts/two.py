"""Two programs on one folder that save at about the same time: each file is that of one of them and whole, and nothing is
left beside the puzzles."""
import signal

from checks import check, equal, until_equal
from picture import Picture
from puzzlefiles import jpeg_size, list_file, names, write_puzzle

SCREEN = 2600, 1000  # room for two windows side by side
SIZE = 16, 19


class Puzzle:
    """One of so many words, with all that its files hold."""

    def __init__(self, folder, name, count):
        self.name = name
        self.words = [[f"B-{number + 1:02} / 2-V", " ".join([f"{number} {name}"] * 500), "woord", "-"]
                      for number in range(count)]
        small, large = write_puzzle(folder, name, *SIZE, self.words)
        self.parts = {".lst": list_file(*SIZE, self.words), "1.bmp": small, "2.bmp": large}


def walk(journey):
    aap, noot = Puzzle(journey.puzzles, "Aap", 9), Puzzle(journey.puzzles, "Noot", 15)
    mies = Puzzle(journey.puzzles, "Mies", 1)
    owners = {"Aap": [aap], "Noot": [noot], "Mies": [mies]}
    first, second = opened(journey, aap, 20), opened(journey, noot, SCREEN[0] // 2 + 20)
    other_names(journey, first, second)
    owners.update({"Wim": [aap], "Zus": [noot]})
    check_files(journey, owners, ["Wim", "Zus"])
    same_name(journey, first, second)
    owners["Mies"] = [aap, noot]
    check_files(journey, owners, ["Wim", "Zus", "Mies"])
    for run in (first, second):
        to_front(run)
        run.quit()


def opened(journey, puzzle, left):
    run = journey.start()
    journey.desktop.move_active(left, 60)
    run.open_puzzle(puzzle.name, *SIZE)
    until_equal("items", run.main.count, f"{len(puzzle.words)} Items")
    return run


def to_front(run):
    run.main.window.find("frame", "Statusbalk").click()
    run.program.window(run.main.title)


def save_as(run, name):
    """The dialog of saving with the name filled in."""
    to_front(run)
    window = run.save_dialog()
    run.write(window.find("text", "Naam van de puzzel"), name)
    return window


def other_names(journey, first, second):
    dialogs = save_as(first, "Wim"), save_as(second, "Zus")
    press_both(journey, dialogs, "Opslaan", "save-other-names")
    until_saved(first, second)


def same_name(journey, first, second):
    """Both are asked whether a puzzle that is there may go, and are told yes."""
    boxes = []
    for run, dialog in [(run, save_as(run, "Mies")) for run in (first, second)]:
        run.push(dialog, "Opslaan")
        boxes.append(run.program.window("Exist"))
        equal("question", boxes[-1].names(), ["Naam puzzel bestaat al, overschrijven?"])
    press_both(journey, boxes, "Ja", "save-same-name")
    until_saved(first, second)


def press_both(journey, windows, button, shot):
    """Both programs stand still while the buttons are clicked, so that they find their click at the same moment."""
    places = [window.find("push button", button).middle() for window in windows]
    journey.desktop.shot(shot)
    programs = [window.program.process for window in windows]
    for program in programs:
        program.send_signal(signal.SIGSTOP)
    try:
        for place in places:
            journey.desktop.click(*place)
    finally:
        for program in programs:
            program.send_signal(signal.SIGCONT)


def until_saved(*runs):
    """The dialogs close, and the main windows are what they were."""
    for run in runs:
        run.program.until_closed("Puzzel opslaan")
        equal("windows", [window.name for window in run.program.windows()], [run.main.title])


def check_files(journey, owners, saved):
    """Each file of each puzzle is, for itself, that of one of its owners; what was saved has its JPEG; there is nothing
    else."""
    wrong = [f"{name}{end} is of nobody" for name, puzzles in owners.items() for end in puzzles[0].parts
             if contents(journey.puzzles / (name + end)) not in [puzzle.parts[end] for puzzle in puzzles]]
    wrong += [f"{name}.jpg isn't whole" for name in saved
              if jpeg_size(contents(journey.pictures / f"{name}.jpg")) != (SIZE[0] * 120 + 3, SIZE[1] * 120 + 3)]
    for folder, wanted in ((journey.puzzles, [name + end for name in owners for end in (".lst", "1.bmp", "2.bmp")]),
                           (journey.map, ["Puzzels", "Rasteratelier.ini"]),
                           (journey.pictures, [f"{name}.jpg" for name in saved])):
        wrong += [f"{name} is in the folder" for name in names(folder) if name not in wanted]
    check(not wrong, "\n".join(wrong))


def contents(path):
    """The picture of a bitmap, the bytes of another file; nothing when there is none that is whole."""
    try:
        return Picture.from_bmp(path.read_bytes()) if path.suffix == ".bmp" else path.read_bytes()
    except (OSError, ValueError):
        return None
