#!/usr/bin/env python3
"""menus.py PROGRAM: context menus and menus that pop up, with a real pointer and keyboard, in a window made for it."""

import pathlib
import sys
import time

from desktop import STEP_SECONDS, Desktop, wait_until

SURFACE = (60, 40)
ELSEWHERE = (350, 30)
# The buttons at the foot, counted from the upper left corner of the window; their own upper left corners too.
AT_CORNER, OVER_ITEM, LONG = (70, 265), (200, 265), (330, 265)
CORNERS = {AT_CORNER: (10, 250), OVER_ITEM: (140, 250), LONG: (270, 250)}
SCREEN = (1280, 900)
# In the menu: its rows are as high as this, a separator lower.
PADDING, ROW, SEPARATOR = 5, 24, 9
TOPS = {"First": 0, "Disabled": ROW, "Second": 2 * ROW + SEPARATOR, "More": 3 * ROW + SEPARATOR,
        "Last": 4 * ROW + SEPARATOR}


class MenuDesktop(Desktop):
    title = "^Menus$"

    def wait_until_ready(self):
        pass

    def said(self):
        log = (self.user.folder / f"{pathlib.Path(self.program).name}.log").read_text()
        return [line for line in log.splitlines() if line.split(" ")[0] in ("chosen", "answer", "pressed", "key")]

    def menus(self):
        """Where the open menus are on the screen, the latest last: left, top, width, height."""
        found = []
        for window in self.xdotool("search", "--onlyvisible", "--class", "."):
            geometry = dict(line.split("=") for line in self.xdotool("getwindowgeometry", "--shell", window)
                            if "=" in line)
            if window != self.window and not self.xdotool("getwindowname", window)[:1] == ["Menus"]:
                found.append(tuple(int(geometry[key]) for key in ("X", "Y", "WIDTH", "HEIGHT")))
        return found

    def place(self, point):
        """A point of the window on the screen."""
        self.move(*point)
        position = dict(line.split("=") for line in self.xdotool("getmouselocation", "--shell"))
        return int(position["X"]), int(position["Y"])

    def point_at(self, x, y):
        self.xdotool("mousemove", x, y)
        time.sleep(STEP_SECONDS)

    def open_menus(self, count=1):
        wait_until(lambda: len(self.menus()) == count, f"{count} open menus")
        self.settle()
        return self.menus()

    def middle_of(self, menu, title):
        return menu[0] + 40, menu[1] + PADDING + TOPS[title] + ROW // 2

    def expect(self, *lines):
        """Just these have been said since the last time."""
        seen = getattr(self, "seen", 0)
        wait_until(lambda: len(self.said()) >= seen + len(lines), f"{lines} after {self.said()[seen:]}")
        wait_until(lambda: not self.menus(), "the end of all menus")
        self.settle()
        new = self.said()[seen:]
        self.seen = seen + len(new)
        if new != list(lines):
            raise SystemExit(f"expected {lines}, got {new}")


def the_right_button_and_the_control_key_open_a_menu_that_escape_closes(desktop):
    desktop.click(*SURFACE, button=3)
    left, top, _, _ = desktop.open_menus()[0]
    if (left, top) != desktop.place(SURFACE):
        raise SystemExit(f"the menu is at {(left, top)}, the pointer at {desktop.place(SURFACE)}")
    desktop.key("Escape")
    desktop.expect()
    desktop.xdotool("keydown", "ctrl")
    desktop.click(*SURFACE)
    desktop.open_menus()
    desktop.xdotool("keyup", "ctrl")
    desktop.key("Escape")
    desktop.expect()


def the_keyboard_goes_through_a_menu(desktop):
    for keys, chosen in (
        (("Down", "Return"), "First"),
        (("Down", "Down", "space"), "Second"),
        (("Up", "Return"), "Last"),
        (("Up", "Up", "Right", "Down", "Return"), "Inner Two"),
        (("Up", "Up", "Return", "Left", "Down", "Return"), "Last"),
        (("End", "Home", "Return"), "First"),
    ):
        desktop.click(*SURFACE, button=3)
        desktop.open_menus()
        desktop.key(*keys)
        desktop.expect(f"chosen {chosen}")


def the_first_click_in_a_submenu_counts_and_it_stands_beside_its_item(desktop):
    desktop.click(*SURFACE, button=3)
    menu = desktop.open_menus()[0]
    desktop.point_at(*desktop.middle_of(menu, "More"))
    parent, submenu = sorted(desktop.open_menus(2))
    beside = parent[1] + TOPS["More"]
    if abs(submenu[1] - beside) > 2 or abs(submenu[0] - parent[0] - parent[2]) > 6:
        raise SystemExit(f"the submenu is at {submenu}, its parent at {parent}")
    desktop.point_at(submenu[0] + 40, submenu[1] + PADDING + ROW // 2)
    desktop.xdotool("click", 1)
    desktop.expect("chosen Inner One")


def a_drag_chooses_where_it_ends(desktop):
    desktop.move(*SURFACE)
    desktop.xdotool("mousedown", 3)
    menu = desktop.open_menus()[0]
    desktop.point_at(*desktop.middle_of(menu, "First"))
    desktop.point_at(*desktop.middle_of(menu, "Second"))
    desktop.xdotool("mouseup", 3)
    desktop.expect("chosen Second")


def a_disabled_item_keeps_the_menu_open_and_a_click_elsewhere_closes_it(desktop):
    desktop.click(*SURFACE, button=3)
    menu = desktop.open_menus()[0]
    desktop.point_at(*desktop.middle_of(menu, "Disabled"))
    desktop.xdotool("click", 1)
    desktop.settle()
    desktop.open_menus()
    desktop.click(*ELSEWHERE)
    desktop.expect()


def an_items_tool_tip_is_shown(desktop):
    desktop.click(*SURFACE, button=3)
    menu = desktop.open_menus()[0]
    desktop.point_at(*desktop.middle_of(menu, "First"))
    wait_until(lambda: len(desktop.menus()) == 2, "a tool tip")
    desktop.key("Escape")
    desktop.expect()


def a_menu_pops_up_where_it_is_told_to(desktop):
    desktop.click(*AT_CORNER)
    menu = desktop.open_menus()[0]
    wanted = desktop.place(CORNERS[AT_CORNER])
    if abs(menu[0] - wanted[0]) > 1 or abs(menu[1] - wanted[1]) > 1:
        raise SystemExit(f"the menu is at {menu}, not at {wanted}")
    desktop.key("Down", "Return")
    desktop.expect("chosen First", "answer yes")
    desktop.click(*OVER_ITEM)
    menu = desktop.open_menus()[0]
    wanted = desktop.place(CORNERS[OVER_ITEM])
    if abs(menu[1] + PADDING + TOPS["Last"] - wanted[1]) > 1:
        raise SystemExit(f"the menu is at {menu}, its last item not at {wanted}")
    desktop.key("Escape")
    desktop.expect("answer no")


def ten_thousand_items_can_be_reached(desktop):
    desktop.click(*LONG)
    left, top, width, height = desktop.open_menus()[0]
    if left < 0 or top < 0 or left + width > SCREEN[0] or top + height > SCREEN[1]:
        raise SystemExit(f"the menu is at {(left, top)}, {width} by {height}")
    desktop.key("End", "Return")
    desktop.expect("chosen Item 9999", "answer yes")
    desktop.click(*LONG)
    left, top, width, height = desktop.open_menus()[0]
    desktop.point_at(left + 40, top + 200)
    before = desktop.picture()
    desktop.xdotool("click", "--repeat", 4, 5)
    desktop.settle()
    if desktop.picture() == before:
        raise SystemExit("the wheel does not scroll")
    desktop.point_at(left + 40, top + height - 6)
    desktop.key("End", "Up", "Return")
    desktop.expect("chosen Item 9998", "answer yes")


if __name__ == "__main__":
    with MenuDesktop(sys.argv[1]) as the_desktop:
        for part in (
            the_right_button_and_the_control_key_open_a_menu_that_escape_closes,
            the_keyboard_goes_through_a_menu,
            the_first_click_in_a_submenu_counts_and_it_stands_beside_its_item,
            a_drag_chooses_where_it_ends,
            a_disabled_item_keeps_the_menu_open_and_a_click_elsewhere_closes_it,
            an_items_tool_tip_is_shown,
            a_menu_pops_up_where_it_is_told_to,
            ten_thousand_items_can_be_reached,
        ):
            part(the_desktop)
            print(part.__name__.replace("_", " "), flush=True)
