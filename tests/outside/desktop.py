"""The application as a person meets it: a window on a screen, with pointer and keyboard, in a throwaway user folder.

To try it by hand, from the project's root:

    python3 -i -m tests.outside.desktop build/debug/Tarnwick.app/Tarnwick
    >>> desktop.show(PAGES[1])
    >>> desktop.select(2)
    >>> desktop.click("remove")
    >>> desktop.window.keep_picture("/tmp/seen.png")
    >>> [record["displayName"] for record in desktop.stores.local(desktop.page.key)]
"""

import atexit
import sys

from harness.stores import COMMON_FOLDERS, LISTS, SHARED, USED, Stores
from harness.waiting import wait_until
from tests.outside.places import PAGE_OF, PAGES, Places
from tests.outside.screen import command
from tests.outside.session import Session

PUBLISHED_AT_START = set(LISTS) - {COMMON_FOLDERS}
FRAME = "NSWindow Frame Settings"


class Desktop(Session):
    """One application in one user folder. `settings` are in its store before it starts; without any, not even an empty
    dictionary, it is a first launch, whose prompt stands open. The language is that of a table of texts; the places of
    buttons are those of English."""

    title = "^Tarnwick$"

    def __init__(self, program, settings=None, is_dark=False, is_right_to_left=False, language="en",
                 has_window_manager=True):
        self.settings, self.is_dark, self.is_right_to_left = settings, is_dark, is_right_to_left
        super().__init__(program, has_window_manager, LANGUAGE=language)

    def prepare(self):
        self.stores = Stores(self.user)
        if self.settings is not None:
            self.stores.write({**USED, **self.settings})
        self.stores.write_look(self.is_dark, self.is_right_to_left)

    def start(self):
        super().start()
        self.page = PAGES[0]

    def is_ready(self):
        """Each start publishes its lists."""
        return self.stores.file(SHARED).exists() and PUBLISHED_AT_START <= self.stores.read(SHARED).keys()

    def settings_now(self):
        """All that is stored, but for the frame, which may be half a second behind a window that was moved."""
        return {key: value for key, value in self.stores.read().items() if key != FRAME}

    @property
    def onward(self):
        """The key that leads from a menu of the bar to the next, or into a submenu."""
        return "Left" if self.is_right_to_left else "Right"

    # What a person does

    @property
    def places(self):
        return Places(*self.window.size())

    def show(self, page):
        """Until it can be seen that another page than before is shown."""
        before, is_other = self.window.picture(), page != self.page
        self.page = page
        self.click("page_button")
        wait_until(lambda: not is_other or self.window.picture() != before, f"the page {page.title}")
        self.screen.settle()

    def show_list(self, key):
        self.show(PAGE_OF[key])

    def is_in_sight(self):
        return self.window.number in [window.number for window in self.screen.windows(self.title)]

    def minimise(self):
        self.window.minimise()
        self.wait_until_gone()

    def wait_until_gone(self):
        """Minimised or hidden."""
        wait_until(lambda: not self.is_in_sight(), "the end of the window", process=self.application)
        self.screen.settle()

    def bring_back(self):
        self.window.bring_back()
        wait_until(self.is_in_sight, "the window", process=self.application)
        self.screen.settle()

    def place(self, name, *arguments):
        """Of a control of the page, by its name among the places: "remove", "reset", "row_switch", 3."""
        return self.seen(getattr(self.places, name)(self.page, *arguments))

    def seen(self, place):
        """Where it is in this window, which may be laid out from right to left."""
        x, y = place
        return (self.window.size()[0] - x if self.is_right_to_left else x), y

    def click(self, name, *arguments, times=1):
        self.window.click(self.place(name, *arguments), times)

    def select(self, row):
        """A second click on it, after a while, would begin to edit it."""
        self.click("cell", row)
        self.screen.settle()

    def start_typing(self, row, text="", column=None):
        """A name, or what is in another column, as it stands or with a text in its place."""
        self.click("cell", row, column, times=2)
        self.screen.settle()
        if text:
            self.screen.key(command("a"))
            self.screen.type(text)


if __name__ == "__main__":
    desktop = Desktop(sys.argv[1], {})
    atexit.register(desktop.close)
