"""The overview of a central station on the screen: where its places are and what they look like."""
from .picture import read_png
from .waiting import until

SURFACE_LEFT = 4  # of the picture, within the overview
BAND = 92         # from one rack to the next
PLACES = 11


def place_left(place):
    return 25 + (place - 1) * 18


def band_top(rack):
    return (3 - rack) * BAND


class Overview:
    """Points are given as (rack, place) or, for a gap, as (rack, place left of it, "gap")."""

    def __init__(self, program, drawn):
        self.program = program
        self.display = program.display
        self.reference = read_png(drawn)
        # The left end of a rail: it looks the same whatever is selected, and the racks have it at equal distances.
        cap = self.reference.cut(SURFACE_LEFT + 11, band_top(0) + 45, 12, 40)

        def search():
            left, top, width, height = self.display.geometry(program.window)
            found = set((x, y) for x, y in self.display.picture(left, top, width, height).find(cap))
            whole = [(x, y) for x, y in found if all((x, y - rack * BAND) in found for rack in range(4))]
            return whole and (left + whole[0][0], top + whole[0][1])
        x, y = until(search, "the overview shows its racks")
        self.origin = x - 11, y - band_top(0) - 45

    def point(self, at):
        """The middle of a place or gap, on the screen."""
        rack, place = at[:2]
        x = place_left(place) + (18 if len(at) > 2 else 9)
        return self.origin[0] + x, self.origin[1] + band_top(rack) + 55

    def click(self, at):
        self.display.click(*self.point(at))

    def place_picture(self, at):
        """The upper part of a place, above its number, as the screen shows it."""
        rack, place = at
        return self.display.picture(self.origin[0] + place_left(place), self.origin[1] + band_top(rack) + 31, 18, 31)

    def drawn_picture(self, at, reference=None):
        """The same as the command line draws it: neither focused nor selected."""
        rack, place = at
        return (reference or self.reference).cut(SURFACE_LEFT + place_left(place), band_top(rack) + 31, 18, 31)

    def has_focus(self, at):
        """Whether the two marks below the place are there."""
        rack, place = at
        strip = self.display.picture(self.origin[0] + place_left(place) - 4, self.origin[1] + band_top(rack) + 91,
                                     27, 1)
        background = max(strip.colours(), key=strip.colours().get)
        return strip.pixel(2, 0) != background and strip.pixel(24, 0) != background

    def focus(self):
        """The focused place; None when a gap or nothing has the focus."""
        places = [(rack, place) for rack in range(4) for place in range(1, PLACES + 1)]
        return next((at for at in places if self.has_focus(at)), None)

    def wait_focus(self, at):
        until(lambda: self.focus() == at, f"place {at} has the focus")

    def drag(self, source, target, target_overview=None, keys=()):
        """Drags with the left button from a place to a place or gap, perhaps of another program, and drops when the
        target shows that it has noticed."""
        target_overview = target_overview or self
        self.drag_from_point(self.point(source), target, target_overview, keys)

    @staticmethod
    def drag_from_point(start, target, overview, keys=()):
        display = overview.display
        end = overview.point(target)
        before = display.picture()
        display.move(*start)
        display.press()
        for step in (4, 8, 12):
            display.move(start[0] + step, start[1] + step // 2)
        if keys:
            display.hold(*keys)
        try:
            # The dragged module hangs below the rack there, where the pointer's own picture does not reach.
            below = (end[0] - 10, end[1] + 38, 20, 12)

            # Each move is a new event for the program under the pointer, until it has drawn the dragged module.
            def shown():
                for offset in (-1, 0):
                    display.move(end[0] + offset, end[1])
                return display.picture(*below).differing(before.cut(*below)) > 60
            until(shown, "the drag is shown at its target")
            # The program that drags hears of the answer, and changes the pointer, a little later.
            display.until_still(end[0] - 40, end[1] - 40, 80, 80)
        finally:
            display.release()
            if keys:
                display.let_go(*keys)
