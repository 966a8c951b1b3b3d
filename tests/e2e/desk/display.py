"""A display that nobody sees, with a window manager, a pointer, keys and a clipboard."""
import mmap
import os
import shutil
import struct
import subprocess
import tempfile
import time

from .picture import Picture
from .waiting import until


class Display:
    WIDTH, HEIGHT = 2080, 1000
    DOUBLE_CLICK = 0.5  # seconds; longer than the toolkit's

    def __init__(self):
        self._clicked, self._clicked_at = None, 0.0
        self._folder = tempfile.mkdtemp(prefix="quillon-display-")
        reading, writing = os.pipe()
        self._server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{self.WIDTH}x{self.HEIGHT}x24", "-fbdir",
             self._folder, "-nolisten", "tcp", "-noreset"],
            pass_fds=[writing], stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as answer:
            number = answer.readline().strip()
        if not number:
            raise RuntimeError("Xvfb did not start")
        self.name = f":{number}"
        self.environment = dict(os.environ, DISPLAY=self.name)
        self.environment.pop("WAYLAND_DISPLAY", None)
        self._framebuffer = self._open_framebuffer()
        self._manager = subprocess.Popen(["openbox"], env=self.environment, stdout=subprocess.DEVNULL,
                                         stderr=subprocess.DEVNULL)
        until(lambda: "_NET_SUPPORTING_WM_CHECK(WINDOW)" in self._run("xprop", "-root", "_NET_SUPPORTING_WM_CHECK"),
              "the window manager has started")

    def close(self):
        self._manager.kill()  # one that is asked to end while it starts may miss it
        self._manager.wait()
        self._server.terminate()
        self._server.wait()
        self._framebuffer.close()
        shutil.rmtree(self._folder, ignore_errors=True)

    # Pictures

    def _open_framebuffer(self):
        """The server keeps what it shows in a file: a header, a colour table, then four bytes to a pixel."""
        with open(os.path.join(self._folder, "Xvfb_screen0"), "rb") as file:
            memory = mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)
        header = struct.unpack(">25I", memory[:100])
        self._stride, colour_count = header[12], header[19]
        self._pixels = header[0] + 12 * colour_count
        return memory

    def picture(self, x=0, y=0, width=None, height=None):
        width = self.WIDTH - x if width is None else width
        height = self.HEIGHT - y if height is None else height
        rows = []
        for line in range(y, y + height):
            start = self._pixels + line * self._stride + 4 * x
            pixels = self._framebuffer[start:start + 4 * width]
            colours = bytearray(3 * width)
            colours[0::3], colours[1::3], colours[2::3] = pixels[2::4], pixels[1::4], pixels[0::4]
            rows.append(bytes(colours))
        return Picture(width, height, rows)

    def until_still(self, x, y, width, height, seconds=0.25):
        """Waits until a part of the screen does not change for a while."""
        shown, since = self.picture(x, y, width, height), time.monotonic()

        def still():
            nonlocal shown, since
            now = self.picture(x, y, width, height)
            if now != shown:
                shown, since = now, time.monotonic()
            return time.monotonic() - since > seconds
        until(still, "the screen stands still")

    # Pointer and keys

    def _run(self, *command, **more):
        return subprocess.run(command, env=self.environment, text=True, stdout=subprocess.PIPE,
                              stderr=subprocess.DEVNULL, timeout=30, check=False, **more).stdout

    def xdotool(self, *arguments):
        return self._run("xdotool", *[str(argument) for argument in arguments])

    def move(self, x, y):
        # Where the pointer is already, the tool would wait long for it to move.
        if self.xdotool("getmouselocation").startswith(f"x:{x} y:{y} "):
            return
        self.xdotool("mousemove", "--sync", x, y)

    def press(self):
        self.xdotool("mousedown", 1)

    def release(self):
        self.xdotool("mouseup", 1)

    def click(self, x, y):
        """A click of its own: two at one point are no double click."""
        if self._clicked == (x, y):
            until(lambda: time.monotonic() - self._clicked_at > self.DOUBLE_CLICK, "the last click is over")
        self.move(x, y)
        self.xdotool("click", 1)
        self._clicked, self._clicked_at = (x, y), time.monotonic()

    def keys(self, *names):
        self.xdotool("key", "--delay", 25, *names)

    def hold(self, *names):
        self.xdotool("keydown", *names)

    def let_go(self, *names):
        self.xdotool("keyup", *names)

    def type(self, text):
        self.xdotool("type", "--delay", 12, text)

    # Clipboard

    def clipboard(self, mime_type):
        """The bytes that the clipboard holds under the type; none when it holds none."""
        if mime_type not in self._run("xclip", "-selection", "clipboard", "-out", "-target", "TARGETS").split():
            return b""
        return subprocess.run(["xclip", "-selection", "clipboard", "-out", "-target", mime_type],
                              env=self.environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, timeout=30,
                              check=False).stdout

    def put_on_clipboard(self, mime_type, data):
        subprocess.run(["xclip", "-selection", "clipboard", "-in", "-target", mime_type], env=self.environment,
                       input=data, timeout=30, check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)

    # Windows

    def windows_of(self, process_id):
        """The visible top windows of a process, by number."""
        return self.xdotool("search", "--onlyvisible", "--all", "--pid", process_id, "--name", ".").split()

    def windows_of_class(self, name):
        """The visible windows of all programs of a name, those without a title, too."""
        return self.xdotool("search", "--onlyvisible", "--class", name).split()

    def title_of(self, window):
        return self.xdotool("getwindowname", window).rstrip("\n")

    def titles(self):
        """The titles of all visible windows, with their places and sizes."""
        windows = self.xdotool("search", "--onlyvisible", "--name", ".").split()
        return [f"'{self.title_of(window)}' at {self.geometry(window)}" for window in windows]

    def is_transient(self, window):
        """Whether the window belongs to another one, as dialogs, menus and tooltips do."""
        return "window id" in self._run("xprop", "-id", window, "WM_TRANSIENT_FOR")

    def activate(self, window, instead=lambda: ()):
        """Gives a window the keys; done also when one of the windows that may come before it has them."""
        self.xdotool("windowactivate", window)
        until(lambda: self.active_window() in (window, *instead()), "the window is active")

    def active_window(self):
        return self.xdotool("getactivewindow").strip()

    def geometry(self, window):
        """Left, top, width and height on the screen."""
        lines = self.xdotool("getwindowgeometry", "--shell", window).split()
        values = dict(line.split("=", 1) for line in lines if "=" in line)
        return tuple(int(values[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def place(self, window, x, y, width, height):
        self.xdotool("windowsize", window, width, height, "windowmove", window, x, y)
        until(lambda: self.geometry(window)[2:] == (width, height), "the window has its new size")
