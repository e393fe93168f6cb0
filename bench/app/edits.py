"""One edit, a copy target switched off or on: the application, its floor, and what a user would script."""

import os
import re
import shutil
import statistics
import subprocess
import sys
import time

from bench.app.programs import ClickedProgram
from bench.table import print_table
from harness.stores import COPY_TARGETS, LOCAL, SHARED, USED, Stores, folder_records
from harness.user_folder import UserFolder

PLISTLIB_EDIT = """
import os, plistlib, sys
local, shared, key, on = sys.argv[1:]
def write(path, values):
    with open(path + ".new", "wb") as file:
        plistlib.dump(values, file)
    os.rename(path + ".new", path)
with open(local, "rb") as file:
    values = plistlib.load(file)
values[key][1]["enable"] = int(on)
write(local, values)
with open(shared, "rb") as file:
    published = plistlib.load(file)
published[key] = [record for record in values[key] if record["enable"]]
write(shared, published)
"""


def timed(work):
    start = time.monotonic()
    work()
    return (time.monotonic() - start) * 1000


class Disk:
    """The disk by itself: the bytes of both stores written, synchronised and renamed into place."""

    def __init__(self, user):
        stores = Stores(user)
        self.files = [(stores.file(domain), stores.file(domain).read_bytes()) for domain in (LOCAL, SHARED)]

    def replace(self):
        for path, content in self.files:
            temporary = f"{path}.new"
            descriptor = os.open(temporary, os.O_WRONLY | os.O_CREAT | os.O_TRUNC, 0o600)
            assert os.write(descriptor, content) == len(content)
            os.fsync(descriptor)
            os.close(descriptor)
            os.rename(temporary, path)

    def click(self):
        elapsed = timed(self.replace)
        return elapsed, elapsed

    def close(self):
        pass


class PlistlibScript:
    """Python's plistlib, a process an edit, over files of its own."""

    name = "plistlib"

    def __init__(self, user):
        self.stores = Stores(user)
        self.on = False

    def edit(self):
        files = [str(self.stores.file(domain)) for domain in (LOCAL, SHARED)]
        arguments = [sys.executable, "-c", PLISTLIB_EDIT, *files, COPY_TARGETS, str(int(self.on))]
        elapsed = timed(lambda: subprocess.run(arguments, check=True))
        assert self.stores.local(COPY_TARGETS)[1]["enable"] == int(self.on)
        self.on = not self.on
        return elapsed


class DefaultsScript:
    """The defaults tool: the list is read, one field of the text changed, and both lists written. Numbers become
    strings on the way, and the text has to fit on a command line."""

    name = "defaults"

    def __init__(self, user):
        self.stores = Stores(user)
        self.environment = user.environment()
        self.on = False

    def run(self, *arguments):
        return subprocess.run(
            ["defaults", *arguments], env=self.environment, check=True, capture_output=True, text=True
        ).stdout

    def edit(self):
        def work():
            text = self.run("read", LOCAL, COPY_TARGETS)
            records = text[text.index("(") + 1:text.rindex(")")].split("},")
            records = [record.strip().rstrip("}") + "}" for record in records]
            records[1] = re.sub('enable = "?[01]"?;', f"enable = {int(self.on)};", records[1])
            self.run("write", LOCAL, COPY_TARGETS, "(" + ",".join(records) + ")")
            enabled = [record for record in records if "enable = 0;" not in record]
            self.run("write", SHARED, COPY_TARGETS, "(" + ",".join(enabled) + ")")

        elapsed = timed(work)
        assert self.stores.local(COPY_TARGETS)[1]["enable"] == str(int(self.on))
        self.on = not self.on
        return elapsed


def prepare(application, records, display):
    """A user folder with that many copy targets, as the application leaves it after a launch."""
    user = UserFolder()
    Stores(user).write({**USED, COPY_TARGETS: folder_records(records)})
    program = ClickedProgram(application, user, display)
    program.close()
    return user


def copy_of(user):
    copy = UserFolder()
    for domain in (LOCAL, SHARED):
        shutil.copy(Stores(user).file(domain), Stores(copy).file(domain))
    return copy


def check_same(one, other):
    for domain in (LOCAL, SHARED):
        if Stores(one).read(domain)[COPY_TARGETS] != Stores(other).read(domain)[COPY_TARGETS]:
            raise SystemExit(f"the application and its floor left different lists in {domain}")


def measure_list(build, records, rounds, displays):
    """Medians in milliseconds: of the application, its floor and the disk, until written and until drawn; of the
    scripts."""
    application = build / "edit_application.app" / "edit_application"
    for_application = prepare(application, records, displays[0])
    users = [for_application, *(copy_of(for_application) for _ in range(4))]
    programs = [
        ClickedProgram(application, for_application, displays[0]),
        ClickedProgram(build / "bench" / "edit_floor", users[1], displays[1]),
        Disk(users[4]),
    ]
    clicks = [[] for _ in programs]
    for turn in range(rounds):
        for index, program in enumerate(programs):
            elapsed = program.click()
            if turn > 1:
                clicks[index].append(elapsed)
    for program in programs:
        program.close()
    check_same(*users[:2])
    scripts = {}
    for script in (PlistlibScript(users[2]), DefaultsScript(users[3])):
        try:
            scripts[script.name] = statistics.median(script.edit() for _ in range(max(4, rounds // 10)))
        except OSError:
            # The list does not fit on a command line.
            scripts[script.name] = None
    for user in users:
        user.remove()
    written = [statistics.median(first for first, _ in of_program) for of_program in clicks]
    drawn = [statistics.median(second for _, second in of_program) for of_program in clicks]
    return written, drawn, scripts


def measure(build, one, other, quick):
    rows = []
    for records, rounds in ((10, 100), (100, 100), (1_000, 40), (10_000, 16)):
        if quick:
            rounds = 6 + rounds // 10
        (application, floor, disk), (drawn, *_), scripts = measure_list(build, records, rounds, (one, other))
        ratios = [f"{value / application:.1f}" if value else "too long" for value in scripts.values()]
        rows.append([f"{records:,}", f"{disk:.2f}", f"{application:.2f}", f"{application / disk:.2f}", f"{floor:.2f}",
                     f"{application / floor:.2f}", f"{drawn:.2f}", *ratios])
    print_table(
        "An edit, from the click to both files on disk (ms), as a ratio to the disk's own time for these bytes and to "
        "the floor; and what others take for it, as a ratio to the application",
        ["records", "disk", "application", "to disk", "floor", "to floor", "until drawn", "plistlib", "defaults"], rows)
