"""The table beside the overview, used as a user does."""
from desk.overview import Overview
from desk.screen_reader import FOCUSED, WithScreenReader, middle
from desk.stations import EXAMPLE as WATERWORKS
from desk.stations import numbers_by_place
from desk.table import COMMENT, INPUTS, MODULE, PLACE, Table
from desk.waiting import stays, until

FILLER = "bottling-filler"  # of two racks
SENSORS, AXES = 4, 5
VALVES, EMPTY = 7, 11  # of the waterworks
LEFT, RIGHT = (0, 40, 1000, 900), (1040, 40, 1000, 900)


class OnTable(WithScreenReader):
    example = FILLER

    def setUp(self):
        super().setUp()
        self.path = self.station(self.example)
        rows = self.modules(self.path)
        self.before = numbers_by_place(rows)
        self.axes = [row for row in rows if "subModule" in row and row["place"] == AXES]
        self.program, self.overview = self.open(self.path, area=LEFT)
        self.table = Table(self, self.program)

    def second(self):
        """Another program with the same station, beside the first."""
        path = self.station(self.example, "second")
        program, overview = self.open(path, area=RIGHT)
        return path, program, overview, Table(self, program)

    def saved(self, program=None, path=None):
        program = program or self.program
        program.activate()
        self.display.keys("ctrl+s")
        until(lambda: not program.is_unsaved(), "the station is saved")
        return numbers_by_place(self.modules(path or self.path))


class Editing(OnTable):
    def test_an_address_that_is_taken_is_refused_at_its_cell(self):
        address = self.table.text(SENSORS, INPUTS)
        taken = self.axes[0]["inputs"].split(".")[0]
        self.table.click(SENSORS, INPUTS)
        self.display.keys("F2")
        self.hear(FOCUSED, "I address")
        self.forget()
        self.display.type(taken)
        self.display.keys("Return")
        told = self.hear_refusal(f'"{taken}" was not taken: The inputs')
        cell = self.table.cell(SENSORS, INPUTS)
        self.assertEqual(cell["name"], address)
        distance = told["rect"][1] - cell["rect"][1] - cell["rect"][3]
        self.assertTrue(0 <= distance < 10 and told["rect"][0] <= cell["rect"][0], (told["rect"], cell["rect"]))
        # The text is seen, not only heard: letters on the ground of a tooltip.
        colours = self.display.picture(*told["rect"]).colours()
        self.assertGreater(len(colours), 10)
        self.display.keys("Escape")
        self.assertFalse(self.program.is_unsaved())

    def test_a_comment_is_written_and_undone(self):
        comment = self.table.text(SENSORS, COMMENT)
        self.table.click(SENSORS, COMMENT)
        self.display.keys("F2")
        self.hear(FOCUSED, "Comment")
        self.display.type("spare <b>sensor</b>")
        self.display.keys("Return")
        self.table.wait_text(SENSORS, COMMENT, "spare <b>sensor</b>")
        self.display.keys("Escape")
        until(self.program.is_unsaved, "the station has changed")
        self.display.keys("ctrl+z")
        self.table.wait_text(SENSORS, COMMENT, comment)
        until(lambda: not self.program.is_unsaved(), "undo leads back to the saved state")
        # A second press on the current cell opens its editor, which Escape leaves as if nothing was typed.
        self.table.click(SENSORS, COMMENT)
        self.forget()
        stays(lambda: not self.heard(FOCUSED, "Comment"), "no editor opens")
        self.table.click(SENSORS, COMMENT)
        self.hear(FOCUSED, "Comment")
        self.display.type("x")
        self.display.keys("Escape")
        stays(lambda: self.table.text(SENSORS, COMMENT) == comment, "nothing has changed")

    def test_a_tab_that_is_hovered_shows_its_rack(self):
        self.table.click(SENSORS, PLACE)
        in_rack_1 = self.modules(self.path)
        expected = {row["place"]: row["module"] for row in in_rack_1 if row["rack"] == 1 and "subModule" not in row}
        self.display.move(*middle(self.table.tab(1)))
        self.table.wait_focus(SENSORS, rack=1)
        for place, name in expected.items():
            self.table.wait_text(place, MODULE, name)
        self.overview.wait_focus((1, SENSORS))
        self.display.move(*middle(self.table.tab(0)))
        self.table.wait_focus(SENSORS)
        self.assertFalse(self.program.is_unsaved())


class Dragging(OnTable):
    example = WATERWORKS

    def test_a_row_is_dragged_into_the_overview(self):
        Overview.drag_from_point(self.table.point(VALVES, MODULE), (0, EMPTY), self.overview)
        until(self.program.is_unsaved, "the station has changed")
        self.table.wait_text(VALVES, MODULE, "")
        moved = self.saved()
        self.assertEqual(moved.get((0, EMPTY)), self.before[0, VALVES])
        self.assertNotIn((0, VALVES), moved)

    def test_a_row_is_dragged_into_another_program(self):
        path, program, _, table = self.second()
        start, end = self.table.point(VALVES, MODULE), table.point(EMPTY, MODULE)
        self.display.move(*start)
        self.display.press()
        for step in (4, 8, 12):
            self.display.move(start[0] + step, start[1] + step // 2)

        # Each move is a new event for the program under the pointer, until it says where the module would come to.
        def arrived():
            for offset in (-1, 0):
                self.display.move(end[0] + offset, end[1])
            return table.focus().startswith(f"Rack 0 · Place {EMPTY}")
        until(arrived, "the drag has reached the row")
        self.display.release()
        until(program.is_unsaved, "the target has changed")
        self.assertEqual(self.saved(program, path), {**self.before, (0, EMPTY): self.before[0, VALVES]})
        self.assertFalse(self.program.is_unsaved())


class SubModules(OnTable):
    def test_the_button_opens_and_closes_the_list_under_its_columns(self):
        for _ in range(2):
            rect = self.table.open_sub_modules(AXES)
            cell = self.table.cell(AXES, INPUTS)["rect"]
            self.assertEqual(rect[1], cell[1] + cell[3])
            self.display.click(*self.table.point(AXES, INPUTS))
            self.table.wait_closed()
            stays(lambda: not self.table.sub_modules(), "the click does not open it again")

    def test_what_happens_elsewhere_closes_the_list(self):
        left, top, width, height = self.see(self.program, "frame")["rect"]
        for what, happens in (
                ("a press on the table", lambda: self.display.click(*self.table.point(SENSORS, COMMENT))),
                ("a press on the overview", lambda: self.overview.click((0, 1))),
                ("a press on the status line", lambda: self.display.click(left + width // 2, top + height - 8)),
                ("a press on the title bar", lambda: self.display.click(left + width // 2, top - 8)),
                ("a press on the desktop", lambda: self.display.click(self.display.WIDTH - 20, 600)),
                ("Escape", lambda: self.display.keys("Escape")),
                ("a cursor key", lambda: self.display.keys("Down"))):
            with self.subTest(what):
                self.program.activate()
                self.table.open_sub_modules(AXES)
                # Moving the mouse over other windows does not.
                self.display.move(self.display.WIDTH - 20, 500)
                stays(self.table.sub_modules, "the list is open", seconds=0.2)
                happens()
                self.table.wait_closed()

    def test_another_program_closes_the_list(self):
        _, second, _, _ = self.second()
        def by_keys():
            # The window manager overlooks keys while it is busy with the last change.
            until(lambda: self.display.active_window() == second.window or self.display.keys("alt+Tab"),
                  "the other program is active")
        for what, happens in (("activated", second.activate), ("by keys", by_keys)):
            with self.subTest(what):
                self.program.activate()
                self.table.open_sub_modules(AXES)
                happens()
                self.table.wait_closed()

    def test_at_the_end_of_the_screen_the_list_opens_upwards(self):
        cell = self.table.cell(AXES, INPUTS)["rect"]
        left, top, width, height = LEFT
        down = self.display.HEIGHT - 8 - cell[1] - cell[3]
        self.display.place(self.program.window, left, top + down, width, height)
        until(lambda: self.table.cell(AXES, INPUTS)["rect"][1] == cell[1] + down, "the window has moved")
        rect = self.table.open_sub_modules(AXES)
        self.assertEqual(rect[1] + rect[3], self.table.cell(AXES, INPUTS)["rect"][1])

    def test_the_keyboard_walks_through_the_list(self):
        def line(index):
            return ", ".join(self.axes[index][key] for key in ("module", "inputs", "outputs"))
        self.table.click(AXES, PLACE)
        self.forget()
        self.display.keys("alt+Down")
        until(self.table.sub_modules, "the list opens")
        self.hear(FOCUSED, line(0))
        self.display.keys("Down", "Down", "Down")
        self.hear(FOCUSED, line(2))
        self.display.keys("Up")
        self.forget()
        self.display.keys("Return")
        dialog = self.program.dialog()
        self.table.wait_closed()
        self.display.keys("Escape")
        self.program.wait_closed(dialog)

        self.program.activate()
        self.forget()
        self.display.keys("alt+Down")
        self.hear(FOCUSED, line(0))
        self.forget()
        self.display.keys("Escape")
        self.table.wait_closed()
        self.hear(FOCUSED, str(AXES))
