"""What a screen reader sees of the real program, and hears while it is used."""
from desk.screen_reader import FOCUSED, NAMED, SELECTED, WithScreenReader, flat, middle
from desk.stations import EMPTY, EXAMPLE, FEEDBACK
from desk.waiting import until

class Accessibility(WithScreenReader):
    def setUp(self):
        super().setUp()
        self.path = self.station(EXAMPLE)
        self.rows = {(row["rack"], row["place"]): row for row in self.modules(self.path) if "subModule" not in row}
        self.program, self.overview = self.open(self.path)

    def place_name(self, at):
        row = self.rows[at]
        addresses = [f"{kind} {row[key]}" for kind, key in (("I", "inputs"), ("O", "outputs")) if row.get(key)]
        return ", ".join([f"Place {at[1]}", row["module"], *addresses])

    def test_the_overview_is_racks_with_gaps_and_places(self):
        overview = self.see(self.program, "panel", "Rack overview")
        self.assertEqual([(rack["role"], rack["name"]) for rack in overview["children"]], [("list", "Rack 0")])
        items = {item["name"]: item for item in overview["children"][0]["children"]}
        expected = [self.place_name(at) for at in sorted(self.rows)]
        self.assertEqual([name for name in items if name.startswith("Place") and "empty" not in name], expected)
        self.assertIn("Place 11, empty", items)
        gaps = [name for name in items if name.startswith("Gap")]
        self.assertEqual(gaps, [f"Gap before place {place}" for place in range(1, 12)] + ["Gap behind place 11"])
        self.assertEqual([name for name, item in items.items() if "selected" in item["states"]],
                         [self.place_name((0, 1))])

        # Where a screen reader points is what the mouse finds there.
        feedback = items[self.place_name(FEEDBACK)]
        self.assertIn(self.rows[FEEDBACK]["orderNumber"], feedback["description"])
        self.display.click(*middle(feedback))
        self.overview.wait_focus(FEEDBACK)
        self.hear(SELECTED, self.place_name(FEEDBACK))

    def test_the_focus_is_heard_where_the_keyboard_is(self):
        self.overview.click(FEEDBACK)
        self.hear(FOCUSED, self.place_name(FEEDBACK))
        for key, name in (("Left", "Gap before place 4"), ("Left", "Place 3, empty"), ("Right", "Gap before place 4")):
            self.forget()
            self.display.keys(key)
            self.hear(FOCUSED, name)
            self.assertFalse([event for event in self.heard(FOCUSED) if event["role"] != "list item"])
        self.forget()
        self.display.keys("Right")
        self.hear(SELECTED, self.place_name(FEEDBACK))

        self.forget()
        self.display.keys("Tab")
        cell = self.hear(FOCUSED, str(FEEDBACK[1]))
        self.assertEqual(cell["role"], "table cell")
        self.assertIn(self.rows[FEEDBACK]["module"], cell["description"])
        self.forget()
        self.display.keys("Down")
        self.assertEqual(self.hear(FOCUSED, "5")["role"], "table cell")
        self.assertFalse([event for event in self.heard(FOCUSED) if event["role"] == "list item"])

    def test_the_table_has_its_rows_and_cells(self):
        table = self.see(self.program, "table", "Rack table")
        cells = [item for item in table["children"] if item["role"] == "table cell"]
        headers = [item["name"] for item in table["children"] if item["role"] == "table column header"]
        self.assertEqual(headers, ["Place", "Module", "Order number", "I address", "O address", "Comment"])
        rows = [cells[start:start + 6] for start in range(0, len(cells), 6)]
        self.assertEqual([row[0]["name"] for row in rows], [str(place) for place in range(1, 12)])
        for (_, place), expected in self.rows.items():
            self.assertEqual([cell["name"] for cell in rows[place - 1]],
                             [str(place), *[expected.get(key, "") for key in
                                            ("module", "orderNumber", "inputs", "outputs", "comment")]])
        self.assertEqual([row[0]["name"] for row in rows if "selected" in row[0]["states"]], ["1"])

    def test_the_status_line_and_a_refusal_are_read_out(self):
        self.overview.click(FEEDBACK)
        number = self.rows[FEEDBACK]["orderNumber"]
        status = until(lambda: next((item for item in flat(self.see(self.program, "status bar")) if number in item["name"]), None),
                       "the status line tells the focus")
        self.assertIn("Rack 0", status["name"])
        self.display.keys("ctrl+c")
        until(lambda: number in self.clipboard_modules(), "the module is on the clipboard")
        self.forget()
        self.display.keys("ctrl+v")
        self.assertIn("place 4 of rack 0", self.hear_refusal()["name"])

    def test_a_change_is_told_by_its_new_name(self):
        self.overview.click(FEEDBACK)
        self.hear(FOCUSED, self.place_name(FEEDBACK))
        self.forget()
        self.display.keys("Delete")
        self.hear(NAMED, "Place 4, empty", on=0)
        names = [item["name"] for item in flat(self.see(self.program, "list", "Rack 0"))]
        self.assertIn("Place 4, empty", names)
        self.assertIn(f"Place {EMPTY[1]}, empty", names)
