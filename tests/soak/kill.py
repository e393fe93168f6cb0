#!/usr/bin/env python3
"""Kills the application at random moments: kill.py EDITOR SANDBOX KILLS [SEED].

After each kill both stores are read by Python's own property-list reader and must be what the journal of the edits
allows; then the next start must work, and leave a template folder without strangers. Ends with status 1 at the first
thing that is wrong."""

import collections
import os
import pathlib
import plistlib
import random
import signal
import subprocess
import sys
import time

from pictures import is_one_of_them, make_pictures
from stores import LISTS, LOCAL, SHARED, checksum, with_editors

START_SECONDS = 60


class Wrong(Exception):
    pass


class Soak:
    def __init__(self, editor, sandbox, seed):
        self.editor, self.sandbox, self.random = editor, pathlib.Path(sandbox), random.Random(seed)
        self.seed = seed
        self.defaults = self.sandbox / "defaults"
        self.templates = self.sandbox / "library/Group Containers" / SHARED / "Templates/CreateNewFile"
        self.journal = self.sandbox / "journal"
        self.counts = collections.Counter()
        self.local, self.shared = {}, {}
        (self.sandbox / "sources").mkdir(exist_ok=True)
        make_pictures(self.sandbox / "sources")

    def store(self, name):
        try:
            return plistlib.loads((self.defaults / f"{name}.plist").read_bytes())
        except Exception as error:
            raise Wrong(f"{name} does not parse: {error!r}")

    def start(self, **settings):
        """Starts the application; its journal begins anew."""
        self.journal.write_text("")
        self.seed += 1
        log = open(self.sandbox / "output", "wb")
        return subprocess.Popen([self.editor], stdout=log, stderr=log, start_new_session=True,
                                env={**os.environ, "TARNWICK_SOAK_SEED": str(self.seed), **settings})

    def lines(self):
        text = self.journal.read_text()
        return [line.split(" ") for line in text[:text.rfind("\n") + 1].splitlines()]

    def wait_ready(self, process):
        end = time.monotonic() + START_SECONDS
        while not self.journal.read_text().startswith("ready"):
            if process.poll() is not None or time.monotonic() > end:
                output = (self.sandbox / "output").read_text(errors="replace")[-2000:]
                raise Wrong(f"the next start does not work (status {process.poll()}):\n{output}")
            time.sleep(0.01)

    def kill(self, process):
        process.send_signal(signal.SIGKILL)
        process.wait()

    def allowed(self, lines):
        """What may stand in each list of each store: by key, a set of checksums."""
        local = {key: {self.local[key]} for key in LISTS}
        latest = dict(self.local)
        shared = {key: {self.shared.get(key)} for key in LISTS}
        for key in LISTS:
            if key != "arrOfCommonPath":
                shared[key].add(self.enabled[key])
        for index, line in enumerate(lines):
            if line[0] != "edit":
                continue
            _, name, key, synchronised, whole, enabled = line[:6]
            done = index + 1 < len(lines)
            self.counts[f"{name} {key}"] += 1
            latest[key] = whole
            if done and synchronised == "1":
                local = {other: {latest[other]} for other in LISTS}
            else:
                local[key].add(whole)
            if done:
                shared[key] = {enabled}
            else:
                shared[key].add(enabled)
                if name == "reset":
                    shared[key].add(whole)
                self.counts["killed within " + name] += 1
        return local, shared

    def check(self, lines):
        local, shared = self.store(LOCAL), self.store(SHARED)
        allowed_local, allowed_shared = self.allowed(lines)
        for key in LISTS:
            found = checksum(local.get(key, []))
            if found not in allowed_local[key]:
                raise Wrong(f"{key} is no state before or after an edit: {found}, not {allowed_local[key]}\n"
                            + "\n".join(" ".join(line[:6]) for line in lines[-6:]))
            published = checksum(shared[key]) if key in shared else None
            if published not in allowed_shared[key]:
                raise Wrong(f"published {key} is no state before or after an edit: {published}, "
                            f"not {allowed_shared[key]}\n" + "\n".join(" ".join(line[:6]) for line in lines[-6:]))
        if any(key.endswith(".unreadable") for key in local):
            raise Wrong("a list became unreadable")
        self.check_pictures(local["arrOfCustomIcon"])
        self.remember(local, shared)

    def check_pictures(self, icons):
        """Every icon added is the picture that was chosen."""
        for record in icons:
            if record not in self.factory["arrOfCustomIcon"] and record["displayName"].endswith(".png"):
                self.icons += 1
                if not is_one_of_them(record["icon"]):
                    raise Wrong(f"the icon {record['displayName']} is another picture")

    def remember(self, local, shared):
        self.local = {key: checksum(local.get(key, [])) for key in LISTS}
        # What a launch publishes, if it publishes the list.
        launched = {**local, "arrOfOthers": with_editors(local["arrOfOthers"], self.factory["arrOfOthers"])}
        self.enabled = {key: checksum(launched.get(key, []), True) for key in LISTS}
        self.shared = {key: checksum(shared[key]) for key in LISTS if key in shared}

    def check_templates(self):
        """After the next start: every file is a record's template or icon, and whole; every template record has its file."""
        records = self.store(LOCAL)["arrOfCreateNewFile"]
        owned = {f"{record['displayName']}.{record['extension']}" for record in records}
        icons = {f"{record['extension']}.png" for record in self.factory["arrOfCreateNewFile"]}
        names = {path.name for path in self.templates.iterdir()}
        if strangers := names - owned - icons:
            raise Wrong(f"template files that belong to nobody: {sorted(strangers)}")
        if missing := owned - names:
            raise Wrong(f"template records without their file: {sorted(missing)}")
        for path in self.templates.glob("N*.txt"):
            text = path.read_text()
            if text and len(set(text.splitlines())) != 1 or text.count("\n") not in (0, 20_000):
                raise Wrong(f"half a template file: {path.name}")

    def run(self, kills):
        self.prepare()
        for number in range(kills):
            early = self.random.random() < 0.15
            process = self.start()
            try:
                if early:
                    time.sleep(self.random.random() * 0.6)
                    self.counts["killed during the start"] += 1
                else:
                    began = time.monotonic()
                    self.wait_ready(process)
                    self.slowest = max(self.slowest, time.monotonic() - began)
                    self.starts += 1
                    time.sleep(self.random.random() * 1.5)
            finally:
                self.kill(process)
            self.check(self.lines())
            self.after_next_start()

    def prepare(self):
        self.slowest, self.starts, self.icons = 0, 0, 0
        process = self.start_idle()
        self.stop_idle(process)
        local = self.store(LOCAL)
        self.factory = local
        (self.sandbox / "factory.plist").write_bytes((self.defaults / f"{LOCAL}.plist").read_bytes())
        self.remember(local, self.store(SHARED))

    def start_idle(self):
        """A start without edits, until everything of it is stored."""
        process = self.start(TARNWICK_SOAK_EDITS="0")
        self.wait_ready(process)
        # What the launch stores without synchronising is on disk half a second later.
        time.sleep(1)
        return process

    def stop_idle(self, process):
        process.terminate()
        try:
            process.wait(20)
        except subprocess.TimeoutExpired:
            self.kill(process)
            raise Wrong("the application does not end when asked to")

    def after_next_start(self):
        began = time.monotonic()
        process = self.start_idle()
        self.slowest = max(self.slowest, time.monotonic() - began)
        self.starts += 1
        self.stop_idle(process)
        local, shared = self.store(LOCAL), self.store(SHARED)
        if {key: checksum(local.get(key, [])) for key in LISTS} != self.local:
            raise Wrong("the next start changed a list")
        self.remember(local, shared)
        for key in LISTS:
            if key != "arrOfCommonPath" and self.shared.get(key) != self.enabled[key]:
                raise Wrong(f"after the next start, {key} is published otherwise than it is stored")
        self.check_templates()


def main():
    editor, sandbox, kills = sys.argv[1], sys.argv[2], int(sys.argv[3])
    soak = Soak(editor, sandbox, int(sys.argv[4]) if len(sys.argv) > 4 else 1)
    try:
        soak.run(kills)
    except Wrong as wrong:
        print(f"kill: WRONG: {wrong}", file=sys.stderr)
        sys.exit(1)
    edits = sum(count for name, count in soak.counts.items() if not name.startswith("killed"))
    within = sum(count for name, count in soak.counts.items() if name.startswith("killed within"))
    early = soak.counts["killed during the start"]
    print(f"kill: {kills} kills, {early} of them while starting and {within} within an edit; {edits} edits, "
          f"{soak.starts} starts, the slowest in {soak.slowest:.1f} s; both stores whole after each, "
          f"and every added icon its picture (looked {soak.icons} times)")
    if os.environ.get("TARNWICK_SOAK_COUNTS"):
        print("\n".join(f"  {name}: {count}" for name, count in sorted(soak.counts.items())))


main()
