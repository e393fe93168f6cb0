"""The user for whom the window tests run: a throwaway user folder, on a virtual display."""

import contextlib
import os
import pathlib
import subprocess

from harness.stores import COMMON_FOLDERS, USED, Stores, folder_records
from harness.user_folder import Display, UserFolder

MOST_SECONDS = 120


class User:
    """What is opened goes into the file "opened" of the folder, what the file manager is to show into "shown"."""

    def __init__(self, user, display):
        self.folder = pathlib.Path(user.name)
        self.stores = Stores(user)
        programs = self.folder / "programs"
        programs.mkdir()
        opener = self._stand_in(programs / "opener", "opened")
        self._stand_in(programs / "dbus-send", "shown")
        self.environment = user.environment(
            DISPLAY=display.name, TARNWICK_OPENER=str(opener), PATH=f"{programs}:{os.environ['PATH']}")

    def _stand_in(self, program, told):
        """A program that only writes down what it is told."""
        program.write_text(f'#!/bin/sh\necho "$@" >>"{self.folder}/{told}"\n')
        program.chmod(0o755)
        return program

    def run(self, *command, **more):
        """The status of the program, which is made to end when it takes too long."""
        return subprocess.run(command, env={**self.environment, **more}, timeout=MOST_SECONDS, check=False).returncode


@contextlib.contextmanager
def new_user():
    """Whose next launch is the first."""
    with UserFolder() as folder, Display() as display:
        yield User(folder, display)


@contextlib.contextmanager
def used_user(folders=0, is_dark=False, is_right_to_left=False):
    """For whom the prompt to enable the extension counts as shown, with that many common folders."""
    with new_user() as user:
        user.stores.write({**USED, **({COMMON_FOLDERS: folder_records(folders)} if folders else {})})
        user.stores.write_look(is_dark, is_right_to_left)
        yield user
