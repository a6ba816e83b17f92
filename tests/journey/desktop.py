"""A desktop of its own: screen, window manager, message bus, home. All that it starts ends with it."""
import ctypes
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import time

from picture import Picture

DEADLINE = 40  # seconds; a sign that something went wrong, never a pace

PR_SET_PDEATHSIG, PR_SET_CHILD_SUBREAPER = 1, 36
libc = ctypes.CDLL(None, use_errno=True)


def until(what, condition, seconds=DEADLINE):
    """Waits until the condition gives something true, and gives that. Raises AssertionError at the deadline."""
    end = time.monotonic() + seconds
    while True:
        result = condition()
        if result:
            return result
        if time.monotonic() > end:
            raise AssertionError(f"{what}: not within {seconds} seconds")
        time.sleep(0.03)


def processes():
    """The parent of each process."""
    parents = {}
    for entry in pathlib.Path("/proc").iterdir():
        if entry.name.isdigit():
            try:
                stat = (entry / "stat").read_text(encoding="utf-8", errors="replace")
            except OSError:  # ended meanwhile
                continue
            state, parent = stat.rpartition(")")[2].split()[:2]
            if state != "Z":
                parents[int(entry.name)] = int(parent)
    return parents


def descendants(root):
    parents = processes()
    found, edge = [], [root]
    while edge:
        edge = [pid for pid, parent in parents.items() if parent in edge]
        found += edge
    return found


class Desktop:
    """As a context: everything runs inside, everything has ended outside."""

    def __init__(self, output, width, height):
        self.output, self.width, self.height = output, width, height
        self.shots = 0
        self.temp = pathlib.Path(tempfile.mkdtemp(prefix="journey-"))
        self.home = self.temp / "home"
        self.log = (output / "desktop.log").open("wb")

    def __enter__(self):
        # What a child leaves behind (the message bus starts programs of its own) becomes ours to end.
        libc.prctl(PR_SET_CHILD_SUBREAPER, 1, 0, 0, 0)
        try:
            self.start_all()
        except BaseException:
            self.end_all()
            raise
        return self

    def __exit__(self, *_):
        self.end_all()

    def start_all(self):
        for name in ("home/Pictures", "runtime", "screen"):
            (self.temp / name).mkdir(parents=True, mode=0o700)
        kept = {name: value for name, value in os.environ.items()
                if name in ("PATH", "LD_LIBRARY_PATH", "TZ") or name.endswith("SAN_OPTIONS")}
        os.environ.clear()
        os.environ.update(kept, HOME=str(self.home), USER="journey", LANG="C.UTF-8",
                          XDG_RUNTIME_DIR=str(self.temp / "runtime"), GSETTINGS_BACKEND="memory",
                          QT_QPA_PLATFORM="xcb", QT_ACCESSIBILITY="1", QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1")
        os.environ.setdefault("ASAN_OPTIONS", "detect_leaks=0")
        # Without -noreset the screen would start anew each time that its only client leaves.
        display = self.start_telling(
            lambda fd: ["Xvfb", "-displayfd", str(fd), "-screen", "0", f"{self.width}x{self.height}x24", "-nocursor",
                        "-noreset", "-nolisten", "tcp", "-fbdir", str(self.temp / "screen")])
        os.environ["DISPLAY"] = ":" + display
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = self.start_telling(
            lambda fd: ["dbus-daemon", "--session", "--nofork", "--nopidfile", f"--print-address={fd}"])
        manager = self.start(["openbox", "--sm-disable"])

        def managed():
            assert manager.poll() is None, "the window manager didn't stay"
            return "window id" in self.tell(["xprop", "-root", "-notype", "_NET_SUPPORTING_WM_CHECK"])

        until("the window manager is there", managed)

    def start(self, command, **options):
        """Starts a program that ends with this one, even when this one is killed."""
        options.setdefault("stdout", self.log)
        options.setdefault("stderr", self.log)
        return subprocess.Popen(command, stdin=subprocess.DEVNULL,
                                preexec_fn=lambda: libc.prctl(PR_SET_PDEATHSIG, signal.SIGTERM, 0, 0, 0), **options)

    def start_telling(self, command):
        """Starts a program that writes one line to a file descriptor once it is ready."""
        reader, writer = os.pipe()
        try:
            child = self.start(command(writer), pass_fds=[writer])
        finally:
            os.close(writer)
        with open(reader, encoding="utf-8") as line:
            told = line.readline().strip()
        assert told, f"{child.args[0]} didn't start"
        return told

    def end_all(self):
        for sign in (signal.SIGTERM, signal.SIGKILL):
            end = time.monotonic() + 5
            while (left := descendants(os.getpid())) and time.monotonic() < end:
                for pid in left:
                    try:
                        os.kill(pid, sign)
                    except ProcessLookupError:
                        pass
                self.reap()
                time.sleep(0.05)
        self.reap()
        self.log.close()
        shutil.rmtree(self.temp, ignore_errors=True)

    @staticmethod
    def reap():
        try:
            while os.waitpid(-1, os.WNOHANG)[0]:
                pass
        except ChildProcessError:
            pass

    @staticmethod
    def tell(command):
        """What a small program says; empty when it fails."""
        return subprocess.run(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL,
                              timeout=DEADLINE, check=False).stdout.decode("utf-8", "replace").strip()

    # Pointer and keys

    def xdotool(self, *words):
        subprocess.run(["xdotool", *map(str, words)], stdin=subprocess.DEVNULL, stdout=self.log, stderr=self.log,
                       timeout=DEADLINE, check=True)

    def point(self, x, y):
        self.xdotool("mousemove", x, y)

    def click(self, x, y, button=1, times=1):
        self.xdotool("mousemove", x, y, "click", "--repeat", times, "--delay", 20, button)

    def key(self, *names):
        self.xdotool("key", *names)

    def hold(self, name):
        """A key that works when it is let go of. The accessibility bus delays what keys do: let go of at once, it could
        be up before it is down."""
        self.xdotool("keydown", name, "sleep", 0.2, "keyup", name)

    def type(self, text):
        for number, line in enumerate(text.split("\n")):
            if number:
                self.key("Return")
            if line:
                self.xdotool("type", "--delay", 20, line)

    # Windows as the window manager has them

    def active_window(self):
        """Title, left, top, width, height of the window with the focus; an empty title when there is none."""
        number = self.tell(["xdotool", "getactivewindow"])
        told = self.tell(["xwininfo", "-id", number]) if number else ""
        values = [re.search(rf"{key}: +(-?\d+)$", told, re.MULTILINE)
                  for key in ("Absolute upper-left X", "Absolute upper-left Y", "Width", "Height")]
        title = re.search(r'Window id: \S+ "(.*)"$', told, re.MULTILINE)
        return title[1] if title else "", *(int(value[1]) if value else -1 for value in values)

    def active_frame(self):
        """What the window manager puts round the window with the focus: left, right, top, bottom."""
        told = self.tell(["xprop", "-id", self.tell(["xdotool", "getactivewindow"]), "-notype", "_NET_FRAME_EXTENTS"])
        return [int(number) for number in re.findall(r"\d+", told)]

    def active_is_on_screen(self):
        """Whether all of the window with the focus is, with its frame."""
        _, left, top, width, height = self.active_window()
        before, behind, above, below = self.active_frame()
        return (left >= before and left + width + behind <= self.width
                and top >= above and top + height + below <= self.height)

    def move_active(self, left, top):
        """Moves the window with the focus."""
        self.xdotool("getactivewindow", "windowmove", "--sync", left, top)

    def can_be_iconified_or_maximised(self):
        """Whether the window with the focus asks its window manager for these two buttons."""
        told = self.tell(["xprop", "-id", self.tell(["xdotool", "getactivewindow"]), "-notype", "_MOTIF_WM_HINTS"])
        asked, functions, decorations = [int(number, 0) for number in re.findall(r"0x\w+|\d+", told)][:3]
        assert asked & 3 == 3, f"the window leaves its buttons to the window manager: {told}"
        return bool(functions & 0x19 or decorations & 0x61)  # iconify, maximise, or all there is

    def popup_box(self):
        """Left, top, width, height of the window that no window manager has a hold on; None when there is none."""
        tree = self.tell(["xwininfo", "-root", "-children"])
        for line in tree.splitlines():
            match = re.search(r'"rasteratelier".* (\d+)x(\d+)\+\d+\+\d+ +\+(\d+)\+(\d+)$', line)
            if match and int(match[1]) > 10 and "IsViewable" in self.tell(["xwininfo", "-id", line.split()[0]]):
                width, height, left, top = map(int, match.groups())
                return left, top, width, height
        return None

    # Pictures

    def screen(self):
        """The screen as it is at this moment."""
        return Picture.from_xwd((self.temp / "screen" / "Xvfb_screen0").read_bytes())

    def shot(self, name):
        """Keeps the screen as a numbered picture."""
        self.shots += 1
        path = self.output / f"{self.shots:02}-{name}.png"
        path.write_bytes(self.screen().png())
        return path
