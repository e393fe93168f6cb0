"""Keys in the window of 10,000 rules: a step of finding, and what bringing the menus up to date costs."""

import statistics

from bench.app.programs import ClickedProgram
from bench.table import print_table
from harness.stores import ACTIONS, COPY_TARGETS, USED, Stores, folder_records
from harness.user_folder import UserFolder

RECORDS = 10_000
OPEN, NEXT, EDIT_NOTE = "Command+f", "Command+g", "Command+e"
FOLDERS_PAGE, ACTIONS_PAGE = "Command+2", "Command+5"


def action_records():
    return [{"enable": n % 2, "displayName": f"Item {n}", "nameModified": "0", "noteModified": "0",
             "Action": f"Item {n}", "Note": f"Note {n}"} for n in range(RECORDS)]


class Keys:
    def __init__(self, program, rounds):
        self.program, self.rounds = program, rounds
        self.rows = []

    def note(self, what, microseconds):
        times = [value / 1000 for value in microseconds]
        self.rows.append([what, f"{statistics.median(times):.2f}", f"{max(times):.2f}"])

    def expect_row(self, row):
        if (found := self.program.ask("row")) != row:
            raise SystemExit(f"row {found} is selected, not {row}")

    def find(self):
        first, typed, steps, back = [], [], [], []
        self.program.do(FOLDERS_PAGE, OPEN)
        for turn in range(self.rounds):
            # From the first row on.
            self.program.do(OPEN, *"Folder 0", OPEN)
            times = [self.program.ask(f"time {key}") for key in "999"]
            self.expect_row(999)
            (typed if turn else first).extend(times)
            steps.append(self.program.ask("time Return"))
            self.expect_row(1999)
            steps.append(self.program.ask(f"time {NEXT}"))
            self.expect_row(2999)
            back.append(self.program.ask("time Command+Shift+g"))
            self.expect_row(1999)
        self.note("a letter typed in the find bar, the first time", first)
        self.note("a letter typed in the find bar", typed)
        self.note("Return or Command-G", steps)
        self.note("Shift-Command-G", back)
        self.program.do("Escape")

    def validate(self, page, what):
        self.program.do(page)
        self.note(f"all menus brought up to date, {what}", [self.program.ask("validate") for _ in range(self.rounds)])

    def edit_notes(self):
        self.program.do(ACTIONS_PAGE, "I")
        times = []
        for _ in range(self.rounds):
            times.append(self.program.ask(f"time {EDIT_NOTE}"))
            self.program.do("Escape")
        self.note("Command-E, until a note is edited", times)


def measure(build, display, quick):
    application = build / "key_application.app" / "key_application"
    user = UserFolder()
    Stores(user).write({**USED, COPY_TARGETS: folder_records(RECORDS), ACTIONS: action_records()})
    program = ClickedProgram(application, user, display)
    keys = Keys(program, 4 if quick else 20)
    keys.validate(FOLDERS_PAGE, "on the page of copy targets")
    keys.validate(ACTIONS_PAGE, "on the page of further items")
    keys.edit_notes()
    keys.find()
    program.close()
    user.remove()
    print_table(f"Keys over {RECORDS:,} rules, until the window is drawn again (ms)", ["key", "median", "longest"],
                keys.rows)
