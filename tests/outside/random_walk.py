"""python3 -m tests.outside.random_walk PROGRAM STEPS SEED: a person who does one thing after another, without waiting
for what comes of it. Both stores and the template files are looked at after every fifth. Then another, before whom the
program stands still each time, and gets five things at once."""

import contextlib
import random
import sys
import time

from harness.stores import COMMON_FOLDERS, COPY_TARGETS, LISTS, folder_records
from tests.outside.checks import application
from tests.outside.model import FIXED_ACTIONS
from tests.outside.places import GAP, PAGE_OF
from tests.outside.screen import command, option_command, shift_command

# So many that they are all in sight in the smallest window, above the line that says that their folders are missing.
SETTINGS = {COPY_TARGETS: folder_records(7), COMMON_FOLDERS: folder_records(7)}
# These cannot be removed, and of these the fixed ones neither moved nor renamed.
PROTECTED_ACTIONS = [*FIXED_ACTIONS, "Screenshots by Snapfin", "Pin\u3001Annotation by Snapfin"]
SIZES = ((940, 646), (920, 526), (1100, 800))
FEWEST_ROWS = 4
STEPS_AT_ONCE = 5
# Two clicks at one place within a shorter time are a double click, and so are one and a turn of the wheel.
PAUSE_SECONDS = 0.35


class Walk:
    """Each step may find that there is nothing for it to do."""

    def __init__(self, desktop, model, seed):
        self.desktop, self.model, self.random = desktop, model, random.Random(seed)
        self.is_editing = False
        self.renamed_row = None
        self.texts = 0

    @property
    def key(self):
        return self.desktop.page.key

    @property
    def records(self):
        return self.model.lists[self.key]

    def any_row(self, unlike=()):
        """One that is in sight, whose action is none of those."""
        rows = range(min(len(self.records), self.desktop.places.rows_in_sight(self.desktop.page)))
        return self.random.choice([row for row in rows if self.records[row].get("Action") not in unlike])

    def select(self, row):
        """By its picture: a click on the name of the row that is selected would begin to edit it."""
        self.desktop.click("cell", row, self.desktop.page.icon_column)
        self.is_editing = False

    def end_edit(self):
        if self.is_editing:
            self.desktop.screen.key("Return")
            self.is_editing = False

    # The steps

    def show_another_page(self):
        page = PAGE_OF[self.random.choice(LISTS)]
        if self.random.random() < 0.5:
            self.desktop.window.click(self.desktop.places.page_button(page))
        else:
            self.desktop.screen.key(command(str(LISTS.index(page.key) + 1)))
        self.desktop.page = page
        self.is_editing = False

    def remove(self):
        if len(self.records) > FEWEST_ROWS:
            row = self.any_row(PROTECTED_ACTIONS)
            self.select(row)
            if self.random.random() < 0.5:
                self.desktop.click("remove")
            else:
                self.desktop.screen.key("Delete")
            self.model.remove(self.key, row)

    def switch(self):
        if self.desktop.page.switch_column:
            row = self.any_row()
            self.desktop.click("row_switch", row)
            self.is_editing = False
            self.model.toggle(self.key, row)

    def switch_by_key(self):
        if self.desktop.page.switch_column:
            row = self.any_row()
            self.select(row)
            self.desktop.screen.settle()
            self.desktop.screen.key("space")
            self.model.toggle(self.key, row)

    def switch_all(self):
        if self.desktop.page.has_enable_all:
            self.desktop.click("enable_all")
            self.is_editing = False
            self.model.enable_all(self.key, not self.model.is_all_on(self.key))

    def rename(self):
        row = self.any_row(FIXED_ACTIONS)
        if row == self.renamed_row:
            # Clicks into a name that is being edited go on with it.
            self.end_edit()
        self.renamed_row = row
        self.texts += 1
        text = f"Name {self.texts}"
        self.desktop.click("cell", row, times=2)
        self.desktop.screen.key(command("a"))
        self.desktop.screen.type(text)
        ending = self.random.choice(["Return", "Tab", "Escape", None])
        if ending:
            self.desktop.screen.key(ending)
        self.is_editing = ending is None
        if ending != "Escape":
            self.model.edit(self.key, row, self.desktop.page.name_column, text)

    def drag(self):
        row = self.any_row(FIXED_ACTIONS)
        gap = self.any_row()
        if abs(gap - row) > 1:
            places, page = self.desktop.places, self.desktop.page
            self.desktop.window.drag(places.cell(page, row), places.cell(page, gap, height=GAP), steps=6)
            self.model.drop(self.key, row, gap)
            self.is_editing = False

    def move_by_key(self):
        row = self.any_row(FIXED_ACTIONS)
        self.select(row)
        step = self.random.choice([-1, 1])
        self.desktop.screen.key(option_command("Up" if step < 0 else "Down"))
        if 0 <= row + step < len(self.records):
            self.model.drop(self.key, row, row + step)

    def reset(self):
        """Of a list that has a factory's."""
        if self.desktop.page.has_reset and self.key != COPY_TARGETS:
            self.desktop.click("reset")
            self.model.reset(self.key)
            self.is_editing = False

    def step_over(self, key, step):
        """The list concerned is shown, and the row. While a name is being edited, this would be of its typing alone."""
        self.end_edit()
        for _ in range(self.random.choice([1, 1, 2, 5])):
            self.desktop.screen.key(key)
            if changed := step():
                self.desktop.page = PAGE_OF[changed]
        self.scroll_to_top()

    def undo(self):
        self.step_over(command("z"), self.model.undo)

    def redo(self):
        self.step_over(shift_command("z"), self.model.redo)

    def scroll_to_top(self):
        self.desktop.window.move(self.desktop.places.cell(self.desktop.page, 0))
        self.desktop.screen.wheel(-12)

    def turn_the_wheel(self):
        self.desktop.window.move(self.desktop.places.cell(self.desktop.page, 0))
        self.desktop.screen.wheel(6)
        self.scroll_to_top()

    def resize(self):
        self.desktop.window.resize(*self.random.choice(SIZES))

    STEPS = (show_another_page, remove, switch, switch_by_key, switch_all, rename, rename, move_by_key, reset, undo,
             redo, turn_the_wheel)
    # In these the person waits for what is to be seen.
    WATCHED_STEPS = (drag, drag, resize)

    def go(self, steps, is_held_up):
        choice = self.STEPS if is_held_up else self.STEPS + self.WATCHED_STEPS
        done = []
        while len(done) < steps:
            with self.desktop.held_up() if is_held_up else contextlib.nullcontext():
                for step in self.random.choices(choice, k=min(STEPS_AT_ONCE, steps - len(done))):
                    step(self)
                    done.append(f"{step.__name__} in {self.key}")
                    time.sleep(PAUSE_SECONDS)
                self.end_edit()
            self.model.expect(f"{len(done)} steps, the last of them {', '.join(done[-8:])}")

    def go_back_and_forth(self):
        for key, step in ((command("z"), self.model.undo), (shift_command("z"), self.model.redo)):
            while step():
                self.desktop.screen.key(key)
            self.model.expect(f"all steps gone over by {key}")


def main():
    program, steps, seed = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
    for name, is_held_up in ((f"random-walk-{seed}", False), (f"random-walk-{seed}-held-up", True)):
        with application(program, name)(SETTINGS) as (desktop, model):
            walk = Walk(desktop, model, seed)
            walk.go(steps, is_held_up)
            walk.go_back_and_forth()
        print(f"{name}: {steps} steps, both stores and the template files as expected", flush=True)


if __name__ == "__main__":
    main()
