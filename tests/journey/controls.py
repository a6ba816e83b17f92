"""A program's windows as a person meets them: found through the accessibility tree, used with pointer and keys.

To be imported when the desktop has started: the connection is made at once.
"""
import os

import pyatspi
from gi.repository import GLib

from desktop import until

LEAVES = {"label", "list item", "push button", "radio button", "check box", "scroll bar", "table cell", "separator"}  # nothing below
Gone = (GLib.GError, NotImplementedError)  # a control that went away while it was asked something


def quietly(question):
    """The answer, or None when the control has gone."""
    try:
        return question()
    except Gone:
        return None


class Control:
    """On a scaled screen the tree tells of logical pixels; here all is in those of the screen."""

    def __init__(self, program, accessible):
        self.program, self.accessible = program, accessible

    @property
    def name(self):
        return self.accessible.name

    @property
    def role(self):
        return self.accessible.getRoleName()

    def box(self):
        """Left, top, width, height on the screen."""
        extents = self.accessible.queryComponent().getExtents(pyatspi.DESKTOP_COORDS)
        return tuple(round(one * self.program.scale) for one in (extents.x, extents.y, extents.width, extents.height))

    def has(self, state):
        return self.accessible.getState().contains(state)

    def text(self):
        return self.accessible.queryText().getText(0, -1)

    def value(self):
        return self.accessible.queryValue().currentValue

    def children(self):
        return [Control(self.program, child) for child in self.accessible if child]

    def cells(self):
        """The rows of a table, each the controls of its cells."""
        self.accessible.clear_cache()
        table = self.accessible.queryTable()
        return [[Control(self.program, table.getAccessibleAt(row, column)) for column in range(table.nColumns)]
                for row in range(table.nRows)]

    def tree(self, role=None, wanted=lambda _: True):
        """All of a role, or of any, from this control down, from top to bottom; without those that are not wanted and all
        below them. The items of lists, which are most of what there is, are looked at only when they are sought."""
        if wanted(self):
            own = self.role
            if role in (own, None):
                yield self
            if own not in LEAVES and (own != "list" or role in ("list item", None)):
                for child in self.children():
                    yield from child.tree(role, wanted)

    def all(self, role=None):
        """All of a role, or of any, that are shown, from top to bottom."""
        self.accessible.clear_cache()
        return list(self.tree(role, lambda one: one.has(pyatspi.STATE_SHOWING)))

    def names(self, role="label"):
        return [one.name for one in self.all(role)]

    def find(self, role, name):
        """The one shown control of this role and name, waited for."""
        def look():
            found = quietly(lambda: [one for one in self.all(role) if one.name == name])
            return found[0] if found and len(found) == 1 else None
        return until(f"one {role} '{name}'", look)

    def middle(self):
        """Of its box on the screen."""
        left, top, width, height = self.box()
        return left + width // 2, top + height // 2

    def click(self, times=1):
        """With the pointer, in its middle."""
        self.program.desktop.click(*self.middle(), times=times)

    def describe(self, depth=0):
        line = "  " * depth + f"{self.role} '{self.name}' {quietly(self.box)}\n"
        return line + "".join(child.describe(depth + 1) for child in self.children())


class Program:
    """A started program on a desktop."""

    def __init__(self, desktop, command, log, scale):
        self.desktop, self.scale = desktop, scale
        self.focused = []  # what got the focus, the last one at the end
        pyatspi.Registry.registerEventListener(self.on_focus, "object:state-changed:focused")
        scaled = {} if scale == 1 else {"QT_SCALE_FACTOR": str(scale)}
        self.process = desktop.start(command, stdout=log, stderr=log, env=os.environ | scaled)
        self.root = Control(self, until("the program on the accessibility bus", self.find_root))

    def on_focus(self, event):
        if event.detail1:
            self.focused.append(event.source)

    def find_root(self):
        assert self.process.poll() is None, f"the program has ended with exit code {self.process.returncode}"
        desktop = pyatspi.Registry.getDesktop(0)
        desktop.clear_cache()
        return quietly(lambda: next((one for one in desktop if one and one.get_process_id() == self.process.pid), None))

    def describe(self):
        """All that there is in the accessibility tree, as text."""
        return quietly(self.root.describe) or "The program is not there any more.\n"

    # Windows

    def windows(self):
        assert self.process.poll() is None, f"the program has ended with exit code {self.process.returncode}"
        self.root.accessible.clear_cache()
        return [one for one in self.root.children() if one.has(pyatspi.STATE_SHOWING)]

    def window(self, title, shot=None):
        """The window of this title, when it has the focus and lies where it is to stay. Kept as a picture."""
        def look():
            name, *place = self.desktop.active_window()
            for one in self.windows():
                # Exactly there, as far as whole logical pixels go.
                is_there = all(abs(told - real) < self.scale for told, real in zip(one.box(), place))
                if title == bare(one.name) == bare(name) and one.has(pyatspi.STATE_ACTIVE) and is_there:
                    return one
            return None
        found = until(f"window '{title}'", lambda: quietly(look))
        if shot:
            self.desktop.shot(shot)
        return found

    def until_focus(self, role, name):
        """Waits until the focus is in this control."""
        def look():
            return any(one.name == name and one.has(pyatspi.STATE_FOCUSED)
                       for window in self.windows() for one in window.tree(role))
        until(f"the focus in {role} '{name}'", lambda: quietly(look))

    def until_closed(self, title):
        until(f"window '{title}' is closed",
              lambda: bare(title) not in (quietly(lambda: [bare(one.name) for one in self.windows()]) or [bare(title)]))

    def ended(self):
        """The exit code, once the program has ended."""
        until("the program ends", lambda: self.process.poll() is not None)
        return self.process.returncode

    # Menus

    def menu(self, menu, item, shot=None):
        """Chooses an item of the menu bar with the pointer."""
        bar = self.windows()[0].find("menu item", menu)
        bar.click()
        found = bar.find("menu item", item)
        if shot:
            self.desktop.shot(shot)
        found.click()

    def popup(self, item, shot=None):
        """Chooses an item of the pop-up that is open, with the pointer. Its items tell themselves when pointed at, unless
        they are disabled, which the last one never is."""
        left, top, width, height = until("the pop-up", self.desktop.popup_box)
        if shot:
            self.desktop.shot(shot)
        self.focused.clear()
        self.desktop.point(left + width // 2, top + height - 8)
        last = until("the last item of the pop-up", self.focused_item)
        wanted = [one for one in Control(self, last.parent).children() if one.name == item]
        assert len(wanted) == 1, f"{len(wanted)} items '{item}' in the pop-up"
        place = wanted[0].middle()
        self.desktop.point(*place)
        until(f"the item '{item}' under the pointer", lambda: self.focused_item().name == item)
        self.desktop.click(*place)

    def focused_item(self):
        while GLib.MainContext.default().iteration(False):
            pass
        return self.focused[-1] if self.focused else None


def bare(title):
    """Without the blanks round it: a window manager may leave them away."""
    return title.strip()
