"""Throwaway user folders, and the programs that are measured in them."""

import os
import pathlib
import plistlib
import subprocess
import tempfile
import time

LOCAL = "org.halvane.Tarnwick"
SHARED = "H7Q2ZK5RX9.org.halvane.Tarnwick"
LIST_KEY = "arrOfCopyFilesTo"
PATIENCE_SECONDS = 60
REMOVE = pathlib.Path(__file__).resolve().parents[2] / "script/remove-sandbox"


class Sandbox:
    """A user's settings and Library folders below the temporary folder. The path is short: the notification
    centre's socket lies in it, or in that of `neighbour`, whose daemons then serve both."""

    def __init__(self, neighbour=None):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="tarnwick.", dir="/tmp"))
        self.defaults = self.folder / "defaults"
        self.library = self.folder / "library"
        for folder in (self.defaults, self.library, self.folder / "tmp"):
            folder.mkdir()
        self.temporary = neighbour.temporary if neighbour else self.folder / "tmp"
        (self.folder / "GNUstep.conf").write_text(
            f"GNUSTEP_USER_DEFAULTS_DIR={self.defaults}\n"
            f"GNUSTEP_USER_DIR_LIBRARY={self.library}\n"
            "GNUSTEP_USER_CONFIG_FILE=\n"
        )

    def environment(self, **more):
        temporary = str(self.temporary)
        return {
            **os.environ,
            "GNUSTEP_CONFIG_FILE": str(self.folder / "GNUstep.conf"),
            "TMP": temporary,
            "TEMP": temporary,
            **more,
        }

    def store(self, domain):
        return self.defaults / f"{domain}.plist"

    def write(self, domain, values):
        with open(self.store(domain), "wb") as file:
            plistlib.dump(values, file)

    def read(self, domain):
        with open(self.store(domain), "rb") as file:
            return plistlib.load(file)

    def remove(self):
        subprocess.run([REMOVE, self.folder], check=True)


def folder_records(count):
    return [{"enable": 1, "realPath": f"/folders/{i}", "displayName": f"Folder {i}"} for i in range(count)]


class Display:
    """A virtual display for as long as this object is entered."""

    def __enter__(self):
        read_end, write_end = os.pipe()
        self.server = subprocess.Popen(
            # A server that resets itself when its only client goes ends those that are just coming.
            ["Xvfb", "-displayfd", str(write_end), "-screen", "0", "1280x900x24", "-nolisten", "tcp", "-noreset"],
            pass_fds=[write_end],
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )
        os.close(write_end)
        with os.fdopen(read_end) as number:
            self.name = ":" + number.readline().strip()
        return self

    def __exit__(self, *_):
        self.server.terminate()
        self.server.wait()


class ClickedProgram:
    """A program that answers each line with a click and says how long that took."""

    def __init__(self, program, sandbox, display):
        self.process = subprocess.Popen(
            [program],
            env=sandbox.environment(DISPLAY=display.name),
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            text=True,
        )
        answer = self.process.stdout.readline().strip()
        if answer != "ready":
            raise SystemExit(f"{program} did not become ready: {answer!r}")

    def click(self):
        """Milliseconds until both files are written, and until the window is drawn again."""
        self.process.stdin.write("click\n")
        self.process.stdin.flush()
        answer = self.process.stdout.readline().split()
        if len(answer) != 2 or not all(part.isdigit() for part in answer):
            raise SystemExit(f"a click was not answered: {' '.join(answer)}")
        written, drawn = (int(part) / 1000 for part in answer)
        return written, drawn

    def close(self):
        self.process.stdin.close()
        self.process.wait(PATIENCE_SECONDS)


class LaunchedProgram:
    """A program on a display that is measured from outside and then stopped."""

    def __init__(self, program, sandbox, display, environment):
        self.start = time.monotonic()
        self.process = subprocess.Popen(
            [program],
            env=sandbox.environment(DISPLAY=display.name, **environment),
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )

    def milliseconds_until(self, condition):
        while not condition():
            if self.process.poll() is not None or time.monotonic() - self.start > PATIENCE_SECONDS:
                raise SystemExit(f"{self.process.args[0]} did not get ready")
            time.sleep(0.0005)
        return (time.monotonic() - self.start) * 1000

    def processor_milliseconds(self):
        return int(pathlib.Path(f"/proc/{self.process.pid}/schedstat").read_text().split()[0]) / 1e6

    def memory(self):
        """Megabytes resident, and of those the ones that are this process's alone."""
        values = {}
        for line in pathlib.Path(f"/proc/{self.process.pid}/smaps_rollup").read_text().splitlines()[1:]:
            name, number = line.split()[:2]
            values[name.rstrip(":")] = int(number) / 1024
        return values["Rss"], values["Private_Clean"] + values["Private_Dirty"]

    def stop(self):
        """At once; its sandbox is thrown away."""
        self.process.kill()
        self.process.wait(PATIENCE_SECONDS)
