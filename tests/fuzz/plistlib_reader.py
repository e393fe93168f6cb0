"""Answers each property list in XML on standard input with a description of what plistlib makes of it, in the words of
SettingsReaders.h, or with nothing when it refuses it. Requests and answers begin with their length."""

import datetime
import math
import plistlib
import struct
import sys

REFERENCE = datetime.datetime(2001, 1, 1)


def text(value):
    return value.encode("utf-16-be", "surrogatepass").hex()


def real(value):
    return "rnan;" if math.isnan(value) else f"r{struct.unpack('<Q', struct.pack('<d', value))[0]};"


def describe(value):
    if isinstance(value, bool):
        return "T" if value else "F"
    if isinstance(value, int):
        return f"i{value};"
    if isinstance(value, float):
        return real(value)
    if isinstance(value, str):
        return f"s{text(value)};"
    if isinstance(value, bytes):
        return f"d{value.hex()};"
    if isinstance(value, datetime.datetime):
        return "t" + real((value - REFERENCE).total_seconds())
    if isinstance(value, dict):
        return "{" + "".join(sorted(f"k{text(key)};{describe(value[key])}" for key in value)) + "}"
    if isinstance(value, list):
        return "(" + "".join(map(describe, value)) + ")"
    return "?"


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
