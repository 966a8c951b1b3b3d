"""Quillon Ed in a window, as a user sees and touches it."""
import resource
import subprocess

from .commandline import PROGRAM, Home
from .display import Display
from .overview import Overview
from .waiting import until

MODULES_TYPE = "application/x-vxhwconfigtext"


class OnDisplay(Home):
    """A test with a display of its own folder; the display is shared by the tests of a class."""

    @classmethod
    def setUpClass(cls):
        cls.display = Display()
        cls.addClassCleanup(cls.display.close)

    def start(self, *arguments, area=(0, 0, 1000, 900), before=()):
        """Starts a program, waits for its window and puts it into the area of the screen."""
        return Program(self, arguments, area, before)

    def open(self, station, **more):
        """Starts a program on a station and finds its overview."""
        program = self.start(station, **more)
        drawn = self.folder / "drawn.png"
        self.succeed("render", station, "-o", drawn)
        return program, Overview(program, drawn)

    def clipboard_modules(self):
        """The text of the modules on the clipboard."""
        return self.display.clipboard(MODULES_TYPE).decode("utf-16-le").rstrip("\0")

    def situation(self):
        """What the screen shows, for the report of a failure."""
        return "On the screen: " + "; ".join(self.display.titles())

    def setUp(self):
        super().setUp()
        self.display.move(self.display.WIDTH - 2, self.display.HEIGHT - 2)


class Program:
    def __init__(self, test, arguments, area, before):
        self.test = test
        self.display = test.display
        # Writing beyond a limit set later shall be an error to the program, not its end.
        self.process = subprocess.Popen([*before, PROGRAM, "--lang", "en", *[str(argument) for argument in arguments]],
                                        env=test.environment(self.display.name), cwd=test.folder,
                                        restore_signals=False, stdin=subprocess.DEVNULL)
        test.addCleanup(self.kill)
        self.window = until(self.main_window, "the program shows its window")
        self.display.place(self.window, *area)
        self.activate()

    # Windows

    def main_window(self):
        """The window that belongs to no other; a dialog may be there as early as it."""
        return next((window for window in self.display.windows_of(self.process.pid)
                     if "Quillon Ed" in self.display.title_of(window) and not self.display.is_transient(window)), None)

    def activate(self):
        """Gives the keys to the window, or to the dialog that it has opened meanwhile."""
        self.display.activate(self.window, self.other_windows)

    def title(self):
        return self.display.title_of(self.window)

    def is_unsaved(self):
        return "*" in self.title()

    def other_windows(self):
        """Dialogs, menus and tooltips."""
        return [window for window in self.display.windows_of(self.process.pid) if window != self.window]

    def dialog(self, title=""):
        """Waits for a dialog whose title has the text."""
        def found():
            return next((window for window in self.other_windows() if title in self.display.title_of(window)), None)
        window = until(found, f"a dialog '{title}' opens")
        self.display.activate(window)
        return window

    def wait_closed(self, window):
        until(lambda: window not in self.display.windows_of(self.process.pid), "the dialog closes")

    def has_ended(self):
        return self.process.poll() is not None

    def kill(self):
        """Ends the program at once, as a crash would."""
        if not self.has_ended():
            self.process.kill()
        self.process.wait()

    def forbid_writing(self, room=0):
        """From now on no file of the program can grow beyond so many bytes: what a full disk does."""
        resource.prlimit(self.process.pid, resource.RLIMIT_FSIZE, (room, resource.RLIM_INFINITY))

    def allow_writing(self):
        resource.prlimit(self.process.pid, resource.RLIMIT_FSIZE, (resource.RLIM_INFINITY, resource.RLIM_INFINITY))
