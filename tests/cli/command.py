# SPDX-License-Identifier: MIT
"""Runs the command in a folder of its own, for the tests of this folder.

The environment says which command: ZQN_DIALOG. Each test starts in an empty folder with an empty data folder,
so no test sees another one's database or the person's own.
"""

import hashlib
import json
import os
import shutil
import subprocess
import sys
import tempfile
import unittest
from pathlib import Path

COMMAND = os.environ["ZQN_DIALOG"]

DONE, NO_KEY, WRONG_USAGE, CANNOT_OPEN, SCRIPT_ERROR = range(5)


class CommandTest(unittest.TestCase):
    def setUp(self):
        self.folder = Path(tempfile.mkdtemp(prefix="zqn-cli-"))
        self.addCleanup(shutil.rmtree, self.folder)
        self.data = self.folder / "data"
        self.environment = {
            "PATH": os.environ["PATH"],
            "HOME": str(self.folder / "home"),
            "XDG_DATA_HOME": str(self.data),
            "XDG_CONFIG_HOME": str(self.folder / "config"),
            "XDG_RUNTIME_DIR": str(self.folder),
            "LOGNAME": "anna",
            "QT_QPA_PLATFORM": "offscreen",
            "LC_ALL": "C.UTF-8",
        }

    def run_command(self, *arguments, stdin=""):
        return subprocess.run([COMMAND, *arguments], input=stdin, capture_output=True, text=True,
                              encoding="utf-8", cwd=self.folder, env=self.environment, timeout=60)

    def run_fine(self, *arguments, stdin=""):
        """Runs what must succeed without a word of complaint, and gives its standard output."""
        result = self.run_command(*arguments, stdin=stdin)
        self.assertEqual(result.stderr, "")
        self.assertEqual(result.returncode, DONE)
        return result.stdout

    def sample(self, name="sample.sqlite"):
        """A database with the sample; gives its URL."""
        self.run_fine("init", "--db", f"sqlite:{name}", "--sample")
        return f"sqlite:{name}"

    def rows(self, url, statement):
        return json.loads(self.run_fine("sql", "--db", url, stdin=statement + ";\n"))

    def show(self, *arguments, script="", ui="headless"):
        """Runs `show` with a script from standard input; gives exit status and the transcript's lines."""
        result = self.run_command("show", *arguments, "--ui", ui, "--script", "-", stdin=script)
        try:
            return result.returncode, [json.loads(line) for line in result.stdout.splitlines()]
        except json.JSONDecodeError:
            self.fail(f"something else than the transcript on standard output: {result.stdout}{result.stderr}")

    def lock(self, name, *statements):
        """Somebody else locks a database until the end of the test. It is another process: SQLite's locks are the
        process's, and end when it closes any handle of the file."""
        holder = subprocess.Popen(
            [sys.executable, "-c", "import sqlite3, sys\n"
             "connection = sqlite3.connect(sys.argv[1], isolation_level=None)\n"
             "for statement in sys.argv[2:]: connection.execute(statement)\n"
             "print('locked', flush=True)\n"
             "sys.stdin.read()", str(self.folder / name), *statements],
            stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True)
        self.addCleanup(holder.communicate)
        self.assertEqual(holder.stdout.readline(), "locked\n")

    def tree(self):
        """Every file and folder of the test with the content's checksum."""
        return {path.relative_to(self.folder).as_posix():
                hashlib.sha256(path.read_bytes()).hexdigest() if path.is_file() else "folder"
                for path in self.folder.rglob("*")}

    def assert_refused(self, status, words, *arguments, stdin=""):
        """The command ends with this status and names what was wrong; no file is made or changed."""
        before = self.tree()
        result = self.run_command(*arguments, stdin=stdin)
        self.assertEqual(result.returncode, status, result.stderr)
        self.assertEqual(result.stdout, "")
        self.assertTrue(result.stderr.startswith("zqn-dialog: "), result.stderr)
        for word in words:
            self.assertIn(word, result.stderr)
        self.assertEqual(self.tree(), before)
