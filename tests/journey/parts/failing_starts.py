"""Starts that fail: with a message that says what is wrong, and nothing changed."""
from checks import check, equal
from puzzlefiles import names


def walk(journey):
    damaged = b'"kop"\r\n"streep"\r\nrood,groen'
    journey.settings_file.write_bytes(damaged)
    journey.launch(journey.map).failed(journey.settings_file, "damaged-settings")
    equal("the damaged settings", journey.settings_file.read_bytes(), damaged)
    equal("files beside them", names(journey.map), ["Puzzels", "Rasteratelier.ini"])

    missing = journey.map / "weg"
    journey.launch(missing).failed(missing, "no-folder")
    check(not missing.exists(), f"{missing} was made")
