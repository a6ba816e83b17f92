"""The notepad: notes typed in it, in a window that is made smaller, saved as a word list, loaded, one placed on the board."""
from checks import check, equal, until_equal
from desktop import until
from puzzlefiles import write_puzzle

NOTES = "perron\n\n  reis met de trein\nijsje"


def walk(journey):
    (journey.map / "Woordlijsten").mkdir()
    write_puzzle(journey.puzzles, "Notities", words=())
    run = journey.start()
    run.open_puzzle("Notities")
    window = write_notes(run)
    letters(run, window)
    save(journey, run, window)
    overwrite(journey, run)
    leave(run)
    place(run)
    run.push(run.main.window, "Programma Stoppen")
    run.message("Afsluiten", "Puzzel is gewijzigd, wil je toch afsluiten?", "Ja", code=0)


def choose(window, *names):
    """An item of the window's own menu bar, through the menus it is in."""
    item = window
    for name in names:
        item = item.find("menu item", name)
        item.click()


def notes(window):
    return window.find("text", "Tekst")


def write_notes(run):
    run.program.menu("Tools", "Kladblok", "menu-tools")
    window = run.program.window("Kladblok", "notepad")
    run.program.until_focus("text", "Tekst")
    check(run.desktop.can_be_iconified_or_maximised(), "the notepad can't be minimised or maximised")
    run.desktop.type(NOTES)
    until_equal("the notes", notes(window).text, NOTES)
    run.desktop.shot("notepad-filled")
    return window


def letters(run, window):
    """A smaller window with larger letters breaks the long line in two."""
    _, _, width, height = notes(window).box()
    run.desktop.xdotool("getactivewindow", "windowsize", "--sync", 170, 300)
    until("the box is smaller", lambda: notes(window).box()[2] < width and notes(window).box()[3] < height)
    for names in (("Bewerken", "Tekstgrootte", "14 Pixels"), ("Bewerken", "Vette Tekst"), ("Bewerken", "Schuinschrift")):
        choose(window, *names)
    run.desktop.shot("notepad-narrow")
    choose(window, "Bewerken", "Schuinschrift")
    choose(window, "Bewerken", "Tekstgrootte")
    run.desktop.shot("notepad-sizes")
    run.desktop.key("Escape", "Escape", "Escape")


def ask_name(run, name, shot=None):
    box = run.program.window("Rasteratelier")
    box.find("label", "Geef de naam voor deze woordlijst...")
    run.desktop.type(name)
    if shot:
        run.desktop.shot(shot)
    run.push(box, "OK")
    run.program.until_closed("Rasteratelier")


def save(journey, run, window):
    choose(window, "Bestand", "Tekst Opslaan")
    ask_name(run, "reizen", "notepad-name")
    file = journey.map / "Woordlijsten" / "Reizen.txt"
    until("the list", file.exists)
    lines = file.read_bytes().decode("cp1252").split("\r\n")
    equal("words", [lines[0], *lines[-2:]], ["perron", "ijsje", ""])
    check(len(lines) > 4 and " ".join(lines[1:-2]) == "reis met de trein", f"the long line is not broken in the file: {lines}")


def overwrite(journey, run):
    window = run.program.window("Kladblok")
    file = journey.map / "Woordlijsten" / "Reizen.txt"
    before = file.read_bytes()
    run.desktop.key("ctrl+a")
    run.desktop.type("loket")
    choose(window, "Bestand", "Tekst Opslaan")
    ask_name(run, "REIZEN")
    run.message("Exist", "Naam woordlijst bestaat al, overschrijven?", "Nee", "notepad-exists")
    window = run.program.window("Kladblok")
    equal("list that is kept", file.read_bytes(), before)
    choose(window, "Bestand", "Tekst Opslaan")
    box = run.program.window("Rasteratelier")
    run.push(box, "Annuleren")
    run.program.until_closed("Rasteratelier")
    equal("lists", [one.name for one in file.parent.iterdir()], ["Reizen.txt"])


def leave(run):
    window = run.program.window("Kladblok")
    choose(window, "Bestand", "Exit")
    run.program.until_closed("Kladblok")


def place(run):
    run.push(run.main.window, "Load")
    subjects = run.main.window.find("list", "Woordlijsten")
    until("the new subject", lambda: [one for one in subjects.all("list item") if one.name == "Reizen"])[0].click()
    words = run.main.window.find("list", "Woorden van de lijst")
    until("the notes in the panel", lambda: "PERRON" in [one.name for one in words.all("list item")])
    words.find("list item", "PERRON").click()
    run.main.window.find("label", "perron")
    window = run.solution_dialog("C-05", 43)
    run.push(window, "Copy tekst vanaf hoofdscherm")
    window.find("label", "Oplossing (6)")
    run.write(window.find("text", "Omschrijving"), "langs het spoor")
    run.place_solution(window, [["C-05 / 43-H", "langs het spoor", "perron", "-"]])
