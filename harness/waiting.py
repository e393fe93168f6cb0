"""Waiting for what a program does."""

import time

PATIENCE_SECONDS = 20


class NotSeen(Exception):
    """Something that was waited for did not come."""


def wait_until(condition, what, seconds=PATIENCE_SECONDS, process=None, pause=0.02):
    """What the condition gives once it is true. Not seen when the time is up, or when `process`, which was to bring it
    about, has ended without."""
    end = time.monotonic() + seconds
    while True:
        # In this order: the last that a process does before it ends counts.
        has_ended = process is not None and process.poll() is not None
        if seen := condition():
            return seen
        if has_ended:
            raise NotSeen(f"{what}: the program ended with status {process.returncode}")
        if time.monotonic() > end:
            raise NotSeen(f"{what}: not within {seconds} seconds")
        time.sleep(pause)


def wait_until_steady(look, what, still=0.0, seconds=PATIENCE_SECONDS, pause=0.02):
    """Until looking gives twice the same, and nothing else for `still` seconds in between."""
    last, since = look(), time.monotonic()

    def is_steady():
        nonlocal last, since
        now = look()
        if now == last:
            return time.monotonic() - since >= still
        last, since = now, time.monotonic()
        return False

    time.sleep(pause)
    wait_until(is_steady, what, seconds, pause=pause)
