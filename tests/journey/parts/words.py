"""The word tools on the real database: words searched, printed, handed over and placed; a word list made, saved and
loaded; a word found by its pattern."""
import pathlib
import re
import shutil

import pdf
from checks import check, equal, until_equal
from desktop import until
from puzzlefiles import write_puzzle


def walk(journey):
    database = give_words(journey)
    write_puzzle(journey.puzzles, "Woorden", words=())
    run = journey.start()
    run.open_puzzle("Woorden")
    search(journey, run, database)
    place(run)
    swap(run, database)
    missing(run, database)
    make_list(journey, run)
    load_list(run)
    by_length(run, database)
    run.push(run.main.window, "Programma Stoppen")
    run.message("Afsluiten", "Puzzel is gewijzigd, wil je toch afsluiten?", "Ja", code=0)


def give_words(journey):
    """The folder of the program gets the installed database and the installed lists. Gives the words."""
    installed = journey.path.parent
    for folder in ("Data", "Woordlijsten"):
        shutil.copytree(installed / folder, journey.map / folder)
    return pathlib.Path(journey.map / "Data" / "nederlands.lib").read_text(encoding="cp1252").split()


def listed(control):
    """The rows that there is room for."""
    return [one.name for one in control.all("list item")]


def until_lists(what, control, wanted):
    until_equal(what, lambda: listed(control), wanted[:max(1, len(listed(control)))])


def found(run):
    """The words that the main window has got."""
    return run.main.window.find("list", "Gevonden woorden")


def search(journey, run, database):
    run.program.menu("Bibliotheek", "Database doorzoeken", "menu-library")
    window = run.program.window("Database doorzoeken", "search")
    run.push(window, "Starten")
    run.message("Rasteratelier", "Minimaal 3 letters intypen a.u.b.", "OK", "search-no-key")
    window = run.program.window("Database doorzoeken")
    run.write(window.find("text", "Trefwoord"), "kaa?t ")
    window.find("label", "Trefwoord (5)")
    window.find("radio button", "Woorden die beginnen met...").click()
    run.push(window, "Starten")
    wanted = [word for word in database if word.startswith("kaa") and word[4:5] == "t"]
    window.find("label", f"Gevonden woorden ({len(wanted)})")
    run.desktop.shot("search-found")
    check(len(wanted) > 20, f"{len(wanted)} words begin with kaa?t")
    print_list(journey, run, window, wanted)
    run.push(window, "Copy woorden t/m 20 letters")
    run.program.until_closed(window.name)
    short = [word for word in wanted if len(word) < 20]
    run.main.window.find("label", f"{len(short)} Woorden gevonden")
    found(run).find("list item", "KAART").click()
    run.main.window.find("label", "kaart")
    run.main.window.find("label", "Lengte (5) letters")
    run.desktop.shot("handed-over")


def print_list(journey, run, window, words):
    bar = window.find("menu item", "Bestand")
    bar.click()
    bar.find("menu item", "Lijst afdrukken").click()
    question = f"Het aantal pagina's is.. {round(len(words) / 240) + 1}, wil je verder gaan met afdrukken?"
    run.message("Afdrukken", question, "Ja", "search-print")
    path = journey.desktop.home / "Woorden.pdf"
    pdf.type_file(run, run.program.window(pdf.FILES), path, dialog=pdf.FILES)
    page, = pdf.pages(journey, path)
    check("Database doorzoeken" in page, f"no title: {page!r}")
    rows = [line.split() for line in page.splitlines() if re.match("[a-z]+(?: |$)", line.strip())]
    equal("words of a row", {len(row) for row in rows[:-1]}, {4})
    equal("words printed", sum(rows, []), sorted(words))


def place(run):
    window = run.solution_dialog("C-05", 43)
    run.push(window, "Copy tekst vanaf hoofdscherm")
    window.find("label", "Oplossing (5)")
    equal("solution", window.find("text", "Oplossing").text(), "kaart")
    run.write(window.find("text", "Omschrijving"), "wijst de weg")
    run.place_solution(window, [["C-05 / 43-H", "wijst de weg", "kaart", "-"]])
    until("the letters of the card", lambda: min(run.main.ink("C-05", "D-05", "E-05", "F-05", "G-05")) > 12)


def swap(run, database):
    run.program.menu("Bibliotheek", "Woorden wisseling")
    window = run.program.window("Woorden Wisseling", "swap")
    run.write(window.find("text", "Trefwoord"), "Streek")
    run.push(window, "Start zoeken")
    wanted = sorted(word.capitalize() for word in database if sorted(word) == sorted("streek"))
    until_lists("words of the same letters", window.find("list", "Gevonden woorden"), wanted)
    run.desktop.shot("swap-found")
    check("Streek" in wanted, "the word itself is missing")
    run.push(window, "Copyeer de gevonden woorden")
    run.program.until_closed(window.name)
    until_lists("words handed over", found(run), [word.upper() for word in wanted])


def missing(run, database):
    run.program.menu("Bibliotheek", "Ontbrekende letters")
    window = run.program.window("Ontbrekende Letters", "missing")
    length = window.find("scroll bar", "Woordlengte")
    left, top, width, height = length.box()
    for step in range(6):
        run.desktop.click(left + width - 6, top + height // 2)
        window.find("label", f"{step + 1} letters")
    for number, presses in ((1, 27), (2, 19)):  # IJ, S
        bar = window.find("scroll bar", f"Letter {number}")
        left, top, width, height = bar.box()
        run.desktop.click(left + width // 2, top + height - 6, times=presses)
        until_equal("letter", bar.value, 64 + presses)
    window.find("label", "IJ")
    run.push(window, "Ok")
    cells = [word.upper().replace("IJ", "?") for word in database]
    wanted = [word.replace("?", "IJ") for word in cells if len(word) == 6 and word.startswith("?S")]
    check("IJSBEER" in wanted, "no polar bear in the database")
    window.find("label", f"{len(wanted)} Woorden gevonden")
    until_lists("words of the pattern", window.find("list", "Gevonden woorden"), wanted)
    run.desktop.shot("missing-found")
    help_sheet(run, window)
    run.push(window, "Woordenlijst exporteren naar hoofdscherm")
    run.program.until_closed(window.name)
    until_lists("words handed over", found(run), wanted)


def help_sheet(run, window):
    for shot in ("missing-help", None):
        bar = window.find("menu item", "Help")
        bar.click()
        bar.find("menu item", "Uitleg Ontbrekende letters").click()
        if shot:
            window.find("filler", "Uitleg Ontbrekende letters")
            run.desktop.shot(shot)


def make_list(journey, run):
    run.program.menu("Tools", "Woordlijsten bewerken")
    window = run.program.window("Woordlijsten bewerken", "lists")
    window.find("list item", "Dieren").click()
    until("the animals", lambda: len(listed(window.find("list", "Woorden"))) > 3)
    run.desktop.shot("lists-animals")
    run.push(window, "Nieuwe woordlijst aanmaken")
    run.program.until_focus("text", "Onderwerp")
    for word in ("wagon", "ijsje", "perron", "spoor"):
        run.write(window.find("text", "Puzzelwoord"), word)
        if word == "perron":
            run.desktop.key("Return")
        else:
            run.push(window, "Woord toevoegen")
        until("the word in the list", lambda: word in listed(window.find("list", "Woorden")))
    window.find("list item", "spoor").click()
    run.push(window, "Woord verwijderen")
    run.message("Delete", "Wilt je het puzzelwoord 'spoor' verwijderen?", "Ja", "lists-delete")
    window = run.program.window("Woordlijsten bewerken")
    run.write([one for one in window.all("text") if one.name == "Onderwerp"][0], "Treinen")
    run.desktop.shot("lists-filled")
    run.push(window, "Woordlijst opslaan")
    window.find("filler", "Voortgang")
    run.program.until_closed(window.name)
    equal("list", (journey.map / "Woordlijsten" / "Treinen.txt").read_bytes(), b"IJSJE\r\nPERRON\r\nWAGON\r\n")


def load_list(run):
    run.push(run.main.window, "Load")
    subjects = run.main.window.find("list", "Woordlijsten")
    train = until("the new subject", lambda: [one for one in subjects.all("list item") if one.name == "Treinen"])
    words = run.main.window.find("list", "Woorden van de lijst")
    train[0].click()
    until_equal("all words of the list", lambda: listed(words), ["IJSJE", "PERRON", "WAGON"])
    run.main.window.find("combo box", "Alles").click()
    run.desktop.key("Down", "Down", "Down", "Down", "Return")
    run.desktop.shot("length-filter")
    train[0].click()
    until_equal("words of five letters", lambda: listed(words), ["IJSJE", "WAGON"])
    words.find("list item", "WAGON").click()
    run.main.window.find("label", "wagon")
    run.main.window.find("label", "5 Letters")
    run.desktop.shot("list-loaded")


def by_length(run, database):
    run.push(run.main.window, "Start zoeken op woordlengte")
    wanted = [word.upper() for word in database if len(word.replace("ij", "?")) == 2]
    run.main.window.find("label", f"{len(wanted)} Woorden gevonden")
    until_lists("words of two letters", found(run), wanted)
