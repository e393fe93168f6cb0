"""The panel that asks for files or folders, driven by the keyboard."""

from harness.waiting import wait_until

TITLE = "^Open$"


class OpenPanel:
    """The one that is open, or just opens."""

    def __init__(self, screen):
        self.screen = screen
        self.window = screen.window(TITLE)
        screen.settle(0.2)

    def is_open(self):
        return bool(self.screen.windows(TITLE))

    def enter(self, text):
        """In place of the name that stands there."""
        self.screen.key("End", "Shift_L+Home")
        self.screen.type(text)
        self.screen.settle(0.1)

    def choose(self, path):
        """Its folder first, then its name: the panel takes no whole path. Return confirms a file; a folder is gone into
        by the first Return, and chosen by the second."""
        folder, _, name = str(path).rpartition("/")
        self.enter(folder)
        self.enter(name)
        for _ in range(2):
            if self.is_open():
                self.screen.key("Return")
                self.screen.settle(0.3)
        wait_until(lambda: not self.is_open(), f"the end of the panel for {path}")

    def cancel(self):
        self.window.focus()
        self.screen.key("Escape")
        wait_until(lambda: not self.is_open(), "the end of the cancelled panel")
