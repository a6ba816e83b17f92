"""A small screen, as a laptop has: the main window is on it with its title, and scrolls what has no room."""
from checks import check, equal
from desktop import until
from puzzlefiles import write_puzzle

SCREEN = 1366, 768


def walk(journey):
    write_puzzle(journey.puzzles, "Reisdoornl", 16, 19, [])
    for factor in (1, 1.5):
        run = journey.start(f"main-{factor}", scale=factor)
        until(f"the main window is on the screen at {factor}", run.desktop.active_is_on_screen)
        bars = [bar.name for bar in run.main.window.all("scroll bar")]
        equal(f"scroll bars at {factor}", len(bars), 1 if factor == 1 else 3)
        window, _ = run.open_dialog(f"open-{factor}")
        check(run.desktop.active_is_on_screen(), f"the dialog isn't on the screen at {factor}")
        run.push(window, "Annuleren")
        run.program.until_closed(window.name)
        run.program.menu("Bestand", "Exit")
        equal("exit code", run.program.ended(), 0)
