"""python3 -m tests.outside.switches PROGRAM: the page buttons and the option switches, with a real pointer: their tool
tips, and how far they can be clicked."""

from harness.waiting import wait_until
from tests.outside.checks import require, run_checks
from tests.outside.places import PAGES

TIP = "^Window$"
OPENING, SECOND_OPTION = "enableAutoOpenAfterCreateNewFile", 1
INSIDE_TITLE = 25


def expect_tip(desktop, what, place):
    desktop.window.move(desktop.place("heading"))
    wait_until(lambda: not desktop.screen.windows(TIP), "the end of a tool tip")
    desktop.screen.settle()
    desktop.window.move(place)
    wait_until(lambda: desktop.screen.windows(TIP), f"the tool tip of {what}")


def every_page_button_and_option_switch_shows_its_tool_tip(start):
    with start() as (desktop, _):
        for page in PAGES:
            desktop.show(page)
            expect_tip(desktop, f"the button of {page.title}", desktop.place("page_button"))
            for number in range(page.switches):
                expect_tip(desktop, f"switch {number} of {page.title}", desktop.places.switch(number))


def a_click_right_of_a_title_changes_nothing_and_one_on_the_title_does(start):
    with start() as (desktop, model):
        places = desktop.places
        x, y = places.switch(SECOND_OPTION)
        on_title = x + INSIDE_TITLE, y
        desktop.window.click(on_title)
        wait_until(lambda: desktop.stores.local(OPENING) is False, "the switch that was clicked")
        before = desktop.settings_now()
        between = (places.left + x) / 2 + 40
        lower, all_rows = places.switch(3)[1], desktop.place("enable_all")[1]
        for place in ((between, y), (places.right - 20, lower), (between, all_rows), (places.right - 20, all_rows)):
            desktop.window.click(place)
        desktop.window.click(on_title)
        wait_until(lambda: desktop.stores.local(OPENING) is True, "the switch that was clicked again")
        changed = {key for key, value in desktop.settings_now().items() if before.get(key) != value}
        require(changed == {OPENING}, f"clicks beside titles have changed {changed - {OPENING}}")
        model.expect("the lists as they were")


if __name__ == "__main__":
    run_checks(every_page_button_and_option_switch_shows_its_tool_tip,
               a_click_right_of_a_title_changes_nothing_and_one_on_the_title_does)
