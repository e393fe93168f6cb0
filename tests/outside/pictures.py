"""script/pictures: leaves a picture of each page of a first launch, and prints what it published; or a picture of each
of the states that the window can be in."""

import argparse
import pathlib
import sys

from harness.pseudo import LANGUAGE, speaking
from harness.published import describe_stores
from tests.outside.desktop import Desktop
from tests.outside.places import PAGES, ROOT
from tests.outside.states import answer_prompt, file_name, keep_states


def keep_pages(program, folder, **look):
    """And say what was published."""
    with Desktop(program, **look) as desktop:
        answer_prompt(desktop)
        desktop.screen.settle()
        for number, page in enumerate(PAGES, 1):
            desktop.show(page)
            desktop.window.keep_picture(folder / f"{number}-{file_name(page)}.png")
        print(f"Pictures of the pages: {folder}")
        describe_stores(desktop.stores)


def main():
    parser = argparse.ArgumentParser(prog="script/pictures", description=__doc__)
    parser.add_argument("--language", default="en",
                        help="that of a table of texts: en, de, zh-Hans and so on; or pseudo, which is English, longer")
    parser.add_argument("--appearance", default="light", choices=["light", "dark"])
    parser.add_argument("--right-to-left", action="store_true", help="laid out as for a language read in that way")
    parser.add_argument("--states", action="store_true",
                        help="menus, alerts, panels, notices, an edit, a drag and so on, in place of the pages")
    parser.add_argument("program", nargs="?", default="build/release/Tarnwick.app/Tarnwick")
    parser.add_argument("folder", nargs="?", default="build/pictures", type=pathlib.Path)
    options = parser.parse_args()
    if options.language != LANGUAGE and not (ROOT / f"resources/{options.language}.lproj").is_dir():
        sys.exit(f"pictures: there is no table for {options.language}")
    options.folder.mkdir(parents=True, exist_ok=True)
    keep = keep_states if options.states else keep_pages
    with speaking(options.program, options.language) as (program, language):
        keep(program, options.folder, is_dark=options.appearance == "dark",
             is_right_to_left=options.right_to_left, language=language)


if __name__ == "__main__":
    main()
