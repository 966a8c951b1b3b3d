"""The commands that need no display."""
import csv
import io
import json
import os
import subprocess
import xml.etree.ElementTree as xml

from desk.commandline import AS_ORDINARY_USER, EXAMPLES, Home
from desk.picture import read_png

CLEAN, BROKEN, USAGE, UNREADABLE = 0, 1, 2, 3

ON_A_FULL_DISK = ["bash", "-c", 'trap "" XFSZ; ulimit -f 0; exec "$@"', "-"]


class Usage(Home):
    def test_help_and_version_go_to_standard_output(self):
        self.assertIn("quillon-ed render STATION -o FILE", self.succeed("--help"))
        self.assertIn("Usage: quillon-ed check STATION...", self.succeed("check", "--help"))
        self.assertIn("Rückgabewerte:", self.succeed("--help", "--lang", "de"))
        self.assertRegex(self.succeed("--version"), r"^Quillon Ed \d+\.\d+\.\d+\n$")

    def test_a_wrong_command_line_is_refused_with_a_hint(self):
        for arguments, reason in ((["check"], "'check' needs a station file"),
                                  (["render", "x.json", "--sclae", "2"], "did you mean '--scale'?"),
                                  (["chekc", "x.json"], "did you mean 'check'?"),
                                  (["compare", "x.json"], "'compare' needs two stations"),
                                  (["list", "x.json", "--lang", "fr"], "there is no language 'fr'")):
            done = self.run_command(*arguments)
            self.assertEqual((done.returncode, done.stdout), (USAGE, ""))
            self.assertTrue(done.stderr.startswith("quillon-ed: "), done.stderr)
            self.assertIn(reason, done.stderr)
            self.assertIn("--help", done.stderr)


    def test_a_window_without_a_display_is_refused_in_one_line(self):
        for arguments in ([], [EXAMPLES / "waterworks.station.json"]):
            done = self.run_command(*arguments)
            self.assertEqual((done.returncode, done.stdout), (UNREADABLE, ""))
            self.assertRegex(done.stderr, r"^quillon-ed: no window can be opened: [^\n]+\n$")


class Check(Home):
    def test_the_examples_keep_the_rules_save_the_one_that_shows_broken_ones(self):
        examples = sorted(EXAMPLES.glob("*.station.json"))
        broken = [path for path in examples if self.run_command("check", path).returncode != CLEAN]
        self.assertEqual([path.name for path in broken], ["training-mistakes.station.json"])
        self.assertGreaterEqual(len(examples), 6)

    def test_every_broken_rule_is_named_with_file_place_rule_and_reason(self):
        path = EXAMPLES / "training-mistakes.station.json"
        done = self.run_command("check", path)
        self.assertEqual((done.returncode, done.stderr), (BROKEN, ""))
        self.assertGreaterEqual(len(done.stdout.splitlines()), 3)
        for line in done.stdout.splitlines():
            self.assertRegex(line, rf"^{path}: .+: [a-z-]+: .+$")

    def test_a_damaged_file_is_refused_with_pointer_and_reason_and_stays_as_it_is(self):
        whole = self.station()
        text = whole.read_text(encoding="utf-8")
        cases = {"cut off": text[:len(text) // 2], "empty": "", "no JSON": "rack 0", "hostile": "[" * 200000,
                 "unknown member": text.replace("{", '{"surprise": 1,', 1)}
        for name, content in cases.items():
            damaged = self.folder / "damaged.json"
            damaged.write_text(content, encoding="utf-8")
            done = self.run_command("check", damaged)
            self.assertEqual((done.returncode, done.stdout), (UNREADABLE, ""), name)
            self.assertRegex(done.stderr, rf"^quillon-ed: {damaged}: .+\n$", name)
            self.assertEqual(damaged.read_text(encoding="utf-8"), content, name)
        self.assertIn(": /surprise: ", done.stderr)

    def test_limits_in_the_wrong_order_are_told_with_the_numbers_of_the_language(self):
        path = self.station()
        station = json.loads(path.read_text(encoding="utf-8"))
        modules = [place["module"] for rack in station["racks"] for place in rack["places"]
                   if "highLimit" in place.get("module", {}).get("parameters", {})]
        modules[0]["parameters"].update(lowLimit=12.5, highLimit=11)
        path.write_text(json.dumps(station), encoding="utf-8")
        for language, low in (("en", "12.5 mA"), ("de", "12,5 mA")):
            done = self.run_command("check", path, "--lang", language)
            self.assertEqual((done.returncode, len(done.stdout.splitlines())), (BROKEN, 1), done.stdout)
            self.assertIn(low, done.stdout)

    def test_a_file_that_costs_too_much_ends_nothing_but_the_command(self):
        values = '{"racks": [{"places": [' + "{}," * 20_000_000
        for content, limit, reason in ((values, 600_000, "1000000 values"), (values, 220_000, "enough memory"),
                                       ('{"name": "' + "x" * 60_000_000 + '"}', 220_000, "enough memory")):
            large = self.folder / "large.json"
            large.write_text(content, encoding="utf-8")
            done = self.run_command("check", large, before=["bash", "-c", f'ulimit -v {limit}; exec "$@"', "-"])
            self.assertEqual(done.returncode, UNREADABLE, reason)
            self.assertRegex(done.stderr, rf"^quillon-ed: [^\n]*{reason}[^\n]*\n$")

    def test_an_unreadable_file_does_not_hide_what_is_broken_in_the_others(self):
        path = EXAMPLES / "training-mistakes.station.json"
        done = self.run_command("check", self.folder / "missing.json", path)
        self.assertEqual(done.returncode, UNREADABLE)
        self.assertIn("missing.json: ", done.stderr)
        self.assertIn(f"{path}: ", done.stdout)


class List(Home):
    def test_all_formats_tell_of_the_same_modules(self):
        station = self.station()
        rows = self.modules(station)
        self.assertGreater(len(rows), 5)
        from_csv = list(csv.DictReader(io.StringIO(self.succeed("list", "--csv", station))))
        from_markdown = [line for line in self.succeed("list", "--md", station).splitlines() if line.startswith("|")]
        plain = self.succeed("list", station).splitlines()
        self.assertEqual(len(from_csv), len(rows))
        self.assertEqual(len(from_markdown), len(rows) + 2)
        for row, cells, line in zip(rows, from_csv, from_markdown[2:]):
            self.assertIn(row["orderNumber"], cells.values())
            self.assertIn(row["orderNumber"], line)
            self.assertTrue(any(row["orderNumber"] in text for text in plain))

    def test_it_writes_to_a_file_and_tells_when_it_cannot(self):
        station = self.station()
        self.assertEqual(self.succeed("list", "--csv", station, "-o", "list.csv"), "")
        self.assertEqual((self.folder / "list.csv").read_bytes().decode("utf-8").replace("\r\n", "\n"),
                         self.succeed("list", "--csv", station).replace("\r\n", "\n"))
        done = self.run_command("list", station, "-o", self.folder / "nowhere" / "list.csv")
        self.assertEqual(done.returncode, UNREADABLE)
        self.assertIn("nowhere/list.csv: ", done.stderr)
        for arguments in (["list", station], ["--help"]):
            full = self.run_command(*arguments, before=["sh", "-c", 'exec "$@" > /dev/full', "sh"])
            self.assertEqual(full.returncode, UNREADABLE)
            self.assertIn("standard output cannot be written", full.stderr)


class Convert(Home):
    def test_a_converted_station_says_the_same_and_converts_to_itself(self):
        for example in sorted(EXAMPLES.glob("*.station.json")):
            once, twice = self.folder / "once.json", self.folder / "twice.json"
            self.succeed("convert", example, once)
            self.succeed("convert", once, twice)
            self.assertEqual(once.read_bytes(), twice.read_bytes())
            self.assertEqual(self.modules(example), self.modules(once))

    def test_the_ending_says_the_format(self):
        station = self.station()
        self.succeed("convert", station, "out.csv")
        self.succeed("convert", station, "out.md")
        self.assertIn(self.modules(station)[0]["orderNumber"], (self.folder / "out.csv").read_text(encoding="utf-8"))
        self.assertTrue((self.folder / "out.md").read_text(encoding="utf-8").lstrip("#").strip())
        done = self.run_command("convert", station, "out.docx")
        self.assertEqual(done.returncode, USAGE)
        self.assertFalse((self.folder / "out.docx").exists())

    def test_a_full_disk_and_a_read_only_folder_leave_the_old_file_whole(self):
        station = self.station()
        other = self.station("packaging-line")
        before = other.read_bytes()
        done = self.run_command("convert", station, other, before=ON_A_FULL_DISK)
        self.assertEqual(done.returncode, UNREADABLE)
        self.assertIn(f"quillon-ed: {other}: ", done.stderr)
        self.assertEqual(other.read_bytes(), before)
        listing = sorted(os.listdir(self.folder))

        self.folder.chmod(0o555)
        self.addCleanup(self.folder.chmod, 0o755)
        done = self.run_command("convert", station, other, before=AS_ORDINARY_USER)
        self.assertEqual(done.returncode, UNREADABLE)
        self.assertIn(f"quillon-ed: {other}: ", done.stderr)
        self.assertEqual(other.read_bytes(), before)
        self.assertEqual(sorted(os.listdir(self.folder)), listing)


class Render(Home):
    def test_settings_of_a_senseless_size_are_left_alone(self):
        settings = self.home / "config" / "Halvar" / "Quillon_Ed.conf"
        settings.parent.mkdir(parents=True)
        settings.write_text("[" * 2_000_000, encoding="utf-8")
        done = self.run_command("render", EXAMPLES / "waterworks.station.json", "-o", "view.png")
        self.assertEqual(done.returncode, CLEAN)
        self.assertRegex(done.stderr, rf"^quillon-ed: {settings}: [^\n]* 1 MiB\n$")
        self.assertEqual(settings.stat().st_size, 2_000_000)

    def test_a_png_file_has_the_size_of_its_scale_and_shows_the_station(self):
        station = self.station()
        sizes, colours = [], []
        for scale in ("1", "1.5", "2"):
            self.succeed("render", station, "-o", "view.png", "--scale", scale)
            picture = read_png(self.folder / "view.png")
            sizes.append((picture.width, picture.height))
            colours.append(len(picture.colours()))
        width, height = sizes[0]
        self.assertGreaterEqual((width, height), (235, 392))
        self.assertEqual(sizes[1:], [((width * 3 + 1) // 2, height * 3 // 2), (width * 2, height * 2)])
        self.assertGreater(min(colours), 20)

    def test_different_stations_look_different_and_equal_ones_the_same(self):
        pictures = []
        for example in ("waterworks", "waterworks", "packaging-line"):
            self.succeed("render", EXAMPLES / f"{example}.station.json", "-o", "view.png")
            pictures.append(read_png(self.folder / "view.png"))
        self.assertEqual(pictures[0], pictures[1])
        self.assertGreater(pictures[0].differing(pictures[2]), 500)

    def test_overview_and_table_are_drawn_alone_and_side_by_side(self):
        def picture(*options):
            self.succeed("render", EXAMPLES / "bottling-filler.station.json", "-o", "view.png", "--scale=2", *options)
            return read_png(self.folder / "view.png")

        both, other_rack = picture("--view=both"), picture("--view=both", "--rack=1")
        table, dark = picture("--view=table", "--rack=1"), picture("--view=table", "--rack=1", "--palette=dark")
        left = both.width - table.width
        beside = other_rack.cut(left, 0, table.width, table.height)
        selected = 15 * 2 * table.width
        self.assertLessEqual(beside.differing(table), selected, "the selected row is all that differs")
        self.assertGreater(both.cut(left, 0, table.width, table.height).differing(beside), selected)
        black = (0, 0, 0)
        self.assertEqual(both.pixel(left - 20, 2 * 48), black, "the arrow leads to the first row")
        self.assertGreater(sum(table.pixel(2, 2)), sum(dark.pixel(2, 2)))

    def test_an_svg_file_holds_vectors(self):
        for view in ("overview", "table", "both"):
            self.succeed("render", self.station(), "-o", "view.svg", "--view", view)
            root = xml.parse(self.folder / "view.svg").getroot()
            tags = [element.tag.rsplit("}", 1)[-1] for element in root.iter()]
            self.assertGreater(tags.count("path") + tags.count("rect") + tags.count("polygon"), 100)
            self.assertNotIn("image", tags)

    def pdf_text(self):
        return subprocess.run(["pdftotext", "-layout", "view.pdf", "-"], cwd=self.folder, text=True, check=True,
                              stdout=subprocess.PIPE).stdout

    def test_a_pdf_page_has_a_header(self):
        station = self.station()
        name = json.loads(station.read_text(encoding="utf-8"))["name"]
        self.succeed("render", station, "-o", "view.pdf", "--view=both")
        for text in (name, "Page 1 of 1", self.modules(station)[0]["orderNumber"]):
            self.assertIn(text, self.pdf_text())

    def test_a_station_that_is_larger_than_its_picture_is_told_everywhere(self):
        station = self.station()
        self.succeed("render", station, "-o", "view.png")
        height = read_png(self.folder / "view.png").height
        data = json.loads(station.read_text(encoding="utf-8"))
        data["racks"] = [{**rack, "placeCount": 12} for rack in data["racks"][:1] * 5]
        for rack in data["racks"][1:]:
            rack["places"] = []
        station.write_text(json.dumps(data), encoding="utf-8")
        text = "The picture shows 4 of 5 racks and 11 of 12 places in a rack; modules left out: 0"
        self.assertEqual(self.succeed("check", station), f"{station}: larger-than-picture: {text}\n")
        for ending in ("png", "svg", "pdf"):
            done = self.run_command("render", station, "-o", f"view.{ending}")
            self.assertEqual((done.returncode, done.stderr), (CLEAN, f"quillon-ed: {station}: {text}\n"))
        self.assertGreater(read_png(self.folder / "view.png").height, height)
        self.assertIn("The picture shows 4 of 5", (self.folder / "view.svg").read_text(encoding="utf-8"))
        self.assertIn("The picture shows 4 of 5", self.pdf_text())

    def test_what_cannot_be_drawn_or_written_is_told_and_leaves_no_half_file(self):
        station = self.station()
        done = self.run_command("render", station, "-o", "view.bmp")
        self.assertEqual(done.returncode, USAGE)
        self.assertIn(".png, .svg or .pdf", done.stderr)
        done = self.run_command("render", self.folder / "missing.json", "-o", "view.png")
        self.assertEqual(done.returncode, UNREADABLE)
        done = self.run_command("render", station, "-o", "view.png", "--view=both", "--rack=3")
        self.assertEqual(done.returncode, USAGE)
        self.assertRegex(done.stderr, rf"^quillon-ed: {station}: [^\n]*rack 3[^\n]*\n$")
        for ending in ("png", "svg", "pdf"):
            done = self.run_command("render", station, "-o", f"view.{ending}", before=ON_A_FULL_DISK)
            self.assertEqual(done.returncode, UNREADABLE, done.stderr)
            self.assertIn(f"quillon-ed: view.{ending}: ", done.stderr)
        self.assertEqual([name for name in os.listdir(self.folder) if name.startswith("view")], [])
