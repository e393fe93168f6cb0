"""Kills the application at random moments: python3 -m tests.soak.kill EDITOR KILLS [SEED].

After each kill both stores are read by Python's own property-list reader and must be what the journal of the edits
allows; then the next start must work, and leave a template folder without strangers. Ends with status 1 at the first
thing that is wrong."""

import collections
import os
import random
import sys
import time

from harness.stores import ACTIONS, COMMON_FOLDERS, ICONS, LISTS, LOCAL, SHARED, TEMPLATES, USED
from harness.user_folder import Display
from tests.soak.box import Box, Wrong, ask_to_end, require
from tests.soak.checksums import checksum, with_editors
from tests.soak.pictures import is_one_of_them, make_pictures


class Soak:
    def __init__(self, box, seed):
        self.box, self.seed, self.random = box, seed, random.Random(seed)
        self.counts = collections.Counter()
        self.slowest, self.starts, self.icons = 0, 0, 0
        self.local, self.shared = {}, {}
        box.stores.write(USED)
        make_pictures(box.sources)
        self.start_and_end()
        self.factory = self.store(LOCAL)
        (box.root / "factory.plist").write_bytes(box.stores.file().read_bytes())
        self.remember(self.factory, self.store(SHARED))

    def store(self, domain):
        try:
            return self.box.stores.read(domain)
        except Exception as error:
            raise Wrong(f"{domain} does not parse: {error!r}") from error

    def start(self, **settings):
        self.seed += 1
        return self.box.start(seed=self.seed, **settings)

    def wait_ready(self, process, began):
        self.box.wait_ready(process)
        self.slowest = max(self.slowest, time.monotonic() - began)
        self.starts += 1

    def run(self, kills):
        for _ in range(kills):
            began = time.monotonic()
            process = self.start()
            try:
                if self.random.random() < 0.15:
                    time.sleep(self.random.random() * 0.6)
                    self.counts["killed during the start"] += 1
                else:
                    self.wait_ready(process, began)
                    time.sleep(self.random.random() * 1.5)
            finally:
                process.kill()
                process.wait()
            self.check()
            self.check_next_start()

    def start_and_end(self):
        """A start without edits, until everything of it is stored."""
        began = time.monotonic()
        process = self.start(edits=0)
        try:
            self.wait_ready(process, began)
        except Wrong:
            process.kill()
            raise
        # What the launch stores without synchronising is on disk half a second later.
        time.sleep(1)
        ask_to_end(process)

    def allowed(self):
        """What may stand in each list of each store: by key, a set of checksums."""
        local = {key: {self.local[key]} for key in LISTS}
        latest = dict(self.local)
        shared = {key: {self.shared.get(key)} for key in LISTS}
        for key in LISTS:
            if key != COMMON_FOLDERS:
                shared[key].add(self.enabled[key])
        for edit in self.box.journal.announced():
            self.counts[f"{edit.kind} {edit.key}"] += 1
            latest[edit.key] = edit.whole
            if edit.is_done and edit.is_synchronised:
                local = {key: {latest[key]} for key in LISTS}
            else:
                local[edit.key].add(edit.whole)
            if edit.is_done:
                shared[edit.key] = {edit.enabled}
            else:
                shared[edit.key].add(edit.enabled)
                if edit.kind == "reset":
                    shared[edit.key].add(edit.whole)
                self.counts["killed within " + edit.kind] += 1
        return local, shared

    def check(self):
        local, shared = self.store(LOCAL), self.store(SHARED)
        allowed_local, allowed_shared = self.allowed()
        latest = "\n".join(self.box.journal.lines()[-6:])
        for key in LISTS:
            found, published = checksum(local.get(key, [])), checksum(shared[key]) if key in shared else None
            require(found in allowed_local[key],
                    f"{key} is no state before or after an edit: {found}, not {allowed_local[key]}\n{latest}")
            require(published in allowed_shared[key], f"published {key} is no state before or after an edit: "
                    f"{published}, not {allowed_shared[key]}\n{latest}")
        require(not any(key.endswith(".unreadable") for key in local), "a list became unreadable")
        self.check_pictures(local[ICONS])
        self.remember(local, shared)

    def check_pictures(self, icons):
        """Every icon added is the picture that was chosen."""
        for record in icons:
            if record not in self.factory[ICONS] and record["displayName"].endswith(".png"):
                self.icons += 1
                require(is_one_of_them(record["icon"]), f"the icon {record['displayName']} is another picture")

    def remember(self, local, shared):
        self.local = {key: checksum(local.get(key, [])) for key in LISTS}
        # What a launch publishes, if it publishes the list.
        launched = {**local, ACTIONS: with_editors(local[ACTIONS], self.factory[ACTIONS])}
        self.enabled = {key: checksum(launched.get(key, []), True) for key in LISTS}
        self.shared = {key: checksum(shared[key]) for key in LISTS if key in shared}

    def check_next_start(self):
        self.start_and_end()
        local, shared = self.store(LOCAL), self.store(SHARED)
        require({key: checksum(local.get(key, [])) for key in LISTS} == self.local, "the next start changed a list")
        self.remember(local, shared)
        for key in LISTS:
            require(key == COMMON_FOLDERS or self.shared.get(key) == self.enabled[key],
                    f"after the next start, {key} is published otherwise than it is stored")
        self.check_templates(local[TEMPLATES])

    def check_templates(self, records):
        """Every file is a record's template or icon, and whole; every template record has its file."""
        owned = {f"{record['displayName']}.{record['extension']}" for record in records}
        icons = {f"{record['extension']}.png" for record in self.factory[TEMPLATES]}
        names = set(self.box.stores.template_files())
        require(not names - owned - icons, f"template files that belong to nobody: {sorted(names - owned - icons)}")
        require(not owned - names, f"template records without their file: {sorted(owned - names)}")
        for path in self.box.stores.template_folder.glob("N*.txt"):
            text = path.read_text()
            require(len(set(text.splitlines())) <= 1 and text.count("\n") in (0, 20_000),
                    f"half a template file: {path.name}")


def main():
    editor, kills = sys.argv[1], int(sys.argv[2])
    seed = int(sys.argv[3]) if len(sys.argv) > 3 else 1
    with Display() as display, Box(editor, display) as box:
        try:
            soak = Soak(box, seed)
            soak.run(kills)
        except Wrong as wrong:
            sys.exit(f"kill: WRONG (seed {seed}): {wrong}")
    edits = sum(count for name, count in soak.counts.items() if not name.startswith("killed"))
    within = sum(count for name, count in soak.counts.items() if name.startswith("killed within"))
    early = soak.counts["killed during the start"]
    print(f"kill: {kills} kills, {early} of them while starting and {within} within an edit; {edits} edits, "
          f"{soak.starts} starts, the slowest in {soak.slowest:.1f} s; both stores whole after each, "
          f"and every added icon its picture (looked {soak.icons} times)")
    if os.environ.get("TARNWICK_SOAK_COUNTS"):
        print("\n".join(f"  {name}: {count}" for name, count in sorted(soak.counts.items())))


if __name__ == "__main__":
    main()
