"""python3 -m tests.gui.run [--first-launch | --folders N | --dark | --right-to-left] [--language CODE] PROGRAM
[ARGUMENT ...]: runs a program of the window tests in a throwaway user folder, on a virtual display."""

import argparse
import sys

from harness.pseudo import speaking
from tests.gui.user import new_user, used_user


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--first-launch", action="store_true")
    parser.add_argument("--folders", type=int, default=0)
    parser.add_argument("--dark", action="store_true")
    parser.add_argument("--right-to-left", action="store_true")
    parser.add_argument("--language", default="en", help="that of a table of texts, or pseudo")
    parser.add_argument("command", nargs=argparse.REMAINDER)
    options = parser.parse_args()
    with speaking(options.command[0], options.language) as (program, language):
        command = [program, *options.command[1:]]
        if options.first_launch:
            with new_user() as user:
                return user.run(*command, LANGUAGE=language, TARNWICK_FIRST_LAUNCH="1")
        with used_user(options.folders, options.dark, options.right_to_left) as user:
            return user.run(*command, LANGUAGE=language)


if __name__ == "__main__":
    sys.exit(main())
