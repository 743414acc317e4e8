# SPDX-License-Identifier: MIT
"""Databases on a server: made, worked on, out of reach, and other than the dialogs expect.

The environment says which server: ZQN_ODBC_SERVER and ZQN_ODBC_STATE, as `servers.py serve` sets them. Each test
has a database of its own there, which is empty when it starts.
"""

import json
import os
import re
import socket
import subprocess
import sys
import unittest
from pathlib import Path

sys.path.insert(0, str(Path(__file__).resolve().parent.parent))

import database_servers
from command import COMMAND, CommandTest, CANNOT_OPEN, DONE

SERVER = os.environ["ZQN_ODBC_SERVER"]
STATE = os.environ["ZQN_ODBC_STATE"]



def only_on(server):
    """A test of what one server alone does; for the other one it does not exist."""
    return lambda test: test if SERVER == server else None


postgresql = only_on("postgresql")
mariadb = only_on("mariadb")


class ServerTest(CommandTest):
    def setUp(self):
        super().setUp()
        self.server = database_servers.server(SERVER, STATE)
        self.database = database_servers.database_name(self.id())
        self.url = "odbc:" + self.server.create(self.database)
        self.addCleanup(self.server.drop, self.database)

    def admin(self, sql, database=None):
        """Runs statements as somebody who may do all."""
        return self.server.query(sql, database or self.database)

    def foreign(self, sql):
        """Runs statements as the clerk, past the command: that takes no database without a table of the system."""
        self.server.query(sql, self.database, user="clerk")

    def tables(self):
        schema = "public" if SERVER == "postgresql" else self.database
        names = self.admin(f"SELECT table_name FROM information_schema.tables WHERE table_schema='{schema}';")
        return set(names.splitlines())

    def url_with(self, **values):
        """The address of the database with other values."""
        url = self.url
        for key, value in values.items():
            url, count = re.subn(f"(?<=[:;]){key}=({{[^}}]*}}|[^;]*)", lambda match: f"{key}={value}", url)
            self.assertEqual(count, 1, key)
        return url

    def init_sample(self):
        self.run_fine("init", "--db", self.url, "--sample")

    def make_narrow(self):
        """The database anew, with an encoding of one byte a character."""
        self.server.drop(self.database)
        self.admin(f"CREATE DATABASE \"{self.database}\" OWNER clerk TEMPLATE template0 ENCODING 'LATIN1' "
                   "LC_COLLATE 'C' LC_CTYPE 'C';", database="postgres")

    def statements(self, *statements):
        self.run_fine("sql", "--db", self.url, stdin="".join(statement + ";\n" for statement in statements))

    def assert_unusable(self, url, *words):
        """No command takes the database; all say why, and none gives the password away."""
        password = re.search("PWD=([^;]*)", url)
        for command in (("init", "--sample"), ("sql",), ("show", "21", "--ui", "headless", "--script", "-")):
            result = self.run_command(*command, "--db", url)
            self.assertEqual(result.returncode, CANNOT_OPEN, result.stderr)
            self.assertEqual(result.stdout, "")
            for word in words:
                self.assertIn(word.lower(), result.stderr.lower())
            self.assertEqual(result.stderr.count("\n"), 1, result.stderr)
            if password:
                self.assertNotIn(password[1], result.stderr)

    def told(self, kind="21"):
        """What is told on standard error when a dialog opens; it opens all the same."""
        result = self.run_command("show", kind, "10", "--db", self.url, "--ui", "headless", "--script", "-")
        lines = [json.loads(line) for line in result.stdout.splitlines()]
        self.assertTrue(any("shown" in line for line in lines), result.stdout + result.stderr)
        self.assertIn("result", lines[-1])
        return result.stderr.splitlines()


class Init(ServerTest):
    def test_the_sample_is_the_one_of_every_database(self):
        output = self.run_fine("init", "--db", self.url, "--sample")
        file = self.sample()
        self.assertRegex(output, r"^created 37 tables with \d+ rows in Driver=.*;PWD=\*\*\*\n$")
        tables = {table for kind in json.loads(self.run_fine("kinds", "--json")) for table in kind["tables"]}
        for table in sorted(tables):
            with self.subTest(table=table):
                rows = [sorted(self.rows(url, f"SELECT * FROM {table}"), key=json.dumps) for url in (self.url, file)]
                self.assertGreater(len(rows[1]), 0)
                self.assertEqual(*rows)

    def test_without_sample_the_tables_are_empty(self):
        self.assertIn(" 37 tables with 0 rows", self.run_fine("init", "--db", self.url))
        self.assertEqual(len(self.tables()), 37)
        self.assertEqual(self.rows(self.url, "SELECT COUNT(*) FROM Vertriebsstati"), [[0]])

    def test_generated_rows_fill_each_catalogue(self):
        self.run_fine("init", "--db", self.url, "--rows", "250")
        for table in ("Vertriebsstati", "Zahlungsbedingungen", "Keywords"):
            self.assertEqual(self.rows(self.url, f"SELECT COUNT(*) FROM {table}"), [[250]])

    def test_tables_of_somebody_else_stay(self):
        self.foreign("CREATE TABLE fremd (a INTEGER); INSERT INTO fremd VALUES (7);")
        self.init_sample()
        self.assertEqual(self.rows(self.url, "SELECT a FROM fremd"), [[7]])

    def test_a_second_init_is_refused(self):
        self.init_sample()
        self.assert_refused(CANNOT_OPEN, ["37 tables", "already", "PWD=***"], "init", "--db", self.url, "--sample")

    def test_one_table_of_the_system_is_enough_to_refuse_and_none_is_added(self):
        self.foreign("CREATE TABLE Keywords (a INTEGER);")
        self.assert_refused(CANNOT_OPEN, ["Keywords", "already"], "init", "--db", self.url)
        self.assertEqual({name.lower() for name in self.tables()}, {"keywords"})

    @postgresql
    def test_a_failure_on_the_way_leaves_nothing(self):
        self.foreign('CREATE TABLE "Staffelpreise_Preisliste" (a INTEGER);')
        self.assert_refused(CANNOT_OPEN, ["Staffelpreise_Preisliste", "already exists"],
                            "init", "--db", self.url, "--sample")
        self.assertEqual(self.tables(), {"Staffelpreise_Preisliste"})
        self.assertEqual(self.admin("SELECT count(*) FROM pg_collation WHERE collname='zqn_text';"), "0")

    @mariadb
    def test_a_failure_on_the_way_leaves_no_table(self):
        self.make_user(f"GRANT SELECT, INSERT, CREATE, DROP ON {self.database}.* TO 'guest'@'127.0.0.1';")
        self.assert_refused(CANNOT_OPEN, ["INDEX command denied", "`staffelpreise`"],
                            "init", "--db", self.url_with(UID="guest", PWD="guest"), "--sample")
        self.assertEqual(self.tables(), set())

    @mariadb
    def test_tables_that_stay_after_a_failure_are_named(self):
        self.make_user(f"GRANT SELECT, INSERT, CREATE ON {self.database}.* TO 'guest'@'127.0.0.1';")
        self.assert_refused(CANNOT_OPEN, ["INDEX", "could not be dropped: Staffelpreise, ", "Zahlungsarten"],
                            "init", "--db", self.url_with(UID="guest", PWD="guest"), "--sample")

    @mariadb
    def test_an_init_that_was_killed_can_be_run_again(self):
        for made in (0, 5, 36):
            start = subprocess.Popen([COMMAND, "init", "--db", self.url, "--rows", "50000"], stdout=subprocess.DEVNULL,
                                     stderr=subprocess.DEVNULL, cwd=self.folder, env=self.environment)
            while start.poll() is None and len(self.tables()) < 1 + made:
                pass
            start.kill()
            start.communicate(timeout=60)
            self.assertIn("zqn_init", self.tables(), "it came to its end before it was killed")
            for command in (("sql",), ("show", "21", "--ui", "headless", "--script", "-")):
                self.assert_refused(CANNOT_OPEN, ["unfinished", "zqn-dialog init --db 'odbc:", "PWD=***"], *command,
                                    "--db", self.url)
        self.init_sample()
        self.assertEqual(len(self.tables()), 37)
        self.assertGreater(self.rows(self.url, "SELECT COUNT(*) FROM Angebotskopf")[0][0], 0)

    @mariadb
    def test_two_at_once_do_not_take_each_other_for_killed(self):
        start = subprocess.Popen([COMMAND, "init", "--db", self.url, "--rows", "500"], stdout=subprocess.PIPE,
                                 stderr=subprocess.PIPE, text=True, cwd=self.folder, env=self.environment)
        while start.poll() is None and "zqn_init" not in self.tables():
            pass
        self.assert_refused(CANNOT_OPEN, ["another", "init"], "init", "--db", self.url, "--sample")
        output, told = start.communicate(timeout=120)
        self.assertEqual((start.returncode, told), (DONE, ""))
        self.assertEqual(len(self.tables()), 37)

    def make_user(self, grants):
        self.addCleanup(self.admin, "DROP USER 'guest'@'127.0.0.1';")
        self.admin(f"CREATE USER 'guest'@'127.0.0.1' IDENTIFIED BY 'guest'; {grants}")

    @postgresql
    def test_a_user_without_the_right_to_make_tables(self):
        self.admin(f'ALTER DATABASE "{self.database}" OWNER TO admin;')
        self.assert_refused(CANNOT_OPEN, ["permission denied"], "init", "--db", self.url, "--sample")
        self.assertEqual(self.tables(), set())


class Texts(ServerTest):
    def setUp(self):
        super().setUp()
        self.run_fine("init", "--db", self.url)

    def insert(self, key):
        return self.run_command("sql", "--db", self.url,
                                stdin=f"INSERT INTO Vertriebsstati (Status, Bezeichnung) VALUES ('{key}', 'Größe €');\n")

    def keys(self, condition):
        return [key for key, in self.rows(self.url, f"SELECT Status FROM Vertriebsstati WHERE {condition}")]

    def test_case_does_not_tell_keys_apart(self):
        for key, other in (("ab", "AB"), ("äÖü", "ÄöÜ"), ("é", "É"), ("ÿ", "Ÿ")):
            self.assertEqual(self.insert(key).returncode, DONE)
            self.assertEqual(self.insert(other).returncode, CANNOT_OPEN)
            self.assertEqual(self.keys(f"Status='{other}'"), [key])

    def test_accents_do(self):
        for key in ("a", "ä", "á", "ae", "o", "ö", "ss", "ß", "y", "ÿ", "-", ""):
            self.assertEqual(self.insert(key).returncode, DONE, key)
        self.assertEqual(self.keys("Status='Ä'"), ["ä"])

    def test_texts_come_back_as_they_went_in(self):
        for text in ("Größe €", "ÿÿÿ", "a;b", "\\", "100 %", "\t", "😀"):
            self.statements("DELETE FROM Vertriebsstati", f"INSERT INTO Vertriebsstati (Status) VALUES ('{text}')")
            self.assertEqual(self.rows(self.url, "SELECT Status FROM Vertriebsstati"), [[text]])

    def test_a_price_line_gets_its_number_from_the_server(self):
        self.statements(*["INSERT INTO Staffelpreise (Preisliste) VALUES ('HW')"] * 2)
        self.assertEqual(self.rows(self.url, "SELECT ID FROM Staffelpreise ORDER BY ID"), [[1], [2]])

    def test_a_shipping_form_without_a_type_serves_both_combos(self):
        self.statements("INSERT INTO Versandformulare (Layout) VALUES ('X')")
        self.assertEqual(self.rows(self.url, "SELECT Typ FROM Versandformulare"), [["-"]])

    def test_a_text_of_a_thousand_lines_is_kept(self):
        text = "Zeile mit Umlauten äöü\n" * 1000
        self.statements("INSERT INTO Einstellungen (Sektion, Schluessel, Wert) VALUES ('a', 'b', '" + text + "')")
        self.assertEqual(self.rows(self.url, "SELECT Wert, Benutzer FROM Einstellungen"), [[text, ""]])


class Sql(ServerTest):
    def setUp(self):
        super().setUp()
        self.init_sample()

    def test_the_rows_of_each_statement_are_a_line(self):
        output = self.run_fine("sql", "--db", self.url, stdin="""
            SELECT Status, Bezeichnung, Gewichtung
              FROM Vertriebsstati WHERE Status='10';
            UPDATE Vertriebsstati SET Gewichtung=25 WHERE Status='10';
            SELECT Gewichtung, Null, AutoOverwrite FROM Vertriebsstati WHERE Status IN ('10', '15') ORDER BY Status;
        """)
        self.assertEqual([json.loads(line) for line in output.splitlines()],
                         [[["10", "Interesse geweckt", 10]], [], [[25, None, 0], [15, None, 0]]])

    def test_the_first_failure_ends_the_run(self):
        result = self.run_command("sql", "--db", self.url, stdin="""
            UPDATE Vertriebsstati SET Gewichtung=77 WHERE Status='10';
            SELECT * FROM Nirgends;
            UPDATE Vertriebsstati SET Gewichtung=88 WHERE Status='10';
        """)
        self.assertEqual(result.returncode, CANNOT_OPEN)
        self.assertEqual(result.stdout, "[]\n")
        self.assertIn("nirgends", result.stderr.lower())
        self.assertIn("SELECT * FROM Nirgends", result.stderr)
        self.assertEqual(self.rows(self.url, "SELECT Gewichtung FROM Vertriebsstati WHERE Status='10'"), [[77]])

    def test_two_statements_in_one_are_refused_whole(self):
        result = self.run_command("sql", "--db", self.url, stdin="DELETE FROM Keywords; DELETE FROM Vertriebsstati;\n")
        self.assertEqual(result.returncode, CANNOT_OPEN)
        for table in ("Keywords", "Vertriebsstati"):
            self.assertGreater(self.rows(self.url, f"SELECT COUNT(*) FROM {table}")[0][0], 0)

    def test_a_key_twice_is_told_in_the_words_of_the_server(self):
        self.assert_refused(CANNOT_OPEN, ["uplicate"], "sql", "--db", self.url,
                            stdin="INSERT INTO Vertriebsstati (Status) VALUES ('10');\n")


class Show(ServerTest):
    def setUp(self):
        super().setUp()
        self.init_sample()

    def test_a_clerk_adds_a_record_and_picks_it(self):
        status, lines = self.show("21", "10", "--db", self.url, script="""
            {"click":"btnNew"}
            {"type":"99"}
            {"key":"Tab"}
            {"type":"Größe €"}
            {"key":"F9"}
            {"sql":"SELECT Status, Bezeichnung FROM Vertriebsstati WHERE Status='99'"}
            {"get":["TDBList1.Text"]}
            {"key":"Escape"}
        """)
        self.assertEqual(status, DONE)
        self.assertIn({"rows": [["99", "Größe €"]]}, lines)
        self.assertIn({"values": {"TDBList1.Text": "99"}}, lines)

    def test_a_setting_is_kept_in_the_database(self):
        setting = '{"setting":{"section":"ZQNComDlg","key":"Größe","value":"%s","scope":1}}\n'
        for value in ("1", "1", "2"):
            self.show("21", "10", "--db", self.url, script='{"get":["Form.Caption"]}\n' + setting % value)
        status, lines = self.show("21", "10", "--db", self.url, script='{"settings":"zqncomdlg"}\n')
        self.assertEqual(status, DONE)
        self.assertEqual(next(line for line in lines if "settings" in line), {"settings": {"Größe": "2"}})
        self.assertEqual(self.rows(self.url, "SELECT COUNT(*) FROM Einstellungen WHERE Schluessel='größe'"), [[1]])

    def test_somebody_else_works_on_a_connection_of_his_own(self):
        status, lines = self.show("21", "10", "--db", self.url, script="""
            {"get":["Kurztext.Text"]}
            {"exec":"UPDATE Vertriebsstati SET Bezeichnung='von nebenan' WHERE Status='10'"}
            {"sql":"SELECT Bezeichnung FROM Vertriebsstati WHERE Status='10'"}
        """)
        self.assertEqual(status, DONE)
        self.assertIn({"rows": [["von nebenan"]]}, lines)

    def test_nothing_is_told_of_a_database_that_is_as_expected(self):
        self.assertEqual(self.told(), [])


class OutOfReach(ServerTest):
    def test_a_wrong_password(self):
        self.assert_unusable(self.url_with(PWD="falsch-geraten"), "clerk",
                             "password authentication failed" if SERVER == "postgresql" else "access denied", "PWD=***")

    def test_a_database_that_does_not_exist(self):
        self.assert_unusable(self.url_with(Database="nirgends"), "nirgends",
                             "does not exist" if SERVER == "postgresql" else "denied")

    def test_a_server_that_is_down(self):
        # Bound and not listened at: nobody else is given the port meanwhile.
        with socket.socket() as nobody:
            nobody.bind(("127.0.0.1", 0))
            port = nobody.getsockname()[1]
            self.assert_unusable(self.url_with(Port=port), "127.0.0.1", str(port),
                                 "refused" if SERVER == "postgresql" else "can't connect")

    def test_a_driver_that_is_not_installed(self):
        self.assert_unusable(self.url_with(Driver="{Nirgends}"), "no driver 'Nirgends'; installed are: ",
                             self.server.driver)

    @mariadb
    def test_an_address_without_a_database(self):
        self.assert_unusable(self.url_with(Database=""), "names no database; add Database=NAME")

    def test_a_database_without_a_table_of_the_system(self):
        self.assert_empty("has no table of the system", "zqn-dialog init --db 'odbc:", "PWD=***")
        self.foreign("CREATE TABLE fremd (a INTEGER);")
        self.assert_empty("has no table of the system")

    def assert_empty(self, *words):
        for command in (("sql",), ("show", "21", "--ui", "headless", "--script", "-")):
            self.assert_refused(CANNOT_OPEN, words, *command, "--db", self.url)


class Unexpected(ServerTest):
    def setUp(self):
        super().setUp()
        self.init_sample()

    def assert_told(self, *findings, kind="21"):
        self.assertEqual(self.told(kind), ["zqn-dialog: " + finding for finding in findings])

    def test_a_user_who_may_not_read(self):
        if SERVER == "postgresql":
            self.admin("CREATE ROLE stranger LOGIN PASSWORD 'stranger';")
            self.addCleanup(self.admin, "DROP ROLE stranger;", "postgres")
        else:
            self.admin(f"CREATE USER 'stranger'@'127.0.0.1' IDENTIFIED BY 'stranger';"
                       f"GRANT INSERT ON {self.database}.* TO 'stranger'@'127.0.0.1';")
            self.addCleanup(self.admin, "DROP USER 'stranger'@'127.0.0.1';")
        self.url = self.url_with(UID="stranger", PWD="stranger")
        told = self.told()
        tables = [line for line in told if "may not be read by this user" in line]
        self.assertEqual(len(tables), 37, told)
        self.assertIn("zqn-dialog: table Vertriebsstati may not be read by this user (Status, Bezeichnung, ", "\n".join(told))
        rights = [line for line in told if "rights" in line]
        self.assertEqual(len(rights), 1, told)
        self.assertEqual(len(told), 38, told)

    def test_settings_without_their_value_leave_everything_to_administrators(self):
        self.statements("ALTER TABLE Einstellungen DROP COLUMN Wert")
        told = self.told()
        self.assertEqual(len([line for line in told if "only administrators" in line]), 1, told)

    def test_a_table_is_missing(self):
        self.statements("DROP TABLE Keywords")
        self.assert_told("table Keywords is missing; 'zqn-dialog init' makes it in a database without tables of the "
                         "system")

    def test_the_table_of_the_dialog_is_missing(self):
        self.statements("DROP TABLE Vertriebsstati")
        self.assertEqual(len(self.told("21")), 1)
        self.assertEqual(len(self.told("24")), 1)

    def test_the_settings_are_missing(self):
        self.statements("DROP TABLE Einstellungen")
        self.assertEqual(len(self.told()), 1)

    def test_a_column_is_missing(self):
        self.statements("ALTER TABLE Vertriebsstati DROP COLUMN Gewichtung")
        finding, = self.told()
        self.assertIn("column Gewichtung of table Vertriebsstati is missing", finding)
        self.statements(re.search("ALTER TABLE .*", finding)[0])
        self.assertEqual(self.told(), [])

    def test_a_column_with_an_umlaut_is_missing(self):
        self.statements("ALTER TABLE Preislistenkopf DROP COLUMN Währung")
        finding, = self.told()
        self.statements(re.search("ALTER TABLE .*", finding)[0])
        self.assertEqual(self.told(), [])

    def test_columns_are_of_another_type(self):
        self.statements("ALTER TABLE Vertriebsstati DROP COLUMN Gewichtung",
                        "ALTER TABLE Vertriebsstati ADD Gewichtung VARCHAR(5)",
                        "ALTER TABLE Kontaktgruppen DROP COLUMN Bezeichnung",
                        "ALTER TABLE Kontaktgruppen ADD Bezeichnung INTEGER")
        first, second = self.told()
        self.assertRegex(first, "column Gewichtung of table Vertriebsstati is of the type .*char.*; INTEGER would be")
        self.assertRegex(second, "column Bezeichnung of table Kontaktgruppen is of the type int.*; VARCHAR.* would be")

    def test_case_tells_the_keys_of_a_table_apart(self):
        collation = 'COLLATE "C"' if SERVER == "postgresql" else "COLLATE utf8mb4_bin"
        self.statements("DROP TABLE Mitbewerber",
                        f"CREATE TABLE Mitbewerber (Mitbewerber VARCHAR(15) {collation} PRIMARY KEY, "
                        "Bezeichnung VARCHAR(50))")
        finding, = self.told()
        self.assertIn("table Mitbewerber tells capital from small letters in its key (Mitbewerber); COLLATE ", finding)

    @mariadb
    def test_a_column_that_cannot_hold_every_text(self):
        self.statements("ALTER TABLE Artikelgruppen MODIFY Langtext VARCHAR(50) CHARACTER SET latin1")
        self.assert_told("table Artikelgruppen keeps texts (Langtext) in latin1, which cannot hold every character; "
                         "utf8mb4 would be right")


@postgresql
class NarrowEncoding(ServerTest):
    FINDING = ("zqn-dialog: the database has the encoding LATIN1, which cannot hold every character; make another one "
               "with CREATE DATABASE name ENCODING 'UTF8' TEMPLATE template0, and copy the tables with pg_dump and psql")

    def setUp(self):
        super().setUp()
        self.make_narrow()

    def test_it_is_told_when_the_tables_are_made_and_when_a_dialog_opens(self):
        result = self.run_command("init", "--db", self.url)
        self.assertEqual((result.returncode, result.stderr), (DONE, self.FINDING + "\n"))
        self.assertEqual(self.told(), [self.FINDING])

    def test_a_sample_that_it_cannot_hold_leaves_nothing(self):
        self.assert_refused(CANNOT_OPEN, ["LATIN1"], "init", "--db", self.url, "--sample")
        self.assertEqual(self.tables(), set())


if __name__ == "__main__":
    unittest.main()
