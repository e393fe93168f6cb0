"""A launch, until the lists are published, and the memory it takes, beside an empty window."""

import os
import pathlib
import shutil
import statistics
import time

from bench.app.programs import LaunchedProgram
from bench.table import print_table
from harness.stores import COPY_TARGETS, ICONS, LISTS, LOCAL, SHARED, USED, Stores, folder_records
from harness.user_folder import UserFolder

# Published last at a launch.
LAST_KEY = LISTS[-1]
SETTLE_SECONDS = 1.0


class Application:
    """The application, over the stores and the Library folder that an earlier launch has left, or for the first time;
    it is up once it has published its lists."""

    def __init__(self, build, earlier=None):
        self.name = "application"
        self.program = build / "launch_application.app" / "launch_application"
        self.earlier = earlier

    def prepare(self, user):
        if self.earlier:
            for domain in (LOCAL, SHARED):
                shutil.copy(Stores(self.earlier).file(domain), Stores(user).file(domain))
            shutil.copytree(self.earlier.library, user.library, dirs_exist_ok=True)
        else:
            Stores(user).write(USED)
        return {}

    @staticmethod
    def check(user):
        if f"<key>{LAST_KEY}</key>".encode() not in Stores(user).file(SHARED).read_bytes():
            raise SystemExit("the application was up without its lists")


class EmptyWindow:
    """A window without anything in it, perhaps over the support layer, that copies the files of `copies`."""

    def __init__(self, build, name, copies=()):
        self.name = name
        self.program = build / "bench" / name
        self.copies = copies

    def prepare(self, user):
        pairs = pathlib.Path(user.name, "copies")
        pairs.write_text("".join(f"{source}\t{user.library}/{target}\n" for source, target in self.copies))
        return {"TARNWICK_BENCH_COPIES": str(pairs)}

    @staticmethod
    def check(user):
        pass


def start(program, display, user):
    """The program, and the milliseconds until it is up."""
    mark = pathlib.Path(user.name, "up")
    launched = LaunchedProgram(program.program, user, display,
                               {**program.prepare(user), "TARNWICK_BENCH_UP": str(mark)})
    elapsed = launched.milliseconds_until(mark.exists)
    program.check(user)
    return launched, elapsed


def launch(program, display, neighbour):
    """Milliseconds until the program is up, on the clock and on the processor; its megabytes a second later, resident
    and of its own."""
    user = UserFolder(neighbour)
    launched, elapsed = start(program, display, user)
    busy = launched.processor_milliseconds()
    time.sleep(SETTLE_SECONDS)
    memory = launched.memory()
    launched.stop()
    user.remove()
    return elapsed, busy, *memory


def settings_after_a_launch(build, display, neighbour, settings):
    """A user folder with what the application leaves after a launch over these settings, in which it has all its
    files."""
    user = UserFolder(neighbour)
    application = Application(build, neighbour)
    application.prepare(user)
    Stores(user).write({**Stores(user).read(), **settings})
    application.prepare = lambda _: {}
    launched, _ = start(application, display, user)
    launched.end()
    return user


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
            measured = launch(program, display, neighbour)
            if turn > 0:
                figures[program.name].append(measured)
    return {name: [statistics.median(column) for column in zip(*rows)] for name, rows in figures.items()}


def rows_beside(title, figures):
    application = figures.pop("application")
    rows = []
    for name, floor in figures.items():
        clock, processor = (application[index] / floor[index] for index in (0, 1))
        rows.append([
            title, name, f"{application[0]:,.0f}", f"{floor[0]:.0f}", f"{clock:.2f}", f"{processor:.2f}",
            f"{application[2]:.1f}", *(f"{application[index] - floor[index]:+.1f}" for index in (2, 3))])
    return rows


def pictures(count):
    return [{"enable": 1, "displayName": f"Icon {number}", "modified": "1", "icon": os.urandom(1 << 20)}
            for number in range(count)]


def measure(build, display, quick):
    neighbour = UserFolder()
    first = Application(build)
    launched, _ = start(first, display, neighbour)
    launched.end()
    copies = first_run_copies(first, neighbour)
    # Its notification centre stays up as long as somebody uses it, as in a user's session.
    holder = LaunchedProgram(build / "bench" / "empty_window", neighbour, display,
                             {"TARNWICK_BENCH_UP": f"{neighbour.name}/up"})
    rounds, few = (4, 1) if quick else (15, 3)
    rows = []
    for title, settings, copied, turns in (
        ("first", None, copies, rounds),
        ("later", {}, (), rounds),
        ("1,000 targets", {COPY_TARGETS: folder_records(1_000)}, (), rounds),
        ("100,000 targets", {COPY_TARGETS: folder_records(100_000)}, (), few),
        ("100 MB of pictures", {ICONS: pictures(100)}, (), few),
    ):
        earlier = None if settings is None else settings_after_a_launch(build, display, neighbour, settings)
        floors = [EmptyWindow(build, name, copied) for name in ("empty_window", "empty_window_with_layer")]
        rows += rows_beside(title, take_turns([Application(build, earlier), *floors], display, turns, neighbour))
        if earlier:
            earlier.remove()
    holder.stop()
    neighbour.remove()
    print_table(
        f"A launch, until the lists are published (ms; a first one copies {len(copies)} files; the ratio on the clock "
        "and on the processor), and the memory then (MB resident; more than the floor, resident and unshared)",
        ["launch", "beside", "application", "floor", "ratio", "processor", "memory", "more", "more of its own"], rows)
