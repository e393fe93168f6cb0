#!/usr/bin/env python3
"""Runs the application where things are not as they should be: trouble.py EDITOR [PART ...].

Each part has a throwaway user folder of its own, looks with Python's own property-list reader, and prints a line.
Ends with status 1 when a part is wrong."""

import contextlib
import os
import pathlib
import plistlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

from pictures import make_pictures
from stores import LISTS, LOCAL, SHARED, checksum

USED = {
    "ShownEnableExtensionAlert": True, "enableCopyFilesTo": False,
    "arrOfCommonPath": [{"enable": 1, "realPath": f"/folders/{n}", "displayName": f"Folder {n}"} for n in range(12)],
    "arrOfCopyFilesTo": [{"enable": 0, "realPath": "Undefined", "displayName": ""}],
}


REMOVE = pathlib.Path(__file__).resolve().parents[2] / "script/remove-sandbox"

# Nobody's number.
OTHER_USER = 65534


class Wrong(Exception):
    pass


def require(holds, what):
    if not holds:
        raise Wrong(what)


class Sandbox:
    """A user folder; `defaults` is where the stores are."""

    made = []

    def __init__(self):
        Sandbox.made.append(self)
        self.root = pathlib.Path(tempfile.mkdtemp(prefix="tarnwick.", dir="/tmp"))
        self.defaults, self.library = self.root / "defaults", self.root / "library"
        self.container = self.library / "Group Containers" / SHARED
        for folder in (self.defaults, self.library, self.root / "tmp", self.root / "sources"):
            folder.mkdir()
        (self.root / "GNUstep.conf").write_text(
            f"GNUSTEP_USER_DEFAULTS_DIR={self.defaults}\nGNUSTEP_USER_DIR_LIBRARY={self.library}\n"
            "GNUSTEP_USER_CONFIG_FILE=\n")
        self.output = self.root / "output"
        self.editor, self.other_user = EDITOR, False
        # Also when the application's own file is lost, nothing is to ask for an answer.
        self.write({"ShownEnableExtensionAlert": True}, "NSGlobalDomain")

    def file(self, domain=LOCAL):
        return self.defaults / f"{domain}.plist"

    def write(self, values, domain=LOCAL):
        self.file(domain).write_bytes(plistlib.dumps(values))

    def read(self, domain=LOCAL):
        return plistlib.loads(self.file(domain).read_bytes())

    def environment(self, journal, edits, lists, seed):
        return {**os.environ, "GNUSTEP_CONFIG_FILE": str(self.root / "GNUstep.conf"), "TMP": str(self.root / "tmp"),
                "TEMP": str(self.root / "tmp"), "TARNWICK_SANDBOX": str(self.root), "TARNWICK_SOAK_JOURNAL": journal,
                "TARNWICK_SOAK_EDITS": str(edits), "TARNWICK_SOAK_LISTS": lists, "TARNWICK_SOAK_SEED": str(seed)}

    @contextlib.contextmanager
    def running(self, edits=0, lists="", journal="journal", seed=1, seconds=120, prefix=(), asked_to_end=False):
        """The application, once it is ready; killed at the end, or asked to end."""
        path = self.root / journal
        path.write_text("")
        environment = self.environment(journal, edits, lists, seed)
        if self.other_user:
            os.chown(path, OTHER_USER, OTHER_USER)
            prefix = ["setpriv", f"--reuid={OTHER_USER}", f"--regid={OTHER_USER}", "--clear-groups", *prefix]
        with open(self.output, "ab") as output:
            process = subprocess.Popen([*prefix, self.editor], stdout=output, stderr=output, env=environment)
        try:
            wait(lambda: path.read_text().startswith("ready") or process.poll() is not None, seconds,
                 "the application does not start")
            require(process.poll() is None, f"the application ends by itself: {self.said()[-1500:]}")
            yield process
            require(process.poll() is None, f"the application ended by itself: {self.said()[-1500:]}")
            if asked_to_end:
                process.terminate()
                wait(lambda: process.poll() is not None, 20, "the application does not end when asked to")
        finally:
            process.kill()
            process.wait()

    def copy_application(self):
        """The sandbox has an application of its own from now on; gives its folder."""
        bundle = pathlib.Path(EDITOR).parent
        shutil.copytree(bundle, self.root / bundle.name)
        self.editor = str(self.root / bundle.name / pathlib.Path(EDITOR).name)
        return self.root / bundle.name

    def become_other_user(self):
        """The application runs as nobody from now on, and may write in no folder but that of temporary files."""
        self.copy_application()
        self.root.chmod(0o755)
        shutil.rmtree(self.root / "tmp")
        (self.root / "tmp").mkdir()
        for path in (self.root / "sources", self.root / "tmp"):
            os.chown(path, OTHER_USER, OTHER_USER)
        self.other_user = True

    def edits(self, journal="journal"):
        """The edits done, the latest last: (list, checksums as the application's model has them)."""
        lines = (self.root / journal).read_text().splitlines()
        return [line.split(" ") for line, after in zip(lines, lines[1:]) if line.startswith("edit") and after == "done"]

    def said(self):
        return self.output.read_text(errors="replace")

    def remove(self):
        subprocess.run([REMOVE, self.root], check=True)


def wait(condition, seconds, what):
    end = time.monotonic() + seconds
    while not condition():
        require(time.monotonic() < end, what)
        time.sleep(0.02)


def wait_until_quiet(*journals):
    """Until nothing has been edited for longer than storing takes."""
    sizes, since, end = None, time.monotonic(), time.monotonic() + 120
    while time.monotonic() - since < 8:
        now = [path.stat().st_size for path in journals]
        if now != sizes:
            sizes, since = now, time.monotonic()
        require(time.monotonic() < end, "the edits do not end")
        time.sleep(0.1)


def settle():
    """Longer than what is stored without synchronising takes."""
    time.sleep(1.5)


def prepared():
    """A user folder after a launch over settings that have been used."""
    box = Sandbox()
    box.write(USED)
    with box.running():
        settle()
    return box


@contextlib.contextmanager
def small_disk(folder, size):
    """`folder` on a disk of its own with its files on it."""
    kept = folder.with_name(folder.name + ".kept")
    shutil.copytree(folder, kept)
    subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}", "tmpfs", folder], check=True)
    shutil.copytree(kept, folder, dirs_exist_ok=True)
    try:
        yield
    finally:
        subprocess.run(["umount", "-l", folder], check=True)


def fill(folder):
    descriptor = os.open(folder / "filling", os.O_WRONLY | os.O_CREAT)
    with contextlib.suppress(OSError):
        while True:
            os.write(descriptor, b"x" * 4096)
    os.close(descriptor)


def full_disk():
    box = prepared()
    with small_disk(box.defaults, "8m"):
        before = box.read()
        with box.running(edits=30, lists="12"):
            settle()
        require(box.read() != before, "there is nothing to test: no edit was stored while there was room")
        before = (box.file().read_bytes(), box.file(SHARED).read_bytes())
        fill(box.defaults)
        offset = len(box.said())
        with box.running(edits=40, lists="12", seed=2):
            wait(lambda: len(box.edits()) > 10, 60, "the application does not go on")
            done = len(box.edits())
            require((box.file().read_bytes(), box.file(SHARED).read_bytes()) == before, "a stored file changed")
            complaints = [line for line in box.said()[offset:].splitlines() if "cannot be written" in line]
            require(len(complaints) in (1, 2), f"said {len(complaints)} times, not once a file: {complaints[:4]}")
            (box.defaults / "filling").unlink()
        strays = [path.name for path in box.defaults.iterdir() if path.name.endswith(".tmp")]
        require(not strays, f"left behind: {strays}")
    box.remove()
    return f"{done} edits on a full disk, nothing stored was lost, said {len(complaints)} times"


@contextlib.contextmanager
def read_only(folder):
    """A mount, because permissions do not bind the superuser."""
    subprocess.run(["mount", "--bind", folder, folder], check=True)
    subprocess.run(["mount", "-o", "remount,ro,bind", folder], check=True)
    try:
        yield
    finally:
        subprocess.run(["umount", "-l", folder], check=True)


def unwritable_store():
    box = prepared()
    before = (box.file().read_bytes(), box.file(SHARED).read_bytes())
    offset = len(box.said())
    with read_only(box.defaults), box.running(edits=20, lists="12"):
        settle()
        done = len(box.edits())
    require(done > 5, "the application does not go on")
    require((box.file().read_bytes(), box.file(SHARED).read_bytes()) == before, "a stored file changed")
    complaints = [line for line in box.said()[offset:].splitlines() if "cannot be written" in line]
    require(len(complaints) in (1, 2), f"said {len(complaints)} times, not once a file")
    with box.running():
        settle()
    require(box.read()["arrOfCommonPath"] == USED["arrOfCommonPath"], "a later start lost a list")
    box.remove()
    return f"{done} edits over a read-only folder, nothing stored was lost, said {len(complaints)} times"


def other_user():
    """The application runs as one who does not own the stores: not readable, or not writable, in a folder that is not
    or that is writable."""
    count = 0
    for mode, folder_mode in ((0o600, 0o755), (0o644, 0o755), (0o600, 0o777)):
        box = prepared()
        files = [box.file(), box.file(SHARED)]
        before = [path.read_bytes() for path in files]
        for path in files:
            path.chmod(mode)
        for folder in (box.defaults, box.defaults / ".lck"):
            folder.chmod(folder_mode)
        box.become_other_user()
        offset = len(box.said())
        with box.running(edits=20, lists="12", asked_to_end=True):
            settle()
            done = len(box.edits())
        which = f"{mode:o} in a folder {folder_mode:o}"
        require(done > 5, f"{which}: the application does not go on")
        require([path.read_bytes() for path in files] == before, f"{which}: a stored file changed")
        strays = [path.name for path in box.defaults.iterdir() if ".damaged" in path.name or ".tmp" in path.name]
        require(not strays, f"{which}: left behind: {strays}")
        lines = box.said()[offset:].splitlines()
        for path in files:
            for words, expected in (("cannot be opened", mode == 0o600), ("cannot be written", True)):
                found = [line for line in lines if f"{path} {words}" in line]
                require(len(found) == expected, f"{which}: said {len(found)} times: {path.name} {words}")
        count += done
        box.remove()
    return f"{count} edits over another user's files, neither file changed, said once each"


def remove_resources(bundle):
    """All that the application has beside its program and the description of its bundle."""
    count = 0
    for path in sorted((bundle / "Resources").rglob("*"), reverse=True):
        if path.is_dir():
            path.rmdir() if not any(path.iterdir()) else None
        elif path.name != "Info-gnustep.plist":
            path.unlink()
            count += 1
    return count


def vanished_resource():
    """Everything beside the program and the template folder, while the application runs; then starts without, and a first
    launch without, which a whole bundle must make good."""
    box = prepared()
    make_pictures(box.root / "sources")
    bundle = box.copy_application()
    before = box.read()
    with box.running(edits=300, lists="123", asked_to_end=True):
        wait(lambda: len(box.edits()) > 10, 60, "the application does not begin")
        count = remove_resources(bundle)
        shutil.rmtree(box.container / "Templates")
        done = -len(box.edits())
        wait_until_quiet(box.root / "journal")
        done += len(box.edits())
    require(count > 80 and done > 50, f"too little to test: {count} resources, {done} edits")
    after = box.read()
    last = {line[2]: line[4] for line in box.edits()}
    for key in LISTS:
        require(checksum(after[key]) == last.get(key, checksum(before[key])), f"{key} is not as it was left")
    with box.running(asked_to_end=True):
        settle()
    require({key: box.read()[key] for key in LISTS} == {key: after[key] for key in LISTS}, "a start changed a list")

    for path in (box.file(), box.file(SHARED)):
        path.unlink()
    offset = len(box.said())
    with box.running(asked_to_end=True):
        settle()
    said = re.findall('application\'s image ".*" is missing', box.said()[offset:])
    require(said and len(said) == len(set(said)), f"said {said}")
    shutil.rmtree(bundle)
    box.copy_application()
    with box.running():
        settle()
    for key in ("arrOfCustomIcon", "arrOfOthers"):
        require(checksum(box.read()[key]) == checksum(before[key]), f"a whole bundle does not bring {key} back")
    icons = box.container / "Templates/FunctionIcon"
    require(any(icons.iterdir()), "a whole bundle does not bring the extension's icons back")
    require("exception" not in box.said().lower(), "an exception")
    box.remove()
    return f"{done} edits after {count} resources had vanished, and starts without them; no list changed"


def read_only_container():
    box = prepared()
    names = sorted(path.name for path in (box.container / "Templates/CreateNewFile").iterdir())
    before = box.read()["arrOfCreateNewFile"]
    with read_only(box.container), box.running(edits=20, lists="0"):
        settle()
    require(sorted(path.name for path in (box.container / "Templates/CreateNewFile").iterdir()) == names,
            "a template changed")
    require(len(box.read()["arrOfCreateNewFile"]) >= 10 and before, "the template list is gone")
    done = len(box.edits())
    box.remove()
    return f"{done} edits over a read-only container, the templates stayed"


def missing_container():
    box = prepared()
    templates = box.read()["arrOfCreateNewFile"]
    shutil.rmtree(box.library)
    box.library.write_text("a file where the folder should be")
    with box.running(edits=20, lists="12"):
        settle()
        done = len(box.edits())
    after = box.read()
    require(done > 5, "the application does not go on")
    kept = [value for key, value in after.items() if key.startswith("arrOfCreateNewFile")]
    require(templates in kept, "the template list is gone")
    box.remove()
    return f"{done} edits without a container, the lists stayed"


DEEP = 200_000


def damaged_files():
    """Contents of a settings file that are no settings."""
    whole = plistlib.dumps(USED)
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
    yield "a binary cut off", plistlib.dumps(USED, fmt=plistlib.FMT_BINARY)[:100]


def damaged_stores():
    count = 0
    for domain in (LOCAL, SHARED):
        for name, content in damaged_files():
            box = Sandbox()
            box.write(USED)
            box.file(domain).write_bytes(content)
            try:
                with box.running(edits=0):
                    settle()
            except Wrong as wrong:
                raise Wrong(f"{domain}, {name}: {wrong}")
            box.read(domain)
            kept = [path for path in box.defaults.glob(f"{domain}.plist.damaged-*") if path.read_bytes() == content]
            require(len(kept) == 1, f"{domain}, {name}: the damaged file is not kept aside")
            require("cannot be read; moved to" in box.said(), f"{domain}, {name}: nothing is said")
            box.remove()
            count += 1
    return f"{count} damaged files, each kept aside, each start worked"


def wrong_types():
    values = ["text", 7, True, 1.5, b"data", [], ["text"], {}, {"a": 1}, [[{}]], [{"enable": []}], [{"icon": "x"}]]
    keys = [*LISTS, "enableCopyFilesTo", "soundTipsOfNewFile", "enableAllOfOthers", "prePathOfCommonPath",
            "enableImagetoIcon", "ShownEnableExtensionAlert"]
    for value in values:
        box = Sandbox()
        stored = {key: value for key in keys}
        stored["ShownEnableExtensionAlert"] = True
        box.write(stored)
        box.write({"arrOfEnableOther": value, **{key: value for key in LISTS}}, SHARED)
        try:
            with box.running():
                settle()
        except Wrong as wrong:
            raise Wrong(f"{value!r} everywhere: {wrong}")
        after = box.read()
        for key in LISTS:
            places = [after[place] for place in after if place == key or place.startswith(f"{key}.unreadable")]
            empty = value in ([], {})
            require(empty or value in places or all(any(item in place for place in places) for item in value),
                    f"{value!r} under {key} is gone")
        box.remove()
    return f"{len(values)} wrong kinds of value at {len(keys) + 6} places, all kept"


def big_stores():
    said = []
    for name, records in (
            ("100 MB", [{"enable": 1, "displayName": f"I{n}", "modified": "1", "icon": os.urandom(1 << 20)}
                        for n in range(100)]),
            ("100,000 records", [{"enable": 1, "realPath": f"/folders/{n}", "displayName": f"F{n}"}
                                 for n in range(100_000)])):
        box = Sandbox()
        key = "arrOfCustomIcon" if "MB" in name else "arrOfCommonPath"
        box.write({"ShownEnableExtensionAlert": True, key: records})
        began = time.monotonic()
        with box.running(edits=1, lists="1", seconds=300):
            seconds = time.monotonic() - began
            time.sleep(2 + seconds)
        require(box.read()[key] == records, f"{name}: the list changed")
        box.remove()
        said.append(f"{name}: started in {seconds:.1f} s")
    return ", ".join(said)


def two_instances():
    box = prepared()
    with box.running(edits=300, lists="2", journal="one"), box.running(edits=300, lists="1", journal="two", seed=7):
        alone = len(box.edits("one"))
        wait_until_quiet(box.root / "one", box.root / "two")
    after, shared = box.read(), box.read(SHARED)
    one, two = len(box.edits("one")) - alone, len(box.edits("two"))
    # Not every try is an edit.
    require(one + alone > 150 and two > 150, f"one stands still: {alone} + {one} and {two} edits")
    require(one > 50, f"hardly at the same time: {one} and {two} edits")
    for journal, key in (("one", "arrOfCommonPath"), ("two", "arrOfCopyFilesTo")):
        require(checksum(after[key]) == box.edits(journal)[-1][4], f"{key} is not as its last editor left it")
        require(checksum(shared[key], True) == box.edits(journal)[-1][5], f"{key} is published otherwise")
    box.remove()
    return f"{one} and {two} edits of two lists at the same time, both lists as their editors left them"


def foreign_program():
    box = prepared()
    environment = box.environment("journal", 0, "", 1)
    with box.running(edits=60, lists="2"):
        for number in range(10):
            subprocess.run(["defaults", "write", LOCAL, f"Foreign{number}", f"value {number}"], env=environment,
                           check=True, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            # As the application does it: under the lock beside the file.
            subprocess.run(["flock", f"{box.file(SHARED)}.lock", sys.executable, "-c", MERGE, box.file(SHARED),
                            f"Foreign{number}"], check=True)
        wait_until_quiet(box.root / "journal")
    after, shared = box.read(), box.read(SHARED)
    require(all(after.get(f"Foreign{n}") == f"value {n}" for n in range(10)), "a foreign value of the domain is gone")
    require(all(shared.get(f"Foreign{n}") == 1 for n in range(10)), "a foreign value of the suite is gone")
    require(checksum(after["arrOfCommonPath"]) == box.edits()[-1][4], "the list is not as it was left")
    done = len(box.edits())
    box.remove()
    return f"{done} edits, and 10 foreign values in each store meanwhile; all there"


MERGE = """
import os, plistlib, sys
path, key = sys.argv[1:]
values = plistlib.load(open(path, 'rb'))
values[key] = 1
plistlib.dump(values, open(path + '.foreign', 'wb'))
os.replace(path + '.foreign', path)
"""

NAMES = ["a/b/../c", "..", ".", "", "a\0b", "control \x01\x1b\x7f", "line\nand\ttab", "x" * 20_000, "wide " * 3_000,
         "\u05e9\u05dc\u05d5\u05dd \u0645\u0631\u062d\u0628\u0627 \u202e reversed", "e\u0301\u0323" + "\u0300" * 400,
         "\U0001f5c2 \U0001f468\u200d\U0001f469\u200d\U0001f467", "<&>\"'%@%s%n\\", "not \ufffe\uffff", " \u2028 "]


# Settings files are XML on Linux.
UNSTORABLE = re.compile("[\\x00-\\x08\\x0b\\x0c\\x0e-\\x1f\\ufffe\\uffff]")


def names():
    shown = os.environ.get("TARNWICK_SOAK_PICTURES")
    for number, name in enumerate(NAMES):
        box = Sandbox()
        box.write(USED)
        with box.running():
            settle()
        (box.root / "name").write_bytes(name.encode())
        try:
            with box.running():
                settle()
                if shown:
                    subprocess.run(["import", "-window", "root", f"{shown}/name-{number}.png"], check=True)
            stored = box.read()
            box.read(SHARED)
            name = UNSTORABLE.sub("\ufffd", name)
            for key in LISTS:
                found = stored[key][0]["displayName"]
                require(found == name, f"{key} holds {found[:60]!r}")
            require(stored["arrOfOthers"][0]["Note"] == name, "the note is another")
            (box.root / "name").unlink()
            with box.running():
                settle()
            require([box.read()[key][0]["displayName"] for key in LISTS] == [name] * 5, "a later start changed it")
        except Exception as wrong:
            raise Wrong(f"{name[:40]!r}: {wrong!r}")
        box.remove()
    return f"{len(NAMES)} names in every list, stored and read again as they were given"


PARTS = {
    "full-disk": full_disk, "unwritable-store": unwritable_store, "read-only-container": read_only_container,
    "missing-container": missing_container, "damaged-stores": damaged_stores, "wrong-types": wrong_types,
    "big-stores": big_stores, "two-instances": two_instances, "foreign-program": foreign_program,
    "names": names, "other-user": other_user,
    "vanished-resource": vanished_resource,
}


def main():
    global EDITOR
    EDITOR = sys.argv[1]
    failed = False
    for name in sys.argv[2:] or PARTS:
        try:
            print(f"{name}: {PARTS[name]()}", flush=True)
        except Exception as wrong:
            failed = True
            print(f"{name}: WRONG: {wrong!r}", flush=True)
        finally:
            for box in Sandbox.made:
                box.remove()
            Sandbox.made.clear()
    sys.exit(failed)


main()
