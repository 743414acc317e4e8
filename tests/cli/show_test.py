# SPDX-License-Identifier: MIT
"""`show`: what goes in, what comes back, and where it is written."""

import json
import subprocess
import unittest

from command import COMMAND, CommandTest, DONE, NO_KEY, SCRIPT_ERROR

PICK = '{"dblclick":"TDBList1","row":0}\n'
MAY_CHANGE = '{"get":["btnOK.Enabled"]}\n'


class Key(CommandTest):
    def test_the_key_is_printed_and_the_status_says_that_there_is_one(self):
        url = self.sample()
        result = self.run_command("show", "21", "10", "--db", url, "--ui", "headless")
        self.assertEqual((result.returncode, result.stdout, result.stderr), (DONE, "10\n", ""))

    def test_without_a_key_nothing_is_printed(self):
        url = self.sample()
        for param in ([], [""], ["--params", "[null]"], ["--params", '[""]']):
            result = self.run_command("show", "21", *param, "--db", url, "--ui", "headless")
            self.assertEqual((result.returncode, result.stdout), (NO_KEY, ""), param)

    def test_a_number_or_false_is_a_key(self):
        url = self.sample()
        for param, printed in (("[0]", "0\n"), ("[false]", "false\n"), ("[2.5]", "2.5\n")):
            result = self.run_command("show", "21", "--params", param, "--db", url, "--ui", "headless")
            self.assertEqual((result.returncode, result.stdout), (DONE, printed))

    def test_with_the_transcript_in_a_file_the_key_is_printed(self):
        url = self.sample()
        result = self.run_command("show", "21", "10", "--db", url, "--ui", "headless", "--script", "-",
                                  "--transcript", "t.jsonl", stdin=PICK)
        self.assertEqual(result.stdout, "00\n")
        lines = [json.loads(line) for line in (self.folder / "t.jsonl").read_text().splitlines()]
        self.assertEqual(lines[0]["shown"], "frmVertriebsstati")
        self.assertEqual(lines[-1]["result"]["return"], "00")

    def test_with_multiselect_each_pick_is_printed_as_it_comes(self):
        url = self.sample()
        script = PICK + '{"dblclick":"TDBList1","row":1}\n{"sql":"SELECT 1"}\n'
        show = ["show", "21", "10", "--multiselect", "--db", url, "--ui", "headless"]
        result = self.run_command(*show, "--script", "-", "--transcript", "t.jsonl", stdin=script)
        self.assertEqual((result.returncode, result.stdout.split()), (DONE, ["00", "05"]), result.stderr)
        self.assertEqual(self.run_command(*show).stdout, "")

    def test_without_a_script_a_transcript_tells_what_happened(self):
        url = self.sample()
        result = self.run_command("show", "21", "10", "--db", url, "--ui", "headless", "--transcript", "t.jsonl")
        self.assertEqual(result.stdout, "10\n")
        lines = [json.loads(line) for line in (self.folder / "t.jsonl").read_text().splitlines()]
        self.assertEqual([next(iter(line)) for line in lines], ["shown", "closed", "result"])

    def test_a_script_file_and_standard_input_are_the_same(self):
        url = self.sample()
        (self.folder / "s.jsonl").write_text(PICK)
        from_file = self.run_fine("show", "21", "10", "--db", url, "--ui", "headless", "--script", "s.jsonl")
        from_input = self.run_fine("show", "21", "10", "--db", url, "--ui", "headless", "--script", "-", stdin=PICK)
        self.assertEqual(from_file, from_input)

    def test_a_script_that_cannot_go_on(self):
        url = self.sample()
        deep = "[" * 60_000 + "]" * 60_000
        for script in ("{", '{"click":"btnNirgends"}', '{"jump":1}', '{"click":"btnOK","click":"btnNew"}',
                       '{"fail":{"operation":"Open","number":1,"number":2}}', '{"get":%s}' % deep,
                       '{"select":"TDBList1","row":99,"rows":%s}' % deep):
            status, lines = self.show("21", "10", "--db", url, script=script + "\n")
            self.assertEqual(status, SCRIPT_ERROR)
            self.assertIn("scriptError", lines[-1])


class Param(CommandTest):
    def param_after(self, *arguments):
        status, lines = self.show("21", *arguments, "--db", self.url)
        self.assertIn(status, (DONE, NO_KEY))
        return lines[-1]["result"]["param"]

    def setUp(self):
        super().setUp()
        self.url = self.sample()

    def test_arguments_are_texts(self):
        self.assertEqual(self.param_after("10", "5", "true"), ["10", "5", "true"])

    def test_without_arguments_it_has_one_empty_text(self):
        self.assertEqual(self.param_after(), [""])

    def test_texts_that_look_like_something_else(self):
        for text in ("", "-", "-5", "[10]", "init", "a=b", "Größe", "1 2"):
            self.assertEqual(self.param_after(text), [text])

    def test_behind_two_dashes_everything_is_a_text(self):
        transcript = self.run_command("show", "--db", self.url, "--ui", "headless", "--script", "-", "21", "--",
                                      "--db", "-x", "").stdout
        self.assertEqual(json.loads(transcript.splitlines()[-1])["result"]["param"], ["--db", "-x", ""])

    def test_json_gives_each_kind_of_value(self):
        self.assertEqual(self.param_after("--params", '["10", 5, 2.5, 5000000000, -7, true, false, null]'),
                         ["10", 5, 2.5, 5000000000, -7, True, False, None])
        self.assertEqual(self.param_after("--params", "[]"), [])

    def test_negative_and_unknown_kinds_open_the_empty_form(self):
        for kind in ("-5", "0", "38", "2147483647", "-2147483648"):
            status, lines = self.show(kind, "10", "--db", self.url)
            self.assertEqual(status, NO_KEY)
            self.assertEqual(lines[0]["shown"], "frmDialog")
            self.assertEqual(lines[-1]["result"]["param"], ["10"])

    def test_the_generic_form_on_request(self):
        status, lines = self.show("21", "10", "--generic", "--db", self.url)
        self.assertEqual(lines[0]["shown"], "frmDialog")

    def test_multiselect_reports_each_double_click(self):
        status, lines = self.show("21", "10", "--multiselect", "--db", self.url, script=PICK + PICK)
        self.assertEqual([line["result"] for line in lines if "event" in line], ["00", "00"])
        self.assertEqual(lines[-1]["result"]["dialogResult"], "00")
        status, lines = self.show("21", "10", "--db", self.url, script=PICK)
        self.assertEqual([line for line in lines if "event" in line], [])


class Rights(CommandTest):
    def setUp(self):
        super().setUp()
        self.url = self.sample()

    def allowed(self, *options, script=""):
        status, lines = self.show("21", "10", "--db", self.url, *options, script=script)
        return lines[-1]["result"]["allowChanges"]

    def test_settings_user_and_administrator(self):
        self.assertTrue(self.allowed())
        admins_only = ["--set", "ZQNComDlg/AdminsOnly=1"]
        self.assertFalse(self.allowed(*admins_only))
        self.assertTrue(self.allowed(*admins_only, "--admin"))
        self.assertTrue(self.allowed(*admins_only, "--no-session"))
        self.assertTrue(self.allowed(*admins_only, "--set", "ZQNComDlg/AllowVPSave=7;21;"))
        self.assertTrue(self.allowed(*admins_only, "--set-user", "ZQNComDlg/AllowVPSave=21;"))

    def test_the_users_setting_stands_before_the_global_one(self):
        self.assertFalse(self.allowed("--set", "ZQNComDlg/AdminsOnly=1", "--set", "ZQNComDlg/AllowVPSave=21;",
                                      "--set-user", "ZQNComDlg/AllowVPSave=7;"))

    def test_the_users_setting_does_not_restrict_everybody(self):
        self.assertTrue(self.allowed("--set-user", "ZQNComDlg/AdminsOnly=1"))

    def test_a_setting_for_a_run_is_not_stored(self):
        before = self.rows(self.url, "SELECT * FROM Einstellungen")
        self.allowed("--set", "ZQNComDlg/AdminsOnly=1")
        self.assertEqual(self.rows(self.url, "SELECT * FROM Einstellungen"), before)

    def test_a_stored_setting_counts_for_its_user_and_also_when_it_is_empty(self):
        self.rows(self.url, "INSERT INTO Einstellungen (Sektion, Schluessel, Benutzer, Wert)"
                            " VALUES ('Probe', 'Nur', 'berta', ''), ('Probe', 'Nur', '', 'alle')")
        probe = '{"settings":"Probe"}\n'
        for user, value in (("berta", ""), ("carl", "alle")):
            status, lines = self.show("21", "--db", self.url, "--user", user, script=probe)
            self.assertEqual(lines[1], {"settings": {"Nur": value}})

    def test_the_login_name_is_the_user(self):
        self.rows(self.url, "INSERT INTO Einstellungen (Sektion, Schluessel, Benutzer, Wert)"
                            " VALUES ('ZQNComDlg', 'AllowVPSave', 'anna', '21;')")
        admins_only = ["--set", "ZQNComDlg/AdminsOnly=1"]
        self.assertTrue(self.allowed(*admins_only))
        self.assertFalse(self.allowed(*admins_only, "--user", "berta"))

    def test_a_setting_saved_in_the_run_ends_the_one_of_the_run(self):
        saved = '{"setting":{"section":"ZQNComDlg","key":"AdminsOnly","value":"0","scope":1}}\n'
        self.assertTrue(self.allowed("--set", "ZQNComDlg/AdminsOnly=1", script=saved))
        self.assertEqual(self.rows(self.url, "SELECT Wert FROM Einstellungen WHERE Schluessel='adminsonly'"), [["0"]])

    def test_of_two_settings_for_the_run_the_later_counts(self):
        self.assertTrue(self.allowed("--set", "ZQNComDlg/AdminsOnly=1", "--set", "zqncomdlg/ADMINSONLY=0"))

    def test_a_value_may_hold_anything(self):
        status, lines = self.show("21", "--db", self.url, "--set", "Probe/Satz=a=b/c 'd' [ä]",
                                  script='{"settings":"Probe"}\n')
        self.assertEqual(lines[1], {"settings": {"Satz": "a=b/c 'd' [ä]"}})


class UnreadableRights(CommandTest):
    """Settings that decide about rights cannot be read: only administrators may change anything, and it is said."""

    def setUp(self):
        super().setUp()
        self.url = self.sample("a.sqlite")

    def assert_for_administrators_alone(self, *options):
        for admin in (False, True):
            result = self.run_command("show", "21", "10", "--db", self.url, "--ui", "headless", "--script", "-", *options,
                                      *(["--admin"] if admin else []))
            self.assertEqual(result.returncode, DONE, result.stderr)
            self.assertEqual(json.loads(result.stdout.splitlines()[-1])["result"]["allowChanges"], admin)
            self.assertEqual(result.stderr.count("rights"), 1, result.stderr)

    def test_a_column_that_was_renamed(self):
        self.rows(self.url, "ALTER TABLE Einstellungen RENAME COLUMN Wert TO Inhalt")
        self.assert_for_administrators_alone()

    def test_settings_for_the_run_are_known_all_the_same(self):
        self.rows(self.url, "ALTER TABLE Einstellungen RENAME COLUMN Wert TO Inhalt")
        status, lines = self.show("21", "10", "--db", self.url, "--set", "ZQNComDlg/AdminsOnly=0")
        self.assertTrue(lines[-1]["result"]["allowChanges"])

    def test_without_their_table_there_are_no_settings(self):
        self.rows(self.url, "DROP TABLE Einstellungen")
        self.assertTrue(self.show("21", "10", "--db", self.url)[1][-1]["result"]["allowChanges"])


class BothDesktops(CommandTest):
    SCRIPT = """
{"get":["Schluessel.Text","Kurztext.Text","btnDelete.Enabled","Form.ActiveControl"]}
{"click":"btnNew"}
{"type":"99"}
{"key":"Tab"}
{"type":"Abschluss"}
{"key":"F9"}
{"sql":"SELECT Status, Bezeichnung FROM Vertriebsstati WHERE Status='99'"}
{"exec":"UPDATE Vertriebsstati SET Bezeichnung='von nebenan' WHERE Status='99'"}
{"click":"btnDelete"}
{"answer":"yes"}
{"statements":true}
{"dblclick":"TDBList1","row":2}
"""

    def test_one_script_has_one_transcript(self):
        transcripts = []
        for ui in ("headless", "qt"):
            url = self.sample(f"{ui}.sqlite")
            status, lines = self.show("21", "10", "--db", url, ui=ui, script=self.SCRIPT)
            self.assertEqual(status, DONE)
            transcripts.append(lines)
        self.assertEqual(*transcripts)
        self.assertEqual([line["msgbox"]["title"] for line in transcripts[0] if "msgbox" in line], ["Abfrage"])

    def test_a_script_needs_no_display(self):
        url = self.sample()
        del self.environment["QT_QPA_PLATFORM"]
        status, lines = self.show("21", "10", "--db", url, ui="qt")
        self.assertEqual((status, lines[0]["shown"]), (DONE, "frmVertriebsstati"))

    def test_a_person_needs_one(self):
        url = self.sample()
        del self.environment["QT_QPA_PLATFORM"]
        self.assert_refused(3, ["display"], "show", "21", "10", "--db", url)
        self.assert_refused(3, ["display"], "--db", url)

    def test_the_headless_command_loads_no_toolkit(self):
        libraries = subprocess.run(["ldd", COMMAND], capture_output=True, text=True, check=True).stdout
        self.assertIn("libsqlite3", libraries)
        self.assertNotIn("libQt", libraries)


if __name__ == "__main__":
    unittest.main()
