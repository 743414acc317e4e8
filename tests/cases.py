#!/usr/bin/env python3
# SPDX-License-Identifier: MIT
"""Runs the cases of a unittest file, and leaves their count where tests/count_cases.py looks.

    cases.py FILE [arguments of unittest ...]

The environment variable ZQN_CASES names the file for the count; without it nothing is left.
"""

import importlib
import json
import os
import sys
import unittest
from pathlib import Path


def leave(passed, failed, skipped=0):
    """Writes the count of this run."""
    if "ZQN_CASES" in os.environ:
        file = Path(os.environ["ZQN_CASES"])
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text(json.dumps({"passed": passed, "failed": failed, "skipped": skipped}) + "\n")


class Result(unittest.TextTestResult):
    passed = 0

    def addSuccess(self, test):
        super().addSuccess(test)
        self.passed += 1


def main():
    file = Path(sys.argv[1]).resolve()
    sys.path.insert(0, str(file.parent))
    runner = unittest.TextTestRunner(resultclass=Result)
    result = unittest.main(importlib.import_module(file.stem), argv=sys.argv[1:], testRunner=runner, exit=False).result
    skipped = len(result.skipped)
    failed = result.testsRun - result.passed - skipped
    # What fails around the cases, in setUpClass for one, is none of testsRun.
    fine = result.wasSuccessful() and result.testsRun > 0
    leave(result.passed, failed if fine else max(failed, 1), skipped)
    return 0 if fine else 1


if __name__ == "__main__":
    sys.exit(main())
