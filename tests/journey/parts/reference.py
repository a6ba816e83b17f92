"""The tables to look things up in, as they are installed: every one of them, a proverb with its meaning, an element."""
import shutil

import pyatspi

from checks import check, equal, until_equal
from desktop import until

TABLES = [("Landen met hoofdsteden", "Hoofdsteden", "Nederland - Amsterdam"),
          ("Afkortingen", "Afkortingen", "a.u.b. - alstublieft"),
          ("IOC Landcodes", "LandcodesIOC", "NED - Nederland"),
          ("Gemeenten in Nedlerland", "Gemeenten", "Aa en Hunze (Drenthe)"),
          ("Internet afkortingen landen", "Internet landen afkortingen", ".nl - Nederland")]
HINT = "Dubbelklik op een item is de betekenis."


def walk(journey):
    installed = journey.path.parent
    shutil.copytree(installed / "Data", journey.map / "Data")
    for factor in (1, 1.5):
        run = journey.start(scale=factor)
        proverbs(journey, run, factor)
        elements(journey, run, factor)
        run.program.menu("Bestand", "Exit")  # the button may be out of sight
        equal("exit code", run.program.ended(), 0)


def lines(journey, name):
    return (journey.map / "Data" / f"{name}.lib").read_bytes().decode("cp1252").split("\r\n")[:-1]


def choose(window, caption):
    bar = window.find("menu item", "Database")
    bar.click()
    bar.find("menu item", caption).click()


def proverbs(journey, run, factor):
    wanted = [line.split(" -/- ") for line in lines(journey, "Spreekwoorden")]
    title = f"Spreekwoorden en Gezegden ({len(wanted)})"
    run.program.menu("Bibliotheek", "Spreekwoorden en gezegden")
    window = run.program.window(title, f"proverbs-{factor}")
    window.find("label", HINT)
    shown = window.find("list", "Bibliotheek").names("list item")
    check(len(shown) > 5, f"only {len(shown)} proverbs are shown")
    equal("proverbs", shown, [saying for saying, _ in wanted[:len(shown)]])
    saying, meaning = wanted[2]
    window.find("list item", saying).click(2)
    meaning = meaning[12].upper() + meaning[13:]
    run.message("Betekenis", meaning, "OK", f"meaning-{factor}")
    rows = run.program.window(title).find("list", "Bibliotheek")
    until("the focus in the list", lambda: any(one.has(pyatspi.STATE_FOCUSED) for one in [rows, *rows.all("list item")]))
    run.desktop.key("Down")
    until("the next saying", lambda: rows.find("list item", wanted[3][0]).has(pyatspi.STATE_SELECTED))
    run.desktop.key("Return")
    meaning = wanted[3][1]
    run.message("Betekenis", meaning[12].upper() + meaning[13:], "OK")
    window = run.program.window(title)
    bar = window.find("menu item", "Database")
    bar.click()
    item = bar.find("menu item", "Spreekwoorden en gezegden")
    check(item.has(pyatspi.STATE_CHECKED), "the table that is shown is not checked")
    run.desktop.shot(f"tables-menu-{factor}")
    run.desktop.key("Escape", "Escape")
    for number, (caption, name, line) in enumerate(TABLES if factor == 1 else TABLES[:1], 2):
        table(journey, run, window, caption, name, line)
        run.desktop.shot(f"table-{number}-{factor}")
        window = run.program.window(f"{name} ({len(lines(journey, name))})")
    choose(window, "Spreekwoorden en gezegden")
    window = run.program.window(title)
    window.find("label", HINT)
    run.push(window, "Ok")
    run.program.until_closed(title)


def table(journey, run, window, caption, name, line):
    wanted = lines(journey, name)
    check(line in wanted, f"{line} is missing")
    choose(window, caption)
    window = run.program.window(f"{name} ({len(wanted)})")
    rows = window.find("list", "Bibliotheek")
    until_equal("the hint is gone", lambda: HINT in window.names(), False)
    until(f"the lines of {name}", lambda: (shown := rows.names("list item")) and shown == wanted[:len(shown)])
    rows.all("list item")[1].click(2)  # has no meaning: no message, the window keeps the focus
    run.program.window(window.name)


def elements(journey, run, factor):
    run.program.menu("Bibliotheek", "Scheikundige symbolen")
    window = run.program.window("Scheikundige symbolen (118)", f"elements-{factor}")
    run.program.until_focus("combo box", "Scheikundige elementen")
    run.desktop.type("goud")
    run.desktop.key("Return")
    window.find("combo box", "goud            Au       79")
    run.desktop.shot(f"elements-gold-{factor}")
    run.desktop.key("alt+Down")
    until("the list of elements", lambda: len(run.desktop.popup_box() or ()) == 4)
    run.desktop.shot(f"elements-list-{factor}")
    run.desktop.key("Down", "Return")
    window.find("combo box", "kwik            Hg       80")
    run.desktop.key("Escape")
    run.program.until_closed(window.name)
