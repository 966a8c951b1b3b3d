#!/usr/bin/env python3
"""Draws the pictures of the distributed stations' overview (assets/pictures/IDB_RIO*.svg), in the family's look.

A place is 22 x 72. On the rail (A), the frame is the terminal unit of a place and opaque; what is plugged into it, a
module or the cover of an empty place, lies over it and leaves the terminals (y 51..72) open. A self-contained module (B)
has round shoulders, through which the background shows; its empty places are opaque.
"""

import pathlib

from make_pictures import (AMBER, AMBER_DARK, BLUE, BLUE_DARK, GREEN, GREEN_DARK, LED_AMBER, LED_GREEN, LED_OFF,
                           LED_RED, METAL, METAL_DARK, METAL_LIGHT, NAVY, NAVY_DARK, OUTLINE, TEAL, TEAL_DARK, VIOLET,
                           VIOLET_DARK, circle, gradient, path, rect, svg)

WIDTH, HEIGHT = 22, 72


def place(*parts):
    return svg(WIDTH, HEIGHT, *parts)


# --- On the rail -----------------------------------------------------------------------------------------------------

SLOT_BOTTOM = 51  # of the terminal unit's slot


def terminals(y, rows, ground="#8F9BA7"):
    """Clamps in two columns, each a screw and the hole of its wire."""
    out = []
    for row in range(rows):
        for x in (2, 12):
            out += [rect(x, y + 5 * row, 8, 4, ground, 0.6), circle(x + 2, y + 5 * row + 2, 1.3, METAL_LIGHT, OUTLINE, 0.4),
                    rect(x + 4.5, y + 5 * row + 1, 2.5, 2, "#2B3540", 0.4)]
    return out


def unit(top, middle, bottom, line, cap=None):
    """The terminal unit of a place: the slot of the module, and the terminals."""
    out = [gradient("u", [(0, top), (0.5, middle), (1, bottom)], horizontal=True),
           rect(0, 0, WIDTH, HEIGHT, "url(#u)"),
           rect(0, SLOT_BOTTOM, WIDTH, 1, line),
           *terminals(54, 3, "#A9B4BF"),
           rect(0, 0, 1, HEIGHT, "#F4F6F8"), rect(21, 0, 1, HEIGHT, line),
           rect(0, 0, WIDTH, 1, line), rect(0, 71, WIDTH, 1, line)]
    return out + ([rect(0, 0, WIDTH, 2, cap), rect(0, 70, WIDTH, 2, cap)] if cap else [])


def slot(ground, line, socket=True):
    """The open slot of a terminal unit, with the rail's two ridges and the socket of the bus behind it."""
    out = [rect(2, 3, 18, 46, line, 1), rect(3, 4, 16, 44, ground, 0.6),
           rect(3, 11, 16, 1, "#FFFFFF"), rect(3, 12, 16, 3, METAL), rect(3, 15, 16, 1, METAL_DARK),
           rect(3, 36, 16, 1, "#FFFFFF"), rect(3, 37, 16, 3, METAL), rect(3, 40, 16, 1, METAL_DARK)]
    if socket:
        out += [rect(6, 20, 10, 12, line, 1), rect(7, 21, 8, 10, "#3A4652", 0.5)]
        out += [rect(x, y, 1.2, 1.2, "#E9C66B") for x in (8.4, 10.4, 12.4) for y in (22.6, 25.4, 28.2)]
    return out


def drop_arrow():
    return [path("M11 33L4.6 25.6H8.6V19H13.4V25.6H17.4Z", "#2FB36D", "#FFFFFF", 1)]


def no_entry(y=26):
    return [circle(11, y, 6.6, "#D2463E"), circle(11, y, 4.7, "#FFFFFF"),
            path(f"M7.4 {y - 3.6}L14.6 {y + 3.6}", "none", "#D2463E", 2)]


def electronics(accent, accent_dark, *parts):
    """A module plugged into its terminal unit, with the family's colour as its cap."""
    return place(gradient("m", [(0, "#FBFCFD"), (0.35, "#E9EDF1"), (1, "#CFD7DE")], horizontal=True),
                 rect(1, 2, 20, 48, OUTLINE, 1), rect(1.6, 2.6, 18.8, 46.8, "url(#m)", 0.6),
                 rect(1, 2, 20, 3, accent), rect(1, 5, 20, 1, accent_dark), *parts)


def window(y, height, fill="#22303D"):
    return [rect(3, y, 16, height, "#121B24", 1), rect(3.5, y + 0.5, 15, height - 1, fill, 0.7)]


def leds(y, colors, x=4, step=4):
    return [rect(x + step * i, y, 2, 2, color, 0.4) for i, color in enumerate(colors)]


def head_of_rail():
    # The head: lamps, the knob that sets its number, and the socket of the field bus.
    return electronics(
        VIOLET, VIOLET_DARK, *window(8, 9), *leds(9.6, [LED_GREEN, LED_GREEN, LED_AMBER, LED_OFF]),
        rect(5, 13, 9, 1, "#7FB4E8"), rect(5, 14.8, 6, 1, "#4E7CAC"),
        circle(11, 24.5, 4.6, METAL_DARK), circle(11, 24.5, 3.8, METAL_LIGHT), path("M11 24.5L13.6 21.9", "none", OUTLINE, 1.4),
        path("M4 33.5H18L16.8 45H5.2Z", METAL_LIGHT, OUTLINE, 0.8), path("M6 35.4H16L15.2 43.2H6.8Z", VIOLET_DARK),
        *[rect(x, 37, 1.2, 1.2, METAL_LIGHT) for x in (7.4, 9.4, 11.4, 13.4)],
        *[rect(x, 40.4, 1.2, 1.2, METAL_LIGHT) for x in (8.4, 10.4, 12.4)])


def digital_on_rail():
    lit = {(0, 0), (1, 1), (0, 2), (0, 3), (1, 5), (1, 6)}
    lamps = [rect(4.5 + 9 * column, 19.5 + 4 * row, 4, 2.4, LED_GREEN if (column, row) in lit else LED_OFF, 0.5)
             for row in range(7) for column in range(2)]
    return electronics(BLUE, BLUE_DARK, *window(8, 9), path("M4.5 15H7.5V10.2H11V15H14.5V10.2H17.5", "none", "#62C3FF", 1.4),
                       *window(18, 30, "#2B3540"), *lamps)


def analog_on_rail():
    bars = []
    for x, height in ((4, 10), (8, 22), (12, 16), (16, 6)):
        bars += [rect(x, 22, 2.4, 24, "#B4BFC9", 0.4), rect(x, 46 - height, 2.4, height, GREEN_DARK, 0.4)]
    return electronics(GREEN, GREEN_DARK, *window(8, 11),
                       path("M4.5 13.5C6.2 8 9 8 11 13.5S16 18 17.5 13.5", "none", LED_GREEN, 1.5), *bars)


def special_on_rail():
    # What is neither: supplies, counters, serial lines.
    return electronics(AMBER, AMBER_DARK, *window(8, 9), *leds(11.5, [LED_GREEN, LED_AMBER, LED_OFF], 5, 5),
                       circle(11, 32, 8, METAL_DARK), circle(11, 32, 7, METAL_LIGHT), circle(11, 32, 2.4, METAL_DARK),
                       path("M11 26V28M11 36V38M5 32H7M15 32H17M6.8 27.8L8.2 29.2M13.8 34.8L15.2 36.2M15.2 27.8L13.8 29.2"
                            "M8.2 34.8L6.8 36.2", "none", AMBER_DARK, 1.6))


def rail_piece(width, left_cap=False, right_cap=False):
    """The rail between terminal units and the edge of the picture: a profile seen from the front, with an end clamp."""
    out = [gradient("r", [(0, METAL_DARK), (0.2, METAL_LIGHT), (0.5, METAL), (0.8, METAL_LIGHT), (1, METAL_DARK)]),
           rect(0, 16, width, 32, "url(#r)"), rect(0, 16, width, 1, OUTLINE), rect(0, 47, width, 1, OUTLINE),
           rect(0, 22, width, 1, "#FFFFFF"), rect(0, 41, width, 1, OUTLINE)]
    if left_cap:
        out += [rect(0, 16, 1, 32, OUTLINE), rect(7, 9, 9, 46, OUTLINE, 1.5), rect(7.7, 9.7, 7.6, 44.6, "#DCE2E8", 1.2),
                circle(11.5, 32, 3, METAL_DARK), circle(11.5, 32, 2.4, METAL_LIGHT),
                path("M10 33.5L13 30.5", "none", OUTLINE, 1)]
    if right_cap:
        out += [rect(width - 1, 16, 1, 32, OUTLINE), rect(1, 9, 8, 46, OUTLINE, 1.5), rect(1.7, 9.7, 6.6, 44.6, "#DCE2E8", 1.2),
                circle(5, 32, 2.6, METAL_DARK), circle(5, 32, 2, METAL_LIGHT), path("M3.8 33.2L6.2 30.8", "none", OUTLINE, 1)]
    return out


def continued(width, to_the_right):
    """The rail goes on in another row: two lines of a break."""
    x = width - 4 if to_the_right else 3
    mark = path(f"M{x} 13L{x - 2} 24L{x + 2} 38L{x} 51", "none", OUTLINE, 1)
    return svg(width, HEIGHT, *rail_piece(width), mark)


def rail():
    return {
        "IDB_RIOA_PLACEFRAME_ACTIVE": place(*unit("#E8ECF0", "#D8DEE4", "#BFC8D0", "#8A96A2")),
        "IDB_RIOA_PLACEFRAME_DROP": place(*unit("#DDF5E6", "#C8ECD6", "#A9D9BC", "#3BA56C", GREEN)),
        "IDB_RIOA_PLACE_ACTIVE": place(*slot("#EEF1F4", "#AAB5C0")),
        "IDB_RIOA_PLACE_DROP": place(*slot("#E6F8ED", "#7CC79C", False), *drop_arrow()),
        "IDB_RIOA_PLACE_NODROP": place(*slot("#F4EAEA", "#C2A8A8", False), *no_entry()),
        "IDB_RIOA_MODULE_IMCPU": head_of_rail(),
        "IDB_RIOA_MODULE_SMTYPE1": digital_on_rail(),
        "IDB_RIOA_MODULE_SMTYPE2": analog_on_rail(),
        "IDB_RIOA_MODULE_SMTYPE3": special_on_rail(),
        "IDB_RIOA_RACK_START": svg(17, HEIGHT, *rail_piece(17, left_cap=True)),
        "IDB_RIOA_RACK_MIDLEFT": continued(17, False),
        "IDB_RIOA_RACK_MIDRIGHT": continued(12, True),
        "IDB_RIOA_RACK_END": svg(12, HEIGHT, *rail_piece(12, right_cap=True)),
        "IDB_RIOA_PLACESTART_ACTIVE": svg(1, HEIGHT, rect(0, 0, 1, HEIGHT, "#8A96A2")),
    }


# --- Self-contained modules ------------------------------------------------------------------------------------------

BODY = "M4 1H18Q21 1 21 4V68Q21 71 18 71H4Q1 71 1 68V4Q1 1 4 1Z"


def box(accent, accent_dark, *parts):
    """A cast housing with round shoulders and a screw at both ends."""
    ends = []
    for y in (4.6, 67.4):
        ends += [circle(11, y, 2, "#3A4652"), circle(11, y, 1.4, METAL_LIGHT), rect(9.6, y - 0.3, 2.8, 0.6, OUTLINE)]
    return place(gradient("b", [(0, "#8E9AA6"), (0.25, "#6E7A86"), (1, "#4C5762")], horizontal=True),
                 path(BODY, "url(#b)", "#36404A", 0.8), rect(2, 8.2, 18, 3.6, accent), rect(2, 11.4, 18, 0.8, accent_dark),
                 *ends, *parts)


def m12(x, y, ring, radius=4):
    """A round socket with four contacts."""
    out = [circle(x, y, radius + 0.6, "#2B343D"), circle(x, y, radius, ring), circle(x, y, radius - 1.2, "#1D252D")]
    d = radius * 0.32
    return out + [circle(x + dx, y + dy, 0.55, "#E9C66B") for dx, dy in ((-d, -d), (d, -d), (-d, d), (d, d))]


def sockets(ring, count=4, first=20.0, step=11.6):
    out = []
    for i in range(count):
        out += m12(11, first + step * i, ring)
        out += [rect(2.8, first + step * i - 1, 2, 2, LED_GREEN if i % 2 == 0 else LED_OFF, 0.4)]
    return out


def pairs(ring):
    """Eight small sockets in two columns."""
    out = []
    for row in range(4):
        for column in range(2):
            out += m12(6.2 + 9.6 * column, 20.4 + 11.4 * row, ring, 3.2)
    return out


def plate(*parts):
    return [circle(11, 22, 8, "#1D252D"), circle(11, 22, 7.2, "#F4F6F8"), *parts]


def self_contained():
    bus = [rect(3.4, 50, 15.2, 13.4, "#2B343D", 1), rect(4.4, 51, 13.2, 11.4, METAL_LIGHT, 0.7)]
    plug = bus + [path("M6 53H16L15 60.4H7Z", VIOLET_DARK)] + \
        [rect(x, 55, 1, 1, METAL_LIGHT) for x in (7.6, 9.4, 11.2, 13)] + [rect(x, 57.6, 1, 1, METAL_LIGHT) for x in (8.5, 10.3, 12.1)]
    jack = bus + [rect(6.4, 53, 9.2, 7.6, NAVY_DARK, 0.4), rect(8.6, 58.6, 4.8, 2, METAL_LIGHT)] + \
        [rect(x, 54, 1, 2.2, AMBER) for x in (7.4, 9.2, 11.4, 13.4)]

    def head(accent, accent_dark, symbol, socket):
        lamps = leds(34.4, [LED_GREEN, LED_GREEN, LED_AMBER, LED_RED], 3.6, 4.4)
        knob = [circle(11, 43.4, 3.6, "#2B343D"), circle(11, 43.4, 2.8, METAL_LIGHT),
                path("M11 43.4L13 41.6", "none", OUTLINE, 1.2)]
        return box(accent, accent_dark, *plate(*symbol), *lamps, *knob, *socket)

    line = [rect(10.4, 17, 1.2, 10, VIOLET_DARK), *[rect(x, y, 4, 3, VIOLET, 0.5) for x, y in ((5.6, 17.4), (12.4, 20.6), (5.6, 23.8))]]
    star = [path("M11 17.6L6.6 25H15.4Z", "none", NAVY, 1.2),
            *[circle(x, y, 1.9, NAVY) for x, y in ((11, 17.6), (6.6, 25), (15.4, 25))]]
    wave = [path("M5.6 22C7 16.6 9.4 16.6 11 22S15 27.4 16.4 22", "none", GREEN_DARK, 1.8)]
    # A value that goes out, and a reader's waves.
    steps = [path("M5.4 25.6H8.4V22H11.4V18.6H16.6M14.2 16.2L16.6 18.6L14.2 21", "none", GREEN_DARK, 1.7)]
    waves = [circle(11, 26, 1.5, TEAL_DARK), path("M8 23.4A4.4 4.4 0 0 1 14 23.4M6 20.4A7.6 7.6 0 0 1 16 20.4", "none", TEAL, 1.6)]
    empty = [rect(0, 0, WIDTH, HEIGHT, "#E4E8EC"), rect(0, 0, 1, HEIGHT, "#F6F8F9"), rect(21, 0, 1, HEIGHT, "#B4BEC8"),
             rect(0, 0, WIDTH, 1, "#C4CCD4"), rect(0, 71, WIDTH, 1, "#B4BEC8")]

    def hollow(color):
        return [path(BODY, "none", color, 1),
                *[part for y in (4.6, 67.4) for part in (circle(11, y, 2, color), circle(11, y, 1.1, "#5A6875"))],
                path("M11 31V41M6 36H16", "none", color, 1)]

    def coloured(ground, edge, ring, *parts):
        return place(rect(0, 0, WIDTH, HEIGHT, edge), rect(1, 1, 20, 70, ground), *hollow(ring), *parts)

    return {
        "IDB_RIOB_PLACE_ACTIVE": place(*empty, *hollow("#A7B2BD")),
        "IDB_RIOB_PLACE_DROP": coloured("#DDF5E6", GREEN, "#7CC79C", path("M11 46L4 38H8.4V28H13.6V38H18Z", "#2FB36D", "#FFFFFF", 1)),
        "IDB_RIOB_PLACE_NODROP": coloured("#F3E6E6", "#C2A8A8", "#C9AFAF", *no_entry(36)),
        "IDB_RIOB_MODULE_ALPHA": head(VIOLET, VIOLET_DARK, line, plug),
        "IDB_RIOB_MODULE_BETA": head(NAVY, NAVY_DARK, star, jack),
        "IDB_RIOB_MODULE_GAMMA": box(BLUE, BLUE_DARK, *sockets("#62B4EC")),
        "IDB_RIOB_MODULE_DELTA": box(BLUE, BLUE_DARK, *pairs("#62B4EC")),
        "IDB_RIOB_MODULE_EPSILON": box(GREEN, GREEN_DARK, *plate(*wave), *sockets("#4CC489", 3, 36.5, 11)),
        "IDB_RIOB_MODULE_ZETA": box(GREEN, GREEN_DARK, *plate(*steps), *sockets("#4CC489", 3, 36.5, 11)),
        "IDB_RIOB_MODULE_ETA": box(TEAL, TEAL_DARK, *plate(*waves), *m12(11, 41, "#5CC9BF", 5), *m12(11, 56, "#5CC9BF", 5)),
        # Only the corners: a line beside a housing with round shoulders would belong to nothing.
        "IDB_RIOB_PLACESTART_ACTIVE": svg(1, HEIGHT, *(rect(0, y, 1, 3, "#B4BEC8") for y in (0, HEIGHT - 3))),
    }


def main():
    target = pathlib.Path(__file__).resolve().parent.parent / "assets" / "pictures"
    for drawn in (rail(), self_contained()):
        for name, picture in drawn.items():
            (target / f"{name}.svg").write_text(picture, encoding="utf-8")


if __name__ == "__main__":
    main()
