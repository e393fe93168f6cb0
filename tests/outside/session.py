"""A program on a screen of its own, with a window manager, in a throwaway user folder."""

import contextlib
import pathlib
import re
import signal
import subprocess

from harness.user_folder import Display, UserFolder
from harness.waiting import wait_until
from tests.outside.frames import Frames
from tests.outside.screen import Screen

END_SECONDS = 20


class Session:
    """Of a program whose window has this title. What is in `environment` comes on top of what every program gets."""

    title = ""

    def __init__(self, program, has_window_manager=True, **environment):
        self.program = pathlib.Path(program).resolve()
        with contextlib.ExitStack() as stack:
            self.user = stack.enter_context(UserFolder())
            display = stack.enter_context(Display(self.user.name))
            self.screen = Screen(self.user.environment(DISPLAY=display.name, **environment), Frames(self.user.name),
                                 display.server)
            self.stack = stack
            if has_window_manager:
                self.start_window_manager()
            self.prepare()
            self.start()
            self.stack = stack.pop_all()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.close()

    def close(self):
        self.end(self.application)
        self.stack.close()

    def prepare(self):
        """What the user folder holds before the program starts."""

    def start(self):
        """Until its window is in sight, and ready."""
        self.application = self.run(self.program)
        self.window = self.screen.window(self.title, process=self.application)
        wait_until(self.is_ready, "the program being ready", process=self.application)
        self.screen.settle()

    def is_ready(self):
        return True

    def start_window_manager(self):
        self.run_beside("openbox")
        wait_until(self.screen.window_manager, "the window manager")

    def run_beside(self, *command, **environment):
        """A program that ends with the session."""
        self.stack.callback(self.end, self.run(*command, **environment))

    def run(self, *command, **environment):
        with open(self.log(command[0]), "ab") as output:
            process = subprocess.Popen(command, env={**self.screen.environment, **environment}, stdout=output,
                                       stderr=output)
        self.screen.programs.append(process.pid)
        return process

    @staticmethod
    def end(process):
        process.kill()
        process.wait(END_SECONDS)

    @contextlib.contextmanager
    def held_up(self):
        """The application stands still, and then gets at once what is done meanwhile: no hand is faster."""
        self.application.send_signal(signal.SIGSTOP)
        try:
            yield
            self.screen.settle()
        finally:
            self.application.send_signal(signal.SIGCONT)

    def menus(self):
        """Where the open menus are on the screen, while no panel is: left, top, width, height."""
        found = []
        for window in self.screen.windows_of_class("."):
            # One that closes just now is none.
            with contextlib.suppress(subprocess.CalledProcessError):
                if window.number != self.window.number and not re.search(self.title, window.title()):
                    found.append(window.geometry())
        return found

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
