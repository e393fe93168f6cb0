"""python3 -m tests.outside.wrong_orders PROGRAM: what a person does too fast, or in the middle of something else. Both
stores and the template files are looked at after each step."""

import signal

from harness.stores import ACTIONS, COMMON_FOLDERS, ICONS, TEMPLATES, folder_records
from harness.waiting import wait_until
from tests.outside.checks import require, run_checks
from tests.outside.commands import choose, open_menu
from tests.outside.places import GAP, PAGE_OF
from tests.outside.screen import BUTTON, command

# In the menu bar, and the number of its first item.
APPLICATION_MENU, ABOUT = (30, 10), 1


def click(desktop, name, *arguments, times):
    with desktop.held_up():
        desktop.click(name, *arguments, times=times)


def clicks_in_a_row_count_each(start):
    with start() as (desktop, model):
        desktop.select(4)
        click(desktop, "remove", times=2)
        model.remove(TEMPLATES, model.remove(TEMPLATES, 4))
        model.expect("two rows less")
        for key, row in ((TEMPLATES, 1), (ICONS, 2), (ACTIONS, 0)):
            desktop.show_list(key)
            for times in (2, 3):
                click(desktop, "row_switch", row, times=times)
                for _ in range(times):
                    model.toggle(key, row)
                model.expect(f"{times} clicks on a row switch of {key}")
                click(desktop, "enable_all", times=times)
                for _ in range(times):
                    model.enable_all(key, not model.is_all_on(key))
                model.expect(f"{times} clicks on the switch of all rows of {key}")


def a_name_is_typed_right_after_another_edit_was_abandoned(start):
    with start() as (desktop, model):
        with desktop.held_up():
            desktop.start_typing(3, "Abandoned")
            desktop.screen.key("Escape")
            desktop.start_typing(5, "Report")
            desktop.screen.key("Return")
        model.edit(TEMPLATES, 5, "NewFileDisplayName", "Report")
        model.expect("the typed name")


def deleting_goes_on_until_the_list_is_empty(start):
    with start({COMMON_FOLDERS: folder_records(6)}) as (desktop, model):
        desktop.show_list(COMMON_FOLDERS)
        desktop.select(3)
        row = 3
        for _ in range(6):
            row = model.remove(COMMON_FOLDERS, row)
        desktop.screen.key(*["Delete"] * 9)
        model.expect("an empty list")
        click(desktop, "remove", times=2)
        model.expect("still an empty list")


def a_row_is_dragged_while_the_wheel_turns(start):
    with start() as (desktop, model):
        places, page = desktop.places, PAGE_OF[TEMPLATES]
        first, middle, last = places.cell(page, 1), places.cell(page, 5), places.cell(page, 7, height=GAP)
        desktop.window.drag_to(first, middle)
        desktop.screen.wheel(4)
        desktop.window.drag_on(middle, last)
        desktop.screen.release()
        model.drop(TEMPLATES, 1, 7)
        model.expect("the row where it was let go")
        desktop.window.drag_to(places.cell(page, 2), middle)
        desktop.screen.key(command("2"), "Delete", "space", "Return")
        desktop.window.drag_on(middle, (20, 400))
        desktop.screen.release()
        desktop.screen.settle(0.5)
        model.expect("no change by a drag that ends elsewhere")
        require(not desktop.has_ended(), "the application has ended")


def quitting_in_the_middle_of_a_drag_keeps_the_list(start):
    with start() as (desktop, model):
        page = desktop.page
        desktop.window.drag_to(desktop.places.cell(page, 1), desktop.places.cell(page, 5, height=GAP))
        desktop.screen.key(command("q"))
        desktop.screen.release()
        status = desktop.wait_for_end()
        model.drop(TEMPLATES, 1, 5)
        model.expect("the row where it was let go")
        require(status == 0, f"the application ended with status {status}")


def a_request_to_end_in_the_middle_of_a_drag_keeps_the_list(start):
    with start() as (desktop, model):
        page = desktop.page
        desktop.window.drag_to(desktop.places.cell(page, 1), desktop.places.cell(page, 5, height=GAP))
        desktop.application.send_signal(signal.SIGTERM)
        status = desktop.wait_for_end()
        model.expect("the list as it was")
        require(status == 0, f"the application ended with status {status}")
        desktop.screen.release()
        desktop.start()
        model.expect("the list as it was, after another start")


def a_menu_or_panel_that_closes_beside_the_minimised_window_does_not_end_the_application(start):
    with start() as (desktop, model):
        open_menu(desktop, desktop.place("cell", 2))
        desktop.minimise()
        desktop.bring_back()
        desktop.click("row_switch", 4)
        model.toggle(TEMPLATES, 4)
        model.expect("a row switched after a menu")
        open_menu(desktop, APPLICATION_MENU, BUTTON)
        choose(desktop, ABOUT)
        about = desktop.screen.window(desktop.title)
        require(about.number != desktop.window.number and about.is_dialog(), "the panel is no dialogue")
        desktop.minimise()
        desktop.screen.key("alt+F4")
        wait_until(lambda: not desktop.screen.windows(desktop.title), "the end of the panel")
        desktop.bring_back()
        desktop.click("row_switch", 4)
        model.toggle(TEMPLATES, 4)
        model.expect("a row switched after a panel")


if __name__ == "__main__":
    run_checks(clicks_in_a_row_count_each, a_name_is_typed_right_after_another_edit_was_abandoned,
               deleting_goes_on_until_the_list_is_empty, a_row_is_dragged_while_the_wheel_turns,
               quitting_in_the_middle_of_a_drag_keeps_the_list,
               a_request_to_end_in_the_middle_of_a_drag_keeps_the_list,
               a_menu_or_panel_that_closes_beside_the_minimised_window_does_not_end_the_application)
