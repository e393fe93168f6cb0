"""python3 -m tests.gui.second_launch PROGRAM: a first launch of the window tests and a second one over what it left;
fails when the second changed any stored value, in either domain."""

import sys

from harness.stores import LOCAL, SHARED, typed
from tests.gui.user import new_user


def values(user):
    # Where the window stood is the toolkit's own note.
    return {domain: {key: typed(value) for key, value in user.stores.read(domain).items()
                     if not key.startswith("NSWindow Frame")}
            for domain in (LOCAL, SHARED)}


def main():
    program = sys.argv[1]
    with new_user() as user:
        if user.run(program, "--gtest_filter=FirstLaunch.*", TARNWICK_FIRST_LAUNCH="1") != 0:
            sys.exit("the first launch failed")
        before = values(user)
        if user.run(program, "--gtest_filter=Pages.TheWindow*") != 0:
            sys.exit("the second launch failed")
        after = values(user)
    for domain in (LOCAL, SHARED):
        one, other = before[domain], after[domain]
        if changed := sorted(key for key in one.keys() | other.keys() if one.get(key) != other.get(key)):
            sys.exit(f"{domain}: the second launch changed {', '.join(changed)}")
        print(f"{domain}: {len(one)} values, none changed")


if __name__ == "__main__":
    main()
