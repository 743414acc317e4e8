#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Prints a header as doxygen is to read it: line for line the same, and two habits of ours put into its words.

    reference_filter.py HEADER

The comment at the top of a header belongs to its class, if that has none of its own, else to the file. And a comment stands for all
declarations below it up to a blank line: a property's two accessors, the members of a family, the constants of a namespace.
"""

import re
import sys
from pathlib import Path

SCOPE = re.compile(r"^\s*(?:namespace\b|(?:template\s*<.*>\s*)?(?:class|struct)\s+\w+[^;()]*\{\s*$)")
CLASS = re.compile(r"^(?:class|struct)\s+(\w+)[^;]*\{\s*$")
NAMESPACE = re.compile(r"^namespace\s+([\w:]+)\s*\{")
RESET = re.compile(r"^\s*(?:public|protected|private)\s*:|^\s*//(?!/)|^\s*#|^\s*\}")


def class_of(lines):
    """The qualified name of the first class that has no comment of its own; empty for none."""
    namespaces = []
    for above, line in zip(["", *lines], lines):
        found = NAMESPACE.match(line)
        if found:
            namespaces.append(found.group(1))
        elif line.startswith("}  // namespace"):
            namespaces.pop()
        found = CLASS.match(line)
        if found and not above.lstrip().startswith(("///", "template")):
            return "::".join([*namespaces, found.group(1)])
    return ""


def with_top_comment(lines):
    """The comment at the top as one of the class or the file."""
    end = next((number for number, line in enumerate(lines) if not line.startswith("//")), 0)
    if end < 3 or lines[1] != "//":
        return lines
    name = class_of(lines[end:])
    head = f"/// @class {name}" if name else "/// @file"
    return [lines[0], head, *("/" + line for line in lines[2:end]), *lines[end:]]


def with_shared_comments(lines):
    """Each comment also in front of the further declarations that it stands for."""
    comment, told, depth, ended, template = [], False, 0, True, False
    for line in lines:
        bare = re.sub(r"//.*|'(?:\\.|[^'])'|\"(?:\\.|[^\"])*\"", "", line).strip()
        if not ended:  # inside a declaration
            depth += sum(bare.count(sign) for sign in "{(") - sum(bare.count(sign) for sign in "})")
            ended = depth == 0 and bare.endswith((";", "}"))
        elif line.lstrip().startswith("///"):
            comment = [*([] if told else comment), line.lstrip()[3:].strip()]
            told = False
        elif comment and bare.startswith("namespace"):
            told = True
        elif not bare or RESET.match(line) or SCOPE.match(line):
            comment, template = [], False
        else:
            if "///<" in line:
                comment = [line.partition("///<")[2].strip()]
            elif comment and told and not template and not re.search(r"= delete;|^~|^virtual ~", bare):
                indent = len(line) - len(line.lstrip())
                line = f"{line[:indent]}/** {' '.join(comment)} */ {line[indent:]}"
            told = True
            template = bare.startswith("template") and bare.endswith(">")
            if template:  # a class may follow as well
                yield line
                continue
            depth = sum(bare.count(sign) for sign in "{(") - sum(bare.count(sign) for sign in "})")
            ended = depth == 0 and bare.endswith((";", "}"))
        yield line


def main():
    lines = Path(sys.argv[1]).read_text(encoding="utf-8").split("\n")
    sys.stdout.write("\n".join(with_shared_comments(with_top_comment(lines))))


if __name__ == "__main__":
    main()
