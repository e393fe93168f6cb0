"""python3 -m tests.structure.planted_script_mistakes: plants mistakes in scripts, in a folder of their own, and sees
each of them reported."""

import pathlib
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
SOUND = {
    "script/greet": '#!/usr/bin/env bash\nset -euo pipefail\n# shellcheck source=script/words.sh\n'
                    'source "$(dirname "$0")/words.sh"\necho "${words:?}"\n',
    "script/words.sh": "# shellcheck shell=sh\nexport words=hello\n",
    "tests/look": '#!/usr/bin/python3 -IS\nimport sys\n\nprint(sys.argv)\n',
    "tests/words.py": 'WORDS = "hello"\n',
    "notes.txt": "import nothing\n",
}
# A file, what it holds, and what is to be reported.
MISTAKES = (
    ("script/remove", "#!/usr/bin/env bash\nrm -rf $1\n", "script/remove:2:8: note: Double quote"),
    ("script/compare", "#!/bin/sh\n[[ -f $1 ]]\n", "In POSIX sh, [[ ]] is undefined"),
    ("script/more.sh", "echo hello\n", "script/more.sh:1:1: error: Tips depend on target shell"),
    ("script/away", "#!/usr/bin/env bash\ncd \"$1\"\nls\n", "Use 'cd ... || exit'"),
    ("tests/names", "#!/usr/bin/env -S python3 -I\nprint(nane)\n", "tests/names:2:7: F821 undefined name 'nane'"),
    ("tests/unused.py", "import os\n", "tests/unused.py:1:1: F401 'os' imported but unused"),
    ("tests/hushed.py", "import os  # noqa\n", "tests/hushed.py:1:1: F401 'os' imported but unused"),
    ("tests/late.py", 'print("first")\nimport os\nprint(os.name)\n', "E402 module level import not at top of file"),
    ("tests/long.py", f'WORDS = "{"x" * 120}"\n', "tests/long.py:1:121: E501 line too long"),
    ("script/other", "#!/usr/bin/perl\nprint 1;\n", "perl: nothing lints script/other"),
)


def check(folder):
    answer = subprocess.run([ROOT / "script/check-scripts", folder], capture_output=True, text=True, check=False)
    return answer.returncode, answer.stdout + answer.stderr


def main():
    with tempfile.TemporaryDirectory(prefix="tarnwick-planted.") as name:
        folder = pathlib.Path(name)
        subprocess.run(["git", "init", "--quiet", folder], check=True)
        for configuration in (".flake8", ".shellcheckrc"):
            (folder / configuration).write_bytes((ROOT / configuration).read_bytes())
        for file, content in SOUND.items():
            (folder / file).parent.mkdir(exist_ok=True)
            (folder / file).write_text(content)
        status, output = check(folder)
        if status != 0:
            sys.exit(f"sound scripts do not pass: {output}")
        for file, content, message in MISTAKES:
            (folder / file).write_text(content)
            status, output = check(folder)
            if status == 0 or message not in output:
                sys.exit(f"expected: {message}; reported, with status {status}: {output}")
            (folder / file).unlink()
    print(f"planted failures: {len(MISTAKES)} planted, {len(MISTAKES)} reported")


if __name__ == "__main__":
    main()
