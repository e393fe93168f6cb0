"""python3 -m tests.outside.odd_names PROGRAM: names that nobody expects, typed and pasted, in every list. Both stores
and the template files are looked at after each, and once more after another start."""

from harness.stores import ACTIONS, COMMON_FOLDERS, COPY_TARGETS, ICONS, LISTS, TEMPLATES, folder_records
from tests.outside.checks import run_checks
from tests.outside.places import PAGE_OF
from tests.outside.screen import command

NAMES = ["", "..", "a/b/../c", "<&>\"'%@%s%n\\", "line\nand\ttab", "long " * 800, "e\u0301\u0323" + "\u0300" * 40,
         "\u05e9\u05dc\u05d5\u05dd \u0645\u0631\u062d\u0628\u0627 \u202e reversed",
         "\U0001f5c2 \U0001f468\u200d\U0001f469\u200d\U0001f467"]
# Those that a keyboard without further ado has.
TYPED = 4
SETTINGS = {COPY_TARGETS: folder_records(len(NAMES)), COMMON_FOLDERS: folder_records(len(NAMES))}


def rename(desktop, model, key, row, name, column=None):
    desktop.start_typing(row, column=column)
    desktop.screen.key(command("a"))
    if not name:
        desktop.screen.key("BackSpace")
    elif row < TYPED:
        desktop.screen.type(name)
    else:
        desktop.screen.copy(name)
        desktop.screen.key(command("v"))
    desktop.screen.key("Return")
    model.edit(key, row, column or PAGE_OF[key].name_column, name)
    model.expect(f"{name[:20]!r} in row {row} of {key}")


def name_every_row(start, *keys):
    with start(SETTINGS) as (desktop, model):
        for key in keys:
            desktop.show_list(key)
            for row, name in enumerate(NAMES):
                rename(desktop, model, key, row, name)
        desktop.screen.key(command("q"))
        desktop.wait_for_end()
        desktop.start()
        model.expect("the same after another start")


def templates_take_any_name(start):
    name_every_row(start, TEMPLATES)


def other_rules_take_any_name(start):
    name_every_row(start, *(key for key in LISTS if key not in (TEMPLATES, ICONS, ACTIONS)))


def icons_and_actions_take_any_name_and_note(start):
    with start() as (desktop, model):
        desktop.show_list(ICONS)
        for row, name in enumerate(NAMES):
            rename(desktop, model, ICONS, row, name)
        desktop.show_list(ACTIONS)
        for row, name in enumerate(NAMES):
            rename(desktop, model, ACTIONS, row, name, "OthersNote")


if __name__ == "__main__":
    run_checks(templates_take_any_name, other_rules_take_any_name, icons_and_actions_take_any_name_and_note)
