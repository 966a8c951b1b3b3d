"""Quillon Ed as a command, and files for it to work on."""
import json
import os
import subprocess
import tempfile
import unittest
from pathlib import Path

PROGRAM = os.environ["QUILLON_PROGRAM"]
SOURCE = Path(os.environ["QUILLON_SOURCE"])
EXAMPLES = SOURCE / "examples"

# In front of a command: without the rights over every file that the superuser has.
AS_ORDINARY_USER = ["setpriv", "--bounding-set=-all", "--inh-caps=-all"] if os.geteuid() == 0 else []


class Home(unittest.TestCase):
    """A test with a folder of its own that is also the user's home: nothing leaks in or out."""

    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="quillon-e2e-")
        self.addCleanup(folder.cleanup)
        self.folder = Path(folder.name)
        self.home = self.folder / "home"
        self.home.mkdir(mode=0o700)

    def environment(self, display=None):
        kept = {name: os.environ[name] for name in ("PATH", "ASAN_OPTIONS", "LSAN_OPTIONS") if name in os.environ}
        kept.update(HOME=str(self.home), LANG="C.UTF-8", XDG_CONFIG_HOME=str(self.home / "config"),
                    XDG_DATA_HOME=str(self.home / "data"), XDG_STATE_HOME=str(self.home / "state"),
                    XDG_CACHE_HOME=str(self.home / "cache"))
        if display:
            # Without a print server no test reaches a real printer: printing goes to files.
            kept.update(DISPLAY=display, XDG_RUNTIME_DIR=str(self.home), CUPS_SERVER="localhost:1")
        return kept

    def run_command(self, *arguments, before=(), **more):
        """Runs a command without a display; the answer has returncode, stdout and stderr."""
        command = [*before, PROGRAM, *[str(argument) for argument in arguments]]
        return subprocess.run(command, env=self.environment(), cwd=self.folder, text=True, encoding="utf-8",
                              stdout=subprocess.PIPE, stderr=subprocess.PIPE, stdin=subprocess.DEVNULL, timeout=60,
                              check=False, **more)

    def succeed(self, *arguments):
        done = self.run_command(*arguments)
        self.assertEqual((done.returncode, done.stderr), (0, ""), f"{arguments}: {done.stdout}")
        return done.stdout

    def station(self, example="waterworks", name=None):
        """A copy of an example in the test's folder, written as this program writes it."""
        copy = self.folder / f"{name or example}.station.json"
        self.succeed("convert", EXAMPLES / f"{example}.station.json", copy)
        return copy

    def modules(self, station):
        """The rows of the module list."""
        return json.loads(self.succeed("list", "--json", station))
