"""python3 -m tests.outside.finding PROGRAM: rules found from the find bar and by typing in a table, and how many are
on, with a real pointer and keyboard. Nobody outside can read: texts are equal when they look the same."""

import time

from harness.stores import COPY_TARGETS, TEMPLATES
from harness.waiting import wait_until
from tests.outside.checks import require, run_checks
from tests.outside.picture import Picture
from tests.outside.places import constant
from tests.outside.screen import command, shift_command

# While the table has the keyboard, and while something else has it.
SELECTED = {bytes.fromhex("CFE2FD"), bytes.fromhex("E1E3E6")}
FIND, NEXT, PREVIOUS = command("f"), command("g"), shift_command("g")
# Arrows, count and the button at the right end of the bar.
BAR_END = 320
# Of the line of the switch of all rows: its box, and what stands to the right of it.
BOX, LINE = 24, 420
PAUSE = 1.3


def folders(*names):
    return {COPY_TARGETS: [{"enable": 1, "realPath": f"/folders/{n}", "displayName": name}
                           for n, name in enumerate(names)]}


SEVEN = folders("Report", "Other", "My REPORT", "r\u00e9port", "Last", "Reports", "The rep\u00f6rt", "Report 2",
                "reP\u00f3rt")
HITS = [0, 2, 3, 5, 6, 7, 8]


class Finder:
    """What is seen of finding on the page that is shown."""

    def __init__(self, desktop):
        self.desktop = desktop
        self.is_open = False

    def seen(self):
        self.desktop.screen.settle()
        return Picture(self.desktop.window.picture())

    def bar_height(self):
        return constant("FindBar.barHeight") + constant("FindBar.room")

    def first_row_top(self):
        return self.desktop.places.first_row_top(self.desktop.page) + (self.bar_height() if self.is_open else 0)

    def selected(self):
        """The row that looks selected; none of those in sight."""
        picture, height = self.seen(), constant("CellView.rowHeight")
        # Where no cell has anything.
        end = round(self.desktop.places.right) - 20
        middles = [round(self.first_row_top() + (row + 0.5) * height) for row in range(len(SEVEN[COPY_TARGETS]))]
        rows = [row for row, y in enumerate(middles) if SELECTED & picture.colours(end, y, end + 1, y + 1)]
        require(len(rows) < 2, f"rows {rows} look selected")
        return rows[0] if rows else None

    def expect(self, row, what):
        wait_until(lambda: self.selected() == row, f"row {row} selected {what}", 5)

    def count(self):
        """The text of the bar, as a picture."""
        places = self.desktop.places
        bottom = round(self.desktop.places.first_row_top(self.desktop.page)) + 4
        return self.seen().part(round(places.right) - BAR_END, bottom - 26, round(places.right), bottom)

    def look_for(self, text):
        self.desktop.screen.key(FIND)
        self.is_open = True
        self.desktop.screen.settle()
        self.desktop.screen.type(text)
        self.desktop.screen.settle()

    def paste(self, text):
        """Letters that a keyboard may not have."""
        self.desktop.screen.copy(text)
        self.desktop.screen.key(FIND, command("v"))
        self.desktop.screen.settle()

    def key(self, *names):
        self.desktop.screen.key(*names)


def at_folders(desktop):
    desktop.show_list(COPY_TARGETS)
    return Finder(desktop)


def the_bar_goes_through_what_it_finds_and_around(start):
    with start(SEVEN) as (desktop, model):
        finder = at_folders(desktop)
        finder.look_for("report")
        finder.expect(HITS[0], "as the first that was found")
        counts = [finder.count()]
        for hit in HITS[1:]:
            finder.key("Return")
            finder.expect(hit, "after Return")
            require(all(finder.count() != count for count in counts), f"the count is the same at row {hit}")
            counts.append(finder.count())
        for keys, place, what in ((NEXT, 0, "behind the last one"), (PREVIOUS, 6, "before the first one"),
                                  (PREVIOUS, 5, "before that"), (NEXT, 6, "and on again")):
            finder.key(keys)
            finder.expect(HITS[place], what)
            require(finder.count() == counts[place], f"another count {what}")
        model.expect("nothing changed by finding")


def case_and_diacritics_do_not_count(start):
    with start(SEVEN) as (desktop, _):
        finder = at_folders(desktop)
        finder.look_for("report")
        finder.key("Return")
        count = finder.count()
        for text in ("REPORT", "r\u00e9p\u00f4rt", "R\u00c9PO\u0308RT"):
            finder.paste(text)
            finder.expect(HITS[1], f"still, by {text}")
            require(finder.count() == count, f"{text} does not find the second of seven")
        finder.look_for("reports")
        finder.expect(5, "as the only one")
        one = finder.count()
        finder.look_for("folders/4")
        finder.expect(4, "by its folder")
        require(finder.count() == one, "a folder is not counted as a name is")
        finder.look_for("nowhere")
        finder.expect(4, "though nothing was found")
        require(finder.count() not in (one, count), "it is not said that nothing was found")


def escape_gives_the_keyboard_back_to_the_table(start):
    with start(SEVEN) as (desktop, model):
        finder = at_folders(desktop)
        before = finder.seen()
        finder.look_for("reports")
        finder.expect(5, "as the only one")
        finder.key("Escape")
        finder.is_open = False
        finder.expect(5, "still")
        finder.key("space")
        model.toggle(COPY_TARGETS, 5)
        model.expect("the found rule off by its key")
        finder.key(NEXT)
        finder.expect(5, "by the command alone")
        require(finder.seen().height == before.height, "the window has another size")


def typing_in_a_table_selects_and_erasing_takes_it_back(start):
    with start(folders("Alpha", "Beta", "Delta", "Denmark", "\u00c4sch", "Omega")) as (desktop, model):
        finder = at_folders(desktop)
        desktop.select(0)
        desktop.screen.type("den")
        finder.expect(3, "by the beginning of its name")
        time.sleep(PAUSE)
        desktop.screen.type("as")
        finder.expect(4, "whose name has a diacritic")
        time.sleep(PAUSE)
        desktop.screen.key(*"denx", *["BackSpace"] * 3, "l")
        finder.expect(2, "once the wrong letters were taken back")
        time.sleep(PAUSE)
        desktop.screen.key(*"de", *["BackSpace"] * 8)
        desktop.screen.settle(0.3)
        model.expect("no rule removed by correcting what is typed")
        time.sleep(PAUSE)
        desktop.screen.key("BackSpace")
        model.remove(COPY_TARGETS, 2)
        model.expect("the selected rule removed by the key in its own meaning")
        desktop.screen.type("o")
        desktop.screen.key("Delete")
        model.remove(COPY_TARGETS, 4)
        model.expect("another rule removed by the key that erases nothing typed")


def how_many_are_on_is_seen_beside_their_switch(start):
    with start() as (desktop, model):
        _, middle = desktop.place("enable_all")
        left = round(desktop.places.left)

        def seen(first, last):
            desktop.window.move(desktop.place("heading"))
            desktop.screen.settle()
            picture = Picture(desktop.window.picture())
            return picture.part(left + first, round(middle) - 9, left + last, round(middle) + 9)

        def switch(row):
            desktop.click("row_switch", row)
            model.toggle(TEMPLATES, row)
            model.expect(f"row {row} switched")

        require(not model.is_all_on(TEMPLATES), "all are on to begin with")
        mixed, nine = seen(0, BOX), seen(BOX, LINE)
        switch(0)
        require(seen(BOX, LINE) != nine, "the count stays when a rule is turned off")
        require(seen(0, BOX) == mixed, "the box of some is another one for one less")
        switch(2)
        switch(0)
        eight = seen(BOX, LINE)
        require(eight != nine, "one less looks as all of them")
        switch(2)
        require(seen(BOX, LINE) == nine and seen(0, BOX) == mixed, "the count does not come back")
        boxes = [mixed]
        for on in (True, False):
            desktop.click("enable_all")
            model.enable_all(TEMPLATES, on)
            model.expect(f"all {'on' if on else 'off'}")
            boxes.append(seen(0, BOX))
        require(all(boxes[one] != boxes[other] for one, other in ((0, 1), (0, 2), (1, 2))), "two states look the same")
        switch(3)
        require(seen(0, BOX) == mixed, "one alone does not look mixed")


if __name__ == "__main__":
    run_checks(the_bar_goes_through_what_it_finds_and_around, case_and_diacritics_do_not_count,
               escape_gives_the_keyboard_back_to_the_table, typing_in_a_table_selects_and_erasing_takes_it_back,
               how_many_are_on_is_seen_beside_their_switch)
