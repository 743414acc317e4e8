#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Holds the host guide's table of Param against the kinds that the command offers. ZQN_DIALOG names the command."""
import json
import os
import pathlib
import re
import subprocess
import sys

GUIDE = pathlib.Path(__file__).resolve().parents[2] / "docs" / "host-guide.md"


def main():
    rows = re.findall(r"^\| (\d+) \| `(\w+)` \|(.*)\|$", GUIDE.read_text(encoding="utf-8"), re.MULTILINE)
    written = [(int(number), constant) for number, constant, _ in rows]
    offered = json.loads(subprocess.check_output([os.environ["ZQN_DIALOG"], "kinds", "--json"], text=True))
    expected = [(kind["number"], kind["constant"]) for kind in offered]
    complaints = [f"kind {number} is not written down as it is" for number, _ in set(written) ^ set(expected)]
    if written != sorted(written):
        complaints.append("the kinds do not stand in their order")
    complaints += [f"kind {number} has an empty cell" for number, _, cells in rows
                   if len(cells.split("|")) != 4 or not all(cell.strip() for cell in cells.split("|"))]
    print("\n".join(complaints) or f"{len(rows)} kinds as they are")
    return 1 if complaints or len(rows) != 37 else 0


if __name__ == "__main__":
    sys.exit(main())
