"""The application as a person meets it: a virtual display with a window manager, a real pointer and keyboard, and
a throwaway user folder whose files are read by Python's own property-list reader."""

import contextlib
import os
import pathlib
import subprocess
import sys
import time

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "bench/app"))
from sandbox import LOCAL, SHARED, Display, Sandbox

PATIENCE_SECONDS = 20
LOOK_AGAIN_SECONDS = 0.02
# A hand is no faster, and programs tell a drag from a click by it.
STEP_SECONDS = 0.04


class NotSeen(Exception):
    """Something that was waited for did not come."""


def wait_until(condition, what):
    end = time.monotonic() + PATIENCE_SECONDS
    while not (seen := condition()):
        if time.monotonic() > end:
            raise NotSeen(what)
        time.sleep(LOOK_AGAIN_SECONDS)
    return seen


class Desktop:
    """One application in one user folder. Places are points of its window, counted from the upper left."""

    title = "^Tarnwick$"

    def __init__(self, program, settings=None):
        self.program = pathlib.Path(program).resolve()
        self.user = Sandbox()
        self.user.write(LOCAL, {"ShownEnableExtensionAlert": True, **(settings or {})})
        self.stack = contextlib.ExitStack()
        self.stack.callback(self.user.remove)
        self.display = self.stack.enter_context(Display())
        self.start("openbox")
        wait_until(self.has_window_manager, "the window manager")

    def __enter__(self):
        self.application = self.start(self.program)
        self.window = wait_until(lambda: self.find(self.title), "the window")
        self.wait_until_ready()
        self.settle()
        return self

    def wait_until_ready(self):
        wait_until(lambda: self.user.store(SHARED).exists(), "the published lists")

    def __exit__(self, *_):
        self.stack.close()

    def environment(self):
        return self.user.environment(DISPLAY=self.display.name, LANGUAGE="en")

    def start(self, *command):
        output = self.stack.enter_context(open(self.user.folder / f"{pathlib.Path(command[0]).name}.log", "ab"))
        process = subprocess.Popen(command, env=self.environment(), stdout=output, stderr=output)
        self.stack.callback(self.end, process)
        return process

    @staticmethod
    def end(process):
        process.kill()
        process.wait(PATIENCE_SECONDS)

    def has_window_manager(self):
        command = ["xprop", "-root", "_NET_SUPPORTING_WM_CHECK"]
        answer = subprocess.run(command, env=self.environment(), capture_output=True, text=True, check=False)
        return "window id" in answer.stdout

    def xdotool(self, *arguments):
        answer = subprocess.run(
            ["xdotool", *map(str, arguments)], env=self.environment(), capture_output=True, text=True, check=False
        )
        return answer.stdout.split()

    def find(self, title):
        """The number of the window with this title; None when there is none."""
        found = self.xdotool("search", "--onlyvisible", "--name", title)
        return found[-1] if found else None

    def has_ended(self):
        return self.application.poll() is not None

    # The screen

    def picture(self, window="root"):
        """As a portable pixmap."""
        command = ["import", "-window", window, "-depth", "8", "ppm:-"]
        return subprocess.run(command, env=self.environment(), capture_output=True, check=True).stdout

    def keep_picture(self, path):
        subprocess.run(["import", "-window", "root", "-depth", "8", str(path)], env=self.environment(), check=True)

    def settle(self):
        """Until two pictures in a row are the same."""
        last = [None]

        def is_same():
            now = self.picture()
            same, last[0] = now == last[0], now
            return same

        wait_until(is_same, "a quiet screen")

    # The pointer and the keyboard

    def move(self, x, y):
        self.xdotool("mousemove", "--window", self.window, x, y)

    def click(self, x, y, times=1, button=1):
        self.move(x, y)
        self.xdotool("click", "--repeat", times, "--delay", 60, button)

    def drag(self, start, end, steps=12, release=True):
        self.move(*start)
        self.xdotool("mousedown", 1)
        for step in range(1, steps + 1):
            part = step / steps
            self.move(*(round(a + (b - a) * part) for a, b in zip(start, end)))
            time.sleep(STEP_SECONDS)
        if release:
            self.xdotool("mouseup", 1)

    def key(self, *names):
        self.xdotool("key", *names)

    def type(self, text):
        self.xdotool("type", "--delay", 15, text)

    # The stores

    def local(self, key=None):
        return self._read(LOCAL, key)

    def shared(self, key=None):
        return self._read(SHARED, key)

    def _read(self, domain, key):
        values = self.user.read(domain)
        return values if key is None else values.get(key)

    def templates(self):
        folder = self.user.library / "Group Containers" / SHARED / "Templates/CreateNewFile"
        return sorted(path.name for path in folder.iterdir())
