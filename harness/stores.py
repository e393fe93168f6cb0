#!/usr/bin/python3 -IS
"""The application's two stores and its container as files, read with Python's own property-list reader.

stores.py DOMAIN EXPRESSION prints what a Python expression gives over `d`, the values of that domain, and `size`, the
bytes of its file; stores.py --container FOLDER what is in a folder of the container. Both are those of the user folder
that TARNWICK_USER_FOLDER names."""

import os
import pathlib
import plistlib
import sys

LOCAL, SHARED = "org.halvane.Tarnwick", "H7Q2ZK5RX9.org.halvane.Tarnwick"
GLOBAL = "NSGlobalDomain"
LISTS = ["arrOfCreateNewFile", "arrOfCopyFilesTo", "arrOfCommonPath", "arrOfCustomIcon", "arrOfOthers"]
TEMPLATES, COPY_TARGETS, COMMON_FOLDERS, ICONS, ACTIONS = LISTS

# A user who has started the application before: it does not ask to enable the extension.
USED = {"ShownEnableExtensionAlert": True}

DARK = {"AppleInterfaceStyle": "Dark"}
RIGHT_TO_LEFT = {"AppleTextDirection": True, "NSForceRightToLeftWritingDirection": True}


class Stores:
    """Those of a user folder, or of any folder with the same inside."""

    def __init__(self, user):
        self.folder = pathlib.Path(getattr(user, "name", user))
        self.container = self.folder / "library/Group Containers" / SHARED
        self.template_folder = self.container / "Templates/CreateNewFile"

    def file(self, domain=LOCAL):
        return self.folder / "defaults" / f"{domain}.plist"

    def read(self, domain=LOCAL):
        return plistlib.loads(self.file(domain).read_bytes())

    def write(self, values, domain=LOCAL):
        self.file(domain).write_bytes(plistlib.dumps(values))

    def write_look(self, is_dark=False, is_right_to_left=False):
        """How the system makes each application look."""
        if look := {**(DARK if is_dark else {}), **(RIGHT_TO_LEFT if is_right_to_left else {})}:
            self.write(look, GLOBAL)

    def local(self, key):
        return self.read().get(key)

    def shared(self, key):
        return self.read(SHARED).get(key)

    def template_files(self):
        """What each holds, by name; a folder's are the files in it."""
        return contents(self.template_folder)


def contents(folder):
    return {path.name: contents(path) if path.is_dir() else path.read_bytes() for path in folder.iterdir()}


def typed(value):
    """What is equal to another only when their kinds are the same: Python has 1 == True."""
    if isinstance(value, dict):
        return {key: typed(item) for key, item in value.items()}
    if isinstance(value, list):
        return [typed(item) for item in value]
    return type(value).__name__, value


def is_on(record, key="enable"):
    return typed(record.get(key)) in map(typed, (1, True, "1"))


def folder_records(count):
    return [{"enable": 1, "realPath": f"/folders/{n}", "displayName": f"Folder {n}"} for n in range(count)]


def main():
    what, where = sys.argv[1:]
    stores = Stores(os.environ["TARNWICK_USER_FOLDER"])
    if what == "--container":
        print(sorted(os.listdir(stores.container / where)))
    elif stores.file(what).exists():
        print(repr(eval(where, {"d": stores.read(what), "size": stores.file(what).stat().st_size})))
    else:
        print("(no file)")


if __name__ == "__main__":
    main()
