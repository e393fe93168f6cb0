"""One edit while rules are shown as faulty, beside one while none is: the same application over lists of the same
length, whose folders are missing or there."""

import statistics

from bench.app.programs import ClickedProgram
from bench.table import print_table
from harness.stores import COPY_TARGETS, USED, Stores, folder_records
from harness.user_folder import UserFolder
from harness.waiting import wait_until


def prepared(application, records, display):
    user = UserFolder()
    Stores(user).write({**USED, COPY_TARGETS: records})
    return user, ClickedProgram(application, user, display)


def measure_list(application, count, rounds, displays):
    """Medians in milliseconds until written and drawn, without and with faults."""
    faulty = folder_records(count)
    sound = [{**record, "realPath": "/usr"} for record in faulty]
    running = [prepared(application, records, display) for records, display in zip((sound, faulty), displays)]
    programs = [program for _, program in running]
    wait_until(lambda: programs[1].ask("count") > 1, "faults in sight", 60)
    if programs[0].ask("count"):
        raise SystemExit("folders that are there are shown as faulty")
    clicks = [[], []]
    for turn in range(rounds):
        for index, program in enumerate(programs):
            elapsed = program.click()
            if turn > 1:
                clicks[index].append(elapsed)
    if programs[1].ask("count") < 2:
        raise SystemExit("the faults were not shown all the time")
    for user, program in running:
        program.close()
        user.remove()
    return [[statistics.median(column) for column in zip(*of_program)] for of_program in clicks]


def measure(build, one, other, quick):
    application = build / "edit_application.app" / "edit_application"
    rows = []
    for records, rounds in ((10, 100), (1_000, 40), (10_000, 16)):
        if quick:
            rounds = 6 + rounds // 10
        (sound, drawn), (faulty, faulty_drawn) = measure_list(application, records, rounds, (one, other))
        rows.append([f"{records:,}", f"{sound:.2f}", f"{faulty:.2f}", f"{faulty / sound:.2f}", f"{drawn:.2f}",
                     f"{faulty_drawn:.2f}", f"{faulty_drawn / drawn:.2f}"])
    print_table(
        "An edit while faults are shown beside one while none is, from the click to both files on disk, and until "
        "drawn (ms)",
        ["records", "without", "with faults", "ratio", "drawn without", "with faults", "ratio"], rows)
