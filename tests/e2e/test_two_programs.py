"""Two programs on one desktop exchange modules by the clipboard and by dragging."""
from desk.program import OnDisplay
from desk.stations import EMPTY, EXAMPLE, FEEDBACK, VALVES, numbers_by_place
from desk.waiting import until

LEFT, RIGHT = (0, 0, 1000, 900), (1040, 0, 1000, 900)


class TwoPrograms(OnDisplay):
    def setUp(self):
        super().setUp()
        self.source_path = self.station(EXAMPLE, "source")
        self.target_path = self.station(EXAMPLE, "target")
        self.before = numbers_by_place(self.modules(self.source_path))
        self.source, self.from_overview = self.open(self.source_path, area=LEFT)
        self.target, self.to_overview = self.open(self.target_path, area=RIGHT)

    def saved(self, program, path):
        program.activate()
        self.display.keys("ctrl+s")
        until(lambda: not program.is_unsaved(), "the station is saved")
        return numbers_by_place(self.modules(path))

    def test_copy_and_paste(self):
        self.source.activate()
        self.from_overview.click(FEEDBACK)
        self.from_overview.wait_focus(FEEDBACK)
        self.display.keys("ctrl+c")
        until(lambda: self.before[FEEDBACK] in self.clipboard_modules(), "the module is on the clipboard")
        self.target.activate()
        self.to_overview.click(EMPTY)
        self.to_overview.wait_focus(EMPTY)
        self.display.keys("ctrl+v")
        until(self.target.is_unsaved, "the target has changed")
        self.assertFalse(self.source.is_unsaved())
        self.assertEqual(self.saved(self.target, self.target_path), {**self.before, EMPTY: self.before[FEEDBACK]})

    def test_a_drag_copies(self):
        self.from_overview.drag(VALVES, EMPTY, self.to_overview)
        until(self.target.is_unsaved, "the target has changed")
        self.assertEqual(self.saved(self.target, self.target_path), {**self.before, EMPTY: self.before[VALVES]})
        self.assertFalse(self.source.is_unsaved())

    def test_a_drag_with_shift_moves(self):
        self.from_overview.drag(VALVES, EMPTY, self.to_overview, keys=["shift"])
        until(self.target.is_unsaved, "the target has changed")
        until(self.source.is_unsaved, "the source has deleted what it gave away")
        self.assertEqual(self.saved(self.target, self.target_path), {**self.before, EMPTY: self.before[VALVES]})
        left = {at: number for at, number in self.before.items() if at != VALVES}
        self.assertEqual(self.saved(self.source, self.source_path), left)
