"""script/pictures: leaves a picture of each page of a first launch, and prints what it published."""

import argparse
import pathlib
import sys

from harness.pseudo import LANGUAGE, speaking
from harness.published import describe_stores
from harness.waiting import wait_until
from tests.outside.desktop import Desktop
from tests.outside.places import PAGES, ROOT

NAMES = ("new-file", "copy-and-move-to", "common-folders", "custom-icons", "more-items", "more-apps")


def answer_prompt(desktop):
    """A first launch asks to enable the extension. Escape is no answer, so its button is pressed, by a key that comes
    too early at times."""

    def is_answered():
        if desktop.stores.local("ShownEnableExtensionAlert"):
            return True
        desktop.screen.key("Return")
        return False

    wait_until(is_answered, "the answered prompt", process=desktop.application, pause=0.3)


def main():
    parser = argparse.ArgumentParser(prog="script/pictures", description=__doc__)
    parser.add_argument("--language", default="en",
                        help="that of a table of texts: en, de, zh-Hans and so on; or pseudo, which is English, longer")
    parser.add_argument("--appearance", default="light", choices=["light", "dark"])
    parser.add_argument("program", nargs="?", default="build/release/Tarnwick.app/Tarnwick")
    parser.add_argument("folder", nargs="?", default="build/pictures", type=pathlib.Path)
    options = parser.parse_args()
    if options.language != LANGUAGE and not (ROOT / f"resources/{options.language}.lproj").is_dir():
        sys.exit(f"pictures: there is no table for {options.language}")
    options.folder.mkdir(parents=True, exist_ok=True)
    with (speaking(options.program, options.language) as (program, language),
          Desktop(program, is_dark=options.appearance == "dark", language=language) as desktop):
        answer_prompt(desktop)
        desktop.screen.settle()
        for number, (page, name) in enumerate(zip(PAGES, NAMES), 1):
            desktop.show(page)
            desktop.window.keep_picture(options.folder / f"{number}-{name}.png")
        print(f"Pictures of the pages: {options.folder}")
        describe_stores(desktop.stores)


if __name__ == "__main__":
    main()
