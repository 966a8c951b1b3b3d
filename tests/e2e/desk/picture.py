"""Pictures as rows of red, green, blue bytes, read from PNG files or cut out of the screen."""
import struct
import zlib


class Picture:
    def __init__(self, width, height, rows):
        self.width = width
        self.height = height
        self.rows = rows  # bytes, three to a pixel

    def __eq__(self, other):
        return (self.width, self.height, self.rows) == (other.width, other.height, other.rows)

    def cut(self, x, y, width, height):
        rows = [row[3 * x:3 * (x + width)] for row in self.rows[y:y + height]]
        return Picture(width, height, rows)

    def pixel(self, x, y):
        return tuple(self.rows[y][3 * x:3 * x + 3])

    def colours(self):
        """How often each colour occurs."""
        counts = {}
        for row in self.rows:
            for x in range(0, len(row), 3):
                colour = tuple(row[x:x + 3])
                counts[colour] = counts.get(colour, 0) + 1
        return counts

    def differing(self, other):
        """The number of pixels that differ."""
        assert (self.width, self.height) == (other.width, other.height), "pictures of different sizes"
        count = 0
        for mine, theirs in zip(self.rows, other.rows):
            if mine == theirs:
                continue
            count += sum(mine[x:x + 3] != theirs[x:x + 3] for x in range(0, len(mine), 3))
        return count

    def find(self, part):
        """Every (x, y) where the part lies in this picture."""
        found = []
        for y in range(self.height - part.height + 1):
            at = self.rows[y].find(part.rows[0])
            while at >= 0:
                if at % 3 == 0 and all(self.rows[y + i][at:at + 3 * part.width] == part.rows[i]
                                       for i in range(1, part.height)):
                    found.append((at // 3, y))
                at = self.rows[y].find(part.rows[0], at + 1)
        return found


def read_png(path):
    """An eight-bit RGB, RGBA or grey PNG file without interlacing; transparency is dropped."""
    with open(path, "rb") as file:
        data = file.read()
    assert data[:8] == b"\x89PNG\r\n\x1a\n", f"{path} is not a PNG file"
    header, packed, at = None, b"", 8
    while at < len(data):
        length, kind = struct.unpack(">I4s", data[at:at + 8])
        content = data[at + 8:at + 8 + length]
        if kind == b"IHDR":
            header = struct.unpack(">IIBBBBB", content)
        elif kind == b"IDAT":
            packed += content
        at += 12 + length
    width, height, depth, colour, _, _, interlaced = header
    channels = {0: 1, 2: 3, 6: 4}[colour]
    assert depth == 8 and not interlaced, f"{path} is a PNG file of another kind"
    lines = _unfilter(zlib.decompress(packed), width * channels, height, channels)
    return Picture(width, height, [_rgb(line, channels) for line in lines])


def _rgb(line, channels):
    if channels == 3:
        return bytes(line)
    colours = bytearray(len(line) // channels * 3)
    for c in range(3):
        colours[c::3] = line[min(c, channels - 1)::channels]
    return bytes(colours)


def _unfilter(data, stride, height, step):
    lines, above = [], bytearray(stride)
    for y in range(height):
        start = y * (stride + 1)
        kind, line = data[start], bytearray(data[start + 1:start + 1 + stride])
        for x in range(stride if kind else 0):
            left = line[x - step] if x >= step else 0
            up = above[x]
            corner = above[x - step] if x >= step else 0
            line[x] = (line[x] + _prediction(kind, left, up, corner)) & 255
        lines.append(line)
        above = line
    return lines


def _prediction(kind, left, up, corner):
    if kind == 1:
        return left
    if kind == 2:
        return up
    if kind == 3:
        return (left + up) // 2
    distances = abs(up - corner), abs(left - corner), abs(left + up - 2 * corner)
    if distances[0] <= distances[1] and distances[0] <= distances[2]:
        return left
    return up if distances[1] <= distances[2] else corner
