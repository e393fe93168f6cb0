"""python3 -m tests.outside.commands PROGRAM: the commands on a rule, from the menu of its row and by their keys, with a
real pointer and keyboard."""

from harness.stores import ACTIONS, TEMPLATES
from harness.waiting import wait_until
from tests.outside.checks import require, run_checks
from tests.outside.screen import BUTTON, COMMAND, CONTROL, RIGHT_BUTTON, command

# In the menu of a template, by the number of steps down to it.
TURN_OFF, SHOW_IN_MAIN_MENU, REMOVE = 2, 3, 8


def names(desktop):
    return [record["displayName"] for record in desktop.stores.local(TEMPLATES)]


def open_menu(desktop, place, button=RIGHT_BUTTON):
    before = desktop.screen.picture()
    desktop.window.click(place, button=button)
    wait_until(lambda: desktop.screen.picture() != before, "the menu")
    desktop.screen.settle()


def choose(desktop, steps):
    desktop.screen.key(*["Down"] * steps, "Return")
    desktop.screen.settle()


def the_menu_of_a_row_acts_on_it_wherever_the_row_is_clicked(start):
    with start() as (desktop, _):
        first = names(desktop)
        open_menu(desktop, desktop.place("row_switch", 2))
        choose(desktop, REMOVE)
        wait_until(lambda: names(desktop) == first[:2] + first[3:], "one template less")
        desktop.screen.hold(CONTROL)
        open_menu(desktop, desktop.place("cell", 1), BUTTON)
        desktop.screen.let_go(CONTROL)
        choose(desktop, TURN_OFF)
        wait_until(lambda: desktop.stores.local(TEMPLATES)[1]["enable"] == 0, "a template that is off")
        require(names(desktop) == first[:2] + first[3:], f"there are {names(desktop)}")


def what_is_being_typed_is_kept_when_a_menu_opens_and_escape_leaves_the_menu_alone(start):
    with start() as (desktop, _):
        desktop.start_typing(1, "Letter")
        open_menu(desktop, desktop.place("cell", 3))
        wait_until(lambda: names(desktop)[1] == "Letter", "the typed name")
        before = desktop.stores.local(TEMPLATES)
        desktop.screen.key("Escape")
        desktop.screen.settle()
        require(desktop.stores.local(TEMPLATES) == before, "Escape has changed something")
        desktop.screen.key("space")
        wait_until(lambda: desktop.stores.local(TEMPLATES)[3]["enable"] == 0, "the selected row, off by its key")


def a_row_is_changed_by_the_keyboard_alone(start):
    with start() as (desktop, _):
        desktop.screen.key("Down", "Down", "Menu")
        desktop.screen.settle()
        choose(desktop, SHOW_IN_MAIN_MENU)
        wait_until(lambda: desktop.stores.local(TEMPLATES)[1].get("enableMainMenu") == 1, "the main menu's switch")
        desktop.screen.key(f"{COMMAND}+Shift_L+m")
        wait_until(lambda: desktop.stores.local(TEMPLATES)[1].get("enableMainMenu") == 0, "that switch off again")
        desktop.screen.key(command("5"))
        desktop.screen.settle()
        desktop.screen.key("Down", command("e"))
        desktop.screen.settle()
        desktop.screen.key(command("a"))
        desktop.screen.type("by key")
        desktop.screen.key("Return")
        wait_until(lambda: desktop.stores.local(ACTIONS)[0]["Note"] == "by key", "the note")


if __name__ == "__main__":
    run_checks(the_menu_of_a_row_acts_on_it_wherever_the_row_is_clicked,
               what_is_being_typed_is_kept_when_a_menu_opens_and_escape_leaves_the_menu_alone,
               a_row_is_changed_by_the_keyboard_alone)
