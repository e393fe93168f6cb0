"""The programs that are measured, each in a throwaway user folder."""

import pathlib
import subprocess
import time

from harness.waiting import wait_until

PATIENCE_SECONDS = 60


class ClickedProgram:
    """A program that answers each line with what it says: clicks, keys, and how long they took."""

    def __init__(self, program, user, display):
        self.process = subprocess.Popen(
            [program],
            env=user.environment(DISPLAY=display.name),
            stdin=subprocess.PIPE,
            stdout=subprocess.PIPE,
            stderr=subprocess.DEVNULL,
            text=True,
        )
        answer = self.process.stdout.readline().strip()
        if answer != "ready":
            raise SystemExit(f"{program} did not become ready: {answer!r}")

    def answer(self, line):
        self.process.stdin.write(line + "\n")
        self.process.stdin.flush()
        return self.process.stdout.readline().strip()

    def click(self):
        """Milliseconds until both files are written, and until the window is drawn again."""
        answer = self.answer("click").split()
        if len(answer) != 2 or not all(part.isdigit() for part in answer):
            raise SystemExit(f"a click was not answered: {' '.join(answer)}")
        written, drawn = (int(part) / 1000 for part in answer)
        return written, drawn

    def ask(self, line):
        """One number."""
        answer = self.answer(line)
        if not answer.isdigit():
            raise SystemExit(f"{line} was answered with {answer!r}")
        return int(answer)

    def do(self, *keys):
        for key in keys:
            if (answer := self.answer(f"do {key}")) != "done":
                raise SystemExit(f"{key} was answered with {answer!r}")

    def close(self):
        self.process.stdin.close()
        self.process.wait(PATIENCE_SECONDS)


class LaunchedProgram:
    """A program on a display that is measured from outside and then stopped."""

    def __init__(self, program, user, display, environment):
        self.start = time.monotonic()
        self.process = subprocess.Popen(
            [program],
            env=user.environment(DISPLAY=display.name, **environment),
            stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL,
        )

    def milliseconds_until(self, condition):
        wait_until(condition, f"{self.process.args[0]} getting ready", PATIENCE_SECONDS, self.process, pause=0.0005)
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

    def end(self):
        """As a user ends it: it writes what it has not written yet."""
        self.process.terminate()
        self.process.wait(PATIENCE_SECONDS)

    def stop(self):
        """At once; its user folder is thrown away."""
        self.process.kill()
        self.process.wait(PATIENCE_SECONDS)
