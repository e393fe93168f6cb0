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
import contextlib
import pathlib
import subprocess
import sys

from harness.stores import GLOBAL, SHARED, TEMPLATES, USED, Stores
from harness.user_folder import Display, UserFolder
from harness.waiting import wait_until
from tests.outside.places import PAGE_OF, PAGES, Places
from tests.outside.screen import Screen, command

END_SECONDS = 20


class Desktop:
    """One application in one user folder. `settings` are in its store before it starts; without any, not even an empty
    dictionary, it is a first launch, whose prompt stands open. The language is that of a table of texts; the places of
    buttons are those of English."""

    def __init__(self, program, settings=None, is_dark=False, language="en"):
        self.program, self.page = pathlib.Path(program).resolve(), PAGES[0]
        with contextlib.ExitStack() as stack:
            self.user = stack.enter_context(UserFolder())
            self.stores = Stores(self.user)
            if settings is not None:
                self.stores.write({**USED, **settings})
            if is_dark:
                self.stores.write({"AppleInterfaceStyle": "Dark"}, GLOBAL)
            display = stack.enter_context(Display())
            self.screen = Screen(self.user.environment(DISPLAY=display.name, LANGUAGE=language))
            stack.callback(self.run("openbox").kill)
            self.start()
            self.stack = stack.pop_all()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        self.application.kill()
        self.application.wait(END_SECONDS)
        self.stack.close()

    # The application

    def start(self):
        """Until its window is in sight, with the first page, and its lists are published."""
        self.application = self.run(self.program)
        self.window = self.screen.window("^Tarnwick$", process=self.application)
        wait_until(self.has_published, "the published lists", process=self.application)
        self.screen.settle()
        self.page = PAGES[0]

    def has_published(self):
        """What each start publishes; the templates come last."""
        return self.stores.file(SHARED).exists() and self.stores.shared(TEMPLATES) is not None

    def run(self, program):
        with open(self.log(program), "ab") as output:
            return subprocess.Popen([program], env=self.screen.environment, stdout=output, stderr=output)

    def log(self, program):
        return pathlib.Path(self.user.name, f"{pathlib.Path(program).name}.log")

    def said(self):
        """What the application wrote to its standard streams."""
        return self.log(self.program).read_text(errors="replace")

    def has_ended(self):
        return self.application.poll() is not None

    def wait_for_end(self):
        """The status that the application ends with."""
        wait_until(self.has_ended, "the end of the application")
        return self.application.returncode

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

    def click(self, name, *arguments, times=1, delay=60):
        """A control of the page, by its name among the places: "remove", "reset", "row_switch", 3."""
        self.window.click(getattr(self.places, name)(self.page, *arguments), times, delay=delay)

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
