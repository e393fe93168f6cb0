"""python3 -m tests.outside.open_edit PROGRAM: a name is being typed, and something else is done before it is confirmed.
Both stores and the template files are looked at after each step."""

from harness.stores import TEMPLATES
from tests.outside.checks import require, run_checks
from tests.outside.places import GAP
from tests.outside.screen import command

NAME = "NewFileDisplayName"
XML = 2


def ends_with(key, start):
    with start() as (desktop, model):
        desktop.start_typing(XML, "Letter")
        desktop.screen.key(command(key))
        status = desktop.wait_for_end()
        model.edit(TEMPLATES, XML, NAME, "Letter")
        model.expect("the typed name")
        require(status == 0, f"the application ended with status {status}")


def quitting_stores_the_typed_name(start):
    ends_with("q", start)


def closing_the_window_stores_the_typed_name(start):
    ends_with("w", start)


def buttons_act_on_what_the_edit_has_stored(start):
    with start() as (desktop, model):
        desktop.start_typing(XML)
        desktop.click("remove")
        model.edit(TEMPLATES, XML, NAME, "XML")
        model.remove(TEMPLATES, XML)
        model.expect("a row less")
        desktop.start_typing(1, "Letter")
        desktop.click("reset")
        model.reset(TEMPLATES)
        model.expect("the factory's list")


def escape_stores_nothing(start):
    with start() as (desktop, model):
        desktop.start_typing(XML, "Letter")
        desktop.screen.key("Escape")
        desktop.screen.settle()
        desktop.screen.key("Down", "space")
        model.toggle(TEMPLATES, XML + 1)
        model.expect("only the next row switched off")


def the_window_changes_under_an_edit(start):
    """By the wheel, which carries its row out of sight, by another size, and by both."""
    with start() as (desktop, model):
        for row, (steps, size) in enumerate(((20, None), (0, (100, 100)), (20, (1200, 800)))):
            desktop.start_typing(row, f"Typed {row}")
            desktop.screen.wheel(steps)
            if size:
                desktop.window.resize(*size)
            desktop.screen.key("Return")
            model.edit(TEMPLATES, row, NAME, f"Typed {row}")
            model.expect(f"the name typed into row {row}")
            desktop.screen.wheel(-20)
            desktop.screen.settle(0.2)


def rows_are_clicked_switched_and_dragged_under_an_edit(start):
    with start() as (desktop, model):
        places, page = desktop.places, desktop.page
        desktop.start_typing(1, "Switched")
        desktop.click("row_switch", 4)
        model.edit(TEMPLATES, 1, NAME, "Switched")
        model.toggle(TEMPLATES, 4)
        model.expect("the typed name, and another row switched")
        desktop.start_typing(1, "Dragged")
        desktop.window.drag(places.cell(page, 3), places.cell(page, 0, height=GAP))
        model.edit(TEMPLATES, 1, NAME, "Dragged")
        model.drop(TEMPLATES, 3, 0)
        model.expect("the typed name, and another row at the head")
        desktop.start_typing(2, "Pulled away")
        desktop.window.drag(places.cell(page, 2, "NewFileIcon"), places.cell(page, 6, height=GAP))
        model.edit(TEMPLATES, 2, NAME, "Pulled away")
        model.drop(TEMPLATES, 2, 6)
        model.expect("the typed name in its own row, which was dragged")
        desktop.start_typing(0, "Shown")
        desktop.screen.key(command("4"))
        model.edit(TEMPLATES, 0, NAME, "Shown")
        model.expect("the typed name, before another page is shown")
        desktop.show_list(TEMPLATES)
        desktop.start_typing(5, "All")
        desktop.click("enable_all")
        model.edit(TEMPLATES, 5, NAME, "All")
        model.enable_all(TEMPLATES, True)
        model.expect("the typed name, and all rows on")


if __name__ == "__main__":
    run_checks(quitting_stores_the_typed_name, closing_the_window_stores_the_typed_name,
               buttons_act_on_what_the_edit_has_stored, escape_stores_nothing, the_window_changes_under_an_edit,
               rows_are_clicked_switched_and_dragged_under_an_edit)
