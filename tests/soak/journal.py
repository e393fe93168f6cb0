"""What the editing application notes, outside the stores, of its edits."""

import pathlib
from typing import NamedTuple


class Edit(NamedTuple):
    """Announced before it is done; the checksums are of the list and of what is enabled in it, as the application's
    model of it has them afterwards."""

    kind: str
    key: str
    is_synchronised: bool
    whole: str
    enabled: str
    is_done: bool


class Journal:
    def __init__(self, path):
        self.path = pathlib.Path(path)

    def begin(self):
        self.path.write_text("")

    def lines(self):
        """Those that are whole."""
        text = self.path.read_text()
        return text[:text.rfind("\n") + 1].splitlines()

    def is_ready(self):
        return self.lines()[:1] == ["ready"]

    def announced(self):
        lines = self.lines()
        return [Edit(kind, key, synchronised == "1", whole, enabled, following == "done")
                for line, following in zip(lines, [*lines[1:], ""]) if line.startswith("edit ")
                for kind, key, synchronised, whole, enabled in [line.split(" ")[1:6]]]

    def done(self):
        return [edit for edit in self.announced() if edit.is_done]
