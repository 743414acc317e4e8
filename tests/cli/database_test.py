# SPDX-License-Identifier: MIT
"""Making databases, the statements of `sql`, and databases that cannot be opened."""

import json
import sqlite3
import subprocess
import unittest

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

    def test_a_locked_file_is_left_alone(self):
        self.lock("a.sqlite", "BEGIN EXCLUSIVE")
        self.assert_refused(CANNOT_OPEN, ["a.sqlite", "in use"], "init", "--db", "sqlite:a.sqlite", "--sample")


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
        self.assert_unusable("a.txt", "no SQLite database")
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
        self.assert_unusable("a.sqlite", "in use")

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

    def test_without_a_data_folder_it_stands_below_the_home(self):
        del self.environment["XDG_DATA_HOME"]
        self.show("21", "10")
        self.assertTrue((self.folder / "home/.local/share/zqn-dialog/zqn-dialog.sqlite").is_file())


if __name__ == "__main__":
    unittest.main()
