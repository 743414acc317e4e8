#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compiles every C++ sample of README.md and docs/. A sample without a function of its own is the body of one."""
import os
import pathlib
import re
import shlex
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parents[2]
# What a reader takes for granted: a function that does something with a key.
TAKEN_FOR_GRANTED = "void collect(const zqn::Variant& key);\n"


def samples():
    for page in [ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md"))]:
        text = page.read_text(encoding="utf-8")
        for block in re.finditer(r"^```cpp\n(.*?)^```$", text, re.DOTALL | re.MULTILINE):
            yield f"{page.relative_to(ROOT)}:{text.count(chr(10), 0, block.start()) + 1}", block.group(1)


def program(sample):
    lines = sample.splitlines()
    includes = [line for line in lines if line.startswith("#include")]
    rest = "\n".join(line for line in lines if not line.startswith("#include"))
    whole = re.search(r"^[\w:<>]+(?: [\w:<>&*]+)* \w+\(.*\{$|^class ", rest, re.MULTILINE)
    head = "\n".join([*includes, '#include "runtime/variant.h"']) + "\n" + TAKEN_FOR_GRANTED
    return head + (rest if whole else "void sample() {\n" + rest + "\n}\n")


def main():
    compiler = os.environ["CXX"]
    flags = shlex.split(subprocess.check_output(["pkg-config", "--cflags", "Qt6Widgets"], text=True))
    failed = count = 0
    with tempfile.TemporaryDirectory() as folder:
        for place, sample in samples():
            count += 1
            source = pathlib.Path(folder) / "sample.cpp"
            source.write_text(program(sample), encoding="utf-8")
            done = subprocess.run([compiler, "-std=c++20", "-fsyntax-only", "-Wall", "-Wextra", f"-I{ROOT / 'src'}", *flags,
                                   str(source)], capture_output=True, text=True, check=False)
            if done.returncode:
                failed += 1
                print(f"{place} does not compile:\n{done.stderr}")
    print(f"{count} samples, {failed} do not compile")
    return 1 if failed or count < 6 else 0


if __name__ == "__main__":
    sys.exit(main())
