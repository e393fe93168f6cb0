"""Checks from outside: each gets a way to start its program, prints its name as a sentence, and ends this one with
status 1 when it is wrong."""

import contextlib
import os
import sys
import traceback

from tests.outside.desktop import Desktop
from tests.outside.model import Model


def require(holds, what):
    if not holds:
        raise AssertionError(what)


@contextlib.contextmanager
def watched(session, name):
    """That nothing goes wrong unseen; a picture is kept where TARNWICK_PICTURES says."""
    try:
        yield
        complaints = [line for line in session.said().splitlines() if "exception" in line.lower()]
        require(not complaints, f"said: {complaints[:3]}")
    except BaseException:
        if folder := os.environ.get("TARNWICK_PICTURES"):
            session.screen.keep_picture(f"{folder}/{name}.png")
        raise


def application(program, name):
    @contextlib.contextmanager
    def start(settings=None, is_first_launch=False, **options):
        """The application over these settings, and the model of what is stored."""
        before = None if is_first_launch else settings or {}
        with Desktop(program, before, **options) as desktop, watched(desktop, name):
            model = Model(desktop.stores)
            model.expect("what a start stores")
            yield desktop, model
    return start


def run_checks(*checks, starter=application):
    """All of them, or those that are named after the program, as prefixes."""
    program, wanted = sys.argv[1], sys.argv[2:]
    failed = 0
    for check in checks:
        if wanted and not any(check.__name__.startswith(name) for name in wanted):
            continue
        try:
            check(starter(program, check.__name__))
            print(check.__name__.replace("_", " "), flush=True)
        except Exception:
            failed += 1
            print(f"WRONG: {check.__name__.replace('_', ' ')}\n{traceback.format_exc()}", flush=True)
    sys.exit(failed > 0)
