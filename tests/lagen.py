"""Fails when a folder of src includes one that it may not.

The arrows: platform <- board <- { editors, documents, print, generators, wordlib } <- app, and platform <- installatie;
handleiding takes pictures of all windows, and nothing includes it.
"""
import pathlib
import re
import sys
import tempfile

MIDDLE = ["editors", "documents", "print", "generators", "wordlib"]
ALLOWED = {"platform": {"platform"}, "board": {"platform", "board"}, "app": {"platform", "board", "app", *MIDDLE},
           "installatie": {"platform", "installatie"},
           "handleiding": {"platform", "board", "app", "handleiding", *MIDDLE}}
ALLOWED.update({name: {"platform", "board", name} for name in MIDDLE})


def violations(source):
    found = []
    for path in sorted(source.rglob("*")):
        if path.suffix not in {".h", ".cpp", ".in"}:
            continue
        folder = path.relative_to(source).parts[0]
        if folder not in ALLOWED:
            found.append(f"{path}: no such floor in the house: {folder}")
            continue
        for target in re.findall(r'#\s*include\s*"(\w+)/', path.read_text(encoding="utf-8")):
            if target not in ALLOWED[folder]:
                found.append(f"{path}: {folder} may not include {target}")
    return found


def check_itself():
    """A wrong arrow must be seen, or a clean result says nothing."""
    with tempfile.TemporaryDirectory() as name:
        wrong = pathlib.Path(name) / "board" / "Wrong.cpp"
        wrong.parent.mkdir()
        wrong.write_text('#include "editors/VakForm.h"\n', encoding="utf-8")
        assert violations(pathlib.Path(name)), "a wrong include was not seen"


check_itself()
result = violations(pathlib.Path(sys.argv[1]))
print("\n".join(result) or "every include follows the arrows")
sys.exit(1 if result else 0)
