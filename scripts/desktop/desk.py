"""A desk of its own for one program: a display, a window manager, a bus, hands and eyes.

Nothing of the user's desktop is touched: display, bus, settings and runtime directory are new and go with the desk.
"""
import contextlib
import os
import pathlib
import re
import shutil
import signal
import subprocess
import tempfile
import time

PATIENCE = 20.0  # seconds until something that should happen counts as never happening


class Failure(AssertionError):
    """What a user would complain about."""


def wait(condition, what, seconds=PATIENCE):
    """The first true answer; a failure that names what was awaited when there is none."""
    end = time.monotonic() + seconds
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Failure(f"waited {seconds:g} s in vain for {what() if callable(what) else what}")
        time.sleep(0.02)


def expect(condition, what):
    if not condition:
        raise Failure(what)


class Desk:
    def __init__(self, binary, manager="openbox", screen=(1280, 800), scale=1.0, locale=None):
        self.binary, self.manager, self.screen, self.scale = binary, manager, screen, scale
        self._stack = contextlib.ExitStack()
        self.room = pathlib.Path(tempfile.mkdtemp(prefix="kiv-desk-"))
        self._stack.callback(shutil.rmtree, self.room, ignore_errors=True)
        self.settings = self.room / "settings"
        for directory in ("run", "home", "settings"):
            (self.room / directory).mkdir(mode=0o700)
        for name in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "DBUS_SESSION_BUS_ADDRESS", "QT_SCALE_FACTOR"):
            os.environ.pop(name, None)
        os.environ.update(
            XDG_RUNTIME_DIR=str(self.room / "run"), HOME=str(self.room / "home"),
            XDG_CONFIG_HOME=str(self.room / "home/.config"), XDG_CACHE_HOME=str(self.room / "home/.cache"),
            XDG_DATA_HOME=str(self.room / "home/.local"), KivUserSettingsPath=str(self.settings),
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1", LC_ALL=locale or "C.UTF-8", NO_AT_BRIDGE="0")
        if scale != 1.0:
            os.environ["QT_SCALE_FACTOR"] = str(scale)
        self.program = None

    # The desk itself

    def __enter__(self):
        try:
            self._bus()
            self._display()
        except BaseException:
            self._stack.close()
            raise
        return self

    def __exit__(self, *_):
        self._stack.close()

    def run(self, *command, **options):
        """A process that ends with the desk; its words go to a log in the desk's room."""
        log = open(self.room / (pathlib.Path(command[0]).name + ".log"), "ab")
        process = subprocess.Popen(command, stdout=log, stderr=log, start_new_session=True, **options)

        def end():
            for sign in (signal.SIGTERM, signal.SIGKILL):
                with contextlib.suppress(ProcessLookupError):
                    os.killpg(process.pid, sign)
                with contextlib.suppress(subprocess.TimeoutExpired):
                    process.wait(3)
                    break
        self._stack.callback(end)
        return process

    def _bus(self):
        answer = subprocess.run(["dbus-daemon", "--session", "--fork", "--print-address=1", "--print-pid=1"],
                                capture_output=True, text=True, check=True).stdout.split()
        os.environ["DBUS_SESSION_BUS_ADDRESS"] = answer[0]
        self._stack.callback(os.kill, int(answer[1]), signal.SIGTERM)

    def _display(self):
        read, write = os.pipe()
        self.run("Xvfb", "-displayfd", str(write), "-screen", "0", "%dx%dx24" % self.screen, "-nolisten", "tcp",
                 pass_fds=(write,))
        os.close(write)
        with os.fdopen(read) as pipe:
            os.environ["DISPLAY"] = ":" + pipe.readline().strip()
        expect(os.environ["DISPLAY"] != ":", "the X server did not start")
        if self.manager:
            self.run(self.manager)
            wait(lambda: "window id" in self.ask("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"), self.manager)

    @contextlib.contextmanager
    def busy(self):
        """Both hands full: as many loops as there are cores keep them from the program."""
        loops = [subprocess.Popen(["sh", "-c", "while :; do :; done"]) for _ in range(os.cpu_count() or 2)]
        try:
            yield
        finally:
            for loop in loops:
                loop.kill()
                loop.wait()

    @staticmethod
    def ask(*command):
        return subprocess.run(command, capture_output=True, text=True).stdout

    # The program

    def start(self, *arguments):
        self.program = self.run(self.binary, *arguments)
        return self

    def ended(self):
        return self.program.poll() is not None

    def log(self):
        return (self.room / (pathlib.Path(self.binary).name + ".log")).read_text(errors="replace")

    def picture(self, path):
        """What stands on the screen, for the eyes of whoever reads a failure."""
        xwd = subprocess.run(["xwd", "-root", "-silent"], capture_output=True).stdout
        subprocess.run(["convert", "xwd:-", str(path)], input=xwd)

    # Windows

    def windows(self):
        """The titles of the program's windows that are seen, by their identity."""
        found = {}
        for line in self.ask("xdotool", "search", "--onlyvisible", "--pid", str(self.program.pid)).split():
            title = self.ask("xdotool", "getwindowname", line).strip()
            if title:
                found[line] = title
        return found

    def window(self, title, seconds=PATIENCE):
        """The identity of the window whose title matches."""
        return wait(lambda: next((w for w, t in self.windows().items() if re.search(title, t)), None),
                    f'a window "{title}"', seconds)

    def frame(self, window):
        """Where the window stands with its frame: left, top, width, height."""
        geometry = dict(re.findall(r"^(\w+)=(-?\d+)$", self.ask("xdotool", "getwindowgeometry", "--shell", window),
                                   re.M))
        x, y, width, height = (int(geometry[k]) for k in ("X", "Y", "WIDTH", "HEIGHT"))
        found = re.search(r"= (\d+), (\d+), (\d+), (\d+)", self.ask("xprop", "-id", window, "_NET_FRAME_EXTENTS"))
        left, right, top, bottom = map(int, found.groups()) if found else (0, 0, 0, 0)
        info = self.ask("xwininfo", "-id", window)
        x = int(re.search(r"Absolute upper-left X:\s+(-?\d+)", info).group(1))
        y = int(re.search(r"Absolute upper-left Y:\s+(-?\d+)", info).group(1))
        return x - left, y - top, width + left + right, height + top + bottom

    def active(self):
        return self.windows().get(self.ask("xdotool", "getactivewindow").strip(), "")

    def activate(self, title):
        window = self.window(title)
        self.ask("xdotool", "windowactivate", "--sync", window)
        return window

    # Hands

    def key(self, *keys):
        for key in keys:
            subprocess.run(["xdotool", "key", "--clearmodifiers", key], check=True)
            time.sleep(0.05)

    def type(self, text):
        subprocess.run(["xdotool", "type", "--delay", "20", text], check=True)

    def click(self, x, y):
        subprocess.run(["xdotool", "mousemove", str(x), str(y), "click", "1"], check=True)

    # What a screen reader sees

    def root(self):
        """The program's accessible root."""
        import gi
        gi.require_version("Atspi", "2.0")
        from gi.repository import Atspi
        self.atspi = Atspi

        def find():
            desktop = Atspi.get_desktop(0)
            for i in range(desktop.get_child_count()):
                child = desktop.get_child_at_index(i)
                if child and child.get_process_id() == self.program.pid:
                    return child
        return wait(find, "the program on the accessibility bus")

    def tree(self, node=None):
        """All accessible nodes below one, in order; those that vanish meanwhile are left out."""
        node = node or self.root()
        yield node
        if node.get_role_name() == "filler" and not node.get_state_set().contains(self.atspi.StateType.SHOWING):
            return  # pages that are not shown have hundreds
        for i in range(node.get_child_count()):
            with contextlib.suppress(self.errors()):
                child = node.get_child_at_index(i)
                if child:
                    yield from self.tree(child)

    @staticmethod
    def errors():
        from gi.repository import GLib
        return GLib.Error

    def focused(self):
        """(role, name) of what has the focus, or None."""
        self.root()
        state = self.atspi.StateType.FOCUSED
        with contextlib.suppress(self.errors()):
            found = [n for n in self.tree() if n.get_state_set().contains(state)]
            if found:
                return found[-1].get_role_name(), found[-1].get_name()
        return None

    def find(self, role, name):
        """The node of that role whose name matches."""
        return wait(lambda: next((n for n in self.tree() if n.get_role_name() == role and
                                  re.search(name, n.get_name() or "")), None), f'{role} "{name}"')
