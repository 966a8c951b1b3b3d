"""The table of a rack on the screen, found through the accessibility bus: its cells, and the list of sub-modules."""
from .screen_reader import middle
from .waiting import until

PLACE, MODULE, INPUTS, OUTPUTS, COMMENT = 0, 1, 3, 4, 5
COLUMNS = 6


class Table:
    def __init__(self, test, program):
        self.test = test
        self.program = program
        self.display = program.display

    def rows(self):
        """The cells of each place, from place 1 on."""
        table = self.test.see(self.program, "table", "Rack table")
        cells = [item for item in table["children"] if item["role"] == "table cell"]
        return [cells[start:start + COLUMNS] for start in range(0, len(cells), COLUMNS)]

    def cell(self, place, column):
        return self.rows()[place - 1][column]

    def text(self, place, column):
        return self.cell(place, column)["name"]

    def wait_text(self, place, column, text):
        until(lambda: self.text(place, column) == text, f"the cell {column} of place {place} shows '{text}'")

    def point(self, place, column):
        return middle(self.cell(place, column))

    def click(self, place, column):
        """Clicks a cell and waits until the place has the focus."""
        self.display.click(*self.point(place, column))
        self.wait_focus(place)

    def focus(self):
        """What the status line says has the focus."""
        status = self.test.see(self.program, "status bar")
        return next((item["name"] for item in status["children"] if item["name"].startswith("Rack")), "")

    def wait_focus(self, place, rack=0):
        beginning = f"Rack {rack} · Place {place} ·"
        until(lambda: self.focus().startswith(beginning), f"'{beginning}' has the focus")

    def tab(self, rack):
        return self.test.see(self.program, "page tab", f"{rack} Rack")

    # The list of sub-modules

    def sub_modules(self):
        """Its rectangle while it is open: a window under or above the cells, as wide as its columns."""
        row = self.rows()[0]
        left, outputs = row[MODULE]["rect"][0], row[OUTPUTS]["rect"]
        for window in self.display.windows_of_class("Quillon_Ed"):
            rect = self.display.geometry(window)
            if rect[0] == left and rect[2] == outputs[0] + outputs[2] - left:
                return rect
        return None

    def open_sub_modules(self, place):
        self.display.click(*self.point(place, INPUTS))
        return until(self.sub_modules, "the list of sub-modules opens")

    def wait_closed(self):
        until(lambda: not self.sub_modules(), "the list of sub-modules closes")
