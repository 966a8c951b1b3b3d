"""What the tests know about the example that they edit."""

EXAMPLE = "waterworks"
CONTROLLER, FEEDBACK, FIELD, VALVES = (0, 2), (0, 4), (0, 5), (0, 7)
EMPTY = (0, 11)


def numbers_by_place(rows):
    """Order numbers of the modules by (rack, place)."""
    return {(row["rack"], row["place"]): row["orderNumber"] for row in rows if "subModule" not in row}
