"""python3 -m tests.outside.flicker PROGRAM: nothing in the window flickers once it is drawn, while pages change and
lists are loaded anew: each pixel goes from what it was to what it becomes, once."""

import contextlib

from harness.stores import TEMPLATES, USED
from harness.waiting import wait_until
from tests.outside.checks import require, run_checks, watched
from tests.outside.desktop import Desktop
from tests.outside.frames import Recording
from tests.outside.picture import Picture
from tests.outside.places import PAGES, constant
from tests.outside.screen import command, option_command, shift_command

# The pointer is drawn on the screen too, and drawn again whenever something below it is.
OUT_OF_THE_WAY = 2, 2
STILL_SECONDS = 0.3
# What the window manager draws below a window, at times after it.
HANDLE = 8


class RecordedDesktop(Desktop):
    """One whose screen can be watched as it is drawn."""

    def start(self):
        self.screen.move(OUT_OF_THE_WAY)
        with Recording(self.screen.frames) as self.launch:
            super().start()
            self.screen.settle(STILL_SECONDS)

    def flickers_in(self, recording):
        left, top, width, height = self.window.geometry()
        return recording.flickers(left, top, width, height - HANDLE)

    def expect_quiet(self, what, *keys, is_stored=lambda: True):
        """No pixel flickers from before the keys until the screen is quiet again. What is stored is drawn later, by a
        disk that takes its time much later."""
        with Recording(self.screen.frames) as recording:
            self.screen.key(*keys)
            wait_until(is_stored, what)
            self.screen.settle(STILL_SECONDS)
        require(len(recording.frames) > 1, f"nothing changes: {what}")
        flickers = self.flickers_in(recording)
        require(flickers == 0, f"{flickers} pixels flicker: {what}")


def recorded(program, name):
    @contextlib.contextmanager
    def start(settings=USED, **options):
        with RecordedDesktop(program, settings, **options) as desktop, watched(desktop, name):
            yield desktop
    return start


def nothing_flickers_as_the_window_comes_up(start):
    for is_dark in (False, True):
        with start(is_dark=is_dark) as desktop:
            flickers = desktop.flickers_in(desktop.launch)
            require(flickers == 0, f"{flickers} pixels flicker as the window comes up, dark: {is_dark}")


def ground_of_page_button(desktop, page):
    """At its left, where neither icon nor title is."""
    left, y = desktop.window.on_screen((constant("SidebarBuilder.inset") + 4, desktop.places.page_button(page)[1]))
    return Picture(desktop.screen.picture()).colours(round(left), round(y), round(left) + 1, round(y) + 1)


def the_current_page_is_marked_behind_the_prompt_of_a_first_launch(start):
    with start(settings=None) as desktop:
        desktop.screen.settle(STILL_SECONDS)
        marked, other = (ground_of_page_button(desktop, page) for page in PAGES[:2])
        require(not desktop.stores.local("ShownEnableExtensionAlert"), "the prompt is not there any more")
        require(marked != other, "the button of the current page looks like that of another one")


def no_page_flickers_as_it_comes(start):
    for is_dark in (False, True):
        with start(is_dark=is_dark) as desktop:
            for page in (*PAGES[1:], PAGES[0]):
                desktop.expect_quiet(f"the page {page.title}", command(str(PAGES.index(page) + 1)))


def templates(desktop):
    """Their names in both stores."""
    stored = desktop.stores.local(TEMPLATES), desktop.stores.shared(TEMPLATES)
    return [[record["displayName"] for record in records] for records in stored]


def no_list_flickers_as_it_is_loaded_anew(start):
    with start() as desktop:
        desktop.select(1)
        desktop.screen.move(OUT_OF_THE_WAY)
        desktop.screen.settle()
        desktop.expect_quiet("another row that is selected", "Down")
        before = templates(desktop)

        def is_moved():
            return all(names not in before for names in templates(desktop))

        def is_back():
            return templates(desktop) == before

        desktop.expect_quiet("a row that is moved", option_command("Down"), is_stored=is_moved)
        desktop.expect_quiet("a row that is moved back", command("z"), is_stored=is_back)
        desktop.expect_quiet("a row that is moved again", shift_command("z"), is_stored=is_moved)


def a_planted_flicker_is_seen(start):
    with start() as desktop:
        left, top, _, _ = desktop.window.geometry()
        with Recording(desktop.screen.frames) as recording:
            desktop.window.move_to(left + 20, top)
            desktop.window.move_to(left, top)
            desktop.screen.settle(STILL_SECONDS)
        flickers = desktop.flickers_in(recording)
        require(flickers > 1000, f"only {flickers} pixels flicker in a window that jumps aside and back")


if __name__ == "__main__":
    run_checks(nothing_flickers_as_the_window_comes_up,
               the_current_page_is_marked_behind_the_prompt_of_a_first_launch, no_page_flickers_as_it_comes,
               no_list_flickers_as_it_is_loaded_anew, a_planted_flicker_is_seen, starter=recorded)
