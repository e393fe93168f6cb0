"""The two stores as the checks read them."""

import zlib

LISTS = ["arrOfCreateNewFile", "arrOfCopyFilesTo", "arrOfCommonPath", "arrOfCustomIcon", "arrOfOthers"]
LOCAL, SHARED = "org.halvane.Tarnwick", "H7Q2ZK5RX9.org.halvane.Tarnwick"


def canonical(value):
    if isinstance(value, bool):
        return f"b{int(value)}"
    if isinstance(value, int):
        return f"i{value}"
    if isinstance(value, bytes):
        return f"d{len(value)}:{zlib.crc32(value)}"
    return f"s{value}" if isinstance(value, str) else "?"


def is_on(record):
    return record.get("enable") in (1, True, "1")


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
