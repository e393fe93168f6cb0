#!/usr/bin/env python3
"""switches.py PROGRAM: the page buttons and the option switches, with a real pointer: their tool tips, and how far
they can be clicked."""

import sys

from desktop import Desktop, wait_until

PAGE_BUTTON, FIRST_PAGE, PAGE_PITCH = 100, 64, 40
LEFT, RIGHT, UPPER, LOWER = 300, 640, 125, 151
NOWHERE = (600, 20)
ENABLE_ALL = 185
# Where the option switches of each page stand.
SWITCHES = (
    [(LEFT, UPPER), (RIGHT, UPPER), (LEFT, LOWER), (RIGHT, LOWER)],
    [(LEFT, UPPER), (RIGHT, UPPER), (LEFT, LOWER), (RIGHT, LOWER)],
    [(LEFT, UPPER), (RIGHT, UPPER)],
    [(LEFT, UPPER)],
    [(LEFT, UPPER), (RIGHT, UPPER), (LEFT, LOWER), (RIGHT, LOWER)],
    [],
)


def page_button(page):
    return PAGE_BUTTON, FIRST_PAGE + page * PAGE_PITCH


def expect_tip(desktop, place):
    desktop.move(*NOWHERE)
    wait_until(lambda: not desktop.find("^Window$"), "the end of a tool tip")
    desktop.settle()
    desktop.move(*place)
    wait_until(lambda: desktop.find("^Window$"), f"the tool tip at {place}")


def every_page_button_and_option_switch_shows_its_tool_tip(program):
    with Desktop(program) as desktop:
        for page, switches in enumerate(SWITCHES):
            desktop.click(*page_button(page))
            for place in [page_button(page), *switches]:
                expect_tip(desktop, place)


def a_click_right_of_a_title_changes_nothing_and_one_on_the_title_does(program):
    clicked = "enableAutoOpenAfterCreateNewFile"
    with Desktop(program) as desktop:
        desktop.click(RIGHT, UPPER)
        wait_until(lambda: desktop.local(clicked) is False, "the switch that was clicked")
        before = desktop.local()
        for x, y in ((480, UPPER), (900, LOWER), (500, ENABLE_ALL), (900, ENABLE_ALL)):
            desktop.click(x, y)
        desktop.click(RIGHT, UPPER)
        wait_until(lambda: desktop.local(clicked) is True, "the switch that was clicked again")
        changed = {key for key, value in desktop.local().items() if before.get(key) != value}
        if changed != {clicked}:
            raise SystemExit(f"clicks beside titles have changed {changed - {clicked}}")


if __name__ == "__main__":
    for part in (
        every_page_button_and_option_switch_shows_its_tool_tip,
        a_click_right_of_a_title_changes_nothing_and_one_on_the_title_does,
    ):
        part(sys.argv[1])
        print(part.__name__.replace("_", " "))
