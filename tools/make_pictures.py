#!/usr/bin/env python3
"""Draws the pictures of the views (assets/pictures/*.svg), so that they stay one family.

Run it after a change here; the pictures themselves are kept beside the sources, and the build reads only those.
All coordinates are logical pixels. A place is 18 x 60, light comes from the top left, and the number window
(x 2..16, y 34..45) stays open, because the place number is drawn below the picture.
"""

import pathlib

WINDOW = "M2 34V45H16V34Z"
OUTLINE = "#6B7783"


def rect(x, y, width, height, fill, radius=0.0):
    corner = f' rx="{radius}"' if radius else ""
    return f'<rect x="{x}" y="{y}" width="{width}" height="{height}"{corner} fill="{fill}"/>'


def path(d, fill="none", stroke=None, width=1.0, rule=None):
    line = f' stroke="{stroke}" stroke-width="{width}" stroke-linecap="round" stroke-linejoin="round"' if stroke else ""
    even = f' fill-rule="{rule}"' if rule else ""
    return f'<path d="{d}" fill="{fill}"{line}{even}/>'


def circle(x, y, radius, fill, stroke=None, width=1.0):
    line = f' stroke="{stroke}" stroke-width="{width}"' if stroke else ""
    return f'<circle cx="{x}" cy="{y}" r="{radius}" fill="{fill}"{line}/>'


def gradient(name, stops, horizontal=False):
    direction = 'x1="0" y1="0" x2="1" y2="0"' if horizontal else 'x1="0" y1="0" x2="0" y2="1"'
    marks = "".join(f'<stop offset="{offset}" stop-color="{color}"/>' for offset, color in stops)
    return f'<defs><linearGradient id="{name}" {direction}>{marks}</linearGradient></defs>'


def svg(width, height, *parts):
    body = "\n  ".join(parts)
    return (f'<svg xmlns="http://www.w3.org/2000/svg" width="{width}" height="{height}" '
            f'viewBox="0 0 {width} {height}">\n  {body}\n</svg>\n')


class Maker:
    """The look of one maker's housings."""

    def __init__(self, light, middle, shade, edge, foot):
        self.light, self.middle, self.shade, self.edge, self.foot = light, middle, shade, edge, foot

    def housing(self, accent, accent_dark):
        return [
            gradient("b", [(0, self.light), (0.35, self.middle), (1, self.shade)], horizontal=True),
            gradient("f", [(0, self.foot), (0.3, self.shade), (1, self.foot)], horizontal=True),
            # body, with the family's colour as its cap, and the foot with the terminals
            path(f"M0 0H18V60H0Z{WINDOW}", "url(#b)", rule="evenodd"),
            rect(0, 0, 18, 2, accent), rect(0, 2, 18, 1, accent_dark),
            rect(0, 47, 18, 13, "url(#f)"),
            # the number plate's rim: dark above, light below
            path("M1 33H17V46H1Z" + WINDOW, self.edge, rule="evenodd"),
            rect(1, 46, 16, 1, self.light),
            # seams between neighbours
            rect(0, 3, 1, 56, self.light), rect(17, 0, 1, 60, self.edge), rect(0, 59, 18, 1, self.edge),
        ]


QUILLON = Maker("#F7F9FB", "#E6EAEE", "#CDD5DC", "#7F8B97", "#B4BEC8")
MERIDIAN = Maker("#D9F0EA", "#A9D6CC", "#84BBAF", "#3F746D", "#6FA79B")

AMBER, AMBER_DARK = "#F0A31E", "#C47C06"
NAVY, NAVY_DARK = "#2C5AA0", "#1C3E75"
VIOLET, VIOLET_DARK = "#8459C4", "#5F3B98"
GREEN, GREEN_DARK = "#35A36A", "#1F7A4B"
BLUE, BLUE_DARK = "#1E8AD2", "#12659F"
GREY, GREY_DARK = "#8A96A3", "#66727E"
TEAL, TEAL_DARK = "#12766F", "#0B544F"
PANEL, PANEL_EDGE = "#22303D", "#121B24"
LED_GREEN, LED_AMBER, LED_RED, LED_OFF = "#3BE07C", "#FFC02E", "#FF5A4D", "#5A6875"
METAL, METAL_LIGHT, METAL_DARK = "#AEB8C2", "#E3E8ED", "#77838F"


def panel(y, height, fill=PANEL):
    return [rect(2, y, 14, height, PANEL_EDGE, 1), rect(2.5, y + 0.5, 13, height - 1, fill, 0.7)]


def screws(y=53.5):
    out = []
    for x in (4, 9, 14):
        out += [circle(x, y, 2, METAL_DARK), circle(x, y, 1.5, METAL_LIGHT), rect(x - 1.5, y - 0.4, 3, 0.8, OUTLINE)]
    return out


def terminals():
    out = [rect(2, 48, 14, 11, "#3E4B57", 0.8)]
    for y in (49, 51.5, 54, 56.5):
        out += [rect(3, y, 5, 1.6, METAL), rect(10, y, 5, 1.6, METAL)]
    return out


def port(y=49, fill="#2B3743"):
    """A round-shouldered plug with two rows of contacts."""
    out = [path(f"M3 {y}H15L14 {y + 9}H4Z", METAL_LIGHT, OUTLINE, 0.7),
           path(f"M4.6 {y + 1.4}H13.4L12.8 {y + 7.6}H5.2Z", fill)]
    out += [rect(x, y + 2.6, 1, 1, METAL_LIGHT) for x in (6, 8, 10, 12)]
    out += [rect(x, y + 5.2, 1, 1, METAL_LIGHT) for x in (7, 9, 11)]
    return out


def led(x, y, color):
    return rect(x, y, 2, 2, color)


def lamps(y, colors):
    """One row of lamps across the module."""
    step = 12 / len(colors)
    return [led(round(3 + i * step), y, color) for i, color in enumerate(colors)]


def mode_switch(y, slot="#46525E"):
    """The key switch of a controller, its knob in the upper position."""
    return [rect(5, y, 8, 14, slot, 1), rect(6, y + 1, 6, 12, "#2B3540", 0.7),
            rect(6, y + 1, 6, 5, "#F2F5F8", 0.7), rect(7, y + 3, 4, 1, METAL_DARK),
            rect(3, y + 2, 1, 2, LED_GREEN), rect(3, y + 9, 1, 2, LED_RED)]


def power_supply():
    # A converter: mains above, direct current below.
    out = panel(5, 12, "#FFF4D6")
    out += [path("M10.5 5.8L5.6 11.8H8.6L7.4 16.2L12.6 9.9H9.5Z", AMBER, AMBER_DARK, 0.6)]
    out += [rect(3, y, 12, 1, OUTLINE) for y in (20, 22, 24, 26)]
    out += lamps(29, [LED_OFF, LED_GREEN, LED_OFF])
    return out + screws()


def controller():
    return panel(4, 9) + lamps(5, [LED_GREEN, LED_AMBER, LED_RED]) + [rect(4, 9, 10, 1, "#7FB4E8"),
           rect(4, 11, 6, 1, "#4E7CAC")] + mode_switch(17) + port()


def compact_controller():
    # A controller with inputs and outputs of its own: lamps beside the switch, terminals below.
    out = panel(4, 9) + lamps(5, [LED_GREEN, LED_AMBER, LED_RED]) + [rect(4, 9, 10, 1, "#7FB4E8"),
          rect(4, 11, 6, 1, "#4E7CAC")]
    out += [rect(2, 16, 6, 15, "#46525E", 1), rect(3, 17, 4, 13, "#2B3540", 0.7), rect(3, 17, 4, 5, "#F2F5F8", 0.7),
            rect(4, 19, 2, 1, METAL_DARK)]
    for y in (17, 20, 23, 26, 29):
        out += [led(10, y, LED_GREEN if y in (17, 23, 26) else LED_OFF), led(14, y, BLUE if y != 26 else LED_OFF)]
    return out + terminals()


def bus_controller():
    # A controller that is master of a field bus: nodes on a line.
    out = panel(4, 9) + lamps(5, [LED_GREEN, LED_AMBER, LED_RED]) + [rect(4, 9, 10, 1, "#7FB4E8"),
          rect(4, 11, 6, 1, "#4E7CAC")]
    out += [rect(8, 18, 2, 9, NAVY), rect(4, 25, 10, 2, NAVY), rect(3, 25, 2, 4, NAVY), rect(13, 25, 2, 4, NAVY),
            rect(6, 15, 6, 5, NAVY, 1), rect(7, 16, 4, 3, "#BFD7F5"),
            rect(2, 28, 4, 4, NAVY, 0.6), rect(7, 28, 4, 4, NAVY, 0.6), rect(12, 28, 4, 4, NAVY, 0.6),
            rect(8, 26, 2, 3, NAVY)]
    return out + port(49, NAVY_DARK)


def interface_module(pins=VIOLET_DARK):
    # The long connector of the cable to the next rack.
    out = [path("M4 5H14L15 7V29L14 31H4L3 29V7Z", METAL_LIGHT, OUTLINE, 0.8),
           rect(5, 7, 8, 22, pins, 1)]
    for y in range(9, 28, 3):
        out += [rect(6.5, y, 1.6, 1.4, "#F4D58A"), rect(9.9, y, 1.6, 1.4, "#F4D58A")]
    out += [path("M4.5 53.5H13.5M6.8 50.8L4 53.5L6.8 56.2M11.2 50.8L14 53.5L11.2 56.2", "none", pins, 1.3)]
    return out


def wave_panel(d, color):
    return panel(5, 12) + [rect(3, 11, 12, 0.6, "#47596A"), path(d, "none", color, 1.4)]


def analog(wave):
    out = wave_panel("M3.5 11.2C5 4.8 7.4 4.8 9 11.2S13 17.6 14.5 11.2", wave)
    # measuring channels: bars of different height
    out += [rect(2, 20, 14, 11, "#D4DBE2", 0.8)]
    for x, height in ((3, 4), (6, 8), (9, 6), (12, 3)):
        out += [rect(x, 21, 2, 9, "#A9B4BF"), rect(x, 30 - height, 2, height, GREEN_DARK)]
    return out + terminals()


def digital(wave):
    out = wave_panel("M3.5 14H6V7.5H9.5V14H12.5V7.5H14.7", wave)
    out += [rect(2, 20, 14, 11, "#2B3540", 0.8)]
    lit = {(0, 0), (0, 2), (1, 1), (1, 2), (1, 3), (2, 0), (3, 1)}
    for row in range(3):
        for column in range(4):
            out += [led(3 + 3 * column + (column > 1), 21 + 3 * row + (row > 1),
                        LED_GREEN if (column, row) in lit else LED_OFF)]
    return out + terminals()


def unknown_module():
    return panel(5, 9, "#C9D2DB") + [rect(4, 8, 10, 1, METAL_DARK), rect(4, 10, 6, 1, METAL_DARK)] + \
        lamps(17, [LED_GREEN, LED_OFF, LED_OFF]) + [rect(3, 22, 12, 8, METAL, 1), rect(4, 23, 10, 6, METAL_LIGHT, 0.6)] + \
        terminals()


def dummy(line, light):
    # A blank cover: ribs and nothing else.
    out = []
    for y in list(range(7, 32, 4)) + [50, 53, 56]:
        out += [rect(3, y, 12, 1, line), rect(3, y + 1, 12, 1, light)]
    return out


def empty_place(ground, ridge, shine, border, socket=True, end=False):
    """A free place: the backplane behind it, with the rail's two ridges and the socket of the bus."""
    out = [path(f"M0 0H18V60H0Z{WINDOW}", ground, rule="evenodd"),
           rect(0, 8, 17, 1, shine), rect(0, 9, 17, 3, ridge), rect(0, 12, 17, 1, border),
           rect(0, 26, 17, 1, shine), rect(0, 27, 17, 3, ridge), rect(0, 30, 17, 1, border),
           path("M1 33H17V46H1Z" + WINDOW, border, rule="evenodd")]
    if socket:
        out += [rect(4, 49, 10, 8, border, 1), rect(5, 50, 8, 6, "#3A4652", 0.5)]
        out += [rect(x, y, 1, 1, "#E9C66B") for x in (6, 8, 10, 12) for y in (51, 54)]
    out += [rect(17, 0, 1, 60, border)]
    if end:
        out += [rect(16, 0, 1, 60, border), rect(17, 0, 1, 60, "#4A5560")]
    return out


def drop_arrow(color, dark):
    return [path("M9 24L3.6 17.8H7V12.8H11V17.8H14.4Z", color, dark, 0.8)]


def no_entry(color, light="#FFFFFF"):
    return [circle(9, 19, 5.2, color), circle(9, 19, 3.7, light),
            path("M6.2 16.2L11.8 21.8", "none", color, 1.7)]


def hatch(color):
    out = []
    for y in (2, 8, 15, 21, 49, 55):
        out += [path(f"M2 {y + 4}L6 {y}M7 {y + 4}L11 {y}M12 {y + 4}L16 {y}", "none", color, 0.9)]
    return out


def places():
    kinds = {
        "ACTIVE": lambda end: empty_place("#EAEEF2", "#CFD7DF", "#FAFBFC", "#9FABB7", end=end),
        "INACTIVE": lambda end: empty_place("#C6CDD4", "#B9C1C9", "#CDD4DA", "#98A2AC", False, end) + hatch("#A9B2BB"),
        "DROP": lambda end: empty_place("#DDF5E6", "#B9E6CA", "#F2FCF6", "#3BA56C", end=end)
        + [rect(0, 0, 17, 1, GREEN), rect(0, 59, 17, 1, GREEN)] + drop_arrow("#2FB36D", "#FFFFFF"),
        "NODROP": lambda end: empty_place("#F0E4E4", "#E0CFCF", "#FAF4F4", "#B79C9C", end=end)
        + no_entry("#D2463E"),
        "INACTIVE_NODROP": lambda end: empty_place("#C6CDD4", "#B9C1C9", "#CDD4DA", "#98A2AC", False, end)
        + hatch("#A9B2BB") + no_entry("#A3635F", "#DFE3E7"),
    }
    return {f"IDB_CRX_PLACE_{kind}{suffix}": svg(18, 60, *draw(bool(suffix)))
            for kind, draw in kinds.items() for suffix in ("", "_END")}


def modules():
    def housed(maker, accent, dark, parts):
        return svg(18, 60, *maker.housing(accent, dark), *parts)

    return {
        "IDB_CRX_MODULE_PS": housed(QUILLON, AMBER, AMBER_DARK, power_supply()),
        "IDB_CRX_MODULE_CPU": housed(QUILLON, NAVY, NAVY_DARK, controller()),
        "IDB_CRX_MODULE_CPUC": housed(QUILLON, NAVY, NAVY_DARK, compact_controller()),
        "IDB_CRX_MODULE_CPUM": housed(QUILLON, NAVY, NAVY_DARK, bus_controller()),
        "IDB_CRX_MODULE_IM": housed(QUILLON, VIOLET, VIOLET_DARK, interface_module()),
        "IDB_CRX_MODULE_IO_ANALOG": housed(QUILLON, GREEN, GREEN_DARK, analog(LED_GREEN)),
        "IDB_CRX_MODULE_IO_DIGITAL": housed(QUILLON, BLUE, BLUE_DARK, digital("#62C3FF")),
        "IDB_CRX_MODULE_DEFAULT": housed(QUILLON, GREY, GREY_DARK, unknown_module()),
        "IDB_CRX_MODULE_DUMMY": housed(QUILLON, METAL, METAL_DARK, dummy("#B5BFC9", "#FAFBFC")),
        "IDB_CRX_MODULE_MERID_CPU": housed(MERIDIAN, TEAL, TEAL_DARK, controller()),
        "IDB_CRX_MODULE_MERID_IM": housed(MERIDIAN, VIOLET, VIOLET_DARK, interface_module()),
        "IDB_CRX_MODULE_MERID_IO_ANALOG": housed(MERIDIAN, GREEN, GREEN_DARK, analog(LED_GREEN)),
        "IDB_CRX_MODULE_MERID_IO_DIGITAL": housed(MERIDIAN, BLUE, BLUE_DARK, digital("#62C3FF")),
        "IDB_CRX_MODULE_MERID_DUMMY": housed(MERIDIAN, "#83ADA7", "#4F7C77", dummy("#73A89D", "#D3EAE4")),
    }


def frames():
    color = "#0B3F94"
    top, bottom = rect(0, 0, 18, 1, color), rect(0, 59, 18, 1, color)
    left, right = rect(0, 0, 1, 60, color), rect(17, 0, 1, 60, color)
    return {
        "IDB_CRX_FRAME_LEFT": svg(18, 60, top, bottom, left),
        "IDB_CRX_FRAME_MID": svg(18, 60, top, bottom),
        "IDB_CRX_FRAME_RIGHT": svg(18, 60, top, bottom, right),
        "IDB_CRX_FRAME_TOTAL": svg(18, 60, top, bottom, left, right),
    }


def rack():
    # Open over the places (x 14..212) and over the rack number (x 1..13, y 1..14); opaque in column 13 from top to
    # bottom, because the mark of the first gap is taken away by drawing the rail over it.
    out = [gradient("m", [(0, METAL_LIGHT), (0.5, METAL), (1, METAL_DARK)], horizontal=True),
           rect(0, 0, 218, 1, METAL_DARK), rect(0, 61, 218, 1, METAL_DARK),
           rect(0, 0, 1, 62, METAL_DARK),
           rect(1, 14, 12, 47, "url(#m)"), rect(1, 14, 12, 1, METAL_DARK), rect(1, 15, 12, 1, METAL_LIGHT),
           rect(13, 0, 1, 62, "#5B6773"),
           # the cap's ribs and its screw
           *[part for y in (22, 25, 28) for part in (rect(3, y, 8, 1, METAL_DARK), rect(3, y + 1, 8, 1, METAL_LIGHT))],
           circle(7, 46, 4, METAL_DARK), circle(7, 46, 3.2, METAL_LIGHT),
           path("M4.8 48.2L9.2 43.8", "none", OUTLINE, 1.2),
           rect(212, 0, 6, 62, "url(#m)"), rect(212, 0, 1, 62, "#5B6773"), rect(217, 0, 1, 62, "#5B6773"),
           rect(212, 0, 6, 1, METAL_DARK), rect(212, 61, 6, 1, METAL_DARK),
           *[rect(214, y, 2, 1, "#5B6773") for y in (22, 25, 28, 44, 47, 50)]]
    return {"IDB_CRX_RACK": svg(218, 62, *out)}


def rack_numbers():
    def plate(color):
        return svg(12, 13, path("M0 0H12V13H0ZM1 1V12H11V1Z", color, rule="evenodd"))

    return {"IDB_CRX_RACKNR_ACTIVE": plate(NAVY), "IDB_CRX_RACKNR_INACTIVE": plate(METAL)}


def cpu_states():
    def pill(color, dark, sign):
        return svg(12, 8, rect(0, 0, 12, 8, dark, 2.5), rect(0.7, 0.7, 10.6, 6.6, color, 2), *sign)

    return {
        "IDB_DIAG_CPU_RUN": pill("#25B865", "#0F7A3D", [path("M4.5 1.8L8.8 4L4.5 6.2Z", "#FFFFFF")]),
        "IDB_DIAG_CPU_STOP": pill("#E0453B", "#98211A", [rect(4, 2, 4, 4, "#FFFFFF")]),
        "IDB_DIAG_CPU_HOLD": pill("#F2A81D", "#A86C00", [rect(3.6, 1.8, 1.7, 4.4, "#3A2A00"),
                                                        rect(6.7, 1.8, 1.7, 4.4, "#3A2A00")]),
    }


def failure():
    return {"IDB_DIAG_FAILURE": svg(
        12, 12, circle(6, 6, 6, "#FFFFFF"), circle(6, 6, 5.3, "#D9332B"),
        rect(5.1, 2.4, 1.8, 4.6, "#FFFFFF", 0.7), rect(5.1, 7.9, 1.8, 1.8, "#FFFFFF", 0.7))}


def compare_symbols():
    # The two uppermost rows stay empty: the number window ends there, and nothing draws below a symbol in it.
    def disc(color, *sign):
        return svg(16, 16, circle(8, 9, 6.8, "#FFFFFF"), circle(8, 9, 6, color), *sign)

    def line(d, width=1.6):
        return path(d, "none", "#FFFFFF", width)

    return {
        "IDB_COMP_EQUAL": disc("#259B59", line("M5 7.4H11M5 10.6H11")),
        "IDB_COMP_POTEQUAL": disc("#2F7FC4", line("M4.8 7.9C6 6.3 7.2 6.6 8 7.3S10 8.3 11.2 6.7", 1.5),
                                  line("M4.8 11.5C6 9.9 7.2 10.2 8 10.9S10 11.9 11.2 10.3", 1.5)),
        "IDB_COMP_NOMODULE": svg(16, 16, circle(8, 9, 6.8, "#FFFFFF"), circle(8, 9, 5.4, "#F2F4F6", "#66727E", 1.3),
                                 path("M5.4 9H10.6", "none", "#66727E", 1.7)),
        "IDB_COMP_MODULEDIFF": svg(16, 16, rect(1.2, 2.2, 13.6, 13.6, "#FFFFFF", 2.4),
                                   rect(2, 3, 12, 12, "#D63A31", 1.8), line("M5 7.4H11M5 10.6H11M10.2 5L5.8 13", 1.5)),
        "IDB_COMP_PARAMDIFF": svg(16, 16, path("M8 2.2L14.9 9L8 15.8L1.1 9Z", "#FFFFFF", "#FFFFFF", 0.4),
                                  path("M8 3.2L13.9 9L8 14.8L2.1 9Z", "#E8960F", "#E8960F", 0.4),
                                  path("M5.4 7.6H10.6M5.4 10.4H10.6M9.7 5.6L6.3 12.4", "none", "#3A2500", 1.3)),
    }


def main():
    target = pathlib.Path(__file__).resolve().parent.parent / "assets" / "pictures"
    target.mkdir(parents=True, exist_ok=True)
    for drawn in (places(), modules(), frames(), rack(), rack_numbers(), cpu_states(), failure(), compare_symbols()):
        for name, picture in drawn.items():
            (target / f"{name}.svg").write_text(picture, encoding="utf-8")


if __name__ == "__main__":
    main()
