# SPDX-License-Identifier: MIT
"""Standard input and output that are closed, full or something else than text: nothing fails unseen."""

import subprocess
import unittest

from command import COMMAND, CommandTest, CANNOT_OPEN, DONE, SCRIPT_ERROR, WRONG_USAGE

DELETE_ALL = "DELETE FROM Keywords;\nDELETE FROM Vertriebsstati;\n"


class StreamTest(CommandTest):
    def run_in_shell(self, redirected, *arguments, stdin=""):
        """Runs the command with redirections as a shell writes them."""
        return subprocess.run(["sh", "-c", f'"$0" "$@" {redirected}', COMMAND, *arguments], input=stdin,
                              capture_output=True, text=True, encoding="utf-8", cwd=self.folder, env=self.environment,
                              timeout=60)

    def count(self, url, table):
        return self.rows(url, f"SELECT COUNT(*) FROM {table}")[0][0]


class Output(StreamTest):
    def assert_told(self, result):
        self.assertEqual(result.returncode, CANNOT_OPEN, result.stderr)
        self.assertTrue(result.stderr.startswith("zqn-dialog: "), result.stderr)

    def test_a_full_disk_or_a_closed_output_is_told(self):
        url = self.sample()
        for redirected in (">/dev/full", ">&-"):
            for arguments in (["--help"], ["--version"], ["kinds"], ["kinds", "--json"], ["show", "--help"],
                              ["show", "21", "10", "--db", url, "--ui", "headless"],
                              ["show", "21", "10", "--db", url, "--ui", "headless", "--script", "-"],
                              ["show", "21", "10", "--db", url, "--ui", "qt", "--script", "-"]):
                with self.subTest(redirected=redirected, arguments=arguments):
                    self.assert_told(self.run_in_shell(redirected, *arguments))

    def test_init_says_that_nobody_was_told(self):
        self.assert_told(self.run_in_shell(">/dev/full", "init", "--db", "sqlite:a.sqlite", "--sample"))
        self.assertGreater(self.count("sqlite:a.sqlite", "Keywords"), 0)
        self.assert_told(self.run_in_shell(">&-", "init", "--db", "sqlite:b.sqlite", "--sample"))
        self.assertFalse((self.folder / "b.sqlite").exists())

    def test_sql_does_not_go_on_when_its_rows_cannot_be_written(self):
        url = self.sample()
        self.assert_told(self.run_in_shell(">/dev/full", "sql", "--db", url, stdin=DELETE_ALL))
        self.assertEqual(self.count(url, "Keywords"), 0)
        self.assertGreater(self.count(url, "Vertriebsstati"), 0)

    def test_sql_does_nothing_when_its_output_is_closed(self):
        url = self.sample()
        self.assert_told(self.run_in_shell(">&-", "sql", "--db", url, stdin=DELETE_ALL))
        self.assertGreater(self.count(url, "Keywords"), 0)

    def test_a_transcript_on_a_full_disk(self):
        url = self.sample()
        for script in ([], ["--script", "-"]):
            result = self.run_command("show", "21", "10", "--db", url, "--ui", "headless", "--transcript", "/dev/full",
                                      *script)
            self.assert_told(result)
            self.assertIn("/dev/full", result.stderr)
            self.assertEqual(result.stdout, "")


class Input(StreamTest):
    def test_a_closed_input_is_not_taken_for_an_empty_one(self):
        url = self.sample()
        for arguments in (["sql", "--db", url],
                          ["show", "21", "10", "--db", url, "--ui", "headless", "--script", "-"],
                          ["show", "21", "10", "--db", url, "--ui", "qt", "--script", "-"]):
            result = self.run_in_shell("<&-", *arguments)
            self.assertEqual((result.returncode, result.stdout), (WRONG_USAGE, ""), result.stderr)
            self.assertIn("standard input", result.stderr)

    def test_an_input_that_cannot_be_read(self):
        url = self.sample()
        result = self.run_in_shell("<.", "sql", "--db", url)
        self.assertEqual((result.returncode, result.stdout), (CANNOT_OPEN, ""))
        self.assertIn("read", result.stderr)
        result = self.run_in_shell("<.", "show", "21", "10", "--db", url, "--ui", "headless", "--script", "-")
        self.assertEqual(result.returncode, SCRIPT_ERROR)
        self.assertIn('{"scriptError":"line 0: the script cannot be read any further"}', result.stdout)

    def test_a_closed_input_that_nobody_needs_does_not_matter(self):
        self.assertEqual(self.run_in_shell("<&-", "kinds").returncode, DONE)

    def test_a_statement_that_is_no_text(self):
        url = self.sample()
        statement = "DELETE FROM Keywords WHERE Keyword='ä' OR 1=1;\n".encode("latin-1")
        result = subprocess.run([COMMAND, "sql", "--db", url], input=statement, capture_output=True, cwd=self.folder,
                                env=self.environment, timeout=60)
        self.assertEqual((result.returncode, result.stdout), (CANNOT_OPEN, b""))
        self.assertIn(b"UTF-8", result.stderr)
        self.assertIn(rb"\xe4", result.stderr)
        self.assertGreater(self.count(url, "Keywords"), 0)


if __name__ == "__main__":
    unittest.main()
