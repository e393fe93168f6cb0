#!/usr/bin/python3 -IS
"""Runs a command in a throwaway user folder: user_folder.py [--display] COMMAND [ARGUMENT ...].

Neither the real user's settings nor their screen are touched: the folder has settings, a Library and temporary files
of its own, and with --display the command has a virtual display of its own. TARNWICK_USER_FOLDER names the folder,
which is removed afterwards. Ends with the command's status.

Each test of the support layer starts this program once. So it imports nothing that takes long and, started by its first
line, leaves out what Python looks for beside its own library."""

import os
import select
import signal
import sys
import time

# A server that resets itself when its only client goes ends those that are just coming.
SERVER_OPTIONS = ["-screen", "0", "1280x900x24", "-nolisten", "tcp", "-noreset", "-extension", "GLX"]
# How long programs are asked to end before they are made to, and before the folder is removed under them.
ASK_SECONDS = 2
GIVE_UP_SECONDS = 4
LOOK_AGAIN_MILLISECONDS = 100


class UserFolder:
    """A user's settings and Library folders below the temporary folder. The path is short: the notification centre's
    socket lies in it, or in that of `neighbour`, whose daemons then serve both, and its name may have 65 characters."""

    def __init__(self, neighbour=None):
        self.name = f"/tmp/tarnwick.{os.urandom(4).hex()}"
        self.defaults, self.library = f"{self.name}/defaults", f"{self.name}/library"
        self.configuration = f"{self.name}/GNUstep.conf"
        self.temporary = neighbour.temporary if neighbour else f"{self.name}/tmp"
        os.mkdir(self.name, 0o700)
        for folder in (self.defaults, self.library, f"{self.name}/tmp"):
            os.mkdir(folder)
        with open(self.configuration, "x", encoding="utf-8") as file:
            file.write(f"GNUSTEP_USER_DEFAULTS_DIR={self.defaults}\n"
                       f"GNUSTEP_USER_DIR_LIBRARY={self.library}\n"
                       "GNUSTEP_USER_CONFIG_FILE=\n")

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.remove()

    def environment(self, **more):
        """This process's environment, with what makes a program use the folder."""
        return {**os.environ, "GNUSTEP_CONFIG_FILE": self.configuration, "TARNWICK_USER_FOLDER": self.name,
                "TMP": self.temporary, "TEMP": self.temporary, "TMPDIR": self.temporary, "LANGUAGE": "en", **more}

    def remove(self):
        """Ends the programs that still use the folder, and removes it. The toolkit's notification daemon outlives the
        program that started it, and would make its folder of settings again."""
        start = time.monotonic()
        while (users := self._users()) and (waited := time.monotonic() - start) < GIVE_UP_SECONDS:
            for process in users:
                try:
                    signal.pidfd_send_signal(process, signal.SIGTERM if waited < ASK_SECONDS else signal.SIGKILL)
                except ProcessLookupError:
                    # It ends by itself just now.
                    pass
            wait_for_an_end(users)
        os.spawnlp(os.P_WAIT, "rm", "rm", "-rf", self.name)

    def _users(self):
        """Descriptors of the processes that have the folder in their environment."""
        mark = f"GNUSTEP_CONFIG_FILE={self.configuration}\0".encode()
        found = []
        for process in filter(str.isdigit, os.listdir("/proc")):
            try:
                with open(f"/proc/{process}/environ", "rb") as environment:
                    if mark in environment.read():
                        found.append(os.pidfd_open(int(process)))
            except OSError:
                # It has ended, or is somebody else's.
                pass
        return found


def wait_for_an_end(processes):
    """Until one of them has ended, but not for long; closes the descriptors."""
    poll = select.poll()
    for process in processes:
        poll.register(process, select.POLLIN)
    poll.poll(LOOK_AGAIN_MILLISECONDS)
    for process in processes:
        os.close(process)


class Display:
    """A virtual display for as long as this object is entered. The server picks a free number itself, so that any
    number of these may start at once; it lacks OpenGL, which nothing here draws with and which takes long to load.
    With a folder it keeps what is on the screen in a file there, from which it can be read as it is drawn."""

    def __init__(self, folder=None):
        self.options = [*SERVER_OPTIONS, "-fbdir", folder] if folder else SERVER_OPTIONS

    def __enter__(self):
        read_end, write_end = os.pipe()
        os.set_inheritable(write_end, True)
        self.server = os.posix_spawnp(
            "Xvfb", ["Xvfb", "-displayfd", str(write_end), *self.options], os.environ,
            file_actions=[(os.POSIX_SPAWN_OPEN, stream, os.devnull, os.O_RDWR, 0) for stream in range(3)])
        os.close(write_end)
        with open(read_end, encoding="ascii") as answer:
            number = answer.readline().strip()
        if not number:
            os.waitpid(self.server, 0)
            raise SystemExit("the virtual display does not start")
        self.name = f":{number}"
        return self

    def __exit__(self, *_):
        os.kill(self.server, signal.SIGTERM)
        os.waitpid(self.server, 0)


def run(command, environment):
    """The status of the command, as a shell has it."""
    process = os.posix_spawnp(command[0], command, environment, setsigdef=[signal.SIGPIPE])
    status = os.waitstatus_to_exitcode(os.waitpid(process, 0)[1])
    return status if status >= 0 else 128 - status


def main():
    # Whoever ends this program leaves neither folder nor display behind.
    for number in (signal.SIGHUP, signal.SIGINT, signal.SIGTERM):
        signal.signal(number, lambda received, _: sys.exit(128 + received))
    command = sys.argv[1:]
    has_display = command[:1] == ["--display"]
    command = command[has_display:]
    if not command:
        sys.exit(__doc__)
    with UserFolder() as user:
        if has_display:
            with Display() as display:
                return run(command, user.environment(DISPLAY=display.name))
        return run(command, user.environment())


if __name__ == "__main__":
    sys.exit(main())
