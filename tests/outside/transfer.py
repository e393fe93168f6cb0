"""python3 -m tests.outside.transfer PROGRAM: settings are exported to a file and imported from it, by the menus, panels
and questions that a person goes through. Both stores and the template files are looked at after each step."""

import pathlib
import plistlib

from harness.stores import LISTS, TEMPLATES
from harness.waiting import wait_until
from tests.outside.checks import require, run_checks
from tests.outside.panels import OpenPanel
from tests.outside.screen import command, shift_command

# In the file menu, by the number of steps down to it.
EXPORT, IMPORT = 1, 2
SAVE_TITLE, QUESTION_TITLE = "^Save$", "^Alert$"


def choose_in_file_menu(desktop, steps):
    desktop.screen.key("F10", desktop.onward)
    desktop.screen.settle()
    desktop.screen.key(*["Down"] * steps, "Return")


def content(desktop):
    """Everything that an import is about; a list that is absent is empty afterwards."""
    lists = [(desktop.stores.local(key) or [], desktop.stores.shared(key) or []) for key in LISTS]
    return lists, desktop.stores.template_files()


def expect(desktop, expected, what):
    wait_until(lambda: content(desktop) == expected, what)


def export(desktop):
    """The file, and what is in it."""
    path = pathlib.Path(desktop.user.name, "mine.plist")
    choose_in_file_menu(desktop, EXPORT)
    OpenPanel(desktop.screen, SAVE_TITLE).choose(path)
    wait_until(path.exists, "the exported file")
    return path, plistlib.loads(path.read_bytes())


def ask_about(desktop, path):
    """Until a question or an answer about the file stands there."""
    choose_in_file_menu(desktop, IMPORT)
    OpenPanel(desktop.screen).choose(path)
    desktop.screen.window(QUESTION_TITLE)
    desktop.screen.settle(0.2)


def end_question(desktop, key):
    desktop.screen.key(key)
    wait_until(lambda: not desktop.screen.windows(QUESTION_TITLE), f"the end of the question by {key}")


def export_and_change(desktop):
    """A file that differs from what there is, by a template that has been removed since: it and what is in it."""
    exported = export(desktop)
    stores = desktop.stores

    def counts():
        folder = stores.template_folder
        return [len(list(part)) for part in (stores.local(TEMPLATES), stores.shared(TEMPLATES), folder.iterdir())]

    before = counts()
    desktop.select(3)
    desktop.click("remove")
    # The file goes last.
    wait_until(lambda: counts() == [count - 1 for count in before], "one template less, in both stores and the folder")
    return exported


def what_was_exported_comes_back_as_one_step(start):
    with start() as (desktop, _):
        first, templates = content(desktop), desktop.stores.local(TEMPLATES)
        path, document = export_and_change(desktop)
        require(document[TEMPLATES] == templates, "another list is in the file")
        second = content(desktop)
        ask_about(desktop, path)
        require(content(desktop) == second, "something has changed before the answer")
        end_question(desktop, "Return")
        expect(desktop, first, "the imported settings")
        desktop.screen.key(command("z"))
        expect(desktop, second, "what was there before")
        desktop.screen.key(shift_command("z"))
        expect(desktop, first, "the imported settings once more")


def a_question_that_is_cancelled_changes_nothing(start):
    with start() as (desktop, _):
        path, _ = export_and_change(desktop)
        before = content(desktop)
        choose_in_file_menu(desktop, IMPORT)
        OpenPanel(desktop.screen).cancel()
        ask_about(desktop, path)
        end_question(desktop, "Escape")
        require(content(desktop) == before, "a cancelled import has changed something")
        desktop.screen.key(command("z"))
        wait_until(lambda: content(desktop) != before, "the removal, taken back")


def a_file_that_is_none_of_ours_is_refused(start):
    with start() as (desktop, _):
        before = content(desktop)
        for name, data in (("damaged", b"<plist>"), ("empty", b""), ("foreign", plistlib.dumps({"a": 1}))):
            path = pathlib.Path(desktop.user.name, f"{name}.plist")
            path.write_bytes(data)
            ask_about(desktop, path)
            end_question(desktop, "Return")
            require(content(desktop) == before, f"a {name} file has changed something")


def a_name_that_is_being_typed_is_exported_and_counts_before_an_import(start):
    with start() as (desktop, _):
        desktop.start_typing(1, "Typed")
        path, document = export(desktop)
        require(document[TEMPLATES][1]["displayName"] == "Typed", "the typed name is not in the file")
        first = content(desktop)
        desktop.start_typing(2, "Later")
        ask_about(desktop, path)
        wait_until(lambda: desktop.stores.local(TEMPLATES)[2]["displayName"] == "Later", "the name typed later")
        end_question(desktop, "Return")
        expect(desktop, first, "the imported settings")


def a_folder_that_is_not_there_is_made_only_when_it_is_wanted(start):
    with start() as (desktop, _):
        path = pathlib.Path(desktop.user.name, "new", "mine.plist")
        choose_in_file_menu(desktop, EXPORT)
        panel = OpenPanel(desktop.screen, SAVE_TITLE)
        for answer in ("Escape", "Return"):
            require(panel.is_open() and not path.parent.exists(), f"something has happened before {answer}")
            panel.enter(str(path))
            desktop.screen.key("Return")
            desktop.screen.window(QUESTION_TITLE)
            desktop.screen.settle(0.2)
            end_question(desktop, answer)
            desktop.screen.settle(0.2)
        wait_until(path.exists, "the exported file")


def ending_with_the_question_open_keeps_the_lists(start):
    with start() as (desktop, _):
        path, _ = export_and_change(desktop)
        before = content(desktop)
        ask_about(desktop, path)
        desktop.application.terminate()
        status = desktop.wait_for_end()
        require(content(desktop) == before, "the end has changed something")
        require(status == 0, f"the application ended with status {status}")


if __name__ == "__main__":
    run_checks(what_was_exported_comes_back_as_one_step, a_question_that_is_cancelled_changes_nothing,
               a_file_that_is_none_of_ours_is_refused,
               a_name_that_is_being_typed_is_exported_and_counts_before_an_import,
               a_folder_that_is_not_there_is_made_only_when_it_is_wanted,
               ending_with_the_question_open_keeps_the_lists)
