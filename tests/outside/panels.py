"""The panels that ask for files or folders, or where to save one, driven by the keyboard."""

from harness.waiting import wait_until

TITLE = "^Open$"
# The values of the pixels of the line that blinks in a text field.
CARET = 3 * 40


def look_the_same(one, other):
    """Whether two pictures differ in no more than that line."""
    return len(one) == len(other) and sum(before != after for before, after in zip(one, other)) <= CARET


class OpenPanel:
    """The one that is open, or just opens."""

    def __init__(self, screen, title=TITLE):
        self.screen, self.title = screen, title
        self.window = screen.window(title)
        screen.settle(0.2)

    def is_open(self):
        return bool(self.screen.windows(self.title))

    def enter(self, text):
        """In place of what stands there."""
        self.screen.key("End", "Shift_L+Home")
        self.screen.type(text)
        self.screen.settle()

    def confirm(self):
        self.screen.key("Return")
        wait_until(lambda: not self.is_open(), "the end of the confirmed panel")

    def choose(self, path):
        self.enter(str(path))
        self.confirm()

    def choose_in(self, folder, name):
        """Goes into the folder first, then takes what is there."""
        self.enter(f"{folder}/")
        self.enter(name)
        self.confirm()

    def cancel(self):
        self.window.focus()
        self.screen.key("Escape")
        wait_until(lambda: not self.is_open(), "the end of the cancelled panel")
