"""python3 -m tests.outside.commands PROGRAM: the commands on a rule, from the menu of its row and by their keys, with a
real pointer and keyboard."""

from harness.stores import ACTIONS, COPY_TARGETS, TEMPLATES, folder_records
from harness.waiting import wait_until
from tests.outside.checks import require, run_checks
from tests.outside.panels import OpenPanel, look_the_same
from tests.outside.picture import ACCENT, Picture
from tests.outside.screen import BUTTON, COMMAND, CONTROL, RIGHT_BUTTON, command, shift_command

# In the menu of a template, by the number of steps down to it.
TURN_OFF, SHOW_IN_MAIN_MENU, REMOVE = 2, 3, 8
ICON = 16


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


def open_by_key(desktop, *keys):
    before = desktop.screen.picture()
    desktop.screen.key(*keys)
    wait_until(lambda: desktop.screen.picture() != before, f"a menu opened by {keys}")
    desktop.screen.settle()


def the_menu_bar_is_opened_and_walked_by_key(start):
    with start() as (desktop, model):
        desktop.screen.key("Down", "Down")
        desktop.screen.settle()
        for key, to_rules in (("F10", ["Right"] * 4), (f"{CONTROL}+F2", ["Left"] * 3)):
            open_by_key(desktop, key)
            desktop.screen.key(*to_rules)
            choose(desktop, TURN_OFF)
            model.toggle(TEMPLATES, 1)
            model.expect(f"the selected rule switched by way of {key}")
        before = desktop.screen.picture()
        for key in ("F10", "Escape"):
            open_by_key(desktop, "F10", "Down")
            desktop.screen.key(key)
            wait_until(lambda: desktop.screen.picture() == before, f"the menu closed by {key}")
        desktop.screen.key("space")
        model.toggle(TEMPLATES, 1)
        model.expect("the keyboard back in the table")
        desktop.click("add")
        panel = OpenPanel(desktop.screen)
        before = desktop.screen.picture()
        desktop.screen.key("F10")
        desktop.screen.settle(0.3)
        require(look_the_same(desktop.screen.picture(), before), "a menu opens beside a panel")
        panel.cancel()


def there_is_no_menu_where_nothing_has_one(start):
    with start() as (desktop, _):
        before = desktop.screen.picture()
        for place in (desktop.place("page_button"), desktop.place("heading")):
            desktop.window.click(place, button=RIGHT_BUTTON)
            desktop.screen.settle()
            require(look_the_same(before, desktop.screen.picture()), f"something opens at {place}")


def a_page_is_shown_by_its_digit_on_a_keyboard_that_has_digits_with_shift(start):
    with start({COPY_TARGETS: folder_records(2)}) as (desktop, model):
        desktop.screen.run("setxkbmap", "fr")
        desktop.screen.key(command("eacute"))
        desktop.screen.settle()
        desktop.screen.key("Down", "Delete")
        model.remove(COPY_TARGETS, 0)
        model.expect("a row less on the second page")


def a_window_that_is_minimised_or_hidden_comes_back_by_the_keys_that_go_from_window_to_window(start):
    with start() as (desktop, model):
        for key in ("m", "h"):
            desktop.screen.key(command(key))
            desktop.wait_until_gone()
            desktop.screen.key("alt+Tab")
            wait_until(lambda: desktop.is_in_sight() and desktop.window.has_focus(), "the window with the keyboard")
            desktop.screen.settle()
            desktop.click("row_switch", 4)
            model.toggle(TEMPLATES, 4)
            model.expect("a row that is switched then")


def a_window_that_comes_back_has_the_keyboard_although_the_window_manager_took_it_meanwhile(start):
    with start() as (desktop, model):
        desktop.minimise()
        with desktop.held_up():
            desktop.bring_back()
            desktop.screen.give_keyboard_to_nobody()
        wait_until(desktop.window.has_focus, "the keyboard in the window")
        desktop.screen.settle()
        desktop.click("row_switch", 4)
        model.toggle(TEMPLATES, 4)
        model.expect("a row that is switched then")


def marked_rows(desktop):
    """Of open menus: the colours where its icon stands, of each marked row from the top."""
    picture = Picture(desktop.screen.picture())
    marked = []
    for y in range(picture.height - 1):
        line = picture.row(y)
        x, end = line.find(ACCENT * 60) // 3, line.rfind(ACCENT * 60) // 3 + 60
        # The ring around what has the keyboard has the same colour, and is thin.
        is_last = x >= 0 and ACCENT * 60 not in picture.row(y + 1) and picture.colour(end - 6, y - ICON // 2) == ACCENT
        if is_last:
            marked.append(picture.colours(x + 2, y - ICON, x + 2 + ICON, y - 4))
    return marked


def every_item_of_the_preview_has_its_icon(start):
    with start({COPY_TARGETS: folder_records(300)}) as (desktop, _):
        open_by_key(desktop, shift_command("p"))
        # Past the new files, to the last of the folders.
        desktop.screen.key("Down", "Down", "Right")
        desktop.screen.settle()
        for key in ("Home", "End"):
            desktop.screen.key(key)
            desktop.screen.settle()
            icon = marked_rows(desktop)[-1]
            require(len(icon) > 2, f"no icon beside the item that {key} leads to, only {icon}")
        desktop.screen.key("Escape")


if __name__ == "__main__":
    run_checks(the_menu_of_a_row_acts_on_it_wherever_the_row_is_clicked,
               what_is_being_typed_is_kept_when_a_menu_opens_and_escape_leaves_the_menu_alone,
               there_is_no_menu_where_nothing_has_one,
               a_page_is_shown_by_its_digit_on_a_keyboard_that_has_digits_with_shift,
               a_row_is_changed_by_the_keyboard_alone, the_menu_bar_is_opened_and_walked_by_key,
               a_window_that_is_minimised_or_hidden_comes_back_by_the_keys_that_go_from_window_to_window,
               a_window_that_comes_back_has_the_keyboard_although_the_window_manager_took_it_meanwhile,
               every_item_of_the_preview_has_its_icon)
