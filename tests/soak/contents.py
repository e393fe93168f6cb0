"""Trouble with what the settings files hold: damaged, of wrong kinds, large, with odd names."""

import os
import plistlib
import re
import subprocess
import time

from harness.stores import ACTIONS, COMMON_FOLDERS, ICONS, LISTS, LOCAL, SHARED, USED, folder_records, typed
from tests.soak.box import SETTINGS, Wrong, require, settle

DEEP = 200_000
NAMES = ["a/b/../c", "..", ".", "", "a\0b", "control \x01\x1b\x7f", "line\nand\ttab", "x" * 20_000, "wide " * 3_000,
         "\u05e9\u05dc\u05d5\u05dd \u0645\u0631\u062d\u0628\u0627 \u202e reversed", "e\u0301\u0323" + "\u0300" * 400,
         "\U0001f5c2 \U0001f468\u200d\U0001f469\u200d\U0001f467", "<&>\"'%@%s%n\\", "not \ufffe\uffff", " \u2028 "]
# Settings files are XML on Linux.
UNSTORABLE = re.compile("[\\x00-\\x08\\x0b\\x0c\\x0e-\\x1f\\ufffe\\uffff]")


def damaged_files():
    """Contents of a settings file that are no settings."""
    whole = plistlib.dumps(SETTINGS)
    header = b'<?xml version="1.0" encoding="UTF-8"?><plist version="1.0">'
    yield "empty", b""
    yield "truncated", whole[:len(whole) // 2]
    yield "garbage", bytes(range(256)) * 40
    yield "text", b"not settings\n"
    yield "an array", plistlib.dumps([1, 2])
    yield "invalid UTF-8", header + b"<dict><key>arrOfCommonPath</key><string>\xff\xfe\x80</string></dict></plist>"
    yield "deep arrays", header + b"<dict><key>k</key>" + b"<array>" * DEEP + b"</array>" * DEEP + b"</dict></plist>"
    yield "deep dictionaries", (header + b"<dict>" + b"<key>k</key><dict>" * DEEP + b"</dict>" * DEEP
                                + b"</dict></plist>")
    yield "deep text format", b"{k = " + b"(" * DEEP + b")" * DEEP + b";}"
    yield "a binary that holds itself", (
        b"bplist00\xd1\x01\x02Qk\xa1\x02" + bytes([8, 11, 13]) + bytes(6) + bytes([1, 1])
        + (3).to_bytes(8, "big") + (0).to_bytes(8, "big") + (15).to_bytes(8, "big"))
    yield "a binary cut off", plistlib.dumps(SETTINGS, fmt=plistlib.FMT_BINARY)[:100]


def damaged_stores(boxes):
    count = 0
    for domain in (LOCAL, SHARED):
        for name, content in damaged_files():
            with boxes.new() as box:
                start_over_damaged(box, domain, name, content)
            count += 1
    return f"{count} damaged files, each kept aside, each start worked"


def start_over_damaged(box, domain, name, content):
    box.stores.write(SETTINGS)
    path = box.stores.file(domain)
    path.write_bytes(content)
    try:
        with box.running():
            settle()
    except Wrong as wrong:
        raise Wrong(f"{domain}, {name}: {wrong}") from wrong
    box.stores.read(domain)
    kept = [other for other in path.parent.glob(f"{path.name}.damaged-*") if other.read_bytes() == content]
    require(len(kept) == 1, f"{domain}, {name}: the damaged file is not kept aside")
    require("cannot be read; moved to" in box.said(), f"{domain}, {name}: nothing is said")


def wrong_types(boxes):
    values = ["text", 7, True, 1.5, b"data", [], ["text"], {}, {"a": 1}, [[{}]], [{"enable": []}], [{"icon": "x"}]]
    keys = [*LISTS, "enableCopyFilesTo", "soundTipsOfNewFile", "enableAllOfOthers", "prePathOfCommonPath",
            "enableImagetoIcon", "ShownEnableExtensionAlert"]
    for value in values:
        with boxes.new() as box:
            start_over_wrong_type(box, keys, value)
    return f"{len(values)} wrong kinds of value at {len(keys) + 6} places, all kept"


def start_over_wrong_type(box, keys, value):
    box.stores.write({**{key: value for key in keys}, **USED})
    box.stores.write({"arrOfEnableOther": value, **{key: value for key in LISTS}}, SHARED)
    try:
        with box.running():
            settle()
    except Wrong as wrong:
        raise Wrong(f"{value!r} everywhere: {wrong}") from wrong
    after = box.stores.read()
    for key in LISTS:
        places = [after[place] for place in after if place == key or place.startswith(f"{key}.unreadable")]
        empty = value in ([], {})
        is_kept = typed(value) in map(typed, places)
        require(empty or is_kept or all(any(item in place for place in places) for item in value),
                f"{value!r} under {key} is gone")


def big_stores(boxes):
    pictures = [{"enable": 1, "displayName": f"I{n}", "modified": "1", "icon": os.urandom(1 << 20)}
                for n in range(100)]
    said = []
    for name, key, records in (("100 MB", ICONS, pictures),
                               ("100,000 records", COMMON_FOLDERS, folder_records(100_000))):
        with boxes.new() as box:
            box.stores.write({**USED, key: records})
            began = time.monotonic()
            with box.running(edits=1, lists="1", seconds=300):
                seconds = time.monotonic() - began
                time.sleep(2 + seconds)
            require(typed(box.stores.local(key)) == typed(records), f"{name}: the list changed")
        said.append(f"{name}: started in {seconds:.1f} s")
    return ", ".join(said)


def names(boxes):
    for number, name in enumerate(NAMES):
        with boxes.new() as box:
            try:
                give_name(box, number, name)
            except Exception as wrong:
                raise Wrong(f"{name[:40]!r}: {wrong!r}") from wrong
    return f"{len(NAMES)} names in every list, stored and read again as they were given"


def give_name(box, number, name):
    shown = os.environ.get("TARNWICK_SOAK_PICTURES")
    box.stores.write(SETTINGS)
    with box.running():
        settle()
    given = box.root / "name"
    given.write_bytes(name.encode())
    with box.running():
        settle()
        if shown:
            subprocess.run(["import", "-window", "root", f"{shown}/name-{number}.png"], env=box.environment(),
                           check=True)
    stored = box.stores.read()
    box.stores.read(SHARED)
    name = UNSTORABLE.sub("\ufffd", name)
    for key in LISTS:
        found = stored[key][0]["displayName"]
        require(found == name, f"{key} holds {found[:60]!r}")
    require(stored[ACTIONS][0]["Note"] == name, "the note is another")
    given.unlink()
    with box.running():
        settle()
    started = box.stores.read()
    require([started[key][0]["displayName"] for key in LISTS] == [name] * 5, "a later start changed it")
