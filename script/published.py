#!/usr/bin/env python3
"""Says what the Finder extension would find: published.py DEFAULTS_FOLDER.

Reads both preference domains with Python's own property-list reader."""

import pathlib
import plistlib
import sys

LOCAL = "org.halvane.Tarnwick"
SHARED = "H7Q2ZK5RX9.org.halvane.Tarnwick"
LISTS = ["arrOfCreateNewFile", "arrOfCopyFilesTo", "arrOfCommonPath", "arrOfCustomIcon", "arrOfOthers"]


def first_names(records):
    names = [record.get("displayName", "") for record in records[:4]]
    return ", ".join(names) + (", ..." if len(records) > 4 else "")


def describe(title, domain):
    print(title)
    for key in LISTS:
        if key not in domain:
            print(f"  {key}: not there")
            continue
        records = domain[key]
        names = f": {first_names(records)}" if records else ""
        print(f"  {key}: {len(records)} records{names}")


def main():
    folder = pathlib.Path(sys.argv[1])
    shared, local = (plistlib.loads((folder / f"{name}.plist").read_bytes()) for name in (SHARED, LOCAL))
    describe(f"Published to the extension ({SHARED}):", shared)
    print(f"  arrOfEnableOther: {len(shared.get('arrOfEnableOther', []))} names")
    switches = sorted(key for key, value in shared.items() if isinstance(value, bool))
    print(f"  {len(switches)} switches, {sum(shared[key] for key in switches)} of them on")
    describe(f"Kept by the application ({LOCAL}):", local)


main()
