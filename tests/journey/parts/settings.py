"""The settings, a clue cell in their colours, and the large board with that cell behind its viewport; then once more on a
screen of more dots to the inch, with the settings that the first program left."""
from checks import check, equal, until_equal
from desktop import until
from steps import MAIN

SCREEN = 2000, 1300
HEAD = ['"Tessel Hoeksma Software 2017"', '"' + "-" * 26 + '"']
VIEWER = "Orgineel Puzzelveld (1923,2283 / 16,19)"
TOO_FAR = "Fout 6 bij 'Orgineel puzzelveld': Overloop: het getal is te groot of te klein (de muiscursor is te ver weg)."
SECOND_TILE = 192, 229, 224  # of the clue cells on the visible board, the second choice
STEP, NOTCH = 450, 1350  # twips


def walk(journey):
    run = journey.start()
    colour = change_settings(run)
    place_clue(run)
    use_viewer(run, colour)
    run.program.menu("Bestand", "Exit")
    run.message("Afsluiten", "Puzzel is gewijzigd, wil je toch afsluiten?", "Ja", code=0)
    text = '"Puzzels, op maat"'
    equal("settings", settings(journey), [*HEAD, ",".join(map(str, colour)), "2", text, ""])

    run = journey.start(scale=1.5)
    reset_settings(run, colour)
    look_at_viewer(run)
    run.program.menu("Bestand", "Exit")
    equal("exit code", run.program.ended(), 0)
    equal("settings", settings(journey), [*HEAD, "230,250,190", "1", text, ""])  # the reset reaches past the cancel


def settings(journey):
    return journey.settings_file.read_bytes().decode("cp1252").split("\r\n")


def spot(window, left, top):
    """Where a place of a window, in twips, is on the screen."""
    x, y, _, _ = window.box()
    return round(x + left / 15 * window.program.scale), round(y + top / 15 * window.program.scale)


def colour_at(window, left, top):
    return window.program.desktop.screen().pixel(*spot(window, left, top))


def bar(window, name):
    return window.find("scroll bar", name)


def change_settings(run):
    """Gives the colour that the large board has then."""
    run.program.menu("Tools", "Instellingen")
    window = run.program.window("Instellingen", "settings")
    run.program.until_focus("scroll bar", "Rood")
    run.desktop.key("Home")
    until_equal("red", bar(window, "Rood").value, 0)
    run.desktop.key("Tab")
    run.program.until_focus("scroll bar", "Groen")
    run.desktop.key("Left", "Left", "Left")
    until_equal("green", bar(window, "Groen").value, 247)
    run.desktop.key("Tab", "Home")
    until_equal("blue", bar(window, "Blauw").value, 0)
    drag_blue(run, window)
    colour = 0, 247, int(bar(window, "Blauw").value())
    left, top, width, height = bar(window, "Kleur vakjes zichtbaar puzzelveld").box()
    run.desktop.click(left + width - 6, top + height // 2)
    window.find("label", " 2")
    until_equal("the sample of the choice", lambda: colour_at(window, 1500, 2385), (190, 230, 230))
    run.write(window.find("text", "Tekst op alle afdrukpagina's"), "Puzzels, op maat")
    run.desktop.shot("settings-changed")
    run.push(window, "Wijzigingen Opslaan")
    run.program.until_closed("Instellingen")
    return colour


def drag_blue(run, window):
    """The number and the sample follow the thumb while it is held."""
    left, top, width, height = bar(window, "Blauw").box()
    run.desktop.xdotool("mousemove", left + 24, top + height // 2, "mousedown", 1, "mousemove", left + width // 2, top + 5)
    until("blue under the thumb", lambda: 60 < bar(window, "Blauw").value() < 200)
    blue = int(bar(window, "Blauw").value())
    window.find("label", str(blue))
    until_equal("the sample", lambda: colour_at(window, 2295, 720), (0, 247, blue))
    run.desktop.xdotool("mouseup", 1)


def place_clue(run):
    window = run.clue_dialog("B-02", 18)
    run.write(window.find("text", "Omschrijving"), "spin")
    run.push(window, "Ok")
    run.program.until_closed(window.name)
    until("B-02 in the second colour", lambda: run.main.cell("B-02").count(lambda *rgb: rgb == SECOND_TILE) > 500)
    run.desktop.shot("clue-second-colour")


def open_viewer(run, shot):
    run.program.menu("Show", "Orgineel puzzelveld")
    window = run.program.window(VIEWER, shot)
    run.program.until_focus("scroll bar", "Omhoog en omlaag")
    return window


def until_at(window, left, top):
    """Waits until both bars stand there, and the picture with them. Twips."""
    until_equal("across", bar(window, "Naar links en naar rechts").value, left)
    until_equal("down", bar(window, "Omhoog en omlaag").value, top)
    x, y = spot(window, 150 - left, 150 - top)
    def is_there():
        box = window.find("filler", "Orgineel puzzelveld").box()
        return abs(box[0] - x) < 2 and abs(box[1] - y) < 2
    until(f"the picture at {x},{y}", is_there)


def drag(run, window, across, down):
    """From the middle of the viewport, in twips."""
    run.desktop.xdotool("mousemove", *spot(window, 4350, 2400), "mousedown", 1, "sleep", 0.1,
                        "mousemove", *spot(window, 4350 + across, 2400 + down), "sleep", 0.1, "mouseup", 1)


def use_viewer(run, colour):
    field = run.main.picture()
    window = open_viewer(run, "viewer")
    until_equal("the clue cell", lambda: colour_at(window, 150 + 3300, 150 + 3300), colour)
    drag(run, window, -1500, -1200)
    until_at(window, 1500, 1200)
    until_equal("the clue cell", lambda: colour_at(window, 150 + 1800, 150 + 2100), colour)
    run.desktop.shot("viewer-dragged")
    for button, left, top in ((5, 1500, 1200 + NOTCH), (7, 1500 + NOTCH, 1200 + NOTCH), (4, 1500 + NOTCH, 1200),
                              (6, 1500, 1200)):
        run.desktop.click(*spot(window, 4350, 2400), button=button)
        until_at(window, left, top)
    run.desktop.key("Down")
    until_at(window, 1500, 1200 + STEP)
    run.desktop.key("End", "Tab", "End")
    until_at(window, 20385, 29685)
    run.desktop.shot("viewer-end")
    drag(run, window, -13500, 0)
    run.message("Rasteratelier", TOO_FAR, "OK", "viewer-too-far")
    until_at(window, 20385, 29685)
    drag(run, window, 1500, 1200)
    until_at(window, 18885, 28485)
    run.push(window, "Sluiten")
    run.program.until_closed(VIEWER)
    check(run.main.picture() == field, "the field has changed")
    run.program.window(MAIN)


def reset_settings(run, colour):
    run.program.menu("Tools", "Instellingen")
    window = run.program.window("Instellingen", "settings-scaled")
    for name, value in zip(("Rood", "Groen", "Blauw"), colour):
        equal(name, bar(window, name).value(), value)
    equal("text", window.find("text", "Tekst op alle afdrukpagina's").text(), "Puzzels, op maat")
    run.push(window, "Reset alle gemaakte wijzigingen")
    for name, value in (("Rood", 230), ("Groen", 250), ("Blauw", 190)):
        until_equal(name, bar(window, name).value, value)
    window.find("label", " 1")
    until("another text", lambda: window.find("text", "Tekst op alle afdrukpagina's").text() != "Puzzels, op maat")
    run.desktop.shot("settings-scaled-reset")
    run.push(window, "Annuleren")
    run.program.until_closed("Instellingen")


def look_at_viewer(run):
    window = open_viewer(run, "viewer-scaled")
    drag(run, window, -1500, -1200)
    until_at(window, 1500, 1200)
    run.desktop.shot("viewer-scaled-dragged")
    run.push(window, "Sluiten")
    run.program.until_closed(VIEWER)
