"""python3 -m tests.outside.open_panel PROGRAM: what is added is chosen in a panel, which is typed into, looked at, and
left for something else. Both stores and the template files are looked at after each step."""

import os
import pathlib
import pwd

from harness.stores import COPY_TARGETS, ICONS, TEMPLATES
from harness.waiting import NotSeen, wait_until
from tests.outside.checks import require, run_checks
from tests.outside.panels import OpenPanel, look_the_same
from tests.outside.picture import PIXEL, Picture, contrast
from tests.outside.places import PAGES
from tests.outside.screen import command

# Of the panel, from its upper left: left, top, right, bottom.
INSIDE_OK_BUTTON = (530, 414, 580, 430)
# In its first row.
LAST_COLUMN = (450, 109)
HOME_BUTTON = (420, 420)
# On a busy machine the keyboard may be taken away so late that somebody else may have meant it.
TRIES = 5


def folders_of(desktop, *names):
    paths = [pathlib.Path(desktop.user.name, name) for name in names]
    for path in paths:
        path.mkdir()
    return [str(path) for path in paths]


def folder_of(desktop, *names, content=b"x"):
    folder = pathlib.Path(desktop.user.name, "chosen")
    folder.mkdir()
    for name in names:
        (folder / name).write_bytes(content)
    return folder


def ask(desktop):
    desktop.click("add")
    return OpenPanel(desktop.screen)


def expect_last(desktop, key, name):
    wait_until(lambda: desktop.stores.local(key)[-1]["displayName"] == name, f"{name} at the end of {key}")


def a_panel_is_a_dialogue_that_can_be_read_and_looks_the_same_the_second_time(start):
    with start() as (desktop, model):
        panel = ask(desktop)
        first = panel.window.picture()
        seen = contrast(Picture(first).colours(*INSIDE_OK_BUTTON))
        require(seen >= 4.5, f"the contrast of the disabled default button's title is {seen:.1f}")
        panel.cancel()
        panel = ask(desktop)
        require(panel.window.is_dialog() and not desktop.window.is_dialog(), "the window manager is told otherwise")
        second = panel.window.picture()
        require(look_the_same(first, second), "the second time the panel looks another way")
        panel.cancel()
        model.expect("no change by cancelled panels")


def a_panel_speaks_the_language_of_the_window(start):
    """Also one that the toolkit has no texts in."""
    for language, title in (("zh-Hans", "\u6253\u5f00"), ("fr", "Ouvrir")):
        with start(language=language) as (desktop, _):
            desktop.click("add")
            OpenPanel(desktop.screen, f"^{title}$").cancel()


def the_prompt_of_a_first_launch_has_the_keyboard(start):
    for _ in range(4):
        with start(is_first_launch=True) as (desktop, _):
            prompt = desktop.screen.window("^Alert$", process=desktop.application)
            wait_until(prompt.has_focus, "the keyboard in the prompt")
            desktop.screen.settle(0.2)
            require(prompt.has_focus(), "the prompt has lost the keyboard")


def a_panel_stays_in_front_of_the_window_that_waits_for_it(start):
    with start() as (desktop, model):
        panel = ask(desktop)
        before = desktop.screen.picture()
        desktop.click("page_button")
        desktop.screen.settle()
        require(look_the_same(before, desktop.screen.picture()), "a click on the window changes what is seen")
        panel.cancel()
        model.expect("no change by a cancelled panel")


def a_panel_that_the_window_manager_closes_is_cancelled(start):
    with start() as (desktop, model):
        panel = ask(desktop)
        desktop.screen.key("alt+F4")
        wait_until(lambda: not panel.is_open(), "the end of the closed panel", process=desktop.application)
        desktop.show(PAGES[2])
        model.expect("no change by a closed panel")


def a_panel_and_the_window_behind_it_stay_when_they_are_minimised(start):
    with start() as (desktop, model):
        for is_panel in (True, False):
            panel = ask(desktop)
            (panel.window if is_panel else desktop.window).minimise()
            desktop.screen.settle()
            wait_until(lambda: panel.is_open() and desktop.screen.windows(desktop.title) and panel.window.has_focus(),
                       "both in sight, and the keyboard in the panel", process=desktop.application)
            panel.cancel()
        model.expect("no change by cancelled panels")


def the_keyboard_that_a_window_manager_gives_to_nobody_comes_back_to_a_panel(start):
    """As a busy one does with that of a panel that it was to minimise, after the panel has taken it again."""
    with start() as (desktop, model):
        panel = ask(desktop)

        def comes_back():
            panel.window.minimise()
            desktop.screen.settle()
            wait_until(lambda: panel.is_open() and panel.window.has_focus(), "the panel, and the keyboard in it")
            desktop.screen.give_keyboard_to_nobody()
            try:
                return wait_until(panel.window.has_focus, "the keyboard", seconds=3)
            except NotSeen:
                panel.window.bring_back()
                return False

        require(any(comes_back() for _ in range(TRIES)), "the keyboard stays with nobody")
        panel.cancel()
        model.expect("no change by a cancelled panel")


def files_are_chosen_by_their_paths_and_by_any_names(start):
    with start() as (desktop, _):
        names = ("a:b", "C:x", "c\\d")
        folder = folder_of(desktop, "Letter.rtf", *(f"{name}.txt" for name in names))
        ask(desktop).choose(folder / "Letter.rtf")
        expect_last(desktop, TEMPLATES, "Letter")
        for name in names:
            ask(desktop).choose_in(folder, f"{name}.txt")
            expect_last(desktop, TEMPLATES, name)


def a_double_click_on_a_folder_shows_what_is_in_it(start):
    with start() as (desktop, model):
        inner = pathlib.Path(desktop.user.name, "one", "two", "three")
        inner.mkdir(parents=True)
        desktop.show_list(COPY_TARGETS)
        panel = ask(desktop)
        panel.enter(f"{inner.parent}/")
        panel.window.click(LAST_COLUMN, times=2)
        desktop.screen.settle(0.2)
        require(panel.is_open(), "a double click has ended the panel")
        panel.confirm()
        model.add_folders(COPY_TARGETS, str(inner))
        model.expect("the folder that was double-clicked, after Return")


def the_button_of_the_users_home_counts_more_than_what_was_typed_before(start):
    with start() as (desktop, model):
        one, = folders_of(desktop, "One")
        desktop.show_list(COPY_TARGETS)
        panel = ask(desktop)
        panel.enter(one)
        panel.window.click(HOME_BUTTON)
        panel.confirm()
        model.add_folders(COPY_TARGETS, pwd.getpwuid(os.getuid()).pw_dir)
        model.expect("the user's home")


def a_type_is_one_in_capitals_too(start):
    with start() as (desktop, _):
        folder = folder_of(desktop, "Red.PNG", content=PIXEL)
        desktop.show_list(ICONS)
        ask(desktop).choose_in(folder, "Red.PNG")
        expect_last(desktop, ICONS, "Red.PNG")


def buttons_behind_a_panel_do_nothing(start):
    with start() as (desktop, model):
        one, two = folders_of(desktop, "One", "Two")
        desktop.show_list(COPY_TARGETS)
        ask(desktop).choose(one)
        model.add_folders(COPY_TARGETS, one)
        model.expect("the folder that was chosen")
        desktop.select(0)
        panel = ask(desktop)
        places, page = desktop.places, desktop.page
        for place in (places.remove(page), places.reset(), places.row_switch(page, 0), places.cell(page, 0),
                      places.switch(1), places.page_button(PAGES[0]), places.add()):
            desktop.window.click(place)
            desktop.screen.settle(0.2)
            require(panel.is_open(), f"a click at {place} has ended the panel")
        model.expect("no change behind the panel")
        require(desktop.stores.local("enableMoveFilesTo") is True, "a switch behind the panel has changed")
        panel.cancel()
        model.expect("no change by a cancelled panel")
        desktop.click("row_switch", 0)
        model.toggle(COPY_TARGETS, 0)
        model.expect("a switch that works after it")
        ask(desktop).choose(two)
        model.add_folders(COPY_TARGETS, two)
        model.expect("the other folder")


def opening_a_panel_ends_an_edit_into_its_row(start):
    with start() as (desktop, model):
        one, two = folders_of(desktop, "One", "Two")
        desktop.show_list(COPY_TARGETS)
        ask(desktop).choose(one)
        model.add_folders(COPY_TARGETS, one)
        desktop.start_typing(0, "Typed")
        desktop.screen.key(command("n"))
        panel = OpenPanel(desktop.screen)
        model.edit(COPY_TARGETS, 0, "Note", "Typed")
        model.expect("the typed name, while the panel is open")
        panel.cancel()
        model.expect("the typed name")
        desktop.select(0)
        desktop.click("choose_folder")
        OpenPanel(desktop.screen).choose(two)
        model.choose_folder(0, two)
        model.expect("the other folder without the name typed for the first")


def ending_with_an_open_panel_keeps_the_lists(start):
    with start() as (desktop, model):
        desktop.show_list(COPY_TARGETS)
        ask(desktop)
        desktop.application.terminate()
        status = desktop.wait_for_end()
        model.expect("the lists as they were")
        require(status == 0, f"the application ended with status {status}")


if __name__ == "__main__":
    run_checks(a_panel_is_a_dialogue_that_can_be_read_and_looks_the_same_the_second_time,
               a_panel_speaks_the_language_of_the_window,
               the_prompt_of_a_first_launch_has_the_keyboard,
               a_panel_stays_in_front_of_the_window_that_waits_for_it,
               a_panel_that_the_window_manager_closes_is_cancelled,
               a_panel_and_the_window_behind_it_stay_when_they_are_minimised,
               the_keyboard_that_a_window_manager_gives_to_nobody_comes_back_to_a_panel,
               files_are_chosen_by_their_paths_and_by_any_names,
               a_double_click_on_a_folder_shows_what_is_in_it,
               the_button_of_the_users_home_counts_more_than_what_was_typed_before,
               a_type_is_one_in_capitals_too, buttons_behind_a_panel_do_nothing,
               opening_a_panel_ends_an_edit_into_its_row, ending_with_an_open_panel_keeps_the_lists)
