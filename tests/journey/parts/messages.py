"""Windows and messages that only tell something."""
import re

from checks import check, equal


def walk(journey):
    run = journey.start()
    about(journey, run)
    told = "Puzzel is gecopyeerd naar Clipboard en...\nbeschikbaar in diverse tekenprogramma's."
    run.program.menu("Tools", "Copy puzzelveld naar Clipboard", "menu-tools")
    run.message("Rasteratelier", told, "OK", "clipboard")
    special_characters(run)
    run.quit()


def about(journey, run):
    run.push(run.main.window, "Over de ontwerper")
    window = run.program.window("About Rasteratelier...", "about")
    told = "\n".join(window.names())
    check(re.search(rf"^Version : \d+\.\d+\.\d+ / {journey.path.stat().st_size}$", told, re.MULTILINE), told)
    run.push(window, "Sluiten")
    run.program.until_closed("About Rasteratelier...")


def special_characters(run):
    run.program.menu("Help", "Speciale tekens", "menu-help")
    window = run.program.window("Rasteratelier", "special-characters")
    lines = re.split(r"[\r\n]+", "\n".join(window.names()))
    equal("special characters", (lines[0], lines[2], lines[-1], len(lines)),
          ("Bijzondere combinaties", "á  = Ctrl-Alt - a / 160", "¾ = Ctrl-Alt - 8", 17))
    run.push(window, "OK")
    run.program.until_closed("Rasteratelier")
