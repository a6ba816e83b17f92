"""Saying what should be so."""
from desktop import until


def check(condition, message):
    if not condition:
        raise AssertionError(message)


def equal(what, found, wanted):
    check(found == wanted, f"{what}: {found!r}, not {wanted!r}")


def until_equal(what, look, wanted):
    found = []

    def same():
        found[:] = [look()]
        return found[0] == wanted

    try:
        until(what, same)
    except AssertionError as late:
        raise AssertionError(f"{late}; it stays {found[0]!r}, not {wanted!r}") from None
