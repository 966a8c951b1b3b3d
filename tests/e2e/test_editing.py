"""One program, edited as a user does: what is seen, and what the saved file then holds."""
from desk.picture import read_png
from desk.program import OnDisplay
from desk.stations import CONTROLLER, EMPTY, EXAMPLE, FEEDBACK, FIELD, VALVES, numbers_by_place
from desk.waiting import stays, until


class Editing(OnDisplay):
    def setUp(self):
        super().setUp()
        self.path = self.station(EXAMPLE)
        self.first = self.path.read_bytes()
        self.before = numbers_by_place(self.modules(self.path))
        self.program, self.overview = self.open(self.path)

    def save(self):
        """Saves and returns the order numbers by place."""
        self.display.keys("ctrl+s")
        until(lambda: not self.program.is_unsaved(), "the station is saved")
        return numbers_by_place(self.modules(self.path))

    def wait_unsaved(self):
        until(self.program.is_unsaved, "the title shows that something changed")

    def test_the_window_shows_the_station_as_the_command_line_draws_it(self):
        self.assertIn("waterworks", self.program.title())
        until(lambda: self.overview.focus(), "a place has the focus")
        focused = self.overview.focus()
        self.assertEqual(focused, (0, 1))
        for at in self.before:
            if at != focused:
                self.assertEqual(self.overview.place_picture(at), self.overview.drawn_picture(at), at)

    def test_the_mouse_and_the_keys_move_the_focus_and_the_selection(self):
        self.overview.click(FEEDBACK)
        self.overview.wait_focus(FEEDBACK)
        self.display.move(1500, 950)
        self.assertNotEqual(self.overview.place_picture(FEEDBACK), self.overview.drawn_picture(FEEDBACK))
        # Through the gap to the next place.
        self.display.keys("Right")
        until(lambda: self.overview.focus() is None, "a gap has the focus")
        self.display.keys("Right")
        self.overview.wait_focus(FIELD)
        self.assertEqual(self.overview.place_picture(FEEDBACK), self.overview.drawn_picture(FEEDBACK))
        self.display.keys("ctrl+c")
        until(lambda: self.before[FIELD] in self.clipboard_modules(), "the focused module is on the clipboard")
        self.assertNotIn(self.before[FEEDBACK], self.clipboard_modules())

    def test_delete_undo_and_redo_reach_the_file(self):
        self.overview.click(FEEDBACK)
        self.overview.wait_focus(FEEDBACK)
        self.display.keys("Delete")
        self.wait_unsaved()
        self.display.keys("ctrl+z")
        until(lambda: not self.program.is_unsaved(), "undo leads back to the saved state")
        self.display.keys("ctrl+y")
        self.wait_unsaved()
        self.assertEqual(self.path.read_bytes(), self.first)
        expected = {at: number for at, number in self.before.items() if at != FEEDBACK}
        self.assertEqual(self.save(), expected)
        deleted = self.path.read_bytes()
        self.display.keys("ctrl+z")
        self.wait_unsaved()
        self.save()
        self.assertEqual(self.path.read_bytes(), self.first)
        self.display.keys("ctrl+shift+z")
        self.wait_unsaved()
        self.save()
        self.assertEqual(self.path.read_bytes(), deleted)

    def test_a_drag_moves_a_module_and_with_ctrl_copies_it(self):
        self.overview.drag(VALVES, EMPTY)
        self.wait_unsaved()
        moved = self.save()
        self.assertEqual(moved.get(EMPTY), self.before[VALVES])
        self.assertNotIn(VALVES, moved)
        self.display.move(1500, 950)
        self.succeed("render", self.path, "-o", "moved.png")
        picture = read_png(self.folder / "moved.png")
        self.assertEqual(self.overview.place_picture(VALVES), self.overview.drawn_picture(VALVES, picture))

        self.overview.drag(FEEDBACK, VALVES, keys=["ctrl"])
        self.wait_unsaved()
        copied = self.save()
        self.assertEqual((copied.get(FEEDBACK), copied.get(VALVES)), (self.before[FEEDBACK],) * 2)

    def test_a_place_that_cannot_take_the_module_refuses_it(self):
        self.overview.drag(VALVES, CONTROLLER)
        stays(lambda: not self.program.is_unsaved(), "nothing has changed")
        self.display.keys("ctrl+s")
        self.assertEqual(self.path.read_bytes(), self.first)

    def test_cut_and_paste_move_a_module(self):
        self.overview.click(VALVES)
        self.overview.wait_focus(VALVES)
        self.display.keys("ctrl+x")
        self.wait_unsaved()
        until(lambda: self.before[VALVES] in self.clipboard_modules(), "the module is on the clipboard")
        self.overview.click(EMPTY)
        self.overview.wait_focus(EMPTY)
        self.display.keys("ctrl+v")
        expected = {at: number for at, number in self.before.items() if at != VALVES}
        self.assertEqual(self.save(), {**expected, EMPTY: self.before[VALVES]})

    def test_damaged_text_on_the_clipboard_changes_nothing(self):
        self.display.put_on_clipboard("application/x-vxhwconfigtext", "VxHWConfigText 1\n{\"mod\0".encode("utf-16-le"))
        self.overview.click(EMPTY)
        self.overview.wait_focus(EMPTY)
        self.display.keys("ctrl+v")
        stays(lambda: not self.program.is_unsaved() and not self.program.has_ended(), "nothing has changed")
        self.display.keys("Delete", "Left")
        until(lambda: self.overview.focus() is None, "the window goes on working")

    def test_a_module_comes_from_the_catalogue_by_enter_and_by_drag(self):
        number = self.before[VALVES]
        self.overview.click(EMPTY)
        self.overview.wait_focus(EMPTY)
        self.display.keys("ctrl+f")
        self.display.type(number)
        self.display.keys("Return")
        self.wait_unsaved()
        self.assertEqual(self.save(), {**self.before, EMPTY: number})

        self.overview.click(EMPTY)
        self.overview.wait_focus(EMPTY)
        self.display.keys("Delete")
        self.wait_unsaved()
        self.overview.drag_from_point(self.catalogue_row(), EMPTY, self.overview)
        until(lambda: self.save() == {**self.before, EMPTY: number}, "the module is there again")

    def catalogue_row(self):
        """A point on the one type that the search has left: the row at the right that is drawn as selected."""
        self.display.keys("ctrl+f", "Down")
        left, top, width, height = self.display.geometry(self.program.window)
        column = left + width - 200, top, 120, height

        def selected_lines():
            area = self.display.picture(*column)
            return [y for y in range(height) if self.is_selected_line(area.cut(0, y, 120, 1))]
        lines = until(selected_lines, "a type in the catalogue is selected")
        return column[0] + 40, top + lines[len(lines) // 2]

    @staticmethod
    def is_selected_line(line):
        colours = line.colours()
        colour = max(colours, key=colours.get)
        return colours[colour] > 40 and max(colour) - min(colour) > 80
