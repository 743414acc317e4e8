# SPDX-License-Identifier: MIT
"""The count of cases is that of the programs, and no failure is lost in it."""

import contextlib
import io
import json
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path
from unittest import mock

HERE = Path(__file__).resolve().parent
sys.path.insert(0, str(HERE))
import count_cases


def googletest(*results):
    """What GoogleTest writes about cases with these results."""
    cases = [{"name": "Case", "status": "RUN", "result": "COMPLETED", **({"failures": [{}]} if result == "FAILED" else {}),
              **({"result": result} if result == "SKIPPED" else {})} for result in results]
    return {"tests": len(cases), "testsuites": [{"name": "Suite", "testsuite": cases}]}


class CountCases(unittest.TestCase):
    def setUp(self):
        made = tempfile.TemporaryDirectory()
        self.addCleanup(made.cleanup)
        self.build = Path(made.name)
        (self.build / "cases").mkdir()

    def count(self, **tests):
        """Status and output when these tests of ctest ended so: a pair of their status and their count."""
        rows = "".join(f'<testcase name="{name}" status="{status}"/>' for name, (status, _) in tests.items())
        (self.build / "tests.xml").write_text(f"<testsuite>{rows}</testsuite>")
        for name, (_, count) in tests.items():
            if count is not None:
                (self.build / "cases" / f"{name}.json").write_text(json.dumps(count))
        said = io.StringIO()
        with mock.patch.object(sys, "argv", ["count_cases.py", str(self.build)]), contextlib.redirect_stdout(said):
            return count_cases.main(), said.getvalue()

    def test_cases_are_summed_over_all_programs(self):
        self.assertEqual(self.count(forms=("run", googletest("COMPLETED", "COMPLETED")),
                                    cli=("run", {"passed": 5, "failed": 0, "skipped": 0}), docs=("run", None)),
                         (0, "8 passed, 0 failed\n"))

    def test_a_failed_case_is_counted_and_its_test_named(self):
        self.assertEqual(self.count(forms=("fail", googletest("COMPLETED", "FAILED", "FAILED"))),
                         (1, "forms failed\n1 passed, 2 failed\n"))

    def test_a_program_that_crashed_has_a_failed_case(self):
        self.assertEqual(self.count(forms=("fail", None), ado=("run", googletest("COMPLETED"))),
                         (1, "forms failed\n1 passed, 1 failed\n"))
        self.assertEqual(self.count(ado=("fail", googletest("COMPLETED"))), (1, "ado failed\n1 passed, 1 failed\n"))

    def test_a_skipped_case_has_not_passed(self):
        self.assertEqual(self.count(forms=("run", googletest("COMPLETED", "SKIPPED")), gone=("notrun", None)),
                         (0, "2 skipped\n1 passed, 0 failed\n"))

    def test_a_run_without_a_case_fails(self):
        self.assertEqual(self.count(), (1, "0 passed, 0 failed\n"))


UNITTEST = """import unittest
class Cases(unittest.TestCase):
    def test_fine(self): pass
    def test_parts(self):
        for part in (1, 2, 3):
            with self.subTest(part): self.assertEqual(part, {part})
    @unittest.skip("not here")
    def test_skipped(self): pass
"""
SET_UP = """import unittest
class Cases(unittest.TestCase):
    @classmethod
    def setUpClass(cls): raise ValueError
    def test_never(self): pass
"""


class Cases(unittest.TestCase):
    def run_cases(self, text):
        """Exit status and count of a unittest file."""
        with tempfile.TemporaryDirectory() as made:
            file, count = Path(made) / "some_test.py", Path(made) / "cases" / "some.json"
            file.write_text(text)
            done = subprocess.run([sys.executable, "-B", str(HERE / "cases.py"), str(file)], capture_output=True,
                                  env={"ZQN_CASES": str(count)}, check=False)
            return done.returncode, json.loads(count.read_text())

    def test_passed_failed_and_skipped_cases_are_told_apart(self):
        self.assertEqual(self.run_cases(UNITTEST.format(part="part")), (0, {"passed": 2, "failed": 0, "skipped": 1}))
        self.assertEqual(self.run_cases(UNITTEST.format(part="0")), (1, {"passed": 1, "failed": 1, "skipped": 1}))

    def test_what_fails_around_the_cases_is_a_failure(self):
        self.assertEqual(self.run_cases(SET_UP), (1, {"passed": 0, "failed": 1, "skipped": 0}))

    def test_a_file_without_cases_fails(self):
        self.assertEqual(self.run_cases("import unittest\n")[0], 1)


if __name__ == "__main__":
    unittest.main()
