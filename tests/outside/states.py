"""script/pictures --states: leaves a picture of each state of the window that a fresh page does not show: focus,
selection, editing, dragging, finding, menus, alerts, panels, notices, faults, empty and long lists, the smallest and a
large window."""

import pathlib
import plistlib
import re

from harness.stores import ACTIONS, COMMON_FOLDERS, COPY_TARGETS, folder_records
from harness.waiting import wait_until
from tests.outside.commands import open_menu
from tests.outside.desktop import Desktop
from tests.outside.panels import OpenPanel
from tests.outside.places import GAP, PAGES
from tests.outside.screen import command, shift_command
from tests.outside.small_window import SMALLEST
from tests.outside.transfer import EXPORT, IMPORT, choose_in_file_menu

MENUS = ("application", "file", "edit", "view", "rule", "window", "help")
LARGE = (1270, 860)
# From the table of a fresh page, each from the one before.
FOCUSED = {"button": 1, "page-button": 4, "switch": 6}
LOST_FOLDERS = {key: folder_records(3) for key in (COPY_TARGETS, COMMON_FOLDERS)}


class Album:
    """Pictures of the screen, numbered in the order in which they are taken."""

    def __init__(self, folder):
        self.folder, self.count = folder, 0

    def keep(self, desktop, name):
        desktop.screen.settle()
        self.count += 1
        desktop.screen.keep_picture(self.folder / f"{self.count:02}-{name}.png")


def titles_in_front(desktop):
    """Of what stands beside the main window, in any language."""
    return [window.title() for window in desktop.screen.windows(".") if window.number != desktop.window.number]


def in_front(desktop):
    """The panel or alert that is open, or just opens."""
    titles = wait_until(lambda: titles_in_front(desktop), "a panel or an alert")
    return OpenPanel(desktop.screen, f"^{re.escape(titles[-1])}$")


def answer_prompt(desktop):
    """A first launch asks to enable the extension, and so does every launch without it. Escape is no answer, so its
    button is pressed, by a key that comes too early at times."""

    def is_answered():
        if desktop.stores.local("ShownEnableExtensionAlert") and not titles_in_front(desktop):
            return True
        desktop.screen.key("Return")
        return False

    wait_until(is_answered, "the answered prompt", process=desktop.application, pause=0.3)


class TroubledDesktop(Desktop):
    """On a system that has switched the extension off, and with a switch and a list that an administrator has set."""

    def prepare(self):
        super().prepare()
        path = pathlib.Path(self.user.name, "system-state.plist")
        path.write_bytes(plistlib.dumps({"extensionIsOff": True, "forced": ["enableCommonPath", ACTIONS]}))
        self.screen.environment["TARNWICK_SYSTEM_STATE"] = str(path)


def file_name(page):
    """In the names of pictures."""
    return page.title.lower().replace(" & ", "-and-").replace(" ", "-")


def first_launch(album, start):
    with start(Desktop, None) as desktop:
        album.keep(desktop, "first-launch")


def rows(album, start):
    with start(Desktop, {}) as desktop:
        for name, steps in FOCUSED.items():
            desktop.screen.key(*["Tab"] * steps)
            album.keep(desktop, f"focus-on-a-{name}")
        desktop.select(2)
        album.keep(desktop, "selected-row")
        desktop.screen.key("Tab")
        album.keep(desktop, "selected-row-without-the-keyboard")
        desktop.start_typing(1, "A longer name")
        album.keep(desktop, "editing")
        desktop.screen.key("Escape")
        desktop.window.drag_to(desktop.place("cell", 1), desktop.place("cell", 4, None, GAP))
        album.keep(desktop, "dragging-between-rows")
        desktop.window.move(desktop.place("cell", 4))
        album.keep(desktop, "dragging-over-a-row")
        desktop.window.move(desktop.place("heading"))
        desktop.screen.release()


def finding(album, start):
    with start(Desktop, {}) as desktop:
        for name, text in (("hits", "t"), ("no-hits", "zebra")):
            desktop.screen.key(command("f"))
            desktop.screen.type(text)
            album.keep(desktop, f"finding-{name}")
            desktop.screen.key("Escape")


def menus(album, start):
    with start(Desktop, {}) as desktop:
        desktop.select(1)
        for steps, name in enumerate(MENUS):
            desktop.screen.key("F10", *[desktop.onward] * steps)
            album.keep(desktop, f"menu-{name}")
            desktop.screen.key("Escape", "Escape")
        desktop.screen.key(shift_command("p"))
        album.keep(desktop, "menu-preview")
        desktop.screen.key("Escape")
        for page in PAGES[:-1]:
            desktop.show(page)
            has_rows = desktop.stores.local(page.key)
            open_menu(desktop, desktop.place("cell", 0) if has_rows else desktop.place("below_rows"))
            album.keep(desktop, f"menu-of-{file_name(page)}")
            desktop.screen.key("Escape")


def panels(album, start):
    with start(Desktop, {}) as desktop:
        for page in PAGES[:-1]:
            desktop.show(page)
            desktop.click("add")
            panel = in_front(desktop)
            album.keep(desktop, f"panel-of-{file_name(page)}")
            panel.cancel()
        choose_in_file_menu(desktop, EXPORT)
        panel = in_front(desktop)
        album.keep(desktop, "panel-export")
        settings = pathlib.Path(desktop.user.name, "mine.plist")
        panel.choose(settings)
        wait_until(settings.exists, "the exported file")
        foreign = pathlib.Path(desktop.user.name, "foreign.plist")
        foreign.write_bytes(plistlib.dumps({"a": 1}))
        for name, path in (("import", settings), ("import-refused", foreign)):
            choose_in_file_menu(desktop, IMPORT)
            in_front(desktop).choose(path)
            alert = in_front(desktop)
            album.keep(desktop, f"alert-{name}")
            alert.confirm()


def troubles(album, start):
    with start(TroubledDesktop, LOST_FOLDERS) as desktop:
        album.keep(desktop, "alert-enable-extension")
        answer_prompt(desktop)
        for page in PAGES:
            desktop.show(page)
            album.keep(desktop, f"notices-of-{file_name(page)}")


def lengths(album, start):
    for name, count in (("empty", 0), ("long", 10_000)):
        with start(Desktop, {COPY_TARGETS: folder_records(count)}) as desktop:
            desktop.show_list(COPY_TARGETS)
            album.keep(desktop, f"{name}-list")


def sizes(album, start):
    for name, size in (("smallest", SMALLEST), ("large", LARGE)):
        with start(Desktop, LOST_FOLDERS) as desktop:
            desktop.window.resize(*size)
            for page in PAGES:
                desktop.show(page)
                album.keep(desktop, f"{name}-{file_name(page)}")


def keep_states(program, folder, **look):
    def start(kind, settings):
        return kind(program, settings, **look)

    album = Album(folder)
    for states in (first_launch, rows, finding, menus, panels, troubles, lengths, sizes):
        states(album, start)
    print(f"Pictures of the states: {album.count} in {folder}")
