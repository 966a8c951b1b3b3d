"""Nothing is lost: questions, failures of the disk, other programs, and the end of the program itself."""
from desk.commandline import AS_ORDINARY_USER
from desk.picture import read_png
from desk.program import OnDisplay
from desk.stations import EXAMPLE, FEEDBACK, numbers_by_place
from desk.waiting import stays, until


class Files(OnDisplay):
    def setUp(self):
        super().setUp()
        self.path = self.station(EXAMPLE)
        self.first = self.path.read_bytes()

    def open_and_change(self, **more):
        program, overview = self.open(self.path, **more)
        overview.click(FEEDBACK)
        overview.wait_focus(FEEDBACK)
        self.display.keys("Delete")
        until(program.is_unsaved, "the title shows that something changed")
        return program, overview

    def assert_changed_on_disk(self):
        self.assertNotIn(FEEDBACK, numbers_by_place(self.modules(self.path)))

    def ask(self, program, keys):
        """Closes the window, and answers the question with the keys."""
        self.display.keys("ctrl+q")
        question = program.dialog()
        self.display.keys(*keys)
        program.wait_closed(question)

    def test_closing_asks_before_changes_are_lost(self):
        program, _ = self.open_and_change()
        self.ask(program, ["Escape"])
        stays(lambda: not program.has_ended(), "the program goes on")
        self.assertTrue(program.is_unsaved())
        self.display.keys("ctrl+q")
        program.dialog()
        self.display.keys("Return")
        until(program.has_ended, "the program ends")
        self.assertEqual(program.process.returncode, 0)
        self.assert_changed_on_disk()

    def test_discarded_changes_do_not_reach_the_file_and_are_not_offered_again(self):
        program, _ = self.open_and_change()
        self.display.keys("ctrl+q")
        program.dialog()
        self.display.keys("Tab", "space")
        until(program.has_ended, "the program ends")
        self.assertEqual(self.path.read_bytes(), self.first)
        again = self.start(self.path)
        stays(lambda: not again.other_windows(), "nothing is offered")

    def test_a_program_that_is_killed_offers_its_changes_at_the_next_start(self):
        program, _ = self.open_and_change()
        # Only under its last name is a journal whole: the file it is written to first has another ending.
        until(lambda: any(self.home.rglob("*.journal")), "the changes are kept", 30)
        program.kill()
        self.assertEqual(self.path.read_bytes(), self.first)

        again = self.start()
        offer = again.dialog("Recover")
        again.forbid_writing()
        self.display.keys("Return")
        again.wait_closed(offer)
        until(again.is_unsaved, "the recovered station counts as unsaved")
        self.assertTrue(any(self.home.rglob("*.journal")), "what could not be kept anew is kept as it was")
        again.allow_writing()
        self.display.keys("ctrl+s")
        until(lambda: not again.is_unsaved(), "the station is saved")
        self.assert_changed_on_disk()

    def test_a_full_disk_leaves_the_file_whole_and_the_window_usable(self):
        program, _ = self.open_and_change()
        program.forbid_writing()
        self.refuse_saving(program)
        program.allow_writing()
        self.display.keys("ctrl+s")
        until(lambda: not program.is_unsaved(), "the station is saved")
        self.assert_changed_on_disk()

    def test_a_read_only_folder_leaves_the_file_whole_and_the_window_usable(self):
        program, _ = self.open_and_change(before=AS_ORDINARY_USER)
        self.folder.chmod(0o555)
        self.addCleanup(self.folder.chmod, 0o755)
        self.refuse_saving(program)
        self.folder.chmod(0o755)
        self.display.keys("ctrl+s")
        until(lambda: not program.is_unsaved(), "the station is saved")
        self.assert_changed_on_disk()

    def refuse_saving(self, program):
        self.display.keys("ctrl+s")
        message = program.dialog()
        self.display.keys("Escape")
        program.wait_closed(message)
        self.assertTrue(program.is_unsaved())
        self.assertEqual(self.path.read_bytes(), self.first)
        names = sorted(path.name for path in self.folder.iterdir() if path.name.startswith(self.path.name[:10]))
        self.assertEqual(names, [self.path.name])

    def test_a_file_that_another_program_changed_is_not_overwritten_unasked(self):
        program, _ = self.open_and_change()
        foreign = self.first.replace(b'"name": "', b'"name": "Another ', 1)
        self.assertNotEqual(foreign, self.first)
        self.path.write_bytes(foreign)
        self.display.keys("ctrl+s")
        question = program.dialog()
        self.display.keys("Escape")
        program.wait_closed(question)
        self.assertEqual(self.path.read_bytes(), foreign)

    def test_a_damaged_file_is_told_and_leaves_the_window_usable(self):
        self.path.write_bytes(self.first[:-20])
        program = self.start(self.path)
        message = program.dialog()
        self.display.keys("Escape")
        program.wait_closed(message)
        stays(lambda: not program.has_ended(), "the window stays")
        self.assertEqual(self.path.read_bytes(), self.first[:-20])

    def test_a_read_only_station_cannot_be_changed(self):
        text = self.first.replace(b'"readOnly": false', b'"readOnly": true', 1)
        self.assertNotEqual(text, self.first)
        self.path.write_bytes(text)
        program, overview = self.open(self.path)
        overview.click(FEEDBACK)
        overview.wait_focus(FEEDBACK)
        self.display.keys("Delete", "ctrl+x", "ctrl+v")
        stays(lambda: not program.is_unsaved(), "nothing has changed")
        self.assertEqual(self.path.read_bytes(), text)

    def print(self, program):
        program.activate()
        self.display.keys("ctrl+p")
        question = program.dialog("Print")
        self.display.keys("Return")
        program.wait_closed(question)

    def test_the_window_exports_and_prints_what_it_shows(self):
        program, _ = self.open_and_change()
        drawn, exported = self.folder / "drawn.png", self.folder / "exported.png"
        printed = self.home / "waterworks.station.pdf"

        self.display.keys("ctrl+e")
        question = program.dialog("Export picture")
        self.display.keys("ctrl+a")
        self.display.type(str(exported))
        self.display.keys("Return")
        program.wait_closed(question)
        until(exported.exists, "the picture is written")
        program.forbid_writing(4000)
        self.print(program)
        message = program.dialog("Quillon Ed")
        self.display.keys("Escape")
        program.wait_closed(message)
        self.assertFalse(printed.exists(), "half a file")
        program.allow_writing()
        self.print(program)
        until(lambda: printed.exists() and printed.read_bytes().rstrip().endswith(b"%%EOF"), "the pages are written")

        self.display.keys("ctrl+s")
        until(lambda: not program.is_unsaved(), "the station is saved")
        self.succeed("render", self.path, "-o", drawn, "--scale", "2")
        self.assertEqual(read_png(exported), read_png(drawn))
