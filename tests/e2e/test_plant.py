"""A plant in the window: a simulated one, that fails while somebody looks."""
import subprocess

from desk.commandline import PROGRAM
from desk.screen_reader import WithScreenReader, flat
from desk.stations import EXAMPLE
from desk.waiting import until


class Plant(WithScreenReader):
    def simulate(self, station):
        process = subprocess.Popen([PROGRAM, "simulate", str(station), "--listen", "127.0.0.1:0"], text=True,
                                   env=self.environment(), stdin=subprocess.PIPE, stdout=subprocess.PIPE)
        self.addCleanup(process.communicate)
        self.addCleanup(process.kill)
        words = process.stdout.readline().split()
        return process, words[2].rsplit(":", 1)[1]

    def cells(self, program, role=None):
        """All that the lists and labels of the window say, or those of a role."""
        frame = self.see(program, "frame")
        return [item["name"] for item in flat(frame) if role in (None, item["role"])]

    def until_told(self, program, text):
        until(lambda: any(text in name for name in self.cells(program)), f"the window tells '{text}'")

    def test_a_fault_comes_and_goes_where_somebody_looks(self):
        station = self.station(EXAMPLE)
        simulator, port = self.simulate(station)
        program, _ = self.open(station)
        self.display.keys("ctrl+2")
        self.until_told(program, "not connected")
        self.display.keys("alt+p")
        self.display.keys("c")
        dialog = program.dialog("Connect to a plant")
        self.display.keys("alt+p", "ctrl+a")
        self.display.type(port)
        self.display.keys("Return")
        program.wait_closed(dialog)
        self.until_told(program, "connected since")
        for line, told in (("place 0/4 fail channel 3", "Module faulty, channel 3"),
                           ("place 0/4 ok", "Gone: Module faulty, channel 3")):
            simulator.stdin.write(line + "\n")
            simulator.stdin.flush()
            self.until_told(program, told)
        simulator.kill()
        self.until_told(program, "not reachable since")
        self.display.keys("ctrl+1")
        # The log keeps what it told; the status line tells nothing of a plant any more.
        until(lambda: not any("not reachable" in name for name in self.cells(program, "label")),
              "the configuration is shown")
