#!/usr/bin/env python3
"""Prints line coverage per folder from an exported summary: coverage.py SUMMARY MINIMUM_PERCENT."""

import collections
import json
import os
import sys

FOLDERS = ("app", "editing", "integration", "prefs", "transfer", "ui", "values")


def main():
    files = json.load(open(sys.argv[1]))["data"][0]["files"]
    lines = collections.defaultdict(lambda: [0, 0])
    for file in files:
        folder = os.path.relpath(file["filename"]).split(os.sep)[0]
        if folder in FOLDERS:
            lines[folder][0] += file["summary"]["lines"]["covered"]
            lines[folder][1] += file["summary"]["lines"]["count"]
    covered = sum(pair[0] for pair in lines.values())
    count = sum(pair[1] for pair in lines.values())
    for folder, (hit, all_lines) in sorted(lines.items()):
        print(f"coverage: {folder:<12} {hit:>5} of {all_lines:>5} lines  {100 * hit / all_lines:6.2f} %")
    percent = 100 * covered / count if count else 0
    print(f"coverage: {'the core':<12} {covered:>5} of {count:>5} lines  {percent:6.2f} %")
    sys.exit(0 if percent >= float(sys.argv[2]) else 1)


main()
