"""The pseudo-language: English with accents and two fifths longer, as the longest translations are. What is cut or
meets something else in it would be in a language to come; a plain text in it is one that no table has.

It is made from the English table when a program is to be run in it, and is no part of the application."""

import contextlib
import math
import pathlib
import re
import shutil
import tempfile

LANGUAGE = "pseudo"
ENTRY = re.compile(r'^("(?:[^"\\]|\\.)*" = ")((?:[^"\\]|\\.)*)(";)$', re.M)
# What stands for something else, and stays: escapes and placeholders.
PIECE = re.compile(r"\\.|%(?:\d+\$)?[@a-z]|.", re.S)
ACCENTED = str.maketrans("aceinosuyzACEINOSUYZ", "\u00e5\u00e7\u00e9\u00ee\u00f1\u00f6\u0161\u00fb\u00fd\u017e"
                         "\u00c5\u00c7\u00c9\u00ce\u00d1\u00d6\u0160\u00db\u00dd\u017d")
FILLER = " l\u00f6r\u00e9m \u00efps\u00fbm d\u00f6l\u00f6r s\u00eet \u00e5m\u00e9t"
LONGER = 0.4


def pseudo(text):
    """Of a text as it stands in a table."""
    pieces = PIECE.findall(text)
    letters = sum(len(piece) == 1 for piece in pieces)
    more = math.ceil(letters * LONGER)
    filler = (FILLER * (more // len(FILLER) + 1))[:more]
    return "".join(piece.translate(ACCENTED) if len(piece) == 1 else piece for piece in pieces) + filler


def pseudo_table(table):
    """The application's own name stays: the window is found by it."""
    return ENTRY.sub(
        lambda entry: entry[0] if entry[2] == "Tarnwick" else entry[1] + pseudo(entry[2]) + entry[3], table)


@contextlib.contextmanager
def speaking(program, language):
    """The path of a program that shows the language, and the language to start it in: a copy for the pseudo-language,
    in which that is the English."""
    program = pathlib.Path(program).resolve()
    if language != LANGUAGE:
        yield program, language
        return
    with tempfile.TemporaryDirectory(prefix="tarnwick-pseudo-") as folder:
        bundle = pathlib.Path(folder) / program.parent.name
        resources = bundle / "Resources"
        resources.mkdir(parents=True)
        shutil.copy2(program, bundle)
        for path in (program.parent / "Resources").iterdir():
            if path.name != "en.lproj":
                # No links: what is copied from there is to be files.
                (shutil.copytree if path.is_dir() else shutil.copy2)(path, resources / path.name)
        (resources / "en.lproj").mkdir()
        for path in (program.parent / "Resources/en.lproj").iterdir():
            text = path.read_text(encoding="utf-8-sig")
            (resources / "en.lproj" / path.name).write_text(pseudo_table(text), encoding="utf-8-sig")
        yield bundle / program.name, "en"
