"""python3 -m tests.outside.random_input PROGRAM STEPS SEED: clicks, drags and keys wherever they fall, as by a child at
the desk. Nobody knows what must come of it; but the program must go on, complain of nothing and leave both stores in
agreement."""

import contextlib
import random
import subprocess
import sys

from harness.stores import ACTIONS, COMMON_FOLDERS, COPY_TARGETS, folder_records
from harness.waiting import NotSeen, wait_until
from tests.outside.checks import application, require
from tests.outside.model import Model, expect_none
from tests.outside.screen import BUTTON, CONTROL, RIGHT_BUTTON, command, option_command, shift_command

SETTINGS = {COPY_TARGETS: folder_records(40), COMMON_FOLDERS: folder_records(7)}
LARGEST, SMALLEST = (1270, 1000), (700, 400)
EDGE = 2
BETWEEN_LOOKS = 25
REMEMBERED = 15
# Not among them: what ends the program.
KEYS = ("a", "b", "x", "9", "space", "Return", "Return", "Tab", "Escape", "Escape", "Delete", "BackSpace", "Up", "Down",
        "Down", "Left", "Right", "Home", "End", "Prior", "Next", "Menu", "F10", f"{CONTROL}+F2", "Shift_L+Tab",
        *map(command, "123456acefgmvxz"), *map(shift_command, "efgimpz"), *map(option_command, ("Up", "Down")))
# In a panel, where anything else could lead out of the user's folder.
PANEL_KEYS = ("a", "b", "Tab", "Escape", "Escape")
# These may choose the items that close the window or end the program.
ENDINGS = {"Return", "space"}


class Hands:
    """Each movement begins where the one before has ended, in whatever has come of that."""

    def __init__(self, desktop, seed):
        self.desktop, self.screen, self.random = desktop, desktop.screen, random.Random(seed)
        self.done = []
        self.has_started_again = False

    def place(self):
        width, height = self.desktop.window.size()
        return self.random.randint(EDGE, width - EDGE), self.random.randint(EDGE, height - EDGE)

    def has_panel(self):
        """It has the keyboard then; menus and tool tips leave that to the window."""
        return not self.desktop.window.has_focus()

    # The movements

    def click(self):
        place, times = self.place(), self.random.choice([1, 1, 2, 3])
        button = self.random.choice([BUTTON, BUTTON, BUTTON, RIGHT_BUTTON])
        self.done.append(("click", place, times, button))
        self.desktop.window.click(place, times, button)

    def drag(self):
        start, end = self.place(), self.place()
        self.done.append(("drag", start, end))
        self.desktop.window.drag_to(start, end, steps=4)
        self.screen.release()

    def turn_the_wheel(self):
        place, steps = self.place(), self.random.choice([-5, -1, 1, 5])
        self.done.append(("wheel", place, steps))
        self.desktop.window.move(place)
        self.screen.wheel(steps)

    def press_keys(self):
        self.press(*self.random.choices(KEYS, k=self.random.choice([1, 1, 2, 6])))

    def press_keys_at_once(self):
        with self.desktop.held_up():
            self.press_keys()

    def press(self, *keys):
        self.done.append(("keys", *keys))
        self.screen.key(*keys)

    def resize(self):
        size = [self.random.randint(least, most) for least, most in zip(SMALLEST, LARGEST)]
        self.done.append(("size", *size))
        self.screen.xdotool("windowsize", self.desktop.window.number, *size)

    def minimise(self):
        self.done.append(("minimise",))
        self.desktop.minimise()

    MOVEMENTS = (*[click] * 8, *[press_keys] * 6, drag, drag, turn_the_wheel, press_keys_at_once, resize, minimise)

    def move(self):
        with self.started_again():
            if not self.desktop.is_in_sight():
                self.desktop.bring_back()
            elif self.has_panel():
                self.press(self.random.choice(PANEL_KEYS))
            else:
                self.random.choice(self.MOVEMENTS)(self)

    def put_down(self):
        """Out of menus, panels and edits."""
        def is_free():
            with self.started_again():
                if not self.desktop.is_in_sight():
                    self.desktop.bring_back()
            self.screen.key("Escape")
            self.screen.settle()
            return not self.has_panel()

        wait_until(is_free, "the end of all panels")
        self.screen.key("Escape", "Escape")
        self.screen.settle()

    @contextlib.contextmanager
    def started_again(self):
        """When it has ended, as it may by an item of a menu."""
        try:
            yield
        except (NotSeen, subprocess.CalledProcessError):
            status = self.desktop.wait_for_end()
            kind, *what = self.done[-1]
            require(status == 0, f"the application ended with status {status}")
            require(kind == "click" or ENDINGS.intersection(what), "the application has ended unasked")
            self.desktop.start()
            self.has_started_again = True

    def differences(self):
        """A start puts editors that were removed back into the list and publishes it; the next edit stores it."""
        return [difference for difference in Model(self.desktop.stores).differences()
                if not (self.has_started_again and difference.startswith(f"published {ACTIONS}"))]

    def go(self, steps):
        for number in range(1, steps + 1):
            self.move()
            if number % BETWEEN_LOOKS == 0 or number == steps:
                self.put_down()
                expect_none(self.differences, "both stores in agreement")


def main():
    program, steps, seed = sys.argv[1], int(sys.argv[2]), int(sys.argv[3])
    with application(program, f"random-input-{seed}")(SETTINGS, is_right_to_left=seed % 2 == 1) as (desktop, _):
        hands = Hands(desktop, seed)
        try:
            hands.go(steps)
        except Exception as error:
            raise AssertionError(f"seed {seed}, after {hands.done[-REMEMBERED:]}") from error
    print(f"random input: {steps} movements from seed {seed}, both stores in agreement")


if __name__ == "__main__":
    main()
