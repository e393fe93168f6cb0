"""What both stores and the template folder must hold after what a person has done, by simple rules of its own."""

import copy
import re
from typing import NamedTuple

from harness.stores import ACTIONS, COPY_TARGETS, ICONS, LISTS, SHARED, TEMPLATES, is_on, typed
from harness.waiting import NotSeen, wait_until

FIXED_ACTIONS = ["Change to QR Code", "Translate by Google", "Translate by Baidu"]
ENABLE_ALL = {TEMPLATES: "enableAllOfCreateNewFiles", ICONS: "enableAllOfCustomIcon", ACTIONS: "enableAllOfOthers"}
# Mark, then text, of the columns that can be edited.
EDITED = {
    "NewFileDisplayName": ("modified", "displayName"), "Note": (None, "displayName"),
    "commonPathDisplayName": (None, "displayName"), "CustomIconName": ("modified", "displayName"),
    "OthersDisplayName": ("nameModified", "displayName"), "OthersNote": ("noteModified", "Note"),
}
# Settings files are XML on Linux.
UNSTORABLE = re.compile("[\x00-\x08\x0b\x0c\x0e-\x1f\ufffe\uffff]")
LONGEST_FILE_NAME = 255


def file_of(record):
    return f"{record['displayName']}.{record['extension']}"


def expect_none(differences, what):
    """Once there is none."""
    found = []

    def holds():
        try:
            found[:] = differences()
        except FileNotFoundError as error:
            # A template file that is just taken away.
            found[:] = [str(error)]
        return not found

    try:
        wait_until(holds, what, 10)
    except NotSeen:
        raise NotSeen(f"{what}: " + "; ".join(found[:6])) from None


class Step(NamedTuple):
    """What undo, or redo, brings back."""

    key: str
    records: list
    files: dict


class Model:
    """Begins with what a start has stored; lists that then are the factory's are what a reset brings back."""

    def __init__(self, stores):
        self.stores = stores
        values = stores.read()
        self.lists = {key: values.get(key, []) for key in LISTS}
        self.files = stores.template_files()
        self.factory = copy.deepcopy((self.lists, self.files))
        self.steps, self.undone = [], []
        # The extension is told of common folders only when they change.
        self.published = {key for key in LISTS if key in stores.read(SHARED)}

    # What a person does; rows and gaps are counted from the top of the list

    def changed(self, key, records, files=None):
        """One step of undo, unless nothing is another than before."""
        files = self.files if files is None else files
        if typed([records, files]) != typed([self.lists[key], self.files]):
            self.steps.append(Step(key, self.lists[key], self.files))
            self.undone.clear()
        self.put(key, records, files)

    def put(self, key, records, files):
        self.lists[key], self.files = records, files
        self.published.add(key)

    def undo(self):
        """The key of the list that is another then; none when there is nothing to undo."""
        return self.step_over(self.steps, self.undone)

    def redo(self):
        return self.step_over(self.undone, self.steps)

    def step_over(self, taken, kept):
        if not taken:
            return None
        step = taken.pop()
        kept.append(Step(step.key, self.lists[step.key], self.files))
        self.put(*step)
        return step.key

    def remove(self, key, row):
        """The row that is selected afterwards; none in an empty list."""
        records = list(self.lists[key])
        removed = records.pop(row)
        files = dict(self.files)
        if key == TEMPLATES:
            files.pop(file_of(removed), None)
        self.changed(key, records, files)
        return max(row - 1, 0) if records else None

    def lose(self, key, record):
        """A template whose file could not be kept, in this state and in all earlier ones."""
        def without(records, files):
            kept = [other for other in records if file_of(other) != file_of(record)]
            return kept, {name: held for name, held in files.items() if name != file_of(record)}

        self.put(key, *without(self.lists[key], self.files))
        self.steps = [Step(step.key, *without(step.records, step.files)) for step in self.steps]
        self.undone.clear()

    def toggle(self, key, row, field="enable"):
        record = self.lists[key][row]
        if record.get("Action") in FIXED_ACTIONS:
            return
        on = not is_on(record, field) and record.get("realPath") != "Undefined"
        self.replace(key, row, {field: int(on)})

    def enable_all(self, key, on):
        self.changed(key, [{**record, "enable": 1 if record.get("Action") in FIXED_ACTIONS else on}
                           for record in self.lists[key]])

    def is_all_on(self, key):
        return all(is_on(record) for record in self.lists[key])

    def edit(self, key, row, column, text):
        records = list(self.lists[key])
        mark, field = EDITED[column]
        records[row] = {**records[row], **({mark: "1"} if mark else {}), field: UNSTORABLE.sub("\ufffd", text)}
        files = dict(self.files)
        if key == TEMPLATES:
            old, new = file_of(self.lists[key][row]), file_of(records[row])
            if old in files and new not in files and "/" not in new and len(new.encode()) <= LONGEST_FILE_NAME:
                files[new] = files.pop(old)
        self.changed(key, records, files)

    def drop(self, key, row, gap):
        """Into the gap above row `gap`. One that is taken downwards lands a place further down."""
        records = list(self.lists[key])
        if records[row].get("Action") in FIXED_ACTIONS:
            return
        counted = len(self.lists[ICONS if key == ACTIONS else key])
        place = gap - 1 if gap == counted else gap
        if 0 <= place < len(records):
            records.insert(place, records.pop(row))
            self.changed(key, records)

    def reset(self, key):
        lists, files = copy.deepcopy(self.factory)
        self.changed(key, lists[key], files if key == TEMPLATES else None)

    def add_folders(self, key, *paths):
        self.changed(key, self.lists[key] + [
            {"enable": 1, "realPath": path, "displayName": path.rpartition("/")[2]} for path in paths])

    def choose_folder(self, row, path):
        self.replace(COPY_TARGETS, row, {"realPath": path, "displayName": ""})

    def replace(self, key, row, fields):
        records = list(self.lists[key])
        records[row] = {**records[row], **fields}
        self.changed(key, records)

    def adopt(self, key):
        """Takes a list on as it is stored, and the template files; for what a person cannot tell beforehand."""
        self.changed(key, self.stores.local(key), self.stores.template_files())

    # What is there

    def differences(self):
        local, shared = self.stores.read(), self.stores.read(SHARED)
        for key in LISTS:
            yield from self.differences_of_list(f"stored {key}", self.lists[key], local.get(key, []))
            enabled = [record for record in self.lists[key] if is_on(record)]
            if key in self.published:
                yield from self.differences_of_list(f"published {key}", enabled, shared.get(key))
            elif key in shared:
                yield f"{key} is published"
        for key, flag in ENABLE_ALL.items():
            if typed(local.get(flag)) != typed(self.is_all_on(key)):
                yield f"{flag} is {local.get(flag)!r}"
        files = self.stores.template_files()
        if files.keys() != self.files.keys():
            yield (f"template files: {sorted(files.keys() - self.files.keys())} too many, "
                   f"{sorted(self.files.keys() - files.keys())} missing")
        yield from (f"template file {name} holds something else" for name in files.keys() & self.files.keys()
                    if files[name] != self.files[name])
        yield from (f"{key} is there" for key in local if key.endswith(".unreadable"))

    @staticmethod
    def differences_of_list(name, expected, found):
        if found is None:
            yield f"{name} is not there"
        elif len(found) != len(expected):
            yield f"{name} has {len(found)} records, not {len(expected)}"
        else:
            for row, (one, other) in enumerate(zip(expected, found)):
                fields = [field for field in {**one, **other} if typed(one.get(field)) != typed(other.get(field))]
                if fields:
                    yield f"{name}, row {row}: " + ", ".join(
                        f"{field} is {other.get(field)!r:.60}, not {one.get(field)!r:.60}" for field in fields)

    def expect(self, what):
        """Once it is so. What is not synchronised is stored half a second later."""
        expect_none(self.differences, what)
