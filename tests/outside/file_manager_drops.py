#!/usr/bin/env python3
"""file_manager_drops.py PROGRAM: files and folders dragged from a file manager onto the pages, with a real pointer."""

import sys
import time

from desktop import Desktop, wait_until
from panels import PIXEL, show_page

# Of the screen. The file manager shows its folder's icons in this order, folders first.
ICONS = {"Folder é": (207, 112), "Letter 表格.docx": (303, 112), "Red.PNG": (399, 112)}
WINDOW, MANAGER_SIZE = (330, 215), (640, 170)
# Of the window.
TABLE, BELOW_ROWS, HEADING, OUTSIDE = (480, 300), (480, 560), (600, 64), (-250, 400)
# A hand rests before it moves.
REST_SECONDS = 0.4
STEP_SECONDS = 0.04


class FileManagerDesktop(Desktop):
    def __init__(self, program):
        super().__init__(program)
        self.home = self.user.folder / "home"
        self.files = self.home / "Files to drag"
        (self.files / "Folder é").mkdir(parents=True)
        (self.files / "Letter 表格.docx").write_bytes(b"x")
        (self.files / "Red.PNG").write_bytes(PIXEL)

    def environment(self):
        home = getattr(self, "home", None)
        folders = {"HOME": str(home), "XDG_CONFIG_HOME": str(home / ".config")} if home else {}
        return {**super().environment(), **folders}

    def __enter__(self):
        super().__enter__()
        self.xdotool("windowmove", "--sync", self.window, *WINDOW)
        self.start("pcmanfm", "--no-desktop", self.files)
        manager = wait_until(lambda: self.find("^Files to drag$"), "the file manager")
        self.xdotool("windowmove", manager, 0, 0)
        self.xdotool("windowsize", manager, *MANAGER_SIZE)
        self.settle()
        return self

    def on_screen(self, place):
        geometry = dict(line.split("=") for line in self.xdotool("getwindowgeometry", "--shell", self.window))
        return int(geometry["X"]) + place[0], int(geometry["Y"]) + place[1]

    def drag_to(self, icon, *places):
        """Takes the icon from place to place of the window, and holds it there."""
        here = ICONS[icon]
        self.xdotool("mousemove", *here)
        self.xdotool("mousedown", 1)
        time.sleep(REST_SECONDS)
        steps = [(here[0] + step, here[1]) for step in range(1, 11)]
        for place in places:
            start, end = steps[-1], self.on_screen(place)
            steps += [tuple(round(a + (b - a) * step / 12) for a, b in zip(start, end)) for step in range(1, 13)]
        for step in steps:
            self.xdotool("mousemove", *step)
            time.sleep(STEP_SECONDS)
        self.settle()

    def let_go(self):
        self.xdotool("mouseup", 1)
        self.settle()

    def drop(self, icon, *places):
        self.drag_to(icon, *places)
        self.let_go()


def expect_last(desktop, key, expected):
    def last():
        records = desktop.local(key) or [{}]
        return {name: records[-1].get(name) for name in expected}

    wait_until(lambda: last() == expected, f"{expected} at the end of {key}")


def a_file_becomes_a_template_over_the_table_and_beside_it(desktop):
    desktop.drop("Letter 表格.docx", TABLE)
    expect_last(desktop, "arrOfCreateNewFile", {"displayName": "Letter 表格", "extension": "docx"})
    desktop.drop("Red.PNG", HEADING)
    expect_last(desktop, "arrOfCreateNewFile", {"displayName": "Red", "extension": "PNG"})
    missing = {"Letter 表格.docx", "Red.PNG"}.difference(desktop.templates())
    if missing:
        raise SystemExit(f"no template file {missing}")


def a_folder_becomes_a_target_and_a_common_folder(desktop):
    for page, key in ((1, "arrOfCopyFilesTo"), (2, "arrOfCommonPath")):
        show_page(desktop, page)
        for count, place in enumerate((BELOW_ROWS, HEADING), 1):
            desktop.drop("Folder é", place)
            wait_until(lambda: len(desktop.local(key) or ()) == count, f"{count} folders in {key}")
            expect_last(desktop, key, {"displayName": "Folder é", "realPath": str(desktop.files / "Folder é")})


def a_picture_becomes_a_custom_icon(desktop):
    show_page(desktop, 3)
    desktop.drop("Red.PNG", HEADING, TABLE)
    expect_last(desktop, "arrOfCustomIcon", {"displayName": "Red.PNG"})


def what_a_page_does_not_take_leaves_it_as_it_is(desktop):
    show_page(desktop, 2)
    desktop.settle()
    before = desktop.local()
    desktop.drop("Letter 表格.docx", TABLE)
    desktop.drop("Folder é", TABLE, OUTSIDE)
    show_page(desktop, 4)
    desktop.drop("Folder é", TABLE)
    if desktop.local() != before:
        raise SystemExit("something was stored that is not taken there")


if __name__ == "__main__":
    with FileManagerDesktop(sys.argv[1]) as the_desktop:
        for part in (
            a_file_becomes_a_template_over_the_table_and_beside_it,
            a_folder_becomes_a_target_and_a_common_folder,
            a_picture_becomes_a_custom_icon,
            what_a_page_does_not_take_leaves_it_as_it_is,
        ):
            part(the_desktop)
            print(part.__name__.replace("_", " "), flush=True)
