# SPDX-License-Identifier: MIT
"""Making databases, the statements of `sql`, and databases that cannot be opened."""

import json
import sqlite3
import subprocess
import time
import unittest
from pathlib import Path

from command import COMMAND, CommandTest, CANNOT_OPEN, DONE


class Init(CommandTest):
    def test_the_sample_fills_all_tables_and_the_rows_are_counted(self):
        output = self.run_fine("init", "--db", "sqlite:a.sqlite", "--sample")
        connection = sqlite3.connect(self.folder / "a.sqlite")
        # The host's collation orders the indexes that a count may walk; it does not matter here how.
        connection.create_collation("ZQN_TEXT", lambda left, right: (left > right) - (left < right))
        tables = [name for name, in connection.execute("SELECT name FROM sqlite_master WHERE type='table'")]
        rows = sum(connection.execute(f'SELECT COUNT(*) FROM "{table}"').fetchone()[0] for table in tables)
        connection.close()
        self.assertIn(f"{len(tables)} tables with {rows} rows", output)
        used = {table for kind in json.loads(self.run_fine("kinds", "--json")) for table in kind["tables"]}
        self.assertEqual(used - set(tables), set())
        self.assertEqual(self.tree().keys(), {"a.sqlite"})

    def test_without_sample_the_tables_are_empty(self):
        self.assertIn(" 0 rows", self.run_fine("init", "--db", "sqlite:a.sqlite"))
        self.assertEqual(self.rows("sqlite:a.sqlite", "SELECT COUNT(*) FROM Vertriebsstati"), [[0]])

    def test_generated_rows_fill_each_catalogue(self):
        self.run_fine("init", "--db", "sqlite:a.sqlite", "--rows", "250")
        for table in ("Vertriebsstati", "Zahlungsbedingungen", "Keywords"):
            self.assertEqual(self.rows("sqlite:a.sqlite", f"SELECT COUNT(*) FROM {table}"), [[250]])

    def test_tables_of_somebody_else_stay(self):
        connection = sqlite3.connect(self.folder / "a.sqlite")
        connection.execute("CREATE TABLE fremd(a)")
        connection.execute("INSERT INTO fremd VALUES (7)")
        connection.commit()
        connection.close()
        self.run_fine("init", "--db", "sqlite:a.sqlite", "--sample")
        self.assertEqual(self.rows("sqlite:a.sqlite", "SELECT a FROM fremd"), [[7]])

    def test_a_second_init_is_refused(self):
        url = self.sample()
        self.assert_refused(CANNOT_OPEN, ["already"], "init", "--db", url, "--sample")

    def test_one_table_of_the_system_is_enough_to_refuse_and_none_is_added(self):
        connection = sqlite3.connect(self.folder / "a.sqlite")
        connection.execute("CREATE TABLE Keywords(a)")
        connection.close()
        self.assert_refused(CANNOT_OPEN, ["Keywords", "already"], "init", "--db", "sqlite:a.sqlite")

    def test_the_folder_must_exist(self):
        self.assert_refused(CANNOT_OPEN, ["no/a.sqlite", "folder"], "init", "--db", "sqlite:no/a.sqlite")

    def test_of_two_at_once_one_makes_the_database_and_the_other_leaves_it_alone(self):
        for turn in range(10):
            url = f"sqlite:{turn}.sqlite"
            both = [subprocess.Popen([COMMAND, "init", "--db", url, "--sample"], stdout=subprocess.PIPE,
                                     stderr=subprocess.PIPE, text=True, cwd=self.folder, env=self.environment)
                    for _ in range(2)]
            said = [each.communicate(timeout=60) for each in both]
            self.assertEqual(sorted(each.returncode for each in both), [DONE, CANNOT_OPEN], said)
            self.assertGreater(self.rows(url, "SELECT COUNT(*) FROM Angebotskopf")[0][0], 0)
            self.assertEqual(self.rows(url, "PRAGMA integrity_check"), [["ok"]])
        self.assertEqual(self.tree().keys(), {f"{turn}.sqlite" for turn in range(10)})

    def test_what_a_killed_init_has_left_goes_with_the_next(self):
        (self.folder / "a.sqlite.zqn-draft-Ab12Cd").write_text("half")
        (self.folder / "a.sqlite.zqn-draft-Ab12Cd-wal").write_text("half")
        self.sample("a.sqlite")
        self.assertEqual(self.tree().keys(), {"a.sqlite"})

    def test_a_folder_that_cannot_be_written(self):
        self.assert_refused(CANNOT_OPEN, ["/proc/a.sqlite", "made"], "init", "--db", "sqlite:/proc/a.sqlite")

    def test_a_locked_file_is_left_alone(self):
        self.lock("a.sqlite", "BEGIN EXCLUSIVE")
        self.assert_refused(CANNOT_OPEN, ["a.sqlite", "benutzt"], "init", "--db", "sqlite:a.sqlite", "--sample")


class Sql(CommandTest):
    def test_the_rows_of_each_statement_are_a_line(self):
        url = self.sample()
        output = self.run_fine("sql", "--db", url, stdin="""
            SELECT Status, Bezeichnung, Gewichtung
              FROM Vertriebsstati WHERE Status='10';
            UPDATE Vertriebsstati SET Gewichtung=2.5 WHERE Status='10';
            SELECT Gewichtung, Null, AutoOverwrite FROM Vertriebsstati WHERE Status IN ('10', '15');
        """)
        self.assertEqual([json.loads(line) for line in output.splitlines()],
                         [[["10", "Interesse geweckt", 10]], [], [[2.5, None, 0], [15, None, 0]]])

    def test_a_semicolon_inside_a_line_does_not_end_a_statement(self):
        url = self.sample()
        self.assertEqual(self.rows(url, "SELECT 'a;b' AS x, ';\t'\r"), [["a;b", ";\t"]])

    def test_umlauts_go_through(self):
        url = self.sample()
        self.rows(url, "UPDATE Vertriebsstati SET Bezeichnung='Größe €' WHERE Status='10'")
        self.assertEqual(self.rows(url, "SELECT Bezeichnung FROM Vertriebsstati WHERE Status='10'"), [["Größe €"]])

    def test_the_first_failure_ends_the_run(self):
        url = self.sample()
        result = self.run_command("sql", "--db", url, stdin="""
            UPDATE Vertriebsstati SET Gewichtung=77 WHERE Status='10';
            SELECT * FROM Nirgends;
            UPDATE Vertriebsstati SET Gewichtung=88 WHERE Status='10';
        """)
        self.assertEqual(result.returncode, CANNOT_OPEN)
        self.assertEqual(result.stdout, "[]\n")
        self.assertIn("Nirgends", result.stderr)
        self.assertIn("SELECT * FROM Nirgends", result.stderr)
        self.assertEqual(self.rows(url, "SELECT Gewichtung FROM Vertriebsstati WHERE Status='10'"), [[77]])

    def test_two_statements_in_one_are_refused_whole(self):
        url = self.sample()
        result = self.run_command("sql", "--db", url, stdin="DELETE FROM Keywords; DELETE FROM Vertriebsstati;\n")
        self.assertEqual(result.returncode, CANNOT_OPEN)
        self.assertGreater(self.rows(url, "SELECT COUNT(*) FROM Keywords")[0][0], 0)
        self.assertGreater(self.rows(url, "SELECT COUNT(*) FROM Vertriebsstati")[0][0], 0)

    def test_a_transaction_that_is_not_ended_is_told(self):
        url = self.sample()
        before = self.rows(url, "SELECT COUNT(*) FROM Keywords")
        for begin in ("BEGIN", "begin immediate transaction", "SAVEPOINT a"):
            result = self.run_command("sql", "--db", url, stdin=f"{begin};\nDELETE FROM Keywords;\n")
            self.assertEqual((result.returncode, result.stdout), (CANNOT_OPEN, "[]\n[]\n"))
            self.assertIn("COMMIT", result.stderr)
            self.assertEqual(self.rows(url, "SELECT COUNT(*) FROM Keywords"), before)
        self.run_fine("sql", "--db", url, stdin="BEGIN;\nDELETE FROM Keywords;\nROLLBACK;\n")
        self.run_fine("sql", "--db", url, stdin="BEGIN;\nDELETE FROM Keywords;\nCOMMIT;\n")
        self.assertEqual(self.rows(url, "SELECT COUNT(*) FROM Keywords"), [[0]])

    def test_a_failure_inside_a_transaction_says_what_becomes_of_it(self):
        url = self.sample()
        result = self.run_command("sql", "--db", url, stdin="BEGIN;\nDELETE FROM Keywords;\nSELECT * FROM Nirgends;\n")
        self.assertEqual(result.returncode, CANNOT_OPEN)
        self.assertIn("rolled back", result.stderr)
        self.assertNotIn("rolled back", self.run_command("sql", "--db", url, stdin="SELECT * FROM Nirgends;\n").stderr)

    def test_a_last_statement_without_its_end_is_not_run(self):
        url = self.sample()
        self.assert_refused(CANNOT_OPEN, ["DELETE FROM Keywords", ";"], "sql", "--db", url,
                            stdin="DELETE FROM Keywords\n")

    def test_a_key_twice_is_told_in_words(self):
        url = self.sample()
        self.assert_refused(CANNOT_OPEN, ["UNIQUE"], "sql", "--db", url,
                            stdin="INSERT INTO Vertriebsstati (Status) VALUES ('10');\n")

    def test_no_statement_is_no_work(self):
        url = self.sample()
        self.assertEqual(self.run_fine("sql", "--db", url, stdin="\n  ;\n"), "")


class UnusableDatabases(CommandTest):
    def assert_unusable(self, name, *words):
        for command in (("show", "21", "10", "--ui", "headless", "--script", "-"), ("sql",)):
            self.assert_refused(CANNOT_OPEN, [name, *words], *command, "--db", f"sqlite:{name}")

    def test_a_missing_file_is_not_made(self):
        self.assert_unusable("a.sqlite", "does not exist", "init")

    def test_a_path_that_the_system_does_not_take(self):
        self.assert_unusable("a" * 300, "File name too long")
        (self.folder / "ring").symlink_to("ring")
        self.assert_unusable("ring", "symbolic links")
        self.assert_refused(CANNOT_OPEN, ["ring"], "init", "--db", "sqlite:ring")

    def test_a_working_folder_that_is_gone(self):
        script = 'mkdir gone && cd gone && rmdir ../gone && "$0" sql --db sqlite:a.sqlite'
        result = subprocess.run(["sh", "-c", script, COMMAND], capture_output=True, text=True, stdin=subprocess.DEVNULL,
                                cwd=self.folder, env=self.environment, timeout=60)
        self.assertEqual(result.returncode, CANNOT_OPEN, result.stderr)
        self.assertTrue(result.stderr.startswith("zqn-dialog: "), result.stderr)

    def test_a_folder(self):
        (self.folder / "waren").mkdir()
        self.assert_unusable("waren", "folder")
        self.assert_refused(CANNOT_OPEN, ["waren", "folder"], "init", "--db", "sqlite:waren")

    def test_a_file_that_is_no_database(self):
        (self.folder / "a.txt").write_text("Das ist ein Brief und keine Datenbank.\n" * 40)
        self.assert_unusable("a.txt", "keine SQLite-Datenbank")
        self.assert_refused(CANNOT_OPEN, ["a.txt"], "init", "--db", "sqlite:a.txt")

    def test_a_database_without_a_table_of_the_system(self):
        (self.folder / "empty.sqlite").touch()
        self.assert_unusable("empty.sqlite", "no table of the system", "init")
        connection = sqlite3.connect(self.folder / "other.sqlite")
        connection.execute("CREATE TABLE fremd(a)")
        connection.close()
        self.assert_unusable("other.sqlite", "no table of the system", "init")

    def test_the_same_with_a_write_ahead_log(self):
        connection = sqlite3.connect(self.folder / "other.sqlite")
        connection.execute("PRAGMA journal_mode=WAL")
        connection.execute("CREATE TABLE fremd(a)")
        connection.close()
        self.assert_unusable("other.sqlite", "no table of the system")

    def test_a_write_protected_file(self):
        self.sample("a.sqlite")
        (self.folder / "a.sqlite").chmod(0o444)
        self.assert_unusable("a.sqlite", "write-protected")

    def test_a_locked_file(self):
        self.sample("a.sqlite")
        self.lock("a.sqlite", "PRAGMA locking_mode=EXCLUSIVE", "BEGIN EXCLUSIVE")
        self.assert_unusable("a.sqlite", "benutzt")

    def test_a_damaged_file(self):
        self.sample("a.sqlite")
        file = self.folder / "a.sqlite"
        file.write_bytes(file.read_bytes()[:100] + b"\xff" * 4000)
        self.assert_unusable("a.sqlite")

    def test_no_home_to_put_the_database_into(self):
        del self.environment["HOME"], self.environment["XDG_DATA_HOME"]
        self.assert_refused(CANNOT_OPEN, ["HOME", "--db"], "show", "21", "--ui", "headless", "--script", "-")

    def test_a_home_that_the_system_does_not_take(self):
        self.environment["XDG_DATA_HOME"] = "/" + "a" * 300
        self.assert_refused(CANNOT_OPEN, ["zqn-dialog.sqlite", "File name too long"], "show", "21", "--ui", "headless",
                            "--script", "-")


class DefaultDatabase(CommandTest):
    def test_it_is_made_with_the_sample_on_first_use_and_kept(self):
        status, lines = self.show("21", "10", script='{"list":"TDBList1"}\n')
        self.assertEqual(status, DONE)
        first = lines[1]["rows"]
        self.assertGreaterEqual(len(first), 12)
        file = self.data / "zqn-dialog" / "zqn-dialog.sqlite"
        self.assertTrue(file.is_file())
        self.rows(f"sqlite:{file}", "DELETE FROM Vertriebsstati WHERE Status='20'")
        status, lines = self.show("21", "10", script='{"list":"TDBList1"}\n')
        self.assertEqual(len(lines[1]["rows"]), len(first) - 1)

    def first_start(self, **more):
        return subprocess.Popen([COMMAND, "show", "21", "10", "--ui", "headless"], stdout=subprocess.PIPE,
                                stderr=subprocess.PIPE, text=True, cwd=self.folder, env=self.environment, **more)

    def assert_complete(self):
        """The data folder holds the database with the sample and the six layout files, and nothing else."""
        self.assertEqual(self.run_fine("show", "21", "10", "--ui", "headless"), "10\n")
        file = self.data / "zqn-dialog" / "zqn-dialog.sqlite"
        self.assertEqual(self.rows(f"sqlite:{file}", "PRAGMA integrity_check"), [["ok"]])
        names = {path.name for path in file.parent.iterdir()}
        self.assertEqual(len(names), 7, names)
        self.assertEqual({Path(name).suffix.lower() for name in names}, {".sqlite", ".omr"})

    def test_two_first_starts_at_once_come_to_one_database(self):
        for turn in range(5):
            self.data = self.folder / f"data{turn}"
            self.environment["XDG_DATA_HOME"] = str(self.data)
            both = [self.first_start(), self.first_start()]
            said = [each.communicate(timeout=60) for each in both]
            self.assertEqual([each.returncode for each in both], [DONE, DONE], said)
            self.assert_complete()

    def test_a_first_start_that_was_killed_is_made_up_for(self):
        for turn in range(10):
            self.data = self.folder / f"data{turn}"
            self.environment["XDG_DATA_HOME"] = str(self.data)
            start = self.first_start()
            time.sleep(turn * 0.004)
            start.kill()
            start.communicate(timeout=60)
            self.assert_complete()

    def test_a_file_that_an_older_first_start_has_left_without_a_table_is_filled(self):
        folder = self.data / "zqn-dialog"
        folder.mkdir(parents=True)
        (folder / "zqn-dialog.sqlite").touch()
        self.assert_complete()

    def test_without_a_data_folder_it_stands_below_the_home(self):
        del self.environment["XDG_DATA_HOME"]
        self.show("21", "10")
        self.assertTrue((self.folder / "home/.local/share/zqn-dialog/zqn-dialog.sqlite").is_file())


if __name__ == "__main__":
    unittest.main()
