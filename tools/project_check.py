#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds the tree against the rules of the project that no compiler knows.

    project_check.py            prints complaints; the exit status is 1 when there is one
    project_check.py --arrows   prints the picture of the folders for docs/architecture.md
    project_check.py --public   prints the public headers

Each rule is a function that yields complaints; what holds between folders stands in folders.py. Only files under
version control, or about to be, are looked at.
"""

import re
import subprocess
import sys
from pathlib import Path

import folders

ROOT = Path(__file__).resolve().parent.parent
PICTURE = "docs/architecture.md"

STANDARD_HEADERS = set("""
algorithm any array atomic bit bitset cassert cctype cerrno cfloat charconv chrono cinttypes climits clocale
cmath compare complex concepts condition_variable coroutine csignal cstdarg cstddef cstdint cstdio cstdlib
cstring ctime cwchar cwctype deque exception execution filesystem forward_list fstream functional future
initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory
memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex set shared_mutex
source_location span sstream stack stdexcept streambuf string string_view system_error thread tuple
type_traits typeindex typeinfo unordered_map unordered_set utility valarray variant vector version
""".split())

LINES_AT_MOST = 500
SUBJECT = re.compile(
    r"(runtime|ado|sqlite|odbc|contract|forms|headless|qt|frontend|dialog|definitions|catalogues|sales|split"
    r"|host|testing|tests|bench|examples|docs|build): [A-Z].*[^.]$")
# Written in two parts, so that this file passes its own rule.
OPEN_MARKS = re.compile(r"\b(" + "|".join(("TO" + "DO", "FIX" + "ME", "XX" + "X", "HA" + "CK")) + r")\b")
# One machine's folders, and places on the net: neither means anything to the next reader.
MACHINE_PATHS = re.compile(r"(?<![\w.~-])/(?:" + "|".join(("work", "root", "farm")) + r")/")
# The name that every SVG file carries is none that anybody opens.
ADDRESSES = re.compile(r"\b(?:https?|ftp|git)" + "://(?!www[.]w3[.]org/2000/svg)")


def git(*arguments):
    return subprocess.run(["git", "-C", ROOT, *arguments], check=True, capture_output=True, text=True).stdout


def tracked_files():
    names = git("ls-files", "--cached", "--others", "--exclude-standard", "-z").split("\0")
    return [ROOT / name for name in sorted(names) if name and (ROOT / name).is_file()]


def text_of(path):
    try:
        return path.read_text(encoding="utf-8")
    except UnicodeDecodeError:
        return None  # a picture


def toolkits(path, text):
    """Floors 1 to 3 need the standard library alone."""
    if not path.is_relative_to(ROOT / "src") or path.suffix not in (".h", ".cpp") or folders.is_test(path):
        return
    floor = folders.FLOORS.get(folders.folder_of(path.relative_to(ROOT / "src").as_posix(), folders.FLOORS), 4)
    for line, quote, name in folders.includes(text):
        if quote == "<" and floor <= 3 and name not in STANDARD_HEADERS:
            yield line, f"<{name}> is no header of the standard library, and this is floor {floor}"


def header_shape(path, text):
    if path.suffix not in (".h", ".cpp"):
        return
    lines = text.splitlines()
    if not lines or lines[0] != "// SPDX-License-Identifier: MIT":
        yield 1, "the first line is not the SPDX line"
    if path.suffix != ".h":
        return
    if "#pragma once" not in lines:
        yield 1, "#pragma once is missing"
    comment = 0
    for line in lines[1:]:
        if not line.startswith("//"):
            break
        comment += line.strip() != "//"
    if comment == 0:
        yield 2, "the file comment is missing: what it is, where it stands, one example"


def length(path, text):
    lines = text.count("\n")
    if path.suffix in (".h", ".cpp", ".py", ".sh") and lines > LINES_AT_MOST:
        yield lines, f"{lines} lines; split it by subject, {LINES_AT_MOST} are enough"


def words(path, text):
    for number, line in enumerate(text.splitlines(), 1):
        for pattern, complaint in ((OPEN_MARKS, "is left open"), (MACHINE_PATHS, "is a path of one machine"),
                                   (ADDRESSES, "is an address on the net")):
            found = pattern.search(line)
            if found:
                yield number, f"'{found.group()}' {complaint}"


def white_space(path, text):
    for number, line in enumerate(text.split("\n"), 1):
        if line.endswith("\r") or (line != line.rstrip() and path.suffix not in (".md", ".jsonl")):
            yield number, "blanks at the end of the line"
        if "\t" in line and path.suffix in (".h", ".cpp", ".py", ".sh", ".txt", ".cmake"):
            yield number, "a tab"
    if text and not text.endswith("\n"):
        yield text.count("\n") + 1, "the last line has no end"


def commit_messages():
    for line in git("log", "--no-merges", "--format=%h %s").splitlines():
        commit, _, subject = line.partition(" ")
        if len(subject) > 72:
            yield f"commit {commit}: {len(subject)} characters in the subject, 72 at most"
        if not SUBJECT.match(subject):
            yield f"commit {commit}: '{subject}' is not 'floor: Do the thing'"


def main():
    files = [(path, text) for path in tracked_files() if (text := text_of(path)) is not None]
    tree = folders.Tree(ROOT / "src", files)
    if sys.argv[1:] == ["--arrows"]:
        print(tree.arrows(), end="")
        return 0
    if sys.argv[1:] == ["--public"]:
        print("\n".join(f"src/{header}" for header in sorted(tree.public)))
        return 0
    complaints = list(commit_messages())
    for path, text in files:
        for rule in (toolkits, header_shape, length, words, white_space):
            complaints += (f"{path.relative_to(ROOT)}:{line}: {what}" for line, what in rule(path, text))
    complaints += (f"{path.relative_to(ROOT)}:{line}: {what}" for path, line, what in tree.complaints())
    if tree.arrows() not in text_of(ROOT / PICTURE):
        complaints.append(f"{PICTURE}:1: the arrows have changed; tools/project_check.py --arrows prints them")
    for complaint in complaints:
        print(complaint)
    print(f"{len(files)} files held against the project's rules: {len(complaints)} complaints")
    return 1 if complaints else 0


if __name__ == "__main__":
    sys.exit(main())
