"""Runs the application where things are not as they should be: python3 -m tests.soak.trouble EDITOR [PART ...].

Each part has throwaway user folders of its own, looks with Python's own property-list reader, and prints a line. Ends
with status 1 when a part is wrong."""

import sys

from harness.user_folder import Display
from tests.soak import contents, disks, neighbours, resources
from tests.soak.box import Boxes

PARTS = {
    part.__name__.replace("_", "-"): part for part in (
        disks.full_disk, disks.unwritable_store, disks.other_user, disks.read_only_container, disks.missing_container,
        contents.damaged_stores, contents.wrong_types, contents.big_stores, contents.names,
        neighbours.two_instances, neighbours.foreign_program, resources.vanished_resource)
}


def main():
    editor, names = sys.argv[1], sys.argv[2:] or PARTS
    failed = False
    with Display() as display:
        for name in names:
            with Boxes(editor, display) as boxes:
                try:
                    print(f"{name}: {PARTS[name](boxes)}", flush=True)
                except Exception as wrong:
                    failed = True
                    print(f"{name}: WRONG: {wrong!r}", flush=True)
    sys.exit(failed)


if __name__ == "__main__":
    main()
