#!/usr/bin/env python3
"""Draws the picture files that module types of the catalogue name (assets/HWPics/*.svg), in the family's look."""

import pathlib

from make_pictures import (AMBER, AMBER_DARK, GREEN, GREEN_DARK, LED_AMBER, LED_GREEN, LED_OFF, METAL, METAL_DARK,
                           METAL_LIGHT, NAVY_DARK, OUTLINE, QUILLON, VIOLET, VIOLET_DARK, circle, lamps, panel, path,
                           port, rect, svg, terminals)

ORANGE, ORANGE_DARK = "#E2702A", "#B24E10"


def counter():
    # Digits of a count, and an encoder disc.
    digits = [path("M4.5 8.5L5.7 7.5V13.5M8 8.2C8.4 7.2 10 7.3 10 8.8C10 10.4 8 12 8 13.5H10.2"
                   "M12 7.8C14.4 7 14.6 10 12.8 10.3C15 10.6 14.4 14 12 13.2", "none", LED_AMBER, 1)]
    disc = [circle(9, 24.5, 6, METAL_LIGHT, OUTLINE, 0.7), circle(9, 24.5, 1.6, METAL_DARK)]
    slots = [path("M9 19.6V21.6M9 27.4V29.4M4.1 24.5H6.1M11.9 24.5H13.9M5.6 21.1L7 22.5M11 26.5L12.4 27.9"
                  "M12.4 21.1L11 22.5M7 26.5L5.6 27.9", "none", ORANGE_DARK, 1.1)]
    return panel(5, 11) + digits + disc + slots + terminals()


def position():
    # Three axes.
    axes = [path("M5 28V13M5 28H15M5 28L12 20", "none", ORANGE_DARK, 1.3),
            path("M3 14.5L5 11.5L7 14.5ZM13.8 26L16.4 28L13.8 30ZM10 20.4L13.4 18.4L12.6 22Z", ORANGE)]
    return lamps(6, [LED_GREEN, LED_GREEN, LED_OFF]) + axes + terminals()


def weigh():
    # A load on a platform.
    return [path("M6.6 14H11.4L13.6 24H4.4Z", ORANGE, ORANGE_DARK, 0.7), circle(9, 11.8, 1.9, "none", ORANGE_DARK, 1.2),
            rect(2.5, 25, 13, 2, METAL_DARK, 0.6), path("M9 27L5.5 31H12.5Z", METAL, OUTLINE, 0.6)] + \
        lamps(6, [LED_GREEN, LED_OFF, LED_OFF]) + terminals()


def serial():
    # A line of bits from one end to the other.
    return panel(5, 12) + [path("M3.5 9H6V13H8V9H9.5V13H13V9H14.5", "none", "#D7B8FF", 1.2)] + \
        lamps(20, [LED_GREEN, LED_AMBER, LED_OFF]) + \
        [path("M3 28H15M12.6 25.8L15 28L12.6 30.2", "none", VIOLET_DARK, 1.2)] + port(49, VIOLET_DARK)


def fieldbus():
    # Stations on one line.
    stations = [rect(x, y, 4, 4, VIOLET, 0.6) for x, y in ((3, 7), (11, 13), (3, 19), (11, 25))]
    return [rect(8.4, 6, 1.4, 25, VIOLET_DARK), rect(7, 8.4, 2, 1.2, VIOLET_DARK), rect(9, 14.4, 2, 1.2, VIOLET_DARK),
            rect(7, 20.4, 2, 1.2, VIOLET_DARK), rect(9, 26.4, 2, 1.2, VIOLET_DARK)] + stations + port(49, VIOLET_DARK)


def network():
    # Nodes joined to each other, two sockets below.
    sockets = []
    for y in (48.5, 54):
        sockets += [rect(4, y, 10, 5, METAL_DARK, 0.6), rect(5, y + 0.8, 8, 3.4, NAVY_DARK, 0.4),
                    rect(6.2, y + 2.6, 1, 1.4, AMBER), rect(8.5, y + 2.6, 1, 1.4, AMBER),
                    rect(10.8, y + 2.6, 1, 1.4, AMBER)]
    return [path("M9 9L4.5 18L13.5 18ZM4.5 18L9 27L13.5 18", "none", GREEN_DARK, 1.1)] + \
        [circle(x, y, 2.2, GREEN, GREEN_DARK, 0.7) for x, y in ((9, 8.6), (4.5, 18), (13.5, 18), (9, 27.4))] + sockets


PICTURES = {
    "HQ_COUNTER": (ORANGE, ORANGE_DARK, counter),
    "HQ_POSITION": (ORANGE, ORANGE_DARK, position),
    "HQ_WEIGH": (AMBER, AMBER_DARK, weigh),
    "HQ_SERIAL": (VIOLET, VIOLET_DARK, serial),
    "HQ_FIELDBUS": (VIOLET, VIOLET_DARK, fieldbus),
    "HQ_NETWORK": (GREEN, GREEN_DARK, network),
}


def main():
    target = pathlib.Path(__file__).resolve().parent.parent / "assets" / "HWPics"
    target.mkdir(parents=True, exist_ok=True)
    for name, (accent, accent_dark, symbol) in PICTURES.items():
        picture = svg(18, 60, *QUILLON.housing(accent, accent_dark), *symbol())
        (target / f"{name}.svg").write_text(picture, encoding="utf-8")


if __name__ == "__main__":
    main()
