"""python3 -m tests.outside.file_manager_drops PROGRAM: files and folders dragged from a file manager onto the pages, by
a real pointer. Both stores and the template files are looked at after each drop."""

import pathlib
import time

from harness.stores import ACTIONS, COMMON_FOLDERS, COPY_TARGETS, ICONS, TEMPLATES
from harness.waiting import wait_until
from tests.outside.checks import require, run_checks
from tests.outside.picture import PIXEL
from tests.outside.screen import STEP_SECONDS

# Of the screen. The file manager shows its folder's icons in this order, folders first.
FOLDER, LETTER, PICTURE = "Folder é", "Letter 表格.docx", "Red.PNG"
SHOWN_AT = {FOLDER: (207, 112), LETTER: (303, 112), PICTURE: (399, 112)}
WINDOW, MANAGER_SIZE = (330, 215), (640, 170)
OUTSIDE = (-250, 400)
# A hand rests before it moves.
REST_SECONDS = 0.4


class FileManager:
    """At the upper left of the screen, with the window of the application below it."""

    def __init__(self, desktop):
        self.desktop, self.screen = desktop, desktop.screen
        home = pathlib.Path(desktop.user.name, "home")
        self.files = home / "Files to drag"
        (self.files / FOLDER).mkdir(parents=True)
        (self.files / LETTER).write_bytes(b"x")
        (self.files / PICTURE).write_bytes(PIXEL)
        desktop.window.move_to(*WINDOW)
        desktop.run_beside("pcmanfm", "--no-desktop", self.files, HOME=str(home), XDG_CONFIG_HOME=str(home / ".config"))
        window = self.screen.window("^Files to drag$")
        window.move_to(0, 0)
        window.resize(*MANAGER_SIZE)

    def drop(self, name, *places):
        """Takes the icon from place to place of the application's window, and lets it go there."""
        here = SHOWN_AT[name]
        self.screen.move(here)
        self.screen.press()
        time.sleep(REST_SECONDS)
        steps = [(here[0] + step, here[1]) for step in range(1, 11)]
        for place in places:
            start, end = steps[-1], self.desktop.window.on_screen(place)
            steps += [tuple(a + (b - a) * step / 12 for a, b in zip(start, end)) for step in range(1, 13)]
        for step in steps:
            self.screen.move(step)
            time.sleep(STEP_SECONDS)
        self.screen.settle()
        self.screen.release()
        self.screen.settle()


def expect_last(desktop, model, key, expected):
    """The list as it was, and such a record."""
    before = model.lists[key]
    wait_until(lambda: len(desktop.stores.local(key) or ()) == len(before) + 1, f"{expected} in {key}")
    *others, last = desktop.stores.local(key)
    require(others == before, f"other rules of {key} have changed")
    require({name: last.get(name) for name in expected} == expected, f"{last} in place of {expected}")
    model.adopt(key)


def files_become_templates_over_the_table_and_beside_it(start):
    with start() as (desktop, model):
        manager = FileManager(desktop)
        for name, place, record in (
                (LETTER, desktop.place("cell", 2), {"displayName": "Letter 表格", "extension": "docx"}),
                (PICTURE, desktop.place("heading"), {"displayName": "Red", "extension": "PNG"})):
            manager.drop(name, place)
            contents = (manager.files / name).read_bytes()
            wait_until(lambda: desktop.stores.template_files().get(name) == contents, f"{name} among the templates")
            expect_last(desktop, model, TEMPLATES, record)
            model.expect(f"{name} among the templates")


def a_folder_becomes_a_target_and_a_common_folder(start):
    with start() as (desktop, model):
        manager = FileManager(desktop)
        folder = str(manager.files / FOLDER)
        for key in (COPY_TARGETS, COMMON_FOLDERS):
            desktop.show_list(key)
            for place in (desktop.place("below_rows"), desktop.place("heading")):
                manager.drop(FOLDER, place)
                model.add_folders(key, folder)
                model.expect(f"{folder} in {key}")


def a_picture_becomes_a_custom_icon(start):
    with start() as (desktop, model):
        manager = FileManager(desktop)
        desktop.show_list(ICONS)
        manager.drop(PICTURE, desktop.place("heading"), desktop.place("cell", 2))
        expect_last(desktop, model, ICONS, {"displayName": "Red.PNG"})
        model.expect("the picture among the icons")


def what_a_page_does_not_take_leaves_it_as_it_is(start):
    with start() as (desktop, model):
        manager = FileManager(desktop)
        before = desktop.settings_now()
        desktop.show_list(COMMON_FOLDERS)
        manager.drop(LETTER, desktop.place("below_rows"))
        manager.drop(FOLDER, desktop.place("below_rows"), OUTSIDE)
        desktop.show_list(ACTIONS)
        manager.drop(FOLDER, desktop.place("cell", 2))
        model.expect("the lists as they were")
        require(desktop.settings_now() == before, "something was stored that is not taken there")


if __name__ == "__main__":
    run_checks(files_become_templates_over_the_table_and_beside_it, a_folder_becomes_a_target_and_a_common_folder,
               a_picture_becomes_a_custom_icon, what_a_page_does_not_take_leaves_it_as_it_is)
