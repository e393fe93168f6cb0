"""What reads the stores and what waits, without any program: python3 -m unittest tests.harness.test_stores."""

import subprocess
import tempfile
import unittest

from harness import stores
from harness.stores import LOCAL, SHARED, Stores, is_on, typed
from harness.waiting import NotSeen, wait_until, wait_until_steady


class StoresTest(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory(prefix="tarnwick-stores.")
        self.addCleanup(folder.cleanup)
        self.folder = folder.name
        self.stores = Stores(self.folder)
        self.stores.file().parent.mkdir()
        self.stores.template_folder.mkdir(parents=True)

    def read(self, *arguments):
        return subprocess.run([stores.__file__, *arguments], env={"TARNWICK_USER_FOLDER": self.folder},
                              capture_output=True, text=True, check=True).stdout

    def test_kinds_are_told_apart(self):
        values = [1, True, "1", 1.0, b"1"]
        for value in values:
            same = [other for other in values if typed([{"key": value}]) == typed([{"key": other}])]
            self.assertEqual(len(same), 1, value)

    def test_what_counts_as_on_is_what_the_application_writes_for_it(self):
        for value, expected in ((1, True), (True, True), ("1", True), (0, False), (False, False), ("0", False)):
            self.assertEqual(is_on({"enable": value}), expected, value)
        self.assertFalse(is_on({}))

    def test_a_domain_reads_as_it_was_written(self):
        self.stores.write({"key": [{"enable": True}]}, SHARED)
        self.assertEqual(typed(self.stores.read(SHARED)), typed({"key": [{"enable": True}]}))
        self.assertIsNone(self.stores.shared("other"))

    def test_the_program_answers_with_kinds(self):
        self.assertEqual(self.read(LOCAL, "d"), "(no file)\n")
        self.stores.write({"a": 1, "b": True, "c": "1"})
        self.assertEqual(self.read(LOCAL, "[d[key] for key in sorted(d)]"), "[1, True, '1']\n")
        self.assertEqual(self.read(LOCAL, "size"), f"{self.stores.file().stat().st_size}\n")

    def test_the_program_lists_folders_of_the_container(self):
        for name in ("b.txt", "a.txt"):
            (self.stores.template_folder / name).touch()
        self.assertEqual(self.read("--container", "Templates/CreateNewFile"), "['a.txt', 'b.txt']\n")


class WaitingTest(unittest.TestCase):
    def test_waiting_gives_what_it_waited_for(self):
        answers = iter([None, 0, "seen"])
        self.assertEqual(wait_until(lambda: next(answers), "the word", pause=0), "seen")

    def test_waiting_says_what_did_not_come(self):
        with self.assertRaisesRegex(NotSeen, "the word: not within 0.05 seconds"):
            wait_until(lambda: False, "the word", seconds=0.05)

    def test_waiting_ends_with_the_program_that_was_to_bring_it_about(self):
        with subprocess.Popen(["false"]) as process:
            with self.assertRaisesRegex(NotSeen, "ended with status 1"):
                wait_until(lambda: False, "the word", process=process)

    def test_steady_is_what_stays_as_it_was(self):
        looks = iter([1, 2, 2])
        wait_until_steady(lambda: next(looks), "the end of changes", pause=0)
        self.assertEqual(list(looks), [])
        with self.assertRaises(NotSeen):
            numbers = iter(range(1000))
            wait_until_steady(lambda: next(numbers), "the end of changes", seconds=0.05)


if __name__ == "__main__":
    unittest.main()
