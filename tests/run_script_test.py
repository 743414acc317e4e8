# SPDX-License-Identifier: MIT
"""The runner of scripts finds what it is there to find: tried with a command that does as it is told."""

import contextlib
import io
import json
import os
import sys
import tempfile
import unittest
from pathlib import Path
from unittest import mock

sys.path.insert(0, str(Path(__file__).parent))
import run_script

COMMAND = """#!{python}
import os, pathlib, sys
arguments = sys.argv[1:]
here = pathlib.Path({folder!r})
with open(here / "calls", "a", encoding="utf-8") as calls:
    drivers = " with drivers" if os.environ.get("ODBCSYSINI") == str(here) else ""
    calls.write(arguments[0] + " " + arguments[arguments.index("--db") + 1] + drivers + "\\n")
if arguments[0] == "init":
    kind, _, file = arguments[arguments.index("--db") + 1].partition(":")
    if kind == "sqlite":
        pathlib.Path(file).touch()
    sys.exit(0)
desktop = arguments[arguments.index("--ui") + 1]
target = arguments[arguments.index("--transcript") + 1]
pathlib.Path(target).write_bytes((here / ("transcript." + desktop)).read_bytes())
sys.stderr.write((here / "stderr").read_text())
sys.exit(int((here / "status").read_text()))
"""

DONE = '{"shown":"frmBühne"}\n{"result":{"return":"10","param":["10"]}}\n'


class Server:
    """A server that notes what it is asked for."""

    name = "postgresql"

    def __init__(self, home):
        self.home, self.asked, self.templates = home, [], set()

    def create(self, database, template=None):
        self.asked.append(f"create {database} from {template}" if template else f"create {database}")
        return f"Database={database}"

    def surroundings(self):
        return {"ODBCSYSINI": str(self.home)}

    def drop(self, database):
        self.asked.append(f"drop {database}")

    def remembers(self, template):
        return template in self.templates

    def remember(self, database, as_template):
        self.asked.append(f"remember {database}")
        self.templates.add(as_template)


class RunScript(unittest.TestCase):
    def setUp(self):
        made = tempfile.TemporaryDirectory()
        self.addCleanup(made.cleanup)
        self.folder = Path(made.name)
        command = self.folder / "command"
        command.write_text(COMMAND.format(python=sys.executable, folder=made.name))
        command.chmod(0o755)
        for patch in (mock.patch.dict(os.environ, ZQN_DIALOG=str(command)),
                      mock.patch.object(run_script, "SCRIPTS", self.folder)):
            patch.start()
            self.addCleanup(patch.stop)
        self.script("# args: show 21 10\n")
        self.behave()

    def script(self, text):
        (self.folder / "name.jsonl").write_text(text, encoding="utf-8")

    def behave(self, headless=DONE, qt=None, stderr="", status=0):
        """What the command does from now on."""
        (self.folder / "transcript.headless").write_text(headless, encoding="utf-8")
        (self.folder / "transcript.qt").write_text(headless if qt is None else qt, encoding="utf-8")
        (self.folder / "stderr").write_text(stderr, encoding="utf-8")
        (self.folder / "status").write_text(str(status))

    def run_script(self, *arguments):
        """The exit status, and what was said."""
        said = io.StringIO()
        with mock.patch.object(sys, "argv", ["run_script.py", *arguments]), contextlib.redirect_stderr(said):
            return run_script.main(), said.getvalue()

    def approved(self):
        return (self.folder / "name.approved.jsonl").read_text(encoding="utf-8")

    def test_an_approved_transcript_passes_on_both_desktops(self):
        self.assertEqual(self.run_script("approve", "name"), (0, ""))
        self.assertEqual(self.approved(), DONE)
        self.assertEqual(self.run_script("check"), (0, ""))

    def test_a_script_that_nobody_approved_fails(self):
        status, said = self.run_script("check", "name")
        self.assertEqual(status, 1)
        self.assertIn("nobody has approved", said)

    def test_a_difference_on_one_desktop_fails_and_is_shown(self):
        self.run_script("approve", "name")
        self.behave(qt=DONE.replace('"10"', '"11"', 1))
        status, said = self.run_script("check", "name")
        self.assertEqual(status, 1)
        self.assertIn('-{"result":{"return":"10"', said)
        self.assertIn('+{"result":{"return":"11"', said)
        self.assertEqual(self.run_script("check", "--ui", "headless", "name"), (0, ""))

    def test_a_difference_of_one_byte_fails(self):
        self.run_script("approve", "name")
        self.behave(headless=DONE.rstrip("\n"))
        self.assertEqual(self.run_script("check", "name")[0], 1)

    def test_nothing_is_approved_while_the_desktops_differ(self):
        self.behave(qt=DONE.replace("frm", "Frm"))
        status, said = self.run_script("approve", "name")
        self.assertEqual(status, 1)
        self.assertIn("the desktops differ", said)
        self.assertFalse((self.folder / "name.approved.jsonl").exists())

    def test_what_is_said_on_standard_error_fails(self):
        self.run_script("approve", "name")
        self.behave(stderr="QWidget: something is wrong\n")
        status, said = self.run_script("check", "name")
        self.assertEqual(status, 1)
        self.assertIn("something is wrong", said)

    def test_an_exit_status_that_does_not_belong_to_the_transcript_fails(self):
        self.run_script("approve", "name")
        for status in (1, 4, 139):
            self.behave(status=status)
            self.assertEqual(self.run_script("check", "name")[0], 1)
        for transcript, status in (('{"result":{"return":""}}\n', 1), ('{"result":{"return":null}}\n', 1),
                                   ('{"result":{"return":{"empty":true}}}\n', 1),
                                   ('{"result":{"return":false}}\n', 0), ('{"scriptError":"x"}\n', 4)):
            self.behave(headless=transcript, status=status)
            self.assertEqual(self.run_script("approve", "name"), (0, ""), transcript)

    def test_a_script_without_arguments_or_without_a_file_fails(self):
        self.script('{"get":[]}\n# args: show 21\n')
        self.assertIn("# args:", self.run_script("check", "name")[1] + self.run_script("approve", "name")[1])
        self.assertEqual(self.run_script("check", "nirgends")[0], 1)

    def test_the_sample_is_made_once_for_all_runs(self):
        self.run_script("approve", "name")
        self.run_script("check", "name")
        self.assertEqual(self.calls(), ["init sqlite:sample.sqlite", *4 * ["show sqlite:stage.sqlite"]])
        self.script("# args: show 21 10\n# init: --rows 7\n")
        self.run_script("check", "--ui", "qt", "name")
        self.assertEqual(self.calls(), ["init sqlite:stage.sqlite", "show sqlite:stage.sqlite"])

    def test_the_parts_of_the_scripts_are_all_of_them_once(self):
        for name in "abcde":
            (self.folder / f"{name}.jsonl").write_text("# args: show 21\n# init: " + name + "\n", encoding="utf-8")
            (self.folder / f"{name}.approved.jsonl").write_text(DONE, encoding="utf-8")
        (self.folder / "name.jsonl").unlink()
        counts = []
        for part in ("1/2", "2/2"):
            with mock.patch.dict(os.environ, ZQN_CASES=str(self.folder / "count")):
                self.assertEqual(self.run_script("check", "--ui", "headless", "--part", part), (0, ""))
            counts.append(json.loads((self.folder / "count").read_text()))
        self.assertEqual(counts, [{"passed": 3, "failed": 0, "skipped": 0}, {"passed": 2, "failed": 0, "skipped": 0}])
        self.assertEqual(len(self.calls()), 10)

    def test_a_script_that_fails_is_named_and_counted(self):
        self.run_script("approve", "name")
        self.behave(headless=DONE.replace("frm", "Frm"))
        with mock.patch.dict(os.environ, ZQN_CASES=str(self.folder / "count")):
            status, said = self.run_script("check", "name")
        self.assertEqual(status, 1)
        self.assertTrue(said.startswith("name: "))
        self.assertEqual(json.loads((self.folder / "count").read_text()), {"passed": 0, "failed": 1, "skipped": 0})

    def serve(self):
        """A server stands ready from now on; the arguments that lead there."""
        server = Server(self.folder)
        patch = mock.patch.object(run_script.database_servers, "server", lambda name, state: server)
        patch.start()
        self.addCleanup(patch.stop)
        return server, ("--server", "postgresql", "--state", "irgendwo", "--ui", "headless")

    def calls(self):
        file = self.folder / "calls"
        lines = file.read_text(encoding="utf-8").splitlines() if file.exists() else []
        file.unlink(missing_ok=True)
        return lines

    def test_on_a_server_each_run_has_a_copy_of_the_sample(self):
        self.run_script("approve", "name")
        self.calls()
        server, options = self.serve()
        self.assertEqual(self.run_script("check", *options, "name"), (0, ""))
        self.assertEqual(self.run_script("check", *options, "name"), (0, ""))
        database = run_script.database_servers.database_name("name.headless")
        self.assertEqual(self.calls(), ["init odbc:Database=sample_being_made with drivers",
                                        *2 * [f"show odbc:Database={database} with drivers"]])
        template, = server.templates
        copy = [f"create {database} from {template}", f"drop {database}"]
        self.assertEqual(server.asked, ["create sample_being_made", "remember sample_being_made", *copy, *copy])

    def test_on_a_server_a_database_that_is_not_the_sample_is_made_directly(self):
        self.script("# args: show 21 10\n# init: --rows 7\n")
        self.run_script("approve", "name")
        self.calls()
        server, options = self.serve()
        self.assertEqual(self.run_script("check", *options, "name"), (0, ""))
        database = run_script.database_servers.database_name("name.headless")
        self.assertEqual(self.calls(), [f"init odbc:Database={database} with drivers",
                                        f"show odbc:Database={database} with drivers"])
        self.assertEqual(server.asked, [f"create {database}", f"drop {database}"])

    def test_another_command_makes_another_sample(self):
        self.run_script("approve", "name")
        server, options = self.serve()
        self.run_script("check", *options, "name")
        with open(self.folder / "command", "a", encoding="utf-8") as command:
            command.write("# newer\n")
        self.run_script("check", *options, "name")
        self.assertEqual(len(server.templates), 2)

    def test_on_a_server_a_difference_fails_and_the_database_goes(self):
        self.run_script("approve", "name")
        self.behave(headless=DONE.replace("frm", "Frm"))
        server, options = self.serve()
        status, said = self.run_script("check", *options, "name")
        self.assertEqual(status, 1)
        self.assertIn("+++ headless on postgresql", said)
        self.assertRegex(server.asked[-1], "^drop ")
        self.behave(stderr="qt.sql: something is wrong\n")
        self.assertEqual(self.run_script("check", *options, "name")[0], 1)
        self.assertRegex(server.asked[-1], "^drop ")

    def test_a_script_runs_where_it_says(self):
        server, options = self.serve()
        self.script("# args: show 21 10\n# server: postgresql\n")
        self.assertEqual(self.run_script("approve", *options, "name"), (0, ""))
        self.assertEqual(self.run_script("check", *options), (0, ""))
        self.calls()
        self.assertEqual(self.run_script("check"), (0, ""))  # all that run on SQLite: none
        self.assertEqual(self.calls(), [])
        self.assertIn("does not run on sqlite", self.run_script("check", "name")[1])
        self.script("# args: show 21 10\n# server: sqlite\n")
        self.assertIn("does not run on postgresql", self.run_script("check", *options, "name")[1])
        self.script("# args: show 21 10\n# server: orakel\n")
        self.assertIn("there is no database 'orakel'", self.run_script("check", "name")[1])

    def test_what_is_approved_is_the_transcript_of_sqlite(self):
        server, options = self.serve()
        status, said = self.run_script("approve", *options, "name")
        self.assertEqual(status, 1)
        self.assertIn("runs on SQLite, too", said)
        self.assertFalse((self.folder / "name.approved.jsonl").exists())


if __name__ == "__main__":
    unittest.main()
