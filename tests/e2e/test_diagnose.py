"""Diagnosing plants: simulated ones, and those that other programs are."""
import csv
import io
import json
import signal
import socket
import subprocess

from desk.commandline import EXAMPLES, PROGRAM, Home
from desk.waiting import until

SOUND, FAULTY, TROUBLE = 0, 1, 2
STATION = EXAMPLES / "bottling-filler.station.json"
CAROUSEL = "0/5.2"  # a sub-module
SYSTEM_PYTHON = "/usr/bin/python3"  # the one that knows the packages of the system

# A Modbus server as the package's users write one: arguments are the port and the registers.
FOREIGN_SERVER = """
import json, logging, sys
from pymodbus.datastore import ModbusSequentialDataBlock, ModbusServerContext, ModbusSlaveContext
from pymodbus.server import StartTcpServer
logging.disable(logging.CRITICAL)
registers = ModbusSequentialDataBlock(0, json.loads(sys.argv[2]))
context = ModbusServerContext(slaves=ModbusSlaveContext(hr=registers, zero_mode=True), single=True)
StartTcpServer(context=context, address=("127.0.0.1", int(sys.argv[1])))
"""


class Diagnose(Home):
    def start(self, *command, **more):
        process = subprocess.Popen([str(part) for part in command], env=self.environment(), cwd=self.folder, text=True,
                                   encoding="utf-8", stdin=subprocess.PIPE, stdout=subprocess.PIPE, **more)
        self.addCleanup(process.communicate)
        self.addCleanup(process.kill)
        return process

    def simulate(self, *options, listen="127.0.0.1:0"):
        """A running simulator and the source that reads it."""
        simulator = self.start(PROGRAM, "simulate", STATION, "--listen", listen, *options, stderr=subprocess.PIPE)
        words = simulator.stdout.readline().split()
        self.assertEqual(words[:2], ["Listening", "on"])
        return simulator, words[2]

    def diagnose(self, source, *options):
        return self.run_command("diagnose", STATION, "--source", source, *options)

    def until_diagnosed(self, source, code):
        """A command that was typed takes a moment; the plant is asked until it shows."""
        def answer():
            done = self.diagnose(source, "--json")
            return done.stdout if done.returncode == code else None

        return json.loads(until(answer, f"diagnose ends with {code}"))

    @staticmethod
    def type(simulator, line):
        simulator.stdin.write(line + "\n")
        simulator.stdin.flush()

    def registers(self):
        """The map as a programmer of a controller reads it: the values of a fresh plant, and where each place is."""
        rows = json.loads(self.succeed("diagnose", STATION, "--map", "--json"))
        values = [0] * (int(rows[-1]["register"]) + 1)
        for row in rows:
            if row["value"] and "-" not in row["register"]:
                values[int(row["register"])] = int(row["value"])
        places = {row["meaning"].split()[-1]: int(row["register"])
                  for row in rows if row["meaning"].startswith("State of ")}
        return values, places

    def free_port(self):
        with socket.socket() as probe:
            probe.bind(("127.0.0.1", 0))
            return probe.getsockname()[1]

    def test_the_exit_code_says_sound_faulty_or_trouble(self):
        simulator, source = self.simulate()
        done = self.diagnose(source)
        self.assertEqual((done.returncode, done.stderr), (SOUND, ""))
        self.assertIn("Controller: RUN\n", done.stdout)
        self.assertIn("No faults.", done.stdout)

        self.type(simulator, f"place {CAROUSEL} fail channel 4 code 12")
        modules = self.until_diagnosed(source, FAULTY)["modules"]
        faulty = [module for module in modules if module["faulty"]]
        self.assertEqual([(module["subModule"], module["what"], module["channel"]) for module in faulty],
                         [(2, "Encoder signals lost", 4)])
        rows = list(csv.DictReader(io.StringIO(self.diagnose(source, "--csv", "--lang", "de").stdout, newline="")))
        self.assertEqual([(row["Platz"], row["Fehler"]) for row in rows], [(CAROUSEL, "Gebersignale fehlen")])

        self.type(simulator, "all ok")
        self.until_diagnosed(source, SOUND)
        done = self.run_command("diagnose", EXAMPLES / "waterworks.station.json", "--source", source)
        self.assertEqual((done.returncode, done.stdout), (TROUBLE, ""))
        self.assertIn("belongs to another station", done.stderr)

        self.type(simulator, "place 9/9 ok")
        self.assertIn("no place '9/9'", simulator.stderr.readline())
        self.type(simulator, "quit")
        self.assertEqual(simulator.wait(), 0)
        done = self.diagnose(source)
        self.assertEqual((done.returncode, done.stdout), (TROUBLE, ""))
        self.assertRegex(done.stderr, r"^quillon-ed: [^\n]+: not reachable since [^\n]+\n$")

    def test_what_keeps_a_command_from_working_is_told(self):
        script = self.folder / "script.txt"
        script.write_text("cpu run\n+1s place 0/99 ok\n", encoding="utf-8")
        for arguments, reason in ((["diagnose", STATION], "needs a source"),
                                  (["diagnose", STATION, "--source", "modbus://x"], "is no address"),
                                  (["diagnose", STATION, "--source", "recording:none.jsonl"], "none.jsonl: "),
                                  (["diagnose", "none.json", "--map"], "none.json: "),
                                  (["simulate", STATION, "--listen", "somewhere:1"], "no address of this computer"),
                                  (["simulate", STATION, "--script", script], "script.txt:2: the station has no place")):
            done = self.run_command(*arguments)
            self.assertEqual((done.returncode, done.stdout), (TROUBLE, ""), arguments)
            self.assertIn(reason, done.stderr)

    def test_watching_tells_what_comes_and_goes_and_a_recording_tells_it_again(self):
        simulator, source = self.simulate()
        recording = self.folder / "plant.jsonl"
        watch = self.start(PROGRAM, "diagnose", STATION, "--source", source, "--record", recording, "--json",
                           stderr=subprocess.PIPE)

        def read_until(what):
            line = {}
            while what not in line.get("what", ""):
                text = watch.stdout.readline()
                self.assertTrue(text, "the program ended")
                line = json.loads(text)
            return line

        read_until("connected since")
        for command, what in (("place 0/4 missing", "not plugged in"), ("cpu stop", "Controller: STOP")):
            self.type(simulator, command)
            line = read_until(what)
        port = source.rpartition(":")[2]
        simulator.kill()
        simulator.wait()
        read_until("not reachable since")
        simulator, _ = self.simulate(listen=f"127.0.0.1:{port}")
        gone = read_until("not plugged in")
        self.assertEqual((gone["rack"], gone["place"], gone["event"]), (0, 4, "went"))
        watch.send_signal(signal.SIGTERM)
        self.assertEqual(watch.wait(), SOUND)

        lines = recording.read_text(encoding="utf-8").splitlines()
        lines.insert(3, "{damaged")
        recording.write_text("\n".join(lines) + "\n", encoding="utf-8")
        played = self.diagnose(f"recording:{recording}", "--watch")
        self.assertEqual(played.returncode, SOUND)
        self.assertIn("plant.jsonl:4: ", played.stderr)
        self.assertRegex(played.stdout, r"(?s)Bottle sensors  came  Module not plugged in.*not reachable since"
                                        r".*Bottle sensors  went  Module not plugged in")
        done = self.run_command("diagnose", STATION, "--source", source, "--record", recording)
        self.assertEqual(done.returncode, TROUBLE, "a recording is not overwritten")

    def test_a_foreign_client_reads_the_simulator_and_cannot_write(self):
        script = self.folder / "script.txt"
        script.write_text("place 0/4 fail channel 3 code 10\n", encoding="utf-8")
        _, source = self.simulate("--script", script)
        self.until_diagnosed(source, FAULTY)
        port = source.rpartition(":")[2]
        _, places = self.registers()

        def poll(*more):
            return subprocess.run(["mbpoll", "-m", "tcp", "-p", port, "-a", "1", "-0", "-1", "-t", "4", "-r",
                                   str(places["0/4"]), *more], text=True, stdout=subprocess.PIPE,
                                  stderr=subprocess.STDOUT, stdin=subprocess.DEVNULL, timeout=60, check=False).stdout

        word = (1 << 11) + (3 << 5) + 10
        self.assertRegex(poll("-c", "1", "127.0.0.1"), rf"\[{places['0/4']}\]:\s+{word}\b")
        self.assertIn("Illegal function", poll("127.0.0.1", "0"))
        self.assertRegex(poll("-c", "1", "127.0.0.1"), rf"\]:\s+{word}\b")

    def test_a_foreign_server_is_diagnosed(self):
        values, places = self.registers()
        values[7] = 3
        values[places["0/1"]] = (1 << 12) + 12
        port = self.free_port()
        self.start(SYSTEM_PYTHON, "-c", FOREIGN_SERVER, port, json.dumps(values))
        source = f"modbus-tcp://127.0.0.1:{port}?unit=7"
        diagnosis = self.until_diagnosed(source, FAULTY)
        self.assertEqual(diagnosis["controller"], "HOLD")
        self.assertEqual(diagnosis["modules"][0]["what"], "Battery empty")
