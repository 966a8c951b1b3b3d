"""Quillon Ed in a window, as a user sees and touches it."""
import json
import resource
import subprocess

from .commandline import PROGRAM, Home
from .display import Display
from .picture import read_png
from .waiting import until

MODULES_TYPE = "application/x-vxhwconfigtext"
BAND = 92  # from one rack to the next, in pixels of the picture


class OnDisplay(Home):
    """A test with a display of its own folder; the display is shared by the tests of a class."""

    @classmethod
    def setUpClass(cls):
        cls.display = Display()
        cls.addClassCleanup(cls.display.close)

    def start(self, *arguments, area=(0, 0, 1000, 900)):
        """Starts a program, waits for its window and puts it into the area of the screen."""
        program = Program(self, arguments, area)
        self.addCleanup(program.kill)
        return program

    def setUp(self):
        super().setUp()
        self.display.move(self.display.WIDTH - 2, self.display.HEIGHT - 2)


class Program:
    def __init__(self, test, arguments, area):
        self.test = test
        self.display = test.display
        # Writing beyond a limit set later shall be an error to the program, not its end.
        self.process = subprocess.Popen([PROGRAM, "--lang", "en", *[str(argument) for argument in arguments]],
                                        env=test.environment(self.display.name), cwd=test.folder,
                                        restore_signals=False, stdin=subprocess.DEVNULL)
        self.window = until(self.main_window, "the program shows its window")
        self.display.place(self.window, *area)
        self.display.activate(self.window)

    # Windows

    def main_window(self):
        windows = [window for window in self.display.windows_of(self.process.pid)
                   if "Quillon Ed" in self.display.title_of(window)]
        return windows[0] if windows else None

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

    def forbid_writing(self):
        """From now on no file of the program can grow: what a full disk does."""
        resource.prlimit(self.process.pid, resource.RLIMIT_FSIZE, (0, resource.RLIM_INFINITY))

    def allow_writing(self):
        resource.prlimit(self.process.pid, resource.RLIMIT_FSIZE, (resource.RLIM_INFINITY, resource.RLIM_INFINITY))

    # The rack overview

    def rack_origin(self, station, rack=0):
        """Where the overview's drawing surface lies on the screen: found by the left cap of the rack's rail, which
        looks the same whatever is selected."""
        drawn = self.test.folder / "origin.png"
        self.test.succeed("render", station, "-o", drawn)
        picture = read_png(drawn)
        top = (3 - rack) * BAND + 29
        cap = picture.cut(SURFACE_LEFT + 11, top + 15, 13, 40)
        left, upper, _, _ = self.display.geometry(self.window)
        self.display.activate(self.window)

        def search():
            found = self.display.picture().find(cap)
            inside = [(x, y) for x, y in found if self.contains(x, y)]
            # The racks look alike: the n-th from the bottom is rack n.
            inside.sort(key=lambda point: -point[1])
            return inside
        found = until(search, "the overview shows its racks")
        x, y = found[0]
        return x - 11, y - 15 - 29 - 3 * BAND

    def contains(self, x, y):
        left, top, width, height = self.display.geometry(self.window)
        return left <= x < left + width and top <= y < top + height
