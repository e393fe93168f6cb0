"""Pictures, pixel by pixel: what is on the screen, and a file of one pixel to choose or drop."""

import base64

PIXEL = base64.b64decode(
    "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR4nGP4z8DwHwAFAAH/iZk9HQAAAABJRU5ErkJggg==")


# Of rings, lines and marked menu items, in the light appearance.
ACCENT = bytes.fromhex("2f73da")


class Picture:
    """Of a portable pixmap."""

    def __init__(self, data):
        header, size, deepest, self.pixels = data.split(b"\n", 3)
        if (header, deepest) != (b"P6", b"255"):
            raise ValueError(f"a picture of an unknown kind, {header} {deepest}")
        self.width, self.height = map(int, size.split())

    def row(self, number):
        """Three bytes each."""
        return self.pixels[3 * self.width * number:3 * self.width * (number + 1)]

    def colour(self, x, y):
        return self.row(y)[3 * x:3 * x + 3]

    def part(self, left, top, right, bottom):
        return Picture(b"P6\n%d %d\n255\n" % (right - left, bottom - top)
                       + b"".join(self.row(y)[3 * left:3 * right] for y in range(top, bottom)))

    def __eq__(self, other):
        return (self.width, self.height, self.pixels) == (other.width, other.height, other.pixels)

    def colours(self, left, top, right, bottom):
        return {self.colour(x, y) for y in range(top, bottom) for x in range(left, right)}


def _luminance(colour):
    parts = [value / 255 for value in colour]
    linear = [part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4 for part in parts]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def contrast(colours):
    """Between the lightest and the darkest, from 1 to 21."""
    shades = [_luminance(colour) for colour in colours]
    return (max(shades) + 0.05) / (min(shades) + 0.05)
