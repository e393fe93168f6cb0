"""python3 -m tests.gui.ends_when_asked PROGRAM: starts the application for the first time and asks it to end (SIGTERM)
at the moment at which its lists are published and the prompt opens."""

import subprocess
import sys

from harness.stores import SHARED
from harness.waiting import wait_until
from tests.gui.user import new_user


def main():
    with new_user() as user:
        suite = user.stores.file(SHARED)
        with subprocess.Popen([sys.argv[1]], env=user.environment) as application:
            try:
                wait_until(lambda: suite.exists() and suite.stat().st_size > 0, "the published lists", 30, application,
                           pause=0.01)
                application.terminate()
                application.wait(20)
            except subprocess.TimeoutExpired:
                sys.exit("the application is still there")
            finally:
                application.kill()


if __name__ == "__main__":
    main()
