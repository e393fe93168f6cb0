"""python3 -m tests.outside.alignment PROGRAM: what stands in line with what, measured from the pixels of the window at
its smallest, and what stays together in a large one."""

from harness.stores import ACTIONS, COPY_TARGETS, TEMPLATES, folder_records
from tests.outside.checks import require, run_checks
from tests.outside.picture import Picture
from tests.outside.places import PAGE_OF, TABLE_FRAME, TABLE_HEAD, constant

FOLDERS = {COPY_TARGETS: folder_records(4)}
# A letter stands so far right of where its place begins, and so far from the middle of its line.
BEARING, LEANING = 1.5, 1


def ink(desktop, left, top, right, bottom):
    """The left, top, right and bottom edge of what has another colour than the corner of that part of the window."""
    picture = Picture(desktop.window.picture())
    left, top, right, bottom = (round(edge) for edge in (left, top, right, bottom))
    ground = picture.colour(left, top)
    marks = [(x, y) for y in range(top, bottom) for x in range(left, right)
             if sum(abs(a - b) for a, b in zip(picture.colour(x, y), ground)) > 90]
    require(marks, f"nothing to be seen between {left}, {top} and {right}, {bottom}")
    columns, rows = zip(*marks)
    return min(columns), min(rows), max(columns), max(rows)


def around(desktop, place, width=18):
    """The edges of what is right of a place in the middle of a line, such as a box and its title."""
    x, y = place
    return ink(desktop, x - 8, y - 10, x - 8 + width, y + 10)


def row_box(desktop, key):
    desktop.show_list(key)
    left, middle = desktop.places.left + TABLE_FRAME, desktop.place("row_switch", 0)[1]
    return ink(desktop, left, middle - 12, left + 30, middle + 12)


def the_boxes_of_a_page_stand_in_one_line(start):
    with start(FOLDERS) as (desktop, _):
        desktop.window.resize(100, 100)
        switch = around(desktop, desktop.places.switch(0))[0]
        every = around(desktop, desktop.place("enable_all"))[0]
        require(abs(switch - every) <= 1, f"a switch begins at {switch}, that of all rows at {every}")


def the_boxes_of_all_tables_stand_at_the_same_place(start):
    with start(FOLDERS) as (desktop, _):
        desktop.window.resize(100, 100)
        lefts = {key: row_box(desktop, key)[0] for key in (TEMPLATES, COPY_TARGETS, ACTIONS)}
        require(len(set(lefts.values())) == 1, f"the boxes begin at {lefts}")


def titles_stand_above_their_columns(start):
    with start(FOLDERS) as (desktop, _):
        desktop.window.resize(100, 100)
        page, places = PAGE_OF[TEMPLATES], desktop.places
        top, row = places.first_row_top(page), constant("CellView.rowHeight")

        def parts(left, width):
            return (ink(desktop, left, top - TABLE_HEAD + 3, left + width, top - 3),
                    ink(desktop, left, top + 3, left + width, top + row - 3))

        title, name = parts(places.column_left(page, "NewFileDisplayName") - 3, 60)
        require(abs(title[0] - name[0]) <= BEARING + 1, f"a title at {title[0]}, the names at {name[0]}")
        title, box = parts(places.column_left(page, "EnableMainMenu") - 12, 85)
        middles = (title[0] + title[2]) / 2, (box[0] + box[2]) / 2
        require(abs(middles[0] - middles[1]) <= BEARING, f"a title around {middles[0]}, the boxes around {middles[1]}")


def lines_stand_in_the_middle_of_their_rows_in_every_script(start):
    for language in ("en", "ja", "zh-Hans"):
        with start(FOLDERS, language=language) as (desktop, _):
            desktop.window.resize(100, 100)
            _, box_top, _, box_bottom = row_box(desktop, ACTIONS)
            x, y = desktop.place("cell", 0)
            _, top, _, bottom = ink(desktop, x - 20, y - 13, x + 60, y + 13)
            apart = (top + bottom) / 2 - (box_top + box_bottom) / 2
            require(abs(apart) <= LEANING, f"in {language} a line is {apart} too low")


def switches_stay_together_in_a_large_window(start):
    with start(FOLDERS) as (desktop, _):
        desktop.window.resize(100, 100)
        small = around(desktop, desktop.places.switch(1))[0]
        desktop.window.resize(1270, 860)
        large = around(desktop, desktop.places.switch(1))[0]
        require(small == large, f"the second switch begins at {small}, in a large window at {large}")


if __name__ == "__main__":
    run_checks(the_boxes_of_a_page_stand_in_one_line, the_boxes_of_all_tables_stand_at_the_same_place,
               titles_stand_above_their_columns, lines_stand_in_the_middle_of_their_rows_in_every_script,
               switches_stay_together_in_a_large_window)
