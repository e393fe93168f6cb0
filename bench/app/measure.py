"""python3 -m bench.app.measure FOLDER [--quick]: measures the application of a build folder beside its floor programs,
taking turns, and prints tables of medians and ratios."""

import pathlib
import sys

from bench.app import edits, faults, keys, launches
from harness.user_folder import Display

if __name__ == "__main__":
    build = pathlib.Path(sys.argv[1]).resolve()
    quick = "--quick" in sys.argv
    with Display() as one, Display() as other:
        edits.measure(build, one, other, quick)
        faults.measure(build, one, other, quick)
        keys.measure(build, one, quick)
        launches.measure(build, one, quick)
