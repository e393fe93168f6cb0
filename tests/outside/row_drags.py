#!/usr/bin/env python3
"""row_drags.py PROGRAM: rows dragged with a real pointer, and what is left on the screen of the lines that show
where they would go."""

import sys

from desktop import Desktop, wait_until

GRIP, FIRST_ROW, ROW_HEIGHT = 400, 240, 30
SIDEBAR = (90, 480)
NOWHERE = (600, 20)
ACCENT = bytes.fromhex("2f73da")


def middle(row):
    return GRIP, FIRST_ROW + row * ROW_HEIGHT


def gap(row):
    """Just above the row."""
    return GRIP, FIRST_ROW + row * ROW_HEIGHT - ROW_HEIGHT // 2 + 2


def lines_shown(desktop):
    """How many lines of the accent colour go across the table."""
    header, size, _, pixels = desktop.picture().split(b"\n", 3)
    if header != b"P6":
        raise SystemExit(f"a picture of an unknown kind, {header}")
    width = int(size.split()[0]) * 3
    rows = [pixels[place : place + width].count(ACCENT * 100) for place in range(0, len(pixels), width)]
    return sum(1 for row, above in zip(rows[1:], rows) if row and not above)


def hold_over(desktop, *places):
    """Takes the first row up and goes from place to place, in one step each."""
    desktop.drag(middle(0), places[0], release=False)
    for place in places[1:]:
        desktop.settle()
        desktop.move(*place)
    desktop.settle()


def let_go(desktop):
    desktop.xdotool("mouseup", 1)
    desktop.settle()
    desktop.move(*NOWHERE)
    desktop.settle()


def a_drag_that_jumps_shows_one_line(desktop):
    hold_over(desktop, gap(4), gap(7), gap(5))
    if lines_shown(desktop) != 1:
        raise SystemExit(f"{lines_shown(desktop)} lines instead of one")
    let_go(desktop)
    # A row that moves down lands one place further.
    wait_until(lambda: desktop.local("arrOfCreateNewFile")[5]["displayName"] == "TXT", "the row in its new place")
    if lines_shown(desktop):
        raise SystemExit("the line is still there after the drop")


def a_refused_drop_leaves_nothing(desktop):
    desktop.click(*middle(0))
    desktop.move(*NOWHERE)
    desktop.settle()
    before = desktop.picture()
    hold_over(desktop, gap(4), gap(7), middle(5))
    let_go(desktop)
    if desktop.picture() != before:
        raise SystemExit("the screen is another one after a refused drop")


def a_drag_out_of_the_table_leaves_nothing(desktop):
    before = desktop.picture()
    hold_over(desktop, gap(4), gap(7), SIDEBAR)
    if lines_shown(desktop):
        raise SystemExit("a line is shown although the pointer is elsewhere")
    let_go(desktop)
    if desktop.picture() != before:
        raise SystemExit("the screen is another one after a drag that went out of the table")


if __name__ == "__main__":
    with Desktop(sys.argv[1]) as the_desktop:
        for part in (
            a_drag_that_jumps_shows_one_line,
            a_refused_drop_leaves_nothing,
            a_drag_out_of_the_table_leaves_nothing,
        ):
            part(the_desktop)
            print(part.__name__.replace("_", " "))
