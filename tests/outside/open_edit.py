"""python3 -m tests.outside.open_edit PROGRAM: a name is being typed, and something else is done before it is confirmed.
Both stores and the template files are looked at after each step."""

from harness.stores import TEMPLATES
from tests.outside.checks import require, run_checks
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


if __name__ == "__main__":
    run_checks(quitting_stores_the_typed_name, closing_the_window_stores_the_typed_name,
               buttons_act_on_what_the_edit_has_stored, escape_stores_nothing)
