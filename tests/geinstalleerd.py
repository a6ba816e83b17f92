"""Installs the program, and fails when it does not work from there for a user who starts it for the first time.

geinstalleerd.py CMAKE BUILD
"""
import configparser
import filecmp
import os
import pathlib
import subprocess
import sys
import tempfile
import time

SECONDS = 60  # of a busy machine


def first_start(program, home):
    """Starts the program until its folder is there, with the settings that it writes last."""
    environment = {"HOME": str(home), "PATH": "/usr/bin:/bin", "QT_QPA_PLATFORM": "offscreen"}
    folder = home / ".local/share/rasteratelier"
    with subprocess.Popen([program], env=os.environ | environment | {"XDG_DATA_HOME": ""}) as process:
        end = time.monotonic() + SECONDS
        while not (folder / "Rasteratelier.ini").exists():
            assert process.poll() is None, "the program ended"
            assert time.monotonic() < end, f"no settings in {folder}"
            time.sleep(0.05)
        process.kill()
    return folder


def check(cmake, build, prefix, home):
    subprocess.run([cmake, "--install", build, "--prefix", prefix], check=True, stdout=subprocess.DEVNULL)
    entry = configparser.ConfigParser(interpolation=None)
    entry.read(prefix / "share/applications/rasteratelier.desktop", encoding="utf-8")
    entry = entry["Desktop Entry"]
    assert (prefix / f"share/icons/hicolor/scalable/apps/{entry['Icon']}.svg").is_file(), "no icon for the menu"

    folder = first_start(prefix / "bin" / entry["Exec"], home)
    given = prefix / "share/rasteratelier"
    files = [path.relative_to(given) for path in given.rglob("*") if path.is_file()]
    for name in ("Data/nederlands.lib", "Data/help.pdf", "Puzzels/Kennismaking.lst", "Woordlijsten/Dieren.txt"):
        assert pathlib.Path(name) in files, f"{name} is not installed"
    _, different, missing = filecmp.cmpfiles(given, folder, files, shallow=False)
    assert not different and not missing, f"not as installed: {different}, not there: {missing}"
    assert (folder / "Html/Images").is_dir(), "no folder for web pages"


with tempfile.TemporaryDirectory() as temporary:
    check(sys.argv[1], sys.argv[2], pathlib.Path(temporary) / "prefix", pathlib.Path(temporary) / "home")
