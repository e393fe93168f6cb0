"""python3 -m tests.outside.planted_store_mistakes: plants mistakes in stores and template files, without any program,
and sees the model report each."""

import copy
import sys
import tempfile

from harness.stores import ACTIONS, COPY_TARGETS, ICONS, LOCAL, SHARED, TEMPLATES, Stores
from tests.outside.model import ENABLE_ALL, Model

TEMPLATE_RECORDS = [{"displayName": "Letter", "extension": "txt", "enable": "1", "modified": "0"},
                    {"displayName": "Memo", "extension": "txt", "enable": 0, "modified": "1"}]
VALUES = {
    LOCAL: {TEMPLATES: TEMPLATE_RECORDS, ICONS: [{"displayName": "Work", "enable": 1, "icon": b"picture"}], ACTIONS: [],
            ENABLE_ALL[TEMPLATES]: False, ENABLE_ALL[ICONS]: True, ENABLE_ALL[ACTIONS]: True},
    SHARED: {TEMPLATES: TEMPLATE_RECORDS[:1], ICONS: [{"displayName": "Work", "enable": 1, "icon": b"picture"}],
             ACTIONS: []},
}


def in_list(domain, key, row, field, value):
    return lambda values: values[domain][key][row].update({field: value})


# What is done to the values, and what is to be reported.
MISTAKES = (
    (in_list(LOCAL, TEMPLATES, 0, "displayName", "Lettre"), f"stored {TEMPLATES}, row 0: displayName is 'Lettre'"),
    (in_list(LOCAL, TEMPLATES, 0, "enable", 1), f"stored {TEMPLATES}, row 0: enable is 1, not '1'"),
    (in_list(LOCAL, ICONS, 0, "enable", True), f"stored {ICONS}, row 0: enable is True, not 1"),
    (in_list(LOCAL, ICONS, 0, "icon", b"other"), f"stored {ICONS}, row 0: icon is"),
    (in_list(LOCAL, ICONS, 0, "Note", ""), f"stored {ICONS}, row 0: Note is ''"),
    (in_list(SHARED, TEMPLATES, 0, "modified", "1"), f"published {TEMPLATES}, row 0: modified is '1'"),
    (lambda values: values[LOCAL][TEMPLATES].reverse(), f"stored {TEMPLATES}, row 1: displayName is 'Letter'"),
    (lambda values: values[LOCAL][TEMPLATES].pop(), f"stored {TEMPLATES} has 1 records, not 2"),
    (lambda values: values[SHARED].update({TEMPLATES: TEMPLATE_RECORDS}), f"published {TEMPLATES} has 2 records"),
    (lambda values: values[SHARED].pop(ACTIONS), f"published {ACTIONS} is not there"),
    (lambda values: values[SHARED].update({COPY_TARGETS: []}), f"{COPY_TARGETS} is published"),
    (lambda values: values[LOCAL].update({ENABLE_ALL[TEMPLATES]: 0}), f"{ENABLE_ALL[TEMPLATES]} is 0"),
    (lambda values: values[LOCAL].update({f"{ICONS}.unreadable": "text"}), f"{ICONS}.unreadable is there"),
)
FILE_MISTAKES = (
    (lambda folder: (folder / "Letter.txt").unlink(), "template files: [] too many, ['Letter.txt'] missing"),
    (lambda folder: (folder / "Lettre.txt").touch(), "template files: ['Lettre.txt'] too many, [] missing"),
    (lambda folder: (folder / "Memo.txt").write_text("else"), "template file Memo.txt holds something else"),
)


def write(stores, values, files=("Letter.txt", "Memo.txt", "txt.png")):
    for domain, content in values.items():
        stores.write(content, domain)
    for path in stores.template_folder.iterdir():
        path.unlink()
    for name in files:
        (stores.template_folder / name).touch()


def require_reported(model, message):
    found = list(model.differences())
    if len(found) == 0 or not any(line.startswith(message) for line in found):
        sys.exit(f"expected: {message}; reported: {found}")


def main():
    with tempfile.TemporaryDirectory(prefix="tarnwick-planted.") as name:
        stores = Stores(name)
        stores.template_folder.mkdir(parents=True)
        stores.file().parent.mkdir()
        write(stores, VALUES)
        model = Model(stores)
        if found := list(model.differences()):
            sys.exit(f"reported without a mistake: {found}")
        for plant, message in MISTAKES:
            values = copy.deepcopy(VALUES)
            plant(values)
            write(stores, values)
            require_reported(model, message)
        for plant, message in FILE_MISTAKES:
            write(stores, VALUES)
            plant(stores.template_folder)
            require_reported(model, message)
    count = len(MISTAKES) + len(FILE_MISTAKES)
    print(f"planted failures: {count} planted, {count} reported")


if __name__ == "__main__":
    main()
