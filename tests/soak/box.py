"""The editing application in a throwaway user folder."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import time

from harness.stores import COMMON_FOLDERS, COPY_TARGETS, GLOBAL, USED, Stores, folder_records
from harness.user_folder import UserFolder
from harness.waiting import NotSeen, wait_until
from tests.soak.journal import Journal

READY_SECONDS = 120

# Nobody's number.
OTHER_USER = 65534

SETTINGS = {
    **USED, "enableCopyFilesTo": False, COMMON_FOLDERS: folder_records(12),
    COPY_TARGETS: [{"enable": 0, "realPath": "Undefined", "displayName": ""}],
}


class Wrong(Exception):
    """What the application left, or did, is not what it should be."""


def require(holds, what):
    if not holds:
        raise Wrong(what)


class Box:
    """`editor` is the program of tests/soak/main.cpp. The pictures and files that it adds to the lists go to
    `sources`."""

    def __init__(self, editor, display):
        self.user, self.display = UserFolder(), display
        self.stores = Stores(self.user)
        self.root = pathlib.Path(self.user.name)
        self.sources, self.temporary, self.output = (self.root / name for name in ("sources", "tmp", "output"))
        self.sources.mkdir()
        self.journal = Journal(self.root / "journal")
        self.original, self.editor, self.is_other_user = pathlib.Path(editor), editor, False
        # Also when the application's own file is lost, nothing is to ask for an answer.
        self.stores.write(USED, GLOBAL)

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.user.remove()

    def start(self, journal=None, **settings):
        """Starts the application with those of its settings; its journal begins anew."""
        journal = journal or self.journal
        journal.begin()
        prefix = []
        if self.is_other_user:
            os.chown(journal.path, OTHER_USER, OTHER_USER)
            prefix = ["setpriv", f"--reuid={OTHER_USER}", f"--regid={OTHER_USER}", "--clear-groups"]
        settings = {f"TARNWICK_SOAK_{name.upper()}": str(value) for name, value in settings.items()}
        with open(self.output, "ab") as output:
            return subprocess.Popen([*prefix, self.editor], stdout=output, stderr=output,
                                    env=self.environment(TARNWICK_SOAK_JOURNAL=journal.path.name, **settings))

    def environment(self, **more):
        return self.user.environment(DISPLAY=self.display.name, **more)

    def wait_ready(self, process, journal=None, seconds=READY_SECONDS):
        try:
            wait_until((journal or self.journal).is_ready, "the application's start", seconds, process)
        except NotSeen as error:
            raise Wrong(f"{error}: {self.said()[-1500:]}") from error

    @contextlib.contextmanager
    def running(self, seconds=READY_SECONDS, asked_to_end=False, journal=None, edits=0, **settings):
        """The application, once it is ready; killed at the end, or asked to end."""
        process = self.start(journal, edits=edits, **settings)
        try:
            self.wait_ready(process, journal, seconds)
            yield process
            require(process.poll() is None, f"the application ended by itself: {self.said()[-1500:]}")
            if asked_to_end:
                ask_to_end(process)
        finally:
            process.kill()
            process.wait()

    def copy_application(self):
        """The box has an application of its own from now on; gives its folder."""
        bundle = self.root / self.original.parent.name
        shutil.copytree(self.original.parent, bundle)
        self.editor = str(bundle / self.original.name)
        return bundle

    def become_other_user(self):
        """The application runs as nobody from now on, and may write in no folder but that of temporary files."""
        self.copy_application()
        self.root.chmod(0o755)
        shutil.rmtree(self.temporary)
        self.temporary.mkdir()
        for path in (self.sources, self.temporary):
            os.chown(path, OTHER_USER, OTHER_USER)
        self.is_other_user = True

    def journal_named(self, name):
        return Journal(self.root / name)

    def said(self, offset=0):
        """What the application wrote to its standard streams, from there on."""
        return self.output.read_text(errors="replace")[offset:]


class Boxes:
    """Where one check gets its own."""

    def __init__(self, editor, display):
        self.editor, self.display = editor, display
        self.stack = contextlib.ExitStack()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.stack.close()

    def new(self):
        """To be entered, and removed when it is left."""
        return Box(self.editor, self.display)

    def prepared(self):
        """After a launch over settings that have been used; removed at the end of the check."""
        box = self.stack.enter_context(self.new())
        box.stores.write(SETTINGS)
        with box.running():
            settle()
        return box


def settle():
    """Longer than storing what is not synchronised takes."""
    time.sleep(1.5)


def ask_to_end(process):
    process.terminate()
    try:
        process.wait(20)
    except subprocess.TimeoutExpired:
        process.kill()
        process.wait()
        raise Wrong("the application does not end when asked to") from None
