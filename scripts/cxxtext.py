# SPDX-FileCopyrightText: 2026 The zemkit developers
# SPDX-License-Identifier: MIT
"""C++ read as text, for the checks that need no compiler."""

import re
import subprocess
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent

_NOT_CODE = re.compile(
    r"//[^\n]*"  # a comment to the end of the line
    r"|/\*.*?\*/"  # a comment
    r'|R"(?P<end>[^(\s]*)\(.*?\)(?P=end)"'  # a raw text
    r'|"(?:\\.|[^"\\\n])*"'  # a text
    r"|'(?:\\.|[^'\\\n])+'",  # a character
    re.DOTALL)


def tracked(*patterns):
    """The files of the tree that match, new ones included, by their path from its root."""
    found = subprocess.run(
        ["git", "ls-files", "--cached", "--others", "--exclude-standard", "--", *patterns],
        cwd=ROOT, check=True, capture_output=True, text=True)
    return [name for name in found.stdout.splitlines() if (ROOT / name).exists()]


def without_comments_and_texts(code):
    """The code with blanks where comments and the insides of texts and characters were: every
    other place stays where it is."""

    def blank(match):
        found = match.group()
        kept = found[0] if found[0] in "\"'" else ""
        inner = found[len(kept):len(found) - len(kept)]
        return kept + re.sub(r"[^\n]", " ", inner) + kept

    # 1'000'000 is a number, not two characters.
    code = re.sub(r"(?<=\d)'(?=\d)", "_", code)
    return _NOT_CODE.sub(blank, code)


def line_of(code, position):
    return code.count("\n", 0, position) + 1


def closing(code, opening):
    """The place of the bracket that closes the one at `opening`, or the end of the code."""
    pairs = {"(": ")", "[": "]", "{": "}"}
    depth = 0
    for place in range(opening, len(code)):
        if code[place] == code[opening]:
            depth += 1
        elif code[place] == pairs[code[opening]]:
            depth -= 1
            if depth == 0:
                return place
    return len(code)
