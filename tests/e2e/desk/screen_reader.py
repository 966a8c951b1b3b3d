"""A screen reader on a display: what the accessibility bus tells of a program, and what it hears."""
import json
import os
import subprocess
import tempfile
from pathlib import Path

from .program import OnDisplay
from .waiting import until

FOCUSED, SELECTED = "object:state-changed:focused", "object:state-changed:selected"
SHOWING, NAMED = "object:state-changed:showing", "object:property-change:accessible-name"

# The bindings of the accessibility bus are packages of this interpreter, whichever one runs the tests.
INTERPRETER = "/usr/bin/python3"
PROCESS = Path(__file__).with_name("screen_reader_process.py")
STATUS = ["--session", "--dest", "org.a11y.Bus", "--object-path", "/org/a11y/bus"]


class ScreenReader:
    """Has a session bus of its own; `environment` is for the programs that it shall see."""

    def __init__(self, display):
        self._folder = tempfile.TemporaryDirectory(prefix="quillon-bus-")
        environment = dict(display.environment, XDG_RUNTIME_DIR=self._folder.name)
        self._bus = subprocess.Popen(["dbus-daemon", "--session", "--nofork", "--nopidfile", "--print-address=1",
                                      f"--address=unix:dir={self._folder.name}"],
                                     env=environment, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True)
        self.environment = {"DBUS_SESSION_BUS_ADDRESS": self._bus.stdout.readline().strip()}
        environment.update(self.environment)
        subprocess.run(["gdbus", "call", *STATUS, "--method", "org.freedesktop.DBus.Properties.Set",
                        "org.a11y.Status", "ScreenReaderEnabled", "<true>"],
                       env=environment, check=True, stdout=subprocess.DEVNULL, timeout=30)
        self._process = subprocess.Popen([INTERPRETER, PROCESS], env=environment, text=True, stdin=subprocess.PIPE,
                                         stdout=subprocess.PIPE)
        self._answer()

    def close(self):
        self._process.stdin.close()
        self._process.wait()
        self._process.stdout.close()
        self._bus.terminate()
        self._bus.wait()
        self._bus.stdout.close()
        self._folder.cleanup()

    def _answer(self):
        return json.loads(self._process.stdout.readline())

    def ask(self, what, **more):
        self._process.stdin.write(json.dumps({"ask": what, **more}) + os.linesep)
        self._process.stdin.flush()
        return self._answer()


def flat(item):
    """An object and everything in it."""
    yield item
    for child in item["children"]:
        yield from flat(child)


def middle(item):
    left, top, width, height = item["rect"]
    return left + width // 2, top + height // 2


class WithScreenReader(OnDisplay):
    """A test whose programs are used together with a screen reader."""

    @classmethod
    def setUpClass(cls):
        super().setUpClass()
        cls.reader = ScreenReader(cls.display)
        cls.addClassCleanup(cls.reader.close)

    def environment(self, display=None):
        return {**super().environment(display), **self.reader.environment}

    def see(self, program, role, name=None):
        """The first such object of a program; it is there when the program has told of it."""
        return until(lambda: self.reader.ask("tree", pid=program.process.pid, role=role, name=name),
                     f"a screen reader sees a {role} '{name or ''}'")

    def forget(self):
        self.reader.ask("events", forget=True)

    def heard(self, kind, name="", on=1):
        return [event for event in self.reader.ask("events")
                if event["kind"] == kind and event["on"] == on and event["name"].startswith(name)]

    def hear(self, kind, name, on=1):
        return until(lambda: self.heard(kind, name, on), f"a screen reader hears {kind} {on} of '{name}'")[0]

    def hear_refusal(self, beginning=""):
        """What a program tells in a notice that appears."""
        return until(lambda: [event for event in self.heard(SHOWING, beginning) if event["role"] == "notification"],
                     "a refusal is told")[0]
