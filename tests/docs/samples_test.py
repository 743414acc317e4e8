#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Compiles every C++ sample of README.md and docs/. A sample without a function of its own is the body of one."""
import os
import pathlib
import re
import shlex
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

# Where the samples are put; always the same place, so that a compiler cache knows what was compiled before.
FOLDER = pathlib.Path(os.environ["ZQN_BUILD"]) / "samples"
LAUNCHER = os.environ.get("ZQN_LAUNCHER", "").split()
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
    flags = shlex.split(subprocess.check_output(["pkg-config", "--cflags", "Qt6Widgets"], text=True))
    command = [*LAUNCHER, os.environ["CXX"], "-std=c++20", "-Wall", "-Wextra", f"-I{ROOT / 'src'}", *flags]
    FOLDER.mkdir(exist_ok=True)

    def compile_one(numbered):
        number, (place, sample) = numbered
        source = FOLDER / f"sample{number}.cpp"
        source.write_text(program(sample), encoding="utf-8")
        done = subprocess.run([*command, "-c", str(source), "-o", str(source.with_suffix(".o"))], capture_output=True,
                              text=True, check=False)
        return f"{place} does not compile:\n{done.stderr}" if done.returncode else None

    with ThreadPoolExecutor(os.cpu_count()) as together:
        complaints = list(together.map(compile_one, enumerate(samples())))
    failed = [complaint for complaint in complaints if complaint]
    print("\n".join(failed))
    print(f"{len(complaints)} samples, {len(failed)} do not compile")
    return 1 if failed or len(complaints) < 6 else 0


if __name__ == "__main__":
    sys.exit(main())
