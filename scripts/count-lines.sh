#!/usr/bin/env bash
# Counts the C++ lines (.h and .cpp) that are neither blank nor only comment, in the code (include, src, tools,
# bench) and in the tests (tests, fuzz), and prints both with their ratio, for example
# "code 7067  tests 2310  ratio 0.33". The C++ of the Python module is left out: its tests are pytest files. Exits 1 when the tests outgrow NUMBERING_MAX_TEST_RATIO (default 0.35) of
# the code: a test earns its lines by catching a fault no other test catches.
set -euo pipefail

root="$(cd "$(dirname "${BASH_SOURCE[0]}")/.." && pwd)"
exec /usr/bin/python3 - "$root" "${NUMBERING_MAX_TEST_RATIO:-0.35}" <<'PYTHON'
import pathlib
import re
import sys

root = pathlib.Path(sys.argv[1])
max_ratio = float(sys.argv[2])
# A raw string's opening, up to its "(": R"( or R"delimiter(, with an optional u8, u, U or L before the R.
RAW_OPENING = re.compile(r'(?:u8|[uUL])?R"([^()\\\s]{0,16})\(')


def counted_lines(text):
    """Number of lines holding at least one character outside comments and white space."""
    lines = set()
    line = 0
    i = 0
    n = len(text)
    while i < n:
        c = text[i]
        if c == "\n":
            line += 1
            i += 1
        elif text.startswith("//", i):
            i = text.find("\n", i)
            i = n if i < 0 else i
        elif text.startswith("/*", i):
            end = text.find("*/", i + 2)
            end = n if end < 0 else end + 2
            line += text.count("\n", i, end)
            i = end
        elif c.isspace():
            i += 1
        else:
            lines.add(line)
            raw = RAW_OPENING.match(text, i)
            if raw:
                end = text.find(")" + raw.group(1) + '"', raw.end())
                end = n if end < 0 else end + len(raw.group(1)) + 2
            elif c in "\"'":
                end = i + 1
                while end < n and text[end] not in (c, "\n"):
                    end += 2 if text[end] == "\\" else 1
                end += 1
            else:
                end = i + 1
            # A literal's later lines count unless blank.
            for offset, part in enumerate(text[i:end].split("\n")[1:], start=1):
                if part.strip():
                    lines.add(line + offset)
            line += text.count("\n", i, end)
            i = end
    return len(lines)


def count(directories):
    total = 0
    for directory in directories:
        for path in sorted((root / directory).rglob("*")):
            if path.suffix in (".h", ".cpp") and path.is_file():
                total += counted_lines(path.read_text(encoding="utf-8", errors="replace"))
    return total


code = count(d for d in ("include", "src", "tools", "bench") if (root / d).is_dir())
tests = count(d for d in ("tests", "fuzz") if (root / d).is_dir())
ratio = tests / code if code else 0.0
print(f"code {code}  tests {tests}  ratio {ratio:.2f}", flush=True)
if ratio > max_ratio:
    print(f"error: the tests are {ratio:.2f} of the code, more than {max_ratio:.2f}", file=sys.stderr)
    sys.exit(1)
PYTHON
