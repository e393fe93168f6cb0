"""python3 -m tests.outside.small_window PROGRAM: the window at its smallest and at its largest, and in use. Both stores
and the template files are looked at after each step."""

from harness.stores import ACTIONS, COMMON_FOLDERS, COPY_TARGETS, ICONS, LISTS, TEMPLATES, folder_records
from tests.outside.checks import require, run_checks
from tests.outside.places import GAP, PAGE_OF, constant
from tests.outside.screen import option_command

SMALLEST = (constant("WindowLayout.windowMinimumWidth"),
            constant("WindowLayout.windowMinimumHeight") + constant("TNTheme.menuBarHeight"))
FOLDERS = {COPY_TARGETS: folder_records(4), COMMON_FOLDERS: folder_records(4)}


def use_every_page(desktop, model):
    for key in LISTS:
        page = PAGE_OF[key]
        desktop.show(page)
        desktop.start_typing(1, "Renamed")
        desktop.screen.key("Return")
        model.edit(key, 1, page.name_column, "Renamed")
        model.expect(f"the name in {key}")
        if page.switch_column:
            desktop.click("row_switch", 2)
            model.toggle(key, 2)
            model.expect(f"the switch in {key}")
        if page.has_enable_all:
            desktop.click("enable_all")
            model.enable_all(key, not model.is_all_on(key))
            model.expect(f"the switch of all rows of {key}")
        places = desktop.places
        desktop.window.drag(places.cell(page, 0), places.cell(page, 3, height=GAP))
        model.drop(key, 0, 3)
        model.expect(f"the dragged row of {key}")
        desktop.select(2)
        desktop.click("remove")
        model.remove(key, 2)
        model.expect(f"a row less in {key}")


def the_smallest_window_can_be_used(start):
    with start(FOLDERS) as (desktop, model):
        size = desktop.window.resize(100, 100)
        require(size == SMALLEST, f"the window becomes {size}, not {SMALLEST}")
        use_every_page(desktop, model)
        desktop.show_list(TEMPLATES)
        desktop.click("reset")
        model.reset(TEMPLATES)
        model.expect("the factory's list")


def a_list_can_be_shown_when_it_just_fits(start):
    """For the first time, with a point too few or too many."""
    for more in range(-1, 5):
        with start() as (desktop, model):
            page, places = PAGE_OF[ACTIONS], desktop.places
            rows = len(desktop.stores.local(ACTIONS)) * constant("CellView.rowHeight")
            fitting = places.bottom - places.table_bottom() + places.first_row_top(page) + rows
            desktop.window.resize(100, round(fitting) + more)
            desktop.show_list(ACTIONS)
            desktop.click("row_switch", 2)
            model.toggle(ACTIONS, 2)
            model.expect("a row switched off")


def a_large_window_can_be_used(start):
    with start(FOLDERS) as (desktop, model):
        desktop.window.resize(1270, 860)
        use_every_page(desktop, model)


def rows_are_reached_and_moved_beyond_the_edge_of_a_small_window(start):
    with start() as (desktop, model):
        desktop.window.resize(100, 100)
        for key in (TEMPLATES, ICONS):
            desktop.show_list(key)
            rows = len(model.lists[key])
            desktop.screen.wheel(40)
            desktop.screen.settle(0.2)
            desktop.screen.wheel(-40)
            desktop.screen.settle(0.2)
            desktop.select(0)
            desktop.screen.key(*["Down"] * (rows - 1), "space")
            model.toggle(key, rows - 1)
            model.expect(f"the last row of {key} switched by keys")
            for row in range(rows - 1, rows - 4, -1):
                desktop.screen.key(option_command("Up"))
                model.drop(key, row, row - 1)
            model.expect(f"the last row of {key} moved by keys")


if __name__ == "__main__":
    run_checks(the_smallest_window_can_be_used, a_list_can_be_shown_when_it_just_fits, a_large_window_can_be_used,
               rows_are_reached_and_moved_beyond_the_edge_of_a_small_window)
