"""Screens of more dots to the inch: the main window shows whole where there is room for it, and so do the dialogs."""
from checks import check, equal
from puzzlefiles import write_puzzle

SCREEN = 2600, 1800
FACTORS = 1, 1.25, 1.5, 1.75
MAIN_SIZE = 1234, 706  # what the main window holds below its menu bar, unscaled
ROLES = "push button", "label", "text", "radio button", "check box", "combo box", "list", "tree", "frame", "filler"
OWN_BAR = "Woordlengte"  # a control of the window
WORD_TOOLS = (("Bibliotheek", "Database doorzoeken", "Database doorzoeken"), ("Bibliotheek", "Woorden wisseling", "Woorden Wisseling"),
              ("Bibliotheek", "Ontbrekende letters", "Ontbrekende Letters"), ("Tools", "Woordlijsten bewerken", "Woordlijsten bewerken"))


def walk(journey):
    write_puzzle(journey.puzzles, "Reisdoornl")
    (journey.map / "Data").mkdir()
    (journey.map / "Data" / "nederlands.lib").write_bytes(b"aal\r\n")
    wrong = []
    for factor in FACTORS:
        run = journey.start(f"main-{factor}", scale=factor)
        wrong += [f"{factor}: {what}" for what in lacking(journey.desktop, run.main.window, factor)]
        if factor == 1.5:
            wrong += [f"{factor}: {what}" for what in dialogs(run) + word_tools(run)]
        run.program.menu("Bestand", "Exit")  # the button may be out of sight
        if factor == 1.5:
            run.message("Afsluiten", "Puzzel is gewijzigd, wil je toch afsluiten?", "Ja", "question", code=0)
        equal("exit code", run.program.ended(), 0)
    check(not wrong, "not whole:\n" + "\n".join(wrong))


def lacking(desktop, window, factor):
    """What keeps the main window from being whole, as texts."""
    wrong = [f"a scroll bar at {bar.box()}" for bar in window.all("scroll bar") if bar.name != OWN_BAR]
    _, _, _, width, height = desktop.active_window()
    menu = window.find("menu bar", "").box()[3]
    lacks = round(MAIN_SIZE[0] * factor) - width, round(MAIN_SIZE[1] * factor) + menu - height
    if max(lacks) > 0:
        wrong.append(f"the window of {width}x{height} lacks {lacks[0]}x{lacks[1]} pixels")
    if min(lacks) < -8:
        wrong.append(f"the window of {width}x{height} is too large by {-lacks[0]}x{-lacks[1]} pixels")
    if not desktop.active_is_on_screen():
        wrong.append("the window isn't on the screen with its frame")
    return wrong + outside(window)


def outside(window):
    """The controls of a window that aren't wholly in it, as texts."""
    left, top, width, height = window.box()
    wrong = []
    for one in window.all():
        x, y, w, h = one.box()
        # Places are told in whole logical pixels, hence the one.
        if one.role in ROLES and (x < left - 1 or y < top - 1 or x + w > left + width + 1 or y + h > top + height + 1):
            wrong.append(f"{one.role} '{one.name}' {one.box()} isn't in '{window.name}' {window.box()}")
    return wrong


def dialogs(run):
    """Opens those of a puzzle, keeps their pictures, and tells what isn't in them."""
    wrong = []

    def look(window, button):
        wrong.extend(outside(window))
        if run.desktop.can_be_iconified_or_maximised():
            wrong.append(f"'{window.name}' has a button to minimise or to maximise it")
        run.push(window, button)
        run.program.until_closed(window.name)

    run.program.menu("Bestand", "Nieuwe puzzel ontwerpen", "menu")
    window = run.program.window("Nieuwe puzzel ontwerpen", "new")
    run.push(window, "Ok")
    look(run.program.window("Rasteratelier", "message"), "OK")
    look(run.program.window("Nieuwe puzzel ontwerpen"), "Annuleren")
    window, _ = run.open_dialog("open")
    look(window, "Annuleren")
    look(run.save_dialog("save"), "Annuleren")
    window = run.clue_dialog("A-01", 1, "clue")
    run.choose_kind(window, 5)
    run.write(window.find("text", "Omschrijving"), "boven\n\nonder")
    window.find("label", "Regel 3")
    run.desktop.shot("clue-filled")
    look(window, "Ok")
    window = run.solution_dialog("B-01", 2, "solution")
    run.fill_solution(window, "drank van druiven", "wijn", 3, "Oplossing Vertikaal Plaatsen")
    run.desktop.shot("solution-filled")
    look(window, "Ok")
    run.main.open_popup("C-01", 3)
    run.program.popup("Letter plaatsen")
    look(run.program.window("1 Letter Plaatsen op C-01 / 3", "letter"), "Annuleren")
    run.main.choose_row(0)
    run.desktop.shot("main-filled")
    run.push(run.main.window, "Over de ontwerper")
    look(run.program.window("About Rasteratelier...", "about"), "Sluiten")
    begin(run, "Kruiswoord")
    run.main.open_popup("C-01", 3)
    run.program.popup("Vaknummer plaatsen")
    look(run.program.window("Vaknummer Plaatsen op C-01 / 3", "number"), "Annuleren")
    begin(run, "Filippine")
    run.desktop.click(*run.main.cell_middle("C-04"))
    window = run.program.window("Oplossing Plaatsen op 04", "answer")
    run.write(window.find("text", "Omschrijving"), "wit en groot")
    run.write(window.find("text", "Oplossing"), "ijsbeer")
    look(window, "Ok")
    run.desktop.shot("main-answer")
    return wrong


def begin(run, kind):
    """A new puzzle of another kind, of the same size."""
    run.program.menu("Bestand", "Nieuwe puzzel ontwerpen")
    window = run.program.window("Nieuwe puzzel ontwerpen")
    window.find("radio button", f"{kind} Puzzel").click()
    run.write(window.find("text", "Naam Puzzel"), "maten")
    run.push(window, "Ok")
    run.program.until_closed(window.name)
    run.main.window.find("label", f"Soortpuzzel : {kind}")


def word_tools(run):
    """The same of the word tools. Some have a menu bar; they scroll when they are a pixel too small."""
    wrong = []
    for menu, item, title in WORD_TOOLS:
        run.program.menu(menu, item)
        window = run.program.window(title, item.replace(" ", "-").lower())
        wrong += outside(window) + [f"'{title}' scrolls: {bar.box()}" for bar in window.all("scroll bar") if not bar.name]
        run.desktop.key("Escape")
        run.program.until_closed(title)
    return wrong
