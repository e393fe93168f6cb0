"""Throwaway user folders, as programs and the shell use them: python3 -m unittest tests.harness.test_user_folder."""

import os
import pathlib
import signal
import subprocess
import unittest
import unittest.mock

from harness import user_folder
from harness.user_folder import Display, UserFolder
from harness.waiting import wait_until

# Ends only when it is made to, or after half a minute.
STUBBORN = "trap '' TERM; echo started; for i in $(seq 600); do sleep 0.05; done"


def run(*arguments, **more):
    return subprocess.run([user_folder.__file__, *arguments], capture_output=True, text=True, check=False, **more)


def has_ended(process):
    """Also as somebody else's child."""
    status = pathlib.Path(f"/proc/{process}/stat")
    return not status.exists() or status.read_text().rpartition(")")[2].split()[0] == "Z"


class UserFolderTest(unittest.TestCase):
    def test_a_command_has_a_folder_of_its_own_that_is_gone_afterwards(self):
        command = 'echo "$TARNWICK_USER_FOLDER" && test -f "$GNUSTEP_CONFIG_FILE" && cd "$TMPDIR" && pwd'
        answer = run("sh", "-c", command)
        folder, temporary = answer.stdout.split()
        self.assertEqual(temporary, f"{folder}/tmp")
        self.assertNotEqual(folder, os.environ.get("TARNWICK_USER_FOLDER"))
        self.assertFalse(os.path.exists(folder))

    def test_the_status_is_the_commands(self):
        self.assertEqual(run("sh", "-c", "exit 7").returncode, 7)
        self.assertEqual(run("sh", "-c", "kill -KILL $$").returncode, 128 + signal.SIGKILL)
        self.assertNotEqual(run("--display").returncode, 0)

    def test_the_path_of_temporary_files_leaves_room_for_the_notification_centres_socket(self):
        with UserFolder() as user:
            self.assertLessEqual(len(user.temporary), 65)

    def test_neighbours_share_temporary_files_alone(self):
        with UserFolder() as one, UserFolder(one) as other:
            self.assertEqual(one.environment()["TMP"], other.environment()["TMP"])
            self.assertNotEqual(one.environment()["GNUSTEP_CONFIG_FILE"], other.environment()["GNUSTEP_CONFIG_FILE"])

    def test_what_is_left_running_is_ended_before_the_folder_goes(self):
        command = "(exec sleep 60) >/dev/null 2>&1 & echo $! $TARNWICK_USER_FOLDER"
        process, folder = run("sh", "-c", command).stdout.split()
        self.assertTrue(has_ended(process))
        self.assertFalse(os.path.exists(folder))

    def test_what_does_not_end_when_asked_to_is_made_to(self):
        with UserFolder() as user:
            process = subprocess.Popen(["sh", "-c", STUBBORN], env=user.environment(), stdout=subprocess.PIPE,
                                       text=True)
            self.assertEqual(process.stdout.readline(), "started\n")
        self.assertEqual(process.wait(10), -signal.SIGKILL)
        process.stdout.close()
        self.assertFalse(os.path.exists(user.name))

    def test_programs_of_other_folders_go_on(self):
        with UserFolder() as one:
            process = subprocess.Popen(["sleep", "60"], env=one.environment())
            with UserFolder() as other:
                pass
            self.assertIsNone(process.poll())
            self.assertFalse(os.path.exists(other.name))
        self.assertEqual(process.wait(10), -signal.SIGTERM)

    def test_ending_it_ends_the_command_and_removes_the_folder(self):
        program = subprocess.Popen(
            [user_folder.__file__, "--display", "sh", "-c", "echo $$ $TARNWICK_USER_FOLDER; exec sleep 60"],
            stdout=subprocess.PIPE, text=True)
        process, folder = program.stdout.readline().split()
        program.terminate()
        self.assertEqual(program.wait(20), 128 + signal.SIGTERM)
        program.stdout.close()
        wait_until(lambda: has_ended(process), "the end of the command")
        self.assertFalse(os.path.exists(folder))


class DisplayTest(unittest.TestCase):
    def test_displays_that_start_at_once_have_numbers_of_their_own(self):
        with Display() as one, Display() as other:
            self.assertNotEqual(one.name, other.name)
            for display in (one, other):
                subprocess.run(["xdpyinfo", "-display", display.name], check=True, stdout=subprocess.DEVNULL)

    def test_a_display_is_gone_afterwards(self):
        with Display() as display:
            number = display.name[1:]
            self.assertTrue(os.path.exists(f"/tmp/.X11-unix/X{number}"))
        self.assertFalse(os.path.exists(f"/tmp/.X{number}-lock"))

    def test_a_server_that_does_not_start_is_reported(self):
        with UserFolder() as user:
            server = pathlib.Path(user.name, "Xvfb")
            server.write_text("#!/bin/sh\nexit 1\n")
            server.chmod(0o755)
            path = f"{user.name}:{os.environ['PATH']}"
            with unittest.mock.patch.dict(os.environ, PATH=path):
                with self.assertRaisesRegex(SystemExit, "does not start"), Display():
                    self.fail("there is no display")


if __name__ == "__main__":
    unittest.main()
