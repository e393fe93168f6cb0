"""python3 -m tests.outside.scroller PROGRAM: long lists scrolled with a real pointer, by the knob and by the wheel."""

from harness.stores import COMMON_FOLDERS, folder_records
from tests.outside.checks import require, run_checks
from tests.outside.places import SCROLLER, TABLE_FRAME, constant

ROWS = 10000
# From the knob's upper end; not much for a hand, and beyond a knob that is as short as the list is long.
GRIP = 25


def the_knob_beside_ten_thousand_rows_can_be_taken_hold_of(start):
    with start({COMMON_FOLDERS: folder_records(ROWS)}) as (desktop, model):
        desktop.show_list(COMMON_FOLDERS)
        places, row_height = desktop.places, constant("CellView.rowHeight")
        x = places.right - TABLE_FRAME - SCROLLER / 2
        # No such folders are there, which a line below the list says.
        fault_line = constant("FaultLineView.lineHeight") + constant("FaultLineView.gapAbove")
        top, bottom = places.first_row_top(desktop.page), places.table_bottom() - fault_line
        desktop.window.move((x, top + GRIP))
        desktop.screen.settle()
        before = desktop.window.picture()
        desktop.screen.press()
        desktop.screen.settle(0.2)
        require(desktop.window.picture() == before, "the list has moved although the knob has not")
        desktop.window.drag_on((x, top + GRIP), (x, bottom))
        desktop.screen.settle(0.2)
        desktop.screen.release()
        desktop.window.click((places.column_left(desktop.page, desktop.page.name_column) + 16, bottom - row_height / 2))
        desktop.screen.settle()
        desktop.click("remove")
        model.remove(COMMON_FOLDERS, ROWS - 1)
        model.expect("all rows but the last, to which the knob led")


def six_notches_of_the_wheel_are_ten_rows(start):
    with start({COMMON_FOLDERS: folder_records(30)}) as (desktop, model):
        desktop.show_list(COMMON_FOLDERS)
        desktop.window.move(desktop.place("cell", 0))
        desktop.screen.wheel(6)
        desktop.screen.settle(0.2)
        desktop.select(0)
        desktop.click("remove")
        model.remove(COMMON_FOLDERS, 10)
        model.expect("all rows but the one that was scrolled to the top")


if __name__ == "__main__":
    run_checks(the_knob_beside_ten_thousand_rows_can_be_taken_hold_of, six_notches_of_the_wheel_are_ten_rows)
