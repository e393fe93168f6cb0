#!/usr/bin/env python3
"""open_edit.py PROGRAM: a name is being typed, and something else is done with a real pointer and keyboard before
it is confirmed. Both stores and the template files are looked at after each step."""

import sys

from desktop import Desktop, wait_until

NAME, FIRST_ROW, ROW_HEIGHT = 400, 240, 30
REMOVE = (423, 608)
RESET = (868, 608)


def row(number):
    return NAME, FIRST_ROW + number * ROW_HEIGHT


def start_typing(desktop, number, text):
    desktop.click(*row(number), times=2)
    desktop.settle()
    if text:
        desktop.key("alt+a")
        desktop.type(text)


def names(records):
    return [record["displayName"] for record in records]


def expect_stored(desktop, expected):
    """In the first rows of both stores. None of them is off."""
    count = len(expected)

    def is_stored():
        return all(names(store("arrOfCreateNewFile"))[:count] == expected for store in (desktop.local, desktop.shared))

    wait_until(is_stored, f"{expected} in both stores")


def expect_files(desktop, present, absent):
    templates = desktop.templates()
    wrong = [name for name in present if name not in templates] + [name for name in absent if name in templates]
    if wrong:
        raise SystemExit(f"template files {wrong} are not as expected among {templates}")


def ends_with(key, program):
    with Desktop(program) as desktop:
        start_typing(desktop, 2, "Letter")
        desktop.key(key)
        wait_until(desktop.has_ended, "the end of the application")
        expect_stored(desktop, ["TXT", "RTF", "Letter", "Word"])
        expect_files(desktop, ["Letter.xml", "Word.docx"], ["XML.xml"])
        if desktop.application.returncode != 0:
            raise SystemExit(f"the application ended with status {desktop.application.returncode}")


def quitting_stores_the_typed_name(program):
    ends_with("alt+q", program)


def closing_the_window_stores_the_typed_name(program):
    ends_with("alt+w", program)


def buttons_act_on_what_the_edit_has_stored(program):
    with Desktop(program) as desktop:
        start_typing(desktop, 2, "")
        desktop.click(*REMOVE)
        expect_stored(desktop, ["TXT", "RTF", "Word", "Excel"])
        expect_files(desktop, ["Word.docx"], ["XML.xml", "XML.docx"])
        start_typing(desktop, 1, "Letter")
        desktop.click(*RESET)
        expect_stored(desktop, ["TXT", "RTF", "XML", "Word"])
        expect_files(desktop, ["RTF.rtf"], ["Letter.rtf"])


def escape_stores_nothing(program):
    with Desktop(program) as desktop:
        start_typing(desktop, 2, "Letter")
        desktop.key("Escape")
        desktop.settle()
        desktop.key("Down", "space")
        wait_until(lambda: desktop.local("arrOfCreateNewFile")[3]["enable"] == 0, "the next row switched off")
        if desktop.local("arrOfCreateNewFile")[2] != {
            "displayName": "XML", "enable": "1", "extension": "xml", "modified": "0"
        }:
            raise SystemExit(f"Escape stored {desktop.local('arrOfCreateNewFile')[2]}")


if __name__ == "__main__":
    for part in (
        quitting_stores_the_typed_name,
        closing_the_window_stores_the_typed_name,
        buttons_act_on_what_the_edit_has_stored,
        escape_stores_nothing,
    ):
        part(sys.argv[1])
        print(part.__name__.replace("_", " "))
