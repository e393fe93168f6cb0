"""Lists as the application's journal names them: by the checksum of a canonical text."""

import zlib

from harness.stores import is_on


def canonical(value):
    if isinstance(value, bool):
        return f"b{int(value)}"
    if isinstance(value, int):
        return f"i{value}"
    if isinstance(value, bytes):
        return f"d{len(value)}:{zlib.crc32(value)}"
    return f"s{value}" if isinstance(value, str) else "?"


def checksum(records, enabled_only=False):
    text = "".join(
        "".join(f"{key}={canonical(record[key])}\n" for key in sorted(record)) + "\n"
        for record in records if not enabled_only or is_on(record))
    return str(zlib.crc32(text.encode()))


EDITORS = ["Open in VSCode", "Open in Sublime Text", "Open in Emacs"]


def with_editors(actions, factory):
    """The other actions as a launch has them: the factory's editors that they lack are in their places again."""
    found = {record["Action"] for record in actions}
    result = list(actions)
    for place, record in enumerate(factory):
        if record["Action"] in EDITORS and record["Action"] not in found:
            result.insert(place, record)
    return result
