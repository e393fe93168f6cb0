"""python3 -m tests.outside.right_to_left PROGRAM: the window as it is laid out for a language that is read from right
to left, with a real pointer at the places of the usual layout, seen in a mirror. Both stores are looked at after each
step."""

import pathlib

from harness.stores import ACTIONS, COPY_TARGETS, TEMPLATES, folder_records
from harness.waiting import wait_until
from tests.outside.checks import require, run_checks
from tests.outside.panels import OpenPanel
from tests.outside.picture import ACCENT, Picture
from tests.outside.places import GAP, PAGES, constant
from tests.outside.screen import RIGHT_BUTTON, command, shift_command

NAME = "NewFileDisplayName"
OPENING, SECOND_OPTION, UNCHECKED_OPTION = "enableAutoOpenAfterCreateNewFile", 1, 3
# Where the ring around a box is at its sides, from its middle.
RING_SIDES = (-12, -7), (7, 12)
# Of the heading's line, from the margin: its title is in it, and far longer than this.
TITLE_END = 40
# The first menu's title may be so far from the window's edge.
BAR_MARGIN = 20
# From the sides of a panel: into its default button, its scroller. The titles of its columns.
PANEL_MARGIN, PANEL_SCROLLER = 25, 78
PANEL_TITLES = 10, 90, 590, 115
# The second row of the menu of a rule, from its upper edge.
TURN_OFF = 40


def controls_are_where_a_mirror_shows_them(start):
    with start(is_right_to_left=True) as (desktop, model):
        desktop.window.click(desktop.seen(desktop.places.switch(SECOND_OPTION)))
        wait_until(lambda: desktop.stores.local(OPENING) is False, "the switch that was clicked")
        desktop.click("row_switch", 2)
        model.toggle(TEMPLATES, 2)
        model.expect("a row switched off")
        desktop.select(1)
        desktop.click("remove")
        model.remove(TEMPLATES, 1)
        model.expect("a row less")
        desktop.click("reset")
        model.reset(TEMPLATES)
        model.expect("the factory's list")
        for page in PAGES[1:]:
            desktop.show(page)
        desktop.show_list(ACTIONS)
        desktop.click("enable_all")
        model.enable_all(ACTIONS, False)
        model.expect("all switched off")


def rows_are_edited_dragged_and_found(start):
    with start({COPY_TARGETS: folder_records(3)}, is_right_to_left=True) as (desktop, model):
        desktop.start_typing(1, "Letter")
        desktop.screen.key("Return")
        model.edit(TEMPLATES, 1, NAME, "Letter")
        model.expect("the typed name")
        desktop.window.drag(desktop.place("cell", 3), desktop.place("cell", 0, None, GAP))
        model.drop(TEMPLATES, 3, 0)
        model.expect("another row at the head")
        desktop.screen.key(command("f"))
        desktop.screen.settle()
        desktop.screen.type("Letter")
        desktop.screen.settle()
        desktop.screen.key("Escape")
        desktop.screen.settle()
        desktop.screen.key("space")
        model.toggle(TEMPLATES, 2)
        model.expect("the row that was found switched off")


def texts_begin_at_the_right(start):
    """The title of a page ends where the table does, and nothing is at the other end of its line."""
    with start(is_right_to_left=True) as (desktop, _):
        picture = Picture(desktop.screen.picture())
        left, top = desktop.window.on_screen(desktop.seen((desktop.places.right, desktop.places.top)))
        right, _ = desktop.window.on_screen(desktop.seen((desktop.places.left, 0)))
        top += constant("PageFrame.margin")
        bottom = top + constant("PageFrame.headingHeight")

        def colours(begin):
            return len(set(picture.colours(round(begin), round(top), round(begin) + TITLE_END, round(bottom))))
        require(colours(right - TITLE_END) > 1, "no title at the right")
        require(colours(left) == 1, "something at the left of the title")


def menus_open_towards_the_left(start):
    with start(is_right_to_left=True) as (desktop, model):
        def open_menu(action):
            action()
            wait_until(desktop.menus, "a menu")
            desktop.screen.settle()
            (left, top, width, _), = desktop.menus()
            return left, top, left + width

        pointer, _ = desktop.window.on_screen(desktop.place("cell", 2))
        left, top, right = open_menu(lambda: desktop.window.click(desktop.place("cell", 2), button=RIGHT_BUTTON))
        require(abs(right - pointer) <= 1, f"the menu ends at {right}, the pointer is at {pointer}")
        desktop.screen.click(((left + right) / 2, top + TURN_OFF))
        model.toggle(TEMPLATES, 2)
        model.expect("the rule switched off by its menu")

        window_left, _, window_width, _ = desktop.window.geometry()
        _, _, first = open_menu(lambda: desktop.screen.key("F10"))
        require(0 <= window_left + window_width - first < BAR_MARGIN, "the first menu is not at the right")
        _, _, second = open_menu(lambda: desktop.screen.key(desktop.onward))
        require(second < first, "the second menu is not left of the first")
        desktop.screen.key("Escape")
        wait_until(lambda: not desktop.menus(), "the end of the menu")

        _, _, preview = open_menu(lambda: desktop.screen.key(shift_command("p")))
        require(0 <= window_left + window_width - preview < BAR_MARGIN, "the preview is not at its button")
        desktop.screen.key("Escape")


def a_panel_is_turned_around(start):
    """The pointer is where a mirror shows the default button, and the columns before are at the right."""
    with start(is_right_to_left=True) as (desktop, _):
        inner = pathlib.Path(desktop.user.name, "one", "two", "three", "four", "five")
        inner.mkdir(parents=True)
        desktop.show_list(COPY_TARGETS)

        def ask_for(folder):
            desktop.click("add")
            panel = OpenPanel(desktop.screen)
            panel.enter(f"{folder}/")
            return panel

        def expect_last(folder):
            def is_last():
                return (desktop.stores.local(COPY_TARGETS) or [{}])[-1].get("realPath") == str(folder)
            wait_until(is_last, f"{folder} at the end")

        panel = ask_for(inner)
        panel.window.click((PANEL_MARGIN, panel.window.size()[1] - PANEL_MARGIN))
        expect_last(inner)
        ask_for(inner)
        desktop.screen.key("shift+Tab", "Right")
        desktop.screen.settle()
        desktop.screen.key("Return")
        expect_last(inner.parent)
        panel = ask_for(inner)
        before = Picture(panel.window.picture()).colours(*PANEL_TITLES)
        width, height = panel.window.size()
        panel.window.click((width - PANEL_MARGIN, height - PANEL_SCROLLER))
        desktop.screen.settle()
        require(Picture(panel.window.picture()).colours(*PANEL_TITLES) != before, "the columns have not been scrolled")
        panel.cancel()


def the_focus_is_shown_around_the_box_of_a_switch(start):
    with start(is_right_to_left=True) as (desktop, _):
        x, y = map(round, desktop.seen(desktop.places.switch(UNCHECKED_OPTION)))

        def sides_with_a_ring():
            picture = Picture(desktop.window.picture())
            return [side for side in RING_SIDES if ACCENT in picture.colours(x + side[0], y, x + side[1], y + 1)]

        def goes_on():
            desktop.screen.key("Tab")
            desktop.screen.settle()
            return sides_with_a_ring()

        wait_until(goes_on, "the focus on the switch")
        require(len(sides_with_a_ring()) == 2, "the ring is not around the box")


if __name__ == "__main__":
    run_checks(controls_are_where_a_mirror_shows_them, rows_are_edited_dragged_and_found, texts_begin_at_the_right,
               menus_open_towards_the_left, a_panel_is_turned_around, the_focus_is_shown_around_the_box_of_a_switch)
