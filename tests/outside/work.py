"""Whether a program has something to do."""

import pathlib

# In the run queue, or waiting for a disk.
WORKING = {"R", "D"}


def is_working(process):
    """Of a process identifier. A program that has ended or is stopped is not."""
    try:
        line = pathlib.Path(f"/proc/{process}/stat").read_text()
    except (FileNotFoundError, ProcessLookupError):
        return False
    # The name before it, in parentheses, may hold anything.
    return line.rpartition(")")[2].split()[0] in WORKING
