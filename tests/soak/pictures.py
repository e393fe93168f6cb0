"""Small pictures to choose as icons, and what must be in the list for them."""

import struct
import zlib

# Width, height, colour of the upper and of the lower half (red, green, blue, opacity).
PICTURES = [
    (16, 16, (255, 0, 0, 255), (0, 0, 255, 255)),
    (32, 20, (0, 128, 0, 255), (255, 255, 255, 255)),
    (64, 64, (10, 20, 30, 255), (200, 100, 50, 255)),
    (1, 2, (0, 0, 0, 255), (255, 255, 255, 255)),
]


def rows(width, height, upper, lower):
    return [bytes(upper if line < height // 2 else lower) * width for line in range(height)]


def png(picture):
    def chunk(kind, content):
        return struct.pack(">I", len(content)) + kind + content + struct.pack(">I", zlib.crc32(kind + content))

    lines = b"".join(b"\0" + row for row in rows(*picture))
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", *picture[:2], 8, 6, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(lines)) + chunk(b"IEND", b""))


def make_pictures(folder):
    """picture-0.png and so on; the last is none."""
    for number, picture in enumerate(PICTURES):
        (folder / f"picture-{number}.png").write_bytes(png(picture))
    (folder / f"picture-{len(PICTURES)}.png").write_bytes(b"no picture")


def tiff_fields(content):
    """The first directory's numbers: by tag, a list."""
    order = {b"II": "<", b"MM": ">"}[content[:2]]
    start, = struct.unpack_from(order + "I", content, 4)
    count, = struct.unpack_from(order + "H", content, start)
    fields = {}
    for place in range(start + 2, start + 2 + 12 * count, 12):
        tag, kind, length = struct.unpack_from(order + "HHI", content, place)
        code = {1: "B", 3: "H", 4: "I"}.get(kind)
        if code:
            values = struct.Struct(f"{order}{length}{code}")
            where = place + 8
            if values.size > 4:
                where, = struct.unpack_from(order + "I", content, where)
            fields[tag] = list(values.unpack_from(content, where))
    return fields


def is_one_of_them(content):
    """Whether an icon's TIFF holds one of the pictures, pixel by pixel."""
    fields = tiff_fields(content)
    if fields[259] != [1] or fields[258] != [8, 8, 8, 8]:
        raise ValueError(f"a TIFF of an unknown kind: {fields}")
    pixels = b"".join(content[start:start + size] for start, size in zip(fields[273], fields[279]))
    return any(fields[256] + fields[257] == list(picture[:2]) and pixels == b"".join(rows(*picture))
               for picture in PICTURES)
