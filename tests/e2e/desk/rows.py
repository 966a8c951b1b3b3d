"""The overview of a distributed station on the screen, found through the accessibility bus: rows of places that scroll."""
from .screen_reader import flat, middle
from .waiting import stays, until

PLACE_HEIGHT = 72
ROW_HEIGHT = 96
VISIBLE_ROWS = 4
BUTTON_HEIGHT = 14


class Rows:
    def __init__(self, test, program):
        self.test = test
        self.program = program
        self.display = program.display
        left, top, width, _ = self.place(1)["rect"]
        self.button_x = left + 4 * width
        # The buttons lie at both ends of the four rows that are seen.
        self.first_top = top

    def place(self, place):
        overview = self.test.see(self.program, "panel", "Station overview")
        return next(item for item in flat(overview)
                    if item["role"] == "list item" and item["name"].split(",")[0] == f"Place {place}")

    def first_row(self):
        """How many rows are scrolled out at the top."""
        return (self.first_top - self.place(1)["rect"][1]) // ROW_HEIGHT

    def wait_first_row(self, row):
        until(lambda: self.first_row() == row, f"row {row} is the first one that is seen")

    def stays_at(self, row):
        stays(lambda: self.first_row() == row, f"row {row} is the first one that is seen")

    def point(self, place):
        return middle(self.place(place))

    def up_button(self):
        return self.button_x, self.first_top - 11 - BUTTON_HEIGHT // 2

    def down_button(self):
        return self.button_x, self.first_top - 11 + VISIBLE_ROWS * ROW_HEIGHT + 2 + BUTTON_HEIGHT // 2
