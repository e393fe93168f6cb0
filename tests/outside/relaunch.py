#!/usr/bin/env python3
"""relaunch.py PROGRAM: the window of the next start is where and as large as the one before was left."""

import re
import subprocess
import sys

from desktop import Desktop, wait_until
from sandbox import LOCAL


class LateWindowManager(Desktop):
    """A desktop whose window manager comes when the application is there already."""

    def start(self, *command):
        return None if command[0] == "openbox" else super().start(*command)

    def has_window_manager(self):
        return True

    def start_window_manager(self):
        super().start("openbox")
        wait_until(super().has_window_manager, "the window manager")
        self.settle()


def place(desktop):
    """Of what is inside the window's frame, on the screen."""
    desktop.settle()
    command = ["xwininfo", "-id", desktop.window]
    answer = subprocess.run(command, env=desktop.environment(), capture_output=True, text=True, check=True).stdout
    return [int(number) for number in re.findall(r"(?:Absolute upper-left [XY]|Width|Height): +(-?\d+)", answer)]


def relaunch(desktop):
    desktop.click(500, 20)
    desktop.settle()
    desktop.key("alt+q")
    wait_until(desktop.has_ended, "the end of the application")
    desktop.application = desktop.start(desktop.program)
    desktop.window = wait_until(lambda: desktop.find("^Tarnwick$"), "the window")


def expect_stays(desktop):
    before = place(desktop)
    for _ in range(2):
        relaunch(desktop)
        if place(desktop) != before:
            raise SystemExit(f"the window is at {place(desktop)} and was at {before}")


def a_window_that_was_moved_and_resized_comes_up_as_it_was_left(program):
    with Desktop(program) as desktop:
        desktop.xdotool("windowmove", "--sync", desktop.window, 210, 100)
        desktop.xdotool("windowsize", "--sync", desktop.window, 1010, 700)
        expect_stays(desktop)


def so_does_one_that_was_there_before_the_window_manager(program):
    with LateWindowManager(program) as desktop:
        desktop.start_window_manager()
        expect_stays(desktop)


def a_frame_that_was_kept_with_its_title_bar_still_counts(program):
    kept = {"NSWindow Frame Settings": "169 128 942 645 0 0 1280 900 "}
    with Desktop(program, kept) as desktop:
        left, top, width, height = place(desktop)
        if (left, top, width, height) != (170, 147, 940, 646):
            raise SystemExit(f"the window is at {(left, top, width, height)}")
        relaunch(desktop)
        if not desktop.user.read(LOCAL)["NSWindow Frame Settings"].endswith("content"):
            raise SystemExit("the frame is still kept with its title bar")


if __name__ == "__main__":
    for part in (
        a_window_that_was_moved_and_resized_comes_up_as_it_was_left,
        so_does_one_that_was_there_before_the_window_manager,
        a_frame_that_was_kept_with_its_title_bar_still_counts,
    ):
        part(sys.argv[1])
        print(part.__name__.replace("_", " "), flush=True)
