"""python3 -m tests.outside.open_panel PROGRAM: a panel asks for a folder, and something else is done. Both stores and
the template files are looked at after each step."""

import pathlib

from harness.stores import COPY_TARGETS
from tests.outside.checks import require, run_checks
from tests.outside.panels import OpenPanel
from tests.outside.places import PAGES
from tests.outside.screen import command


def folders_of(desktop, *names):
    paths = [pathlib.Path(desktop.user.name, name) for name in names]
    for path in paths:
        path.mkdir()
    return [str(path) for path in paths]


def buttons_behind_a_panel_do_nothing(start):
    with start() as (desktop, model):
        one, two = folders_of(desktop, "One", "Two")
        desktop.show_list(COPY_TARGETS)
        desktop.click("add")
        OpenPanel(desktop.screen).choose(one)
        model.add_folders(COPY_TARGETS, one)
        model.expect("the folder that was chosen")
        desktop.select(0)
        desktop.click("add")
        panel = OpenPanel(desktop.screen)
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
        desktop.click("add")
        OpenPanel(desktop.screen).choose(two)
        model.add_folders(COPY_TARGETS, two)
        model.expect("the other folder")


def opening_a_panel_ends_an_edit_into_its_row(start):
    with start() as (desktop, model):
        one, two = folders_of(desktop, "One", "Two")
        desktop.show_list(COPY_TARGETS)
        desktop.click("add")
        OpenPanel(desktop.screen).choose(one)
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
        desktop.click("add")
        OpenPanel(desktop.screen)
        desktop.application.terminate()
        status = desktop.wait_for_end()
        model.expect("the lists as they were")
        require(status == 0, f"the application ended with status {status}")


if __name__ == "__main__":
    run_checks(buttons_behind_a_panel_do_nothing, opening_a_panel_ends_an_edit_into_its_row,
               ending_with_an_open_panel_keeps_the_lists)
