"""Distributed stations, used as a user does: rows of places that scroll, and drags that cross them."""
import json

from desk.rows import Rows
from desk.screen_reader import WithScreenReader, flat
from desk.stations import EXAMPLE as CENTRAL
from desk.stations import EMPTY, VALVES, numbers_by_place
from desk.waiting import stays, until

RESERVATION = "QX-RS04-A"  # which every kind of station takes
LEFT, RIGHT = (0, 40, 1000, 900), (1040, 40, 1000, 900)


class Distributed(WithScreenReader):
    def setUp(self):
        super().setUp()
        self.dragging = False
        self.addCleanup(self.drop)

    def show(self, example, area=LEFT):
        self.path = self.station(example)
        self.before = numbers_by_place(self.modules(self.path))
        self.program = self.start(self.path, area=area)
        return Rows(self, self.program)

    def take(self, start):
        """Begins a drag."""
        self.display.move(*start)
        self.display.press()
        self.dragging = True
        for step in (4, 8, 12):
            self.display.move(start[0] + step, start[1] + step // 2)

    def rest(self, point, until_true, what):
        """Holds the drag there; each move is a new event for the program under the pointer."""
        def happened():
            for offset in (-1, 0):
                self.display.move(point[0] + offset, point[1])
            return until_true()
        until(happened, what)

    def drop(self):
        if self.dragging:
            self.dragging = False
            self.display.release()

    def status(self, program):
        """What the status line tells."""
        return [item["name"] for item in flat(self.see(program, "status bar")) if "showing" in item["states"]]

    def saved(self, program, path):
        program.activate()
        self.display.keys("ctrl+s")
        until(lambda: not program.is_unsaved(), "the station is saved")
        return numbers_by_place(self.modules(path))


class Scrolling(Distributed):
    def test_a_held_button_goes_on_to_the_last_row_and_back(self):
        rows = self.show("strip-mill-cooling")
        last = 64 // 8 - 4
        for button, end in ((rows.down_button(), last), (rows.up_button(), 0)):
            self.display.move(*button)
            self.display.press()
            self.dragging = True
            rows.wait_first_row(end)
            rows.stays_at(end)
            self.drop()
        self.display.click(*rows.down_button())
        rows.wait_first_row(1)
        rows.stays_at(1)

    def test_a_drag_scrolls_and_drops_in_a_row_that_was_not_seen(self):
        rows = self.show("warehouse-aisle")
        source, target = 3, 40
        self.take(rows.point(source))
        self.rest(rows.down_button(), lambda: rows.first_row() == 1, "the drag scrolls")
        self.rest(rows.point(target), lambda: "focused" in rows.place(target)["states"], "the drag is at its target")
        self.drop()
        until(self.program.is_unsaved, "the station has changed")
        moved = {(0, target) if at == (0, source) else at: number for at, number in self.before.items()}
        self.assertEqual(self.saved(self.program, self.path), moved)


class Exchange(Distributed):
    """A central and a distributed station in two programs."""

    def setUp(self):
        super().setUp()
        self.central_path = self.station(CENTRAL)
        self.reserve(self.central_path, 10)
        self.central, self.racks = self.open(self.central_path, area=LEFT)
        self.rows = self.show("assembly-cell", area=RIGHT)

    @staticmethod
    def reserve(path, place):
        """Puts a module that fits everywhere into the place of rack 0."""
        data = json.loads(path.read_text(encoding="utf-8"))
        places = [item for item in data["racks"][0]["places"] if item["place"] != place]
        module = {"orderNumber": RESERVATION, "inputAddress": 900, "outputAddress": 900}
        data["racks"][0]["places"] = sorted(places + [{"place": place, "module": module}], key=lambda at: at["place"])
        path.write_text(json.dumps(data), encoding="utf-8")

    def test_what_every_kind_takes_is_copied_there_and_back(self):
        for start, end, target in ((self.racks.point((0, 10)), self.rows.point(9), self.program),
                                   (self.rows.point(9), self.racks.point(EMPTY), self.central)):
            self.take(start)
            self.rest(end, lambda target=target: any("copied" in text or "empty" in text
                                                     for text in self.status(target)), "the drag is at its target")
            self.drop()
            until(target.is_unsaved, "the station has changed")
        self.assertEqual(self.saved(self.program, self.path), {**self.before, (0, 9): RESERVATION})
        central = numbers_by_place(self.modules(self.central_path))
        self.assertEqual(self.saved(self.central, self.central_path), {**central, EMPTY: RESERVATION})

    def test_what_the_other_kind_does_not_take_is_refused_with_the_reason(self):
        in_central = self.racks.point((0, 11))
        for start, end, target, reason in (
                (self.racks.point(VALVES), self.rows.point(9), self.program, "central stations"),
                (self.rows.point(2), in_central, self.central, "distributed stations with self-contained modules")):
            with self.subTest(reason):
                self.take(start)
                self.rest(end, lambda target=target, reason=reason:
                          any(reason in text for text in self.status(target)), "the reason is told")
                self.drop()
                stays(lambda: not self.central.is_unsaved() and not self.program.is_unsaved(), "nothing has changed")
