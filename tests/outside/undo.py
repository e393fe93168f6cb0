"""python3 -m tests.outside.undo PROGRAM: changes taken back and repeated, also when nobody expects it. Both stores and
the template files are looked at after each step."""

import glob
import pathlib

from harness.stores import ACTIONS, COPY_TARGETS, ICONS, TEMPLATES, folder_records
from harness.waiting import wait_until
from tests.outside.checks import require, run_checks
from tests.outside.panels import OpenPanel
from tests.outside.places import GAP
from tests.outside.screen import command, option_command, shift_command

UNDO, REDO = command("z"), shift_command("z")
FOLDERS = {COPY_TARGETS: folder_records(5)}


def held_files(desktop):
    """In the system's temporary folder, at any depth: the toolkit has a folder of its own for each user."""
    return glob.glob(f"{desktop.user.temporary}/**/org.halvane.Tarnwick.undo-*", recursive=True)


def undo(desktop, model, what):
    desktop.screen.key(UNDO)
    model.undo()
    model.expect(f"without {what}")


def redo(desktop, model, what):
    desktop.screen.key(REDO)
    model.redo()
    model.expect(f"{what} again")


def every_kind_of_change_comes_back(start):
    with start(FOLDERS) as (desktop, model):
        page = desktop.page
        desktop.select(3)
        desktop.click("remove")
        model.remove(TEMPLATES, 3)
        desktop.screen.settle(0.3)
        desktop.screen.key(option_command("Up"))
        model.drop(TEMPLATES, 2, 1)
        model.expect("a row less, and one further up")
        desktop.click("enable_all")
        model.enable_all(TEMPLATES, True)
        model.expect("all on")
        desktop.click("cell", 4, "EnableMainMenu")
        model.toggle(TEMPLATES, 4, "enableMainMenu")
        model.expect("one in the main menu")
        desktop.start_typing(5, "Named by an end")
        desktop.click("row_switch", 6)
        model.edit(TEMPLATES, 5, page.name_column, "Named by an end")
        model.toggle(TEMPLATES, 6)
        model.expect("a name and a switch")
        desktop.click("reset")
        model.reset(TEMPLATES)
        model.expect("all changes")
        steps = len(model.steps)
        require(steps == 7, f"{steps} steps")
        for _ in range(steps):
            undo(desktop, model, "another change")
        for _ in range(steps):
            redo(desktop, model, "another change")


def a_step_of_another_page_is_shown_where_it_takes_place(start):
    with start(FOLDERS) as (desktop, model):
        desktop.show_list(ICONS)
        desktop.select(2)
        desktop.click("remove")
        model.remove(ICONS, 2)
        model.expect("an icon less")
        desktop.window.move(desktop.place("heading"))
        desktop.screen.settle(0.5)
        shown = desktop.window.picture()
        desktop.show_list(ACTIONS)
        undo(desktop, model, "the removal")
        desktop.screen.key(REDO)
        model.redo()
        model.expect("the removal again")
        desktop.window.move(desktop.place("heading"))
        desktop.screen.settle(0.5)
        require(desktop.window.picture() == shown, "the page of the icons is not the one that is shown")


def typing_has_its_own(start):
    with start() as (desktop, model):
        desktop.click("row_switch", 1)
        model.toggle(TEMPLATES, 1)
        model.expect("a row switched")
        desktop.start_typing(2, "Letter")
        desktop.screen.key(UNDO, UNDO, UNDO, UNDO)
        model.expect("no change of a list while typing")
        desktop.screen.key("Escape")
        model.expect("no change by typing that is left")
        undo(desktop, model, "the switch")


def a_panel_and_a_drag_come_first(start):
    with start(FOLDERS) as (desktop, model):
        desktop.show_list(COPY_TARGETS)
        desktop.click("row_switch", 1)
        model.toggle(COPY_TARGETS, 1)
        model.expect("a row switched")
        desktop.click("add")
        panel = OpenPanel(desktop.screen)
        desktop.screen.key(UNDO)
        desktop.screen.settle(0.3)
        model.expect("no undo behind a panel")
        panel.window.focus()
        panel.cancel()
        desktop.window.drag_to(desktop.place("cell", 0), desktop.place("cell", 3, None, GAP))
        desktop.screen.key(UNDO)
        desktop.screen.settle(0.3)
        model.expect("no undo during a drag")
        desktop.screen.release()
        model.drop(COPY_TARGETS, 0, 3)
        model.undo()
        model.expect("the drop undone once it has taken place")
        redo(desktop, model, "the drop")


def remove_template(desktop, model):
    desktop.select(2)
    desktop.click("remove")
    model.remove(TEMPLATES, 2)
    model.expect("a template less")


def files_that_others_have_changed_are_not_overwritten(start):
    with start() as (desktop, model):
        remove_template(desktop, model)
        other = desktop.stores.template_folder / "XML.xml"
        other.write_text("of another program")
        desktop.screen.key(UNDO)
        model.undo()
        model.files = {**model.files, "XML.xml": b"of another program"}
        model.expect("the record again, and the file of the other program")


def a_template_that_cannot_be_kept_takes_its_own_step_alone(start):
    with start() as (desktop, model):
        desktop.click("row_switch", 6)
        model.toggle(TEMPLATES, 6)
        remove_template(desktop, model)
        folder, = held_files(desktop)
        # Where the next one would wait.
        pathlib.Path(folder, "2").write_text("in the way")
        desktop.select(4)
        desktop.click("remove")
        lost = model.lists[TEMPLATES][4]
        model.lose(TEMPLATES, lost)
        model.expect("two templates less")
        desktop.screen.settle(0.3)
        desktop.click("row_switch", 0)
        model.toggle(TEMPLATES, 0)
        model.expect("another row switched")
        for what in ("the last switch", "the removal that can be undone", "the first switch"):
            undo(desktop, model, what)
        require(not model.steps, "a step is left")
        desktop.screen.key(UNDO)
        desktop.screen.settle(0.3)
        model.expect("nothing else to undo")
        for what in ("the first switch", "the removal", "the last switch"):
            redo(desktop, model, what)


def its_keys_are_those_of_their_places_on_a_keyboard_without_latin_letters(start):
    with start() as (desktop, model):
        desktop.screen.run("setxkbmap", "ru")
        remove_template(desktop, model)
        desktop.screen.key(command("Cyrillic_ya"))
        model.undo()
        model.expect("the row again")
        desktop.screen.key(shift_command("Cyrillic_ya"))
        model.redo()
        model.expect("the row gone again")


def the_end_leaves_nothing_of_it(start):
    with start() as (desktop, model):
        remove_template(desktop, model)
        require(held_files(desktop), "the removed file is held nowhere")
        desktop.screen.key(command("q"))
        require(desktop.wait_for_end() == 0, "the application did not end well")
        require(not held_files(desktop), f"left behind: {held_files(desktop)}")
        desktop.start()
        desktop.screen.key(UNDO)
        model.expect("nothing to undo after another start")


def a_killed_application_leaves_held_files_to_the_next_start(start):
    with start() as (desktop, model):
        remove_template(desktop, model)
        require(held_files(desktop), "the removed file is held nowhere")
        desktop.end(desktop.application)
        desktop.start()
        wait_until(lambda: not held_files(desktop), "no held files")
        model.expect("the row still gone")


if __name__ == "__main__":
    run_checks(every_kind_of_change_comes_back, a_step_of_another_page_is_shown_where_it_takes_place,
               typing_has_its_own, a_panel_and_a_drag_come_first, files_that_others_have_changed_are_not_overwritten,
               a_template_that_cannot_be_kept_takes_its_own_step_alone,
               its_keys_are_those_of_their_places_on_a_keyboard_without_latin_letters,
               the_end_leaves_nothing_of_it, a_killed_application_leaves_held_files_to_the_next_start)
