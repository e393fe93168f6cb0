"""python3 -m tests.outside.undo PROGRAM: what the keys of the Edit menu take back and repeat. Both stores and the
template files are looked at after each step."""

import copy
import glob

from harness.stores import TEMPLATES
from harness.waiting import wait_until
from tests.outside.checks import require, run_checks
from tests.outside.screen import COMMAND, command, option_command

NAME = "NewFileDisplayName"
UNDO, REDO = command("z"), f"{COMMAND}+Shift_L+z"


def moment(model):
    return copy.deepcopy((model.lists, model.files))


def press_and_expect(desktop, model, key, past, what):
    desktop.screen.key(key)
    model.lists, model.files = copy.deepcopy(past)
    model.expect(what)


def held_files(desktop):
    """In the system's temporary folder, at any depth: the toolkit has a folder of its own for each user."""
    return glob.glob(f"{desktop.user.temporary}/**/org.halvane.Tarnwick.undo-*", recursive=True)


def edits_are_taken_back_and_repeated_one_by_one(start):
    with start() as (desktop, model):
        moments = [moment(model)]

        def done(what):
            model.expect(what)
            moments.append(moment(model))

        desktop.select(2)
        desktop.click("remove")
        model.remove(TEMPLATES, 2)
        done("a row less")
        desktop.start_typing(0, "Letter")
        desktop.screen.key("Return")
        model.edit(TEMPLATES, 0, NAME, "Letter")
        done("another name")
        desktop.click("row_switch", 4)
        model.toggle(TEMPLATES, 4)
        done("a row switched")
        desktop.select(1)
        desktop.screen.key(option_command("Down"))
        model.drop(TEMPLATES, 1, 2)
        done("a row further down")
        desktop.click("reset")
        model.reset(TEMPLATES)
        done("the factory's list")
        for _ in range(2):
            for number, past in reversed(list(enumerate(moments[:-1]))):
                press_and_expect(desktop, model, UNDO, past, f"what was before step {number + 1}")
            for number, past in enumerate(moments[1:]):
                press_and_expect(desktop, model, REDO, past, f"what was after step {number + 1}")
        require(held_files(desktop), "the files of the former list are held nowhere")
        desktop.screen.key(command("q"))
        require(desktop.wait_for_end() == 0, "the application did not end well")
        require(not held_files(desktop), f"left behind: {held_files(desktop)}")


def while_a_name_is_typed_the_keys_mean_the_typing(start):
    with start() as (desktop, model):
        desktop.click("row_switch", 4)
        model.toggle(TEMPLATES, 4)
        model.expect("a row switched")
        desktop.start_typing(0, "Letter")
        desktop.screen.key(UNDO, UNDO, UNDO, "Escape")
        desktop.screen.settle()
        desktop.click("row_switch", 5)
        model.toggle(TEMPLATES, 5)
        model.expect("no name, no switch but the two")


def a_killed_application_leaves_held_files_to_the_next_start(start):
    with start() as (desktop, model):
        desktop.select(2)
        desktop.click("remove")
        model.remove(TEMPLATES, 2)
        model.expect("a row less")
        require(held_files(desktop), "the removed file is held nowhere")
        desktop.end(desktop.application)
        desktop.start()
        wait_until(lambda: not held_files(desktop), "no held files")
        model.expect("the row still gone")


if __name__ == "__main__":
    run_checks(edits_are_taken_back_and_repeated_one_by_one, while_a_name_is_typed_the_keys_mean_the_typing,
               a_killed_application_leaves_held_files_to_the_next_start)
