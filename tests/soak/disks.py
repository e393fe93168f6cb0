"""Trouble with disks and folders: full, read-only, missing, somebody else's."""

import contextlib
import os
import shutil
import subprocess

from harness.stores import COMMON_FOLDERS, LOCAL, SHARED, TEMPLATES, typed
from harness.waiting import wait_until
from tests.soak.box import SETTINGS, require, settle

# Copy targets and common folders, as the application numbers its lists.
FOLDER_LISTS = "12"
TEMPLATE_LIST = "0"


@contextlib.contextmanager
def small_disk(folder, size):
    """`folder` on a disk of its own with its files on it."""
    kept = folder.with_name(folder.name + ".kept")
    shutil.copytree(folder, kept)
    subprocess.run(["mount", "-t", "tmpfs", "-o", f"size={size}", "tmpfs", folder], check=True)
    shutil.copytree(kept, folder, dirs_exist_ok=True)
    try:
        yield
    finally:
        subprocess.run(["umount", "-l", folder], check=True)


@contextlib.contextmanager
def read_only(folder):
    """A mount, because permissions do not bind the superuser."""
    subprocess.run(["mount", "--bind", folder, folder], check=True)
    subprocess.run(["mount", "-o", "remount,ro,bind", folder], check=True)
    try:
        yield
    finally:
        subprocess.run(["umount", "-l", folder], check=True)


def fill(folder):
    descriptor = os.open(folder / "filling", os.O_WRONLY | os.O_CREAT)
    with contextlib.suppress(OSError):
        while True:
            os.write(descriptor, b"x" * 4096)
    os.close(descriptor)


def bytes_of(stores):
    return [stores.file(domain).read_bytes() for domain in (LOCAL, SHARED)]


def require_said_once_a_file(said):
    complaints = [line for line in said.splitlines() if "cannot be written" in line]
    require(len(complaints) in (1, 2), f"said {len(complaints)} times, not once a file: {complaints[:4]}")
    return len(complaints)


def full_disk(boxes):
    box = boxes.prepared()
    folder = box.stores.file().parent
    with small_disk(folder, "8m"):
        before = box.stores.read()
        with box.running(edits=30, lists=FOLDER_LISTS):
            settle()
        require(box.stores.read() != before, "there is nothing to test: no edit was stored while there was room")
        before = bytes_of(box.stores)
        fill(folder)
        offset = len(box.said())
        with box.running(edits=40, lists=FOLDER_LISTS, seed=2):
            wait_until(lambda: len(box.journal.done()) > 10, "the application's going on", 60)
            done = len(box.journal.done())
            require(bytes_of(box.stores) == before, "a stored file changed")
            complaints = require_said_once_a_file(box.said(offset))
            (folder / "filling").unlink()
        strays = [path.name for path in folder.iterdir() if path.name.endswith(".tmp")]
        require(not strays, f"left behind: {strays}")
    return f"{done} edits on a full disk, nothing stored was lost, said {complaints} times"


def unwritable_store(boxes):
    box = boxes.prepared()
    before = bytes_of(box.stores)
    offset = len(box.said())
    with read_only(box.stores.file().parent), box.running(edits=20, lists=FOLDER_LISTS):
        settle()
        done = len(box.journal.done())
    require(done > 5, "the application does not go on")
    require(bytes_of(box.stores) == before, "a stored file changed")
    complaints = require_said_once_a_file(box.said(offset))
    with box.running():
        settle()
    require(typed(box.stores.local(COMMON_FOLDERS)) == typed(SETTINGS[COMMON_FOLDERS]), "a later start lost a list")
    return f"{done} edits over a read-only folder, nothing stored was lost, said {complaints} times"


def other_user(boxes):
    """The application runs as one who does not own the stores: not readable, or not writable, in a folder that is not
    or that is writable."""
    count = sum(edits_of_other_user(boxes.prepared(), mode, folder_mode)
                for mode, folder_mode in ((0o600, 0o755), (0o644, 0o755), (0o600, 0o777)))
    return f"{count} edits over another user's files, neither file changed, said once each"


def edits_of_other_user(box, mode, folder_mode):
    which = f"{mode:o} in a folder {folder_mode:o}"
    files = [box.stores.file(domain) for domain in (LOCAL, SHARED)]
    folder = files[0].parent
    before = bytes_of(box.stores)
    for path in files:
        path.chmod(mode)
    for path in (folder, folder / ".lck"):
        path.chmod(folder_mode)
    box.become_other_user()
    offset = len(box.said())
    with box.running(edits=20, lists=FOLDER_LISTS, asked_to_end=True):
        settle()
        done = len(box.journal.done())
    require(done > 5, f"{which}: the application does not go on")
    require(bytes_of(box.stores) == before, f"{which}: a stored file changed")
    strays = [path.name for path in folder.iterdir() if ".damaged" in path.name or ".tmp" in path.name]
    require(not strays, f"{which}: left behind: {strays}")
    lines = box.said(offset).splitlines()
    for path in files:
        for words, expected in (("cannot be opened", mode == 0o600), ("cannot be written", True)):
            found = [line for line in lines if f"{path} {words}" in line]
            require(len(found) == expected, f"{which}: said {len(found)} times: {path.name} {words}")
    return done


def read_only_container(boxes):
    box = boxes.prepared()
    names = box.stores.template_files()
    before = box.stores.local(TEMPLATES)
    with read_only(box.stores.container), box.running(edits=20, lists=TEMPLATE_LIST):
        settle()
    require(box.stores.template_files() == names, "a template changed")
    require(len(box.stores.local(TEMPLATES)) >= 10 and before, "the template list is gone")
    return f"{len(box.journal.done())} edits over a read-only container, the templates stayed"


def missing_container(boxes):
    box = boxes.prepared()
    templates = box.stores.local(TEMPLATES)
    library = box.root / "library"
    shutil.rmtree(library)
    library.write_text("a file where the folder should be")
    with box.running(edits=20, lists=FOLDER_LISTS):
        settle()
        done = len(box.journal.done())
    after = box.stores.read()
    require(done > 5, "the application does not go on")
    kept = [value for key, value in after.items() if key.startswith(TEMPLATES)]
    require(templates in kept, "the template list is gone")
    return f"{done} edits without a container, the lists stayed"
