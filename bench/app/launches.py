"""A launch, until the lists are published, and the memory it takes, beside an empty window."""

import pathlib
import shutil
import statistics
import time

from bench.app.programs import LaunchedProgram
from bench.table import print_table
from harness.stores import COPY_TARGETS, LISTS, SHARED, USED, Stores, folder_records
from harness.user_folder import UserFolder

# Published last at a launch.
LAST_KEY = LISTS[-1]
SETTLE_SECONDS = 1.0


class Application:
    """The application, with the settings and perhaps the Library folder of an earlier launch; it is up once the last
    list is in the suite's file, which is not there before."""

    def __init__(self, build, settings, library=None):
        self.name = "application"
        self.program = build / "Tarnwick.app" / "Tarnwick"
        self.settings = settings
        self.library = library

    def prepare(self, user):
        Stores(user).write(self.settings)
        if self.library:
            shutil.copytree(self.library, user.library, dirs_exist_ok=True)
        return {}

    @staticmethod
    def is_up(user):
        store = Stores(user).file(SHARED)
        seen = None

        def check():
            nonlocal seen
            try:
                status = store.stat()
            except FileNotFoundError:
                return False
            if (status.st_ino, status.st_mtime_ns) == seen:
                return False
            seen = (status.st_ino, status.st_mtime_ns)
            return f"<key>{LAST_KEY}</key>".encode() in store.read_bytes()

        return check


class EmptyWindow:
    """A window without anything in it, perhaps over the support layer, that copies the files of `copies`."""

    def __init__(self, build, name, copies=()):
        self.name = name
        self.program = build / "bench" / name
        self.copies = copies

    def prepare(self, user):
        pairs = pathlib.Path(user.name, "copies")
        pairs.write_text("".join(f"{source}\t{user.library}/{target}\n" for source, target in self.copies))
        return {"TARNWICK_BENCH_COPIES": str(pairs), "TARNWICK_BENCH_UP": f"{user.name}/up"}

    @staticmethod
    def is_up(user):
        return pathlib.Path(user.name, "up").exists


def launch(program, display, neighbour=None):
    """Milliseconds until the program is up, on the clock and on the processor; its megabytes a second later, resident
    and of its own; and the user folder it ran in."""
    user = UserFolder(neighbour)
    environment = program.prepare(user)
    launched = LaunchedProgram(program.program, user, display, environment)
    elapsed = launched.milliseconds_until(program.is_up(user))
    busy = launched.processor_milliseconds()
    time.sleep(SETTLE_SECONDS)
    memory = launched.memory()
    launched.stop()
    return (elapsed, busy, *memory), user


def first_run_copies(application, user):
    """What the first launch copied: pairs of a resource and a place in the user's Library folder."""
    resources = application.program.parent / "Resources"
    library = pathlib.Path(user.library)
    copied = [file for file in library.rglob("*") if file.is_file() and (resources / file.name).exists()]
    pairs = [(resources / file.name, file.relative_to(library)) for file in copied]
    if not pairs:
        raise SystemExit("a first launch copied nothing")
    return pairs


def take_turns(programs, display, rounds, neighbour):
    """Medians of what `launch` measures, for each program."""
    figures = {program.name: [] for program in programs}
    for turn in range(rounds + 1):
        for program in programs:
            measured, user = launch(program, display, neighbour)
            user.remove()
            if turn > 0:
                figures[program.name].append(measured)
    return {name: [statistics.median(column) for column in zip(*rows)] for name, rows in figures.items()}


def rows_beside(title, figures):
    application = figures.pop("application")
    rows = []
    for name, floor in figures.items():
        clock, processor = (application[index] / floor[index] for index in (0, 1))
        rows.append([
            title, name, f"{application[0]:.0f}", f"{floor[0]:.0f}", f"{clock:.2f}", f"{processor:.2f}",
            f"{application[2]:.1f}", *(f"{application[index] - floor[index]:+.1f}" for index in (2, 3))])
    return rows


def measure(build, display, quick):
    rounds = 4 if quick else 15
    first = Application(build, USED)
    _, neighbour = launch(first, display)
    copies = first_run_copies(first, neighbour)
    settings = Stores(neighbour).read()
    # Its notification centre stays up as long as somebody uses it, as in a user's session.
    holder = LaunchedProgram(build / "bench" / "empty_window", neighbour, display,
                             {"TARNWICK_BENCH_UP": f"{neighbour.name}/up"})
    rows = []
    for title, application, copied in (
        ("first", first, copies),
        ("later", Application(build, settings, neighbour.library), ()),
        ("1,000 targets", Application(build, {**settings, COPY_TARGETS: folder_records(1_000)}, neighbour.library), ()),
    ):
        floors = [EmptyWindow(build, name, copied) for name in ("empty_window", "empty_window_with_layer")]
        rows += rows_beside(
            title, take_turns([application, *floors], display, rounds, neighbour))
    holder.stop()
    neighbour.remove()
    print_table(
        f"A launch, until the lists are published (ms; a first one copies {len(copies)} files; the ratio on the clock "
        "and on the processor), and the memory then (MB resident; more than the floor, resident and unshared)",
        ["launch", "beside", "application", "floor", "ratio", "processor", "memory", "more", "more of its own"], rows)
