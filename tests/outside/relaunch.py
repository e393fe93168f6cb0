"""python3 -m tests.outside.relaunch PROGRAM: the window of the next start is where and as large as the one before was
left."""

from tests.outside.checks import require, run_checks
from tests.outside.desktop import FRAME
from tests.outside.screen import command

# What the toolkit has found out about the frames of the window manager: four lengths for each style of windows.
MEASURED, STYLES = "_GNUSTEP_FRAME_OFFSETS", 15


def relaunch(desktop):
    desktop.screen.key(command("q"))
    desktop.wait_for_end()
    desktop.start()


def expect_stays(desktop):
    before = desktop.window.geometry()
    for _ in range(2):
        relaunch(desktop)
        now = desktop.window.geometry()
        require(now == before, f"the window is at {now} and was at {before}")


def a_window_that_was_moved_and_resized_comes_up_as_it_was_left(start):
    with start() as (desktop, _):
        desktop.window.move_to(210, 100)
        desktop.window.resize(1010, 700)
        expect_stays(desktop)


def so_does_one_that_was_there_before_the_window_manager(start):
    with start(has_window_manager=False) as (desktop, _):
        desktop.start_window_manager()
        desktop.screen.settle(0.2)
        desktop.window.focus()
        expect_stays(desktop)


def a_frame_that_was_kept_with_its_title_bar_still_counts(start):
    with start({FRAME: "169 128 942 645 0 0 1280 900 "}) as (desktop, _):
        seen = desktop.window.geometry()
        require(seen == (170, 147, 940, 646), f"the window is at {seen}")
        expect_stays(desktop)
        desktop.window.move_to(210, 100)
        relaunch(desktop)
        require(desktop.stores.local(FRAME).endswith("content"), "the frame is still kept with its title bar")


def a_frame_of_a_thousand_points_is_not_believed(start):
    """As the toolkit takes it from a tiling window manager, and leaves it for the next program."""
    with start() as (desktop, _):
        usual = desktop.window.size()
        desktop.screen.run("xprop", "-root", "-f", MEASURED, "16c", "-set", MEASURED,
                           ",".join(["0", "1180", "0", "780"] * STYLES))
        relaunch(desktop)
        size = desktop.window.size()
        require(size == usual, f"the window comes up as large as {size}, and is {usual} otherwise")


if __name__ == "__main__":
    run_checks(a_window_that_was_moved_and_resized_comes_up_as_it_was_left,
               so_does_one_that_was_there_before_the_window_manager,
               a_frame_that_was_kept_with_its_title_bar_still_counts,
               a_frame_of_a_thousand_points_is_not_believed)
