"""python3 -m tests.outside.menus PROGRAM: context menus and menus that pop up, with a real pointer and keyboard, in a
window made for it."""

import contextlib
import time

from harness.waiting import wait_until
from tests.outside.checks import require, run_checks, watched
from tests.outside.screen import BUTTON, CONTROL, RIGHT_BUTTON, STEP_SECONDS
from tests.outside.session import Session

SURFACE, ELSEWHERE = (60, 40), (350, 30)
# The buttons at the foot, counted from the upper left corner of the window; their own upper left corners too.
AT_CORNER, OVER_ITEM, LONG = (70, 265), (200, 265), (330, 265)
CORNERS = {AT_CORNER: (10, 250), OVER_ITEM: (140, 250), LONG: (270, 250)}
SCREEN = (1280, 900)
# In the menu: its rows are as high as this, a separator lower.
PADDING, ROW, SEPARATOR = 5, 24, 9
TOPS = {"First": 0, "Disabled": ROW, "Second": 2 * ROW + SEPARATOR, "More": 3 * ROW + SEPARATOR,
        "Last": 4 * ROW + SEPARATOR}
WORDS = ("chosen", "answer", "pressed", "key")


class MenuSession(Session):
    title = "^Menus$"
    seen = 0

    def lines(self):
        return [line for line in self.said().splitlines() if line.split(" ")[0] in WORDS]

    def point_at(self, x, y):
        self.screen.move((x, y))
        time.sleep(STEP_SECONDS)

    def wait_for_menus(self, count):
        wait_until(lambda: len(self.menus()) == count, f"{count} open menus")
        self.screen.settle()
        return sorted(self.menus())

    def open_menu(self, place=SURFACE, button=RIGHT_BUTTON):
        self.window.click(place, button=button)
        return self.wait_for_menus(1)[0]

    def expect(self, *lines):
        """Just these have been said since the last time, and no menu is open."""
        wait_until(lambda: len(self.lines()) >= self.seen + len(lines), f"{lines} after {self.lines()[self.seen:]}")
        wait_until(lambda: not self.menus(), "the end of all menus")
        self.screen.settle()
        new = self.lines()[self.seen:]
        self.seen += len(new)
        require(new == list(lines), f"expected {lines}, got {new}")


def middle_of(menu, title):
    return menu[0] + 40, menu[1] + PADDING + TOPS[title] + ROW // 2


def menu_window(program, name):
    @contextlib.contextmanager
    def start():
        with MenuSession(program) as session, watched(session, name):
            yield session
    return start


def the_right_button_and_the_control_key_open_a_menu_that_escape_closes(start):
    with start() as session:
        left, top, _, _ = session.open_menu()
        require((left, top) == session.window.on_screen(SURFACE),
                f"the menu is at {(left, top)}, the pointer at {session.window.on_screen(SURFACE)}")
        session.screen.key("Escape")
        session.expect()
        session.screen.hold(CONTROL)
        session.open_menu(button=BUTTON)
        session.screen.let_go(CONTROL)
        session.screen.key("Escape")
        session.expect()


def the_keyboard_goes_through_a_menu(start):
    with start() as session:
        for keys, chosen in (
                (("Down", "Return"), "First"),
                (("Down", "Down", "space"), "Second"),
                (("Up", "Return"), "Last"),
                (("Up", "Up", "Right", "Down", "Return"), "Inner Two"),
                (("Up", "Up", "Return", "Left", "Down", "Return"), "Last"),
                (("End", "Home", "Return"), "First")):
            session.open_menu()
            session.screen.key(*keys)
            session.expect(f"chosen {chosen}")


def the_first_click_in_a_submenu_counts_and_it_stands_beside_its_item(start):
    with start() as session:
        menu = session.open_menu()
        session.point_at(*middle_of(menu, "More"))
        parent, submenu = session.wait_for_menus(2)
        beside = parent[1] + TOPS["More"]
        require(abs(submenu[1] - beside) <= 2 and abs(submenu[0] - parent[0] - parent[2]) <= 6,
                f"the submenu is at {submenu}, its parent at {parent}")
        session.point_at(submenu[0] + 40, submenu[1] + PADDING + ROW // 2)
        session.screen.press()
        session.screen.release()
        session.expect("chosen Inner One")


def a_drag_chooses_where_it_ends(start):
    with start() as session:
        session.window.move(SURFACE)
        session.screen.press(RIGHT_BUTTON)
        menu = session.wait_for_menus(1)[0]
        session.point_at(*middle_of(menu, "First"))
        session.point_at(*middle_of(menu, "Second"))
        session.screen.release(RIGHT_BUTTON)
        session.expect("chosen Second")


def a_disabled_item_keeps_the_menu_open_and_a_click_elsewhere_closes_it(start):
    with start() as session:
        menu = session.open_menu()
        session.screen.click(middle_of(menu, "Disabled"))
        session.screen.settle()
        session.wait_for_menus(1)
        session.window.click(ELSEWHERE)
        session.expect()


def an_items_tool_tip_is_shown(start):
    with start() as session:
        session.point_at(*middle_of(session.open_menu(), "First"))
        wait_until(lambda: len(session.menus()) == 2, "a tool tip")
        session.screen.key("Escape")
        session.expect()


def a_menu_pops_up_where_it_is_told_to(start):
    with start() as session:
        menu = session.open_menu(AT_CORNER, BUTTON)
        wanted = session.window.on_screen(CORNERS[AT_CORNER])
        require(abs(menu[0] - wanted[0]) <= 1 and abs(menu[1] - wanted[1]) <= 1,
                f"the menu is at {menu}, not at {wanted}")
        session.screen.key("Down", "Return")
        session.expect("chosen First", "answer yes")
        menu = session.open_menu(OVER_ITEM, BUTTON)
        wanted = session.window.on_screen(CORNERS[OVER_ITEM])
        require(abs(menu[1] + PADDING + TOPS["Last"] - wanted[1]) <= 1,
                f"the menu is at {menu}, its last item not at {wanted}")
        session.screen.key("Escape")
        session.expect("answer no")


def ten_thousand_items_can_be_reached(start):
    with start() as session:
        left, top, width, height = session.open_menu(LONG, BUTTON)
        require(left >= 0 and top >= 0 and left + width <= SCREEN[0] and top + height <= SCREEN[1],
                f"the menu is at {(left, top)}, {width} by {height}")
        session.screen.key("End", "Return")
        session.expect("chosen Item 9999", "answer yes")
        left, top, width, height = session.open_menu(LONG, BUTTON)
        session.point_at(left + 40, top + 200)
        before = session.screen.picture()
        session.screen.wheel(4)
        session.screen.settle()
        require(session.screen.picture() != before, "the wheel does not scroll")
        session.point_at(left + 40, top + height - 6)
        session.screen.key("End", "Up", "Return")
        session.expect("chosen Item 9998", "answer yes")


if __name__ == "__main__":
    run_checks(the_right_button_and_the_control_key_open_a_menu_that_escape_closes, the_keyboard_goes_through_a_menu,
               the_first_click_in_a_submenu_counts_and_it_stands_beside_its_item, a_drag_chooses_where_it_ends,
               a_disabled_item_keeps_the_menu_open_and_a_click_elsewhere_closes_it, an_items_tool_tip_is_shown,
               a_menu_pops_up_where_it_is_told_to, ten_thousand_items_can_be_reached, starter=menu_window)
