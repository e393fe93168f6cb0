"""python3 -m tests.outside.row_drags PROGRAM: rows dragged with a real pointer, and what is left on the screen of the
lines that show where they would go. Both stores are looked at after each drag."""

import contextlib
import os
import signal

from harness.stores import COPY_TARGETS, TEMPLATES, folder_records
from harness.waiting import wait_until_steady
from tests.outside.checks import require, run_checks
from tests.outside.picture import ACCENT, Picture
from tests.outside.pointer import pointer_picture

# Of a row, from its top.
GAP = 0.07
UNDER_PICTURE = 220


def lines_shown(desktop):
    """How many lines of the accent colour go across the table, the ring around it left out."""
    picture = Picture(desktop.screen.picture())
    places, above = desktop.places, desktop.window.geometry()[1]
    top, bottom = above + places.first_row_top(desktop.page), above + places.table_bottom()
    has_line = [ACCENT * 100 in picture.row(y) for y in range(round(top), round(bottom))]
    return sum(here and not above for here, above in zip(has_line[1:], has_line))


def line_under_the_picture(desktop, row):
    """The part of the line above the row that can be seen in the columns where the dragged row is."""
    picture = Picture(desktop.screen.picture())
    left, y = desktop.window.on_screen(desktop.place("cell", row, desktop.page.switch_column, 0))
    pixels = picture.row(round(y))[3 * round(left):3 * round(left + UNDER_PICTURE)]
    return sum(pixels[index:index + 3] == ACCENT for index in range(0, len(pixels), 3)) / UNDER_PICTURE


def pointer(desktop):
    """Once it stays the same: it changes by no picture of the screen."""
    last = None

    def look():
        nonlocal last
        last = pointer_picture(desktop.screen.environment["DISPLAY"])
        return last
    wait_until_steady(look, "a pointer that stays the same", 0.5)
    return last


def hold_over(desktop, *places):
    """Takes the first row up and goes from place to place, in one step each."""
    desktop.window.drag_to(desktop.place("cell", 0), places[0])
    for place in places[1:]:
        desktop.screen.settle()
        desktop.window.move(place)
    desktop.screen.settle()


def point_elsewhere(desktop):
    desktop.window.move(desktop.place("heading"))
    desktop.screen.settle()


def let_go(desktop):
    desktop.screen.release()
    desktop.screen.settle()
    point_elsewhere(desktop)


def gap(desktop, row):
    """Just above the row."""
    return desktop.place("cell", row, None, GAP)


def a_drag_that_jumps_shows_one_line(start):
    with start() as (desktop, model):
        hold_over(desktop, gap(desktop, 4), gap(desktop, 7), gap(desktop, 5))
        require(lines_shown(desktop) == 1, f"{lines_shown(desktop)} lines instead of one")
        let_go(desktop)
        model.drop(TEMPLATES, 0, 5)
        model.expect("the row in its new place")
        require(lines_shown(desktop) == 0, "the line is still there after the drop")


def a_drag_that_comes_to_nothing_leaves_nothing(start):
    with start() as (desktop, model):
        desktop.select(0)
        point_elsewhere(desktop)
        before = desktop.screen.picture()
        # Onto a row, which is refused, and out of the table.
        for end in (desktop.place("cell", 5), (20, desktop.place("cell", 5)[1])):
            hold_over(desktop, gap(desktop, 4), gap(desktop, 7), end)
            require(lines_shown(desktop) == 0, f"a line is shown while the pointer is at {end}")
            let_go(desktop)
            require(desktop.screen.picture() == before, f"the screen is another one after a drag to {end}")
        model.expect("the list as it was")


@contextlib.contextmanager
def stopped(desktop):
    """As a program that is very busy: what is done meanwhile reaches it all at once."""
    os.kill(desktop.application.pid, signal.SIGSTOP)
    try:
        yield
    finally:
        os.kill(desktop.application.pid, signal.SIGCONT)


def a_drag_within_a_moment_in_which_the_program_is_stopped_ends_where_the_pointer_let_go(start):
    with start({COPY_TARGETS: folder_records(6)}) as (desktop, model):
        for key, row, end in ((TEMPLATES, 0, 5), (TEMPLATES, 6, 2), (COPY_TARGETS, 1, 4)):
            desktop.show_list(key)
            with stopped(desktop):
                desktop.window.drag_to(desktop.place("cell", row), gap(desktop, end))
                desktop.screen.release()
                # Where the pointer is by then does not matter.
                desktop.window.move(desktop.place("heading"))
            model.drop(key, row, end)
            model.expect(f"row {row} in its new place")


def a_drag_that_ends_while_the_program_is_stopped_ends_where_the_pointer_let_go(start):
    with start() as (desktop, model):
        hold_over(desktop, gap(desktop, 4))
        with stopped(desktop):
            desktop.window.drag_on(gap(desktop, 4), gap(desktop, 7))
            desktop.screen.release()
            desktop.window.move(desktop.place("heading"))
        model.drop(TEMPLATES, 0, 7)
        model.expect("the row where it was let go")
        hold_over(desktop, gap(desktop, 4))
        with stopped(desktop):
            desktop.window.move((20, desktop.place("cell", 5)[1]))
            desktop.screen.release()
            desktop.window.move(gap(desktop, 4))
        desktop.screen.settle()
        point_elsewhere(desktop)
        model.expect("nothing moved by a drag that ends outside")
        require(lines_shown(desktop) == 0, "the line is still there after the drag")


def the_dragged_row_does_not_hide_the_line(start):
    with start() as (desktop, model):
        hold_over(desktop, gap(desktop, 4), gap(desktop, 7))
        seen = line_under_the_picture(desktop, 7)
        require(seen > 0.6, f"{seen:.0%} of the line can be seen below the dragged row")
        let_go(desktop)
        model.drop(TEMPLATES, 0, 7)
        model.expect("the row in its new place")


def the_pointer_says_where_a_row_cannot_be_dropped(start):
    with start() as (desktop, model):
        hold_over(desktop, gap(desktop, 4), gap(desktop, 7))
        over_gap = pointer(desktop)
        desktop.window.move(desktop.place("cell", 5))
        desktop.screen.settle()
        over_row = pointer(desktop)
        require(over_row != over_gap, "the pointer over a row is that over a gap")
        desktop.window.move(gap(desktop, 7))
        desktop.screen.settle()
        require(pointer(desktop) == over_gap, "the pointer over a gap is another one after a row")
        desktop.window.move(desktop.place("heading"))
        desktop.screen.settle()
        require(pointer(desktop) == over_row, "the pointer beside the list is not that over a row")
        let_go(desktop)
        model.expect("the list as it was")


if __name__ == "__main__":
    run_checks(a_drag_that_jumps_shows_one_line, a_drag_that_comes_to_nothing_leaves_nothing,
               a_drag_within_a_moment_in_which_the_program_is_stopped_ends_where_the_pointer_let_go,
               a_drag_that_ends_while_the_program_is_stopped_ends_where_the_pointer_let_go,
               the_dragged_row_does_not_hide_the_line, the_pointer_says_where_a_row_cannot_be_dropped)
