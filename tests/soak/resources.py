"""Trouble with what the application brings along."""

import re
import shutil

from harness.stores import ACTIONS, ICONS, LISTS, LOCAL, SHARED, typed
from harness.waiting import wait_until
from tests.soak.box import require, settle
from tests.soak.checksums import checksum
from tests.soak.neighbours import wait_until_quiet
from tests.soak.pictures import make_pictures


def remove_resources(bundle):
    """All that the application has beside its program and the description of its bundle."""
    count = 0
    for path in sorted((bundle / "Resources").rglob("*"), reverse=True):
        if path.is_dir():
            if not any(path.iterdir()):
                path.rmdir()
        elif path.name != "Info-gnustep.plist":
            path.unlink()
            count += 1
    return count


def vanished_resource(boxes):
    """Everything beside the program and the template folder, while the application runs; then starts without, and a
    first launch without, which a whole bundle must make good."""
    box = boxes.prepared()
    make_pictures(box.sources)
    bundle = box.copy_application()
    before = box.stores.read()
    with box.running(edits=300, lists="123", asked_to_end=True):
        wait_until(lambda: len(box.journal.done()) > 10, "the first edits", 60)
        count = remove_resources(bundle)
        shutil.rmtree(box.stores.container / "Templates")
        done = -len(box.journal.done())
        wait_until_quiet(box.journal)
        done += len(box.journal.done())
    require(count > 80 and done > 50, f"too little to test: {count} resources, {done} edits")
    after = box.stores.read()
    last = {edit.key: edit.whole for edit in box.journal.done()}
    for key in LISTS:
        require(checksum(after[key]) == last.get(key, checksum(before[key])), f"{key} is not as it was left")
    with box.running(asked_to_end=True):
        settle()
    started = box.stores.read()
    require(all(typed(started[key]) == typed(after[key]) for key in LISTS), "a start changed a list")
    first_launch_without(box, bundle, before)
    require("exception" not in box.said().lower(), "an exception")
    return f"{done} edits after {count} resources had vanished, and starts without them; no list changed"


def first_launch_without(box, bundle, before):
    for domain in (LOCAL, SHARED):
        box.stores.file(domain).unlink()
    offset = len(box.said())
    with box.running(asked_to_end=True):
        settle()
    said = re.findall('application\'s image ".*" is missing', box.said(offset))
    require(said and len(said) == len(set(said)), f"said {said}")
    shutil.rmtree(bundle)
    box.copy_application()
    with box.running():
        settle()
    for key in (ICONS, ACTIONS):
        require(checksum(box.stores.local(key)) == checksum(before[key]), f"a whole bundle does not bring {key} back")
    icons = box.stores.container / "Templates/FunctionIcon"
    require(any(icons.iterdir()), "a whole bundle does not bring the extension's icons back")
