#!/usr/bin/env python3
"""panels.py PROGRAM: what is added is chosen in an open panel, with a real pointer and keyboard."""

import base64
import sys

from desktop import Desktop, wait_until

FIRST_PAGE, PAGE_PITCH, PAGE_BUTTON = 64, 40, 100
ADD = (300, 608)
# Of the panel, counted from its upper left corner.
INSIDE_OK_BUTTON = (314, 399), (366, 414)
# The pixels of the line that blinks in a text field.
CARET = 40
PIXEL = base64.b64decode(
    "iVBORw0KGgoAAAANSUhEUgAAAAEAAAABCAYAAAAfFcSJAAAADUlEQVR4nGP4z8DwHwAFAAH/iZk9HQAAAABJRU5ErkJggg=="
)


def show_page(desktop, page):
    desktop.click(PAGE_BUTTON, FIRST_PAGE + page * PAGE_PITCH)


def open_panel(desktop):
    desktop.click(*ADD)
    panel = wait_until(lambda: desktop.find("^Open$"), "the open panel")
    desktop.settle()
    return panel


def wait_for_end(desktop):
    wait_until(lambda: not desktop.find("^Open$"), "the end of the open panel")


def folder_with(desktop, *names, content=b"x"):
    folder = desktop.user.folder / "chosen"
    folder.mkdir(exist_ok=True)
    for name in names:
        (folder / name).write_bytes(content)
    return folder


def expect_last(desktop, key, name):
    wait_until(lambda: desktop.local(key)[-1]["displayName"] == name, f"{name} at the end of {key}")


def it_looks_the_same_the_second_time(desktop):
    first = desktop.picture(open_panel(desktop))
    desktop.key("Escape")
    wait_for_end(desktop)
    second = desktop.picture(open_panel(desktop))
    desktop.key("Escape")
    wait_for_end(desktop)
    different = sum(one != other for one, other in zip(first, second))
    if len(second) != len(first) or different > 3 * CARET:
        raise SystemExit(f"the second time the panel looks another way, in {different} values")


def a_typed_path_is_chosen(desktop):
    folder = folder_with(desktop, "Letter.rtf")
    open_panel(desktop)
    desktop.type(f"{folder}/Letter.rtf")
    desktop.key("Return")
    wait_for_end(desktop)
    expect_last(desktop, "arrOfCreateNewFile", "Letter")


def names_may_have_a_colon_or_a_backslash(desktop):
    names = ("a:b.txt", "C:x.txt", "c\\d.txt")
    folder = folder_with(desktop, *names)
    for name in names:
        open_panel(desktop)
        desktop.type(f"{folder}/")
        desktop.key("End", "shift+Home")
        desktop.type(name)
        desktop.key("Return")
        wait_for_end(desktop)
        expect_last(desktop, "arrOfCreateNewFile", name.removesuffix(".txt"))


def a_type_is_one_in_capitals_too(desktop):
    show_page(desktop, 3)
    folder = folder_with(desktop, "Red.PNG", content=PIXEL)
    open_panel(desktop)
    desktop.type(f"{folder}/")
    desktop.key("End", "shift+Home")
    desktop.type("Red.PNG")
    desktop.key("Return")
    wait_for_end(desktop)
    expect_last(desktop, "arrOfCustomIcon", "Red.PNG")


def luminance(pixel):
    parts = [value / 255 for value in pixel]
    linear = [part / 12.92 if part <= 0.04045 else ((part + 0.055) / 1.055) ** 2.4 for part in parts]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def the_default_button_can_be_read_while_it_is_disabled(desktop):
    panel = open_panel(desktop)
    header, size, _, pixels = desktop.picture(panel).split(b"\n", 3)
    width = int(size.split()[0])
    (left, top), (right, bottom) = INSIDE_OK_BUTTON
    places = [3 * (y * width + x) for y in range(top, bottom) for x in range(left, right)]
    shades = [luminance(pixels[place : place + 3]) for place in places]
    contrast = (max(shades) + 0.05) / (min(shades) + 0.05)
    if contrast < 4.5:
        raise SystemExit(f"the contrast of the disabled default button's title is {contrast:.1f}")
    desktop.key("Escape")
    wait_for_end(desktop)


if __name__ == "__main__":
    with Desktop(sys.argv[1]) as the_desktop:
        for part in (
            the_default_button_can_be_read_while_it_is_disabled,
            it_looks_the_same_the_second_time,
            a_typed_path_is_chosen,
            names_may_have_a_colon_or_a_backslash,
            a_type_is_one_in_capitals_too,
        ):
            part(the_desktop)
            print(part.__name__.replace("_", " "), flush=True)
