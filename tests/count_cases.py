#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Sums the cases of a run of ctest, and says which of its tests failed.

    count_cases.py BUILD

BUILD/tests.xml says which tests ctest has run and how they ended, BUILD/cases/TEST.json how many cases a test has run.
A test that leaves no count is one case. One that fails without a failed case, for it crashed, has one.
"""

import json
import sys
import xml.etree.ElementTree
from pathlib import Path


def cases_of(count):
    """Passed, failed and skipped cases of one file: of GoogleTest, or of tests/cases.py."""
    if "testsuites" not in count:
        return count["passed"], count["failed"], count["skipped"]
    cases = [case for suite in count["testsuites"] for case in suite["testsuite"]]
    failed = sum("failures" in case for case in cases)
    skipped = sum(case["result"] != "COMPLETED" for case in cases if "failures" not in case)
    return len(cases) - failed - skipped, failed, skipped


def sum_of(build):
    """The sums, and the names of the tests that failed."""
    passed = failed = skipped = 0
    losers = []
    for test in xml.etree.ElementTree.parse(build / "tests.xml").getroot().iter("testcase"):
        name, status = test.get("name"), test.get("status")
        file = build / "cases" / f"{name}.json"
        fine = status == "run"
        counts = [int(fine), 0, int(status in ("notrun", "disabled"))]
        if status in ("run", "fail") and file.exists():
            counts = list(cases_of(json.loads(file.read_text(encoding="utf-8"))))
        if status == "fail":
            losers.append(name)
            counts[1] = max(counts[1], 1)
        passed, failed, skipped = passed + counts[0], failed + counts[1], skipped + counts[2]
    return passed, failed, skipped, losers


def main():
    passed, failed, skipped, losers = sum_of(Path(sys.argv[1]))
    if skipped:
        print(f"{skipped} skipped")
    for name in losers:
        print(f"{name} failed")
    print(f"{passed} passed, {failed} failed")
    return 1 if failed or not passed else 0


if __name__ == "__main__":
    sys.exit(main())
