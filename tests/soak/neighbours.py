"""Trouble with other programs at the same stores."""

import subprocess
import sys

from harness.stores import COMMON_FOLDERS, COPY_TARGETS, LOCAL, SHARED
from harness.waiting import wait_until_steady
from tests.soak.box import require
from tests.soak.checksums import checksum

MERGE = """
import os, plistlib, sys
path, key = sys.argv[1:]
values = plistlib.load(open(path, 'rb'))
values[key] = 1
plistlib.dump(values, open(path + '.foreign', 'wb'))
os.replace(path + '.foreign', path)
"""


def wait_until_quiet(*journals):
    """Until nothing has been edited for longer than storing takes."""
    wait_until_steady(lambda: [journal.path.stat().st_size for journal in journals], "the end of the edits",
                      still=8, seconds=120, pause=0.1)


def two_instances(boxes):
    box = boxes.prepared()
    journal_one, journal_two = box.journal_named("one"), box.journal_named("two")
    with box.running(edits=300, lists="2", journal=journal_one), \
            box.running(edits=300, lists="1", journal=journal_two, seed=7):
        alone = len(journal_one.done())
        wait_until_quiet(journal_one, journal_two)
    after, shared = box.stores.read(), box.stores.read(SHARED)
    one, two = len(journal_one.done()) - alone, len(journal_two.done())
    # Not every try is an edit.
    require(one + alone > 150 and two > 150, f"one stands still: {alone} + {one} and {two} edits")
    require(one > 50, f"hardly at the same time: {one} and {two} edits")
    for journal, key in ((journal_one, COMMON_FOLDERS), (journal_two, COPY_TARGETS)):
        require(checksum(after[key]) == journal.done()[-1].whole, f"{key} is not as its last editor left it")
        require(checksum(shared[key], True) == journal.done()[-1].enabled, f"{key} is published otherwise")
    return f"{one} and {two} edits of two lists at the same time, both lists as their editors left them"


def foreign_program(boxes):
    box = boxes.prepared()
    with box.running(edits=60, lists="2"):
        for number in range(10):
            subprocess.run(["defaults", "write", LOCAL, f"Foreign{number}", f"value {number}"],
                           env=box.environment(), check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            # As the application does it: under the lock beside the file.
            suite = box.stores.file(SHARED)
            subprocess.run(["flock", f"{suite}.lock", sys.executable, "-c", MERGE, suite, f"Foreign{number}"],
                           check=True)
        wait_until_quiet(box.journal)
    after, shared = box.stores.read(), box.stores.read(SHARED)
    require(all(after.get(f"Foreign{n}") == f"value {n}" for n in range(10)), "a foreign value of the domain is gone")
    require(all(shared.get(f"Foreign{n}") == 1 for n in range(10)), "a foreign value of the suite is gone")
    require(checksum(after[COMMON_FOLDERS]) == box.journal.done()[-1].whole, "the list is not as it was left")
    return f"{len(box.journal.done())} edits, and 10 foreign values in each store meanwhile; all there"
