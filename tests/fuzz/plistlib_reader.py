"""Answers each property list in XML on standard input with a description of what plistlib makes of it, in the words of
tests/gnustep/ListDescription.h, or with nothing when it refuses it. Requests and answers begin with their length."""

import datetime
import math
import plistlib
import struct
import sys

REFERENCE = datetime.datetime(2001, 1, 1)


def text(value):
    units = struct.iter_unpack(">H", value.encode("utf-16-be", "surrogatepass"))
    return '"' + "".join(
        chr(unit) if 0x20 <= unit < 0x7F and chr(unit) not in '"\\' else f"\\u{unit:04x}" for unit, in units) + '"'


def number(value):
    return "nan" if math.isnan(value) else f"{value:.17g}"


def describe(value):
    if isinstance(value, bool):
        return "true" if value else "false"
    if isinstance(value, int):
        return str(value)
    if isinstance(value, float):
        return "real " + number(value)
    if isinstance(value, str):
        return text(value)
    if isinstance(value, bytes):
        return f"<{value.hex()}>"
    if isinstance(value, datetime.datetime):
        return "date " + number((value - REFERENCE).total_seconds())
    if isinstance(value, dict):
        return "{" + ", ".join(sorted(f"{text(key)}: {describe(value[key])}" for key in value)) + "}"
    if isinstance(value, list):
        return "(" + ", ".join(map(describe, value)) + ")"
    return "no property list"


def answer(request):
    try:
        return describe(plistlib.loads(request, fmt=plistlib.FMT_XML)).encode()
    except Exception:
        # It raises whatever comes up in it.
        return b""


while header := sys.stdin.buffer.read(4):
    description = answer(sys.stdin.buffer.read(struct.unpack("<I", header)[0]))
    sys.stdout.buffer.write(struct.pack("<I", len(description)) + description)
    sys.stdout.buffer.flush()
