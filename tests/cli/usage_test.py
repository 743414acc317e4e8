# SPDX-License-Identifier: MIT
"""The command line as such: what is wrong usage, and that nothing happens then."""

import json
import subprocess
import unittest

from command import COMMAND, CommandTest, CANNOT_OPEN, WRONG_USAGE


class WrongUsage(CommandTest):
    def test_unknown_command_and_unknown_option(self):
        self.assert_refused(WRONG_USAGE, ["bogus"], "bogus")
        self.assert_refused(WRONG_USAGE, ["--bogus"], "kinds", "--bogus")
        self.assert_refused(WRONG_USAGE, ["KIND"], "show")

    def test_a_misspelt_word_gets_a_suggestion(self):
        for meant, arguments in (("show", ("shwo", "21")), ("init", ("iint", "--db", "sqlite:a.sqlite")),
                                 ("--json", ("kinds", "--jsno")), ("--script", ("show", "21", "--scrip", "-")),
                                 ("--sample", ("init", "--db", "sqlite:a.sqlite", "--samples")),
                                 ("--admin", ("--admni",))):
            self.assert_refused(WRONG_USAGE, [f"did you mean '{meant}'?"], *arguments)
        self.assertNotIn("did you mean", self.run_command("bogus").stderr)

    def test_the_hint_names_the_help_of_the_command(self):
        self.assert_refused(WRONG_USAGE, ["see 'zqn-dialog --help'"], "bogus")
        for command in ("kinds", "init", "sql", "show"):
            self.assert_refused(WRONG_USAGE, [f"see 'zqn-dialog {command} --help'"], command, "--bogus")

    def test_a_kind_is_a_whole_number_of_32_bits(self):
        for kind in ("abc", "", "21x", "2.5", "2147483648", "-2147483649", "99999999999999999999"):
            self.assert_refused(WRONG_USAGE, ["KIND", kind], "show", kind)

    def test_params_must_be_a_json_array_of_simple_values(self):
        for text in ("", "[", "10", '{"a":1}', '["10"', "nonsense"):
            self.assert_refused(WRONG_USAGE, ["--params", "array"], "show", "21", "--params", text)
        for text in ("[[1]]", '["10", {}]'):
            self.assert_refused(WRONG_USAGE, ["--params"], "show", "21", "--params", text)

    def test_params_may_be_nested_however_deep(self):
        for text in ("[" * 60_000, "[" * 60_000 + "]" * 60_000, '[{"a":' * 20_000):
            self.assert_refused(WRONG_USAGE, ["--params", "array"], "show", "21", "--params", text)

    def test_texts_are_in_utf_8(self):
        for arguments in ((b"M\xfcller",), (b"\xc3",), (b"10", b"--user", b"M\xfcller"),
                          (b"10", b"--set", b"Probe/Satz=\xe4"), (b"10", b"--set-user", b"Pr\xe4/Satz=a"),
                          (b"10", b"--db", b"odbc:DSN=\xe4")):
            result = subprocess.run([COMMAND, "show", "21", *arguments], capture_output=True, cwd=self.folder,
                                    env=self.environment, timeout=60)
            self.assertEqual((result.returncode, result.stdout), (WRONG_USAGE, b""), arguments)
            self.assertTrue(result.stderr.startswith(b"zqn-dialog: "), result.stderr)
            result.stderr.decode("utf-8")

    def test_control_characters_are_shown_and_not_obeyed(self):
        for arguments in (("show", "21\x1b[2J\n"), ("bogus\x1b[2J\n",), ("show", "21", "--today", "\x1b[2J\n"),
                          ("sql", "--db", "sqlite:a\x1b[2J\n"), ("show", "21", "--ui", "\x1b[2J\n")):
            result = self.run_command(*arguments)
            self.assertNotEqual(result.returncode, 0)
            self.assertIn(r"\x1b[2J\n", result.stderr)
            self.assertNotIn("\x1b", result.stderr)
            self.assertEqual(result.stderr.count("\n"), 1, result.stderr)

    def test_a_number_that_no_double_holds_is_no_param(self):
        self.assert_refused(WRONG_USAGE, ["--params", "number"], "show", "21", "--params", "[1e999]")

    def test_param_is_given_in_one_way(self):
        self.assert_refused(WRONG_USAGE, ["not both"], "show", "21", "10", "--params", "[]")

    def test_settings_have_section_key_and_value(self):
        for text in ("AdminsOnly=1", "ZQNComDlg/AdminsOnly", "/AdminsOnly=1", "ZQNComDlg/=1", ""):
            for option in ("--set", "--set-user"):
                self.assert_refused(WRONG_USAGE, [option, "SECTION/KEY=VALUE"], "show", "21", option, text)

    def test_today_is_a_day_of_the_calendar(self):
        for text in ("2026-02-30", "2026-13-01", "26-01-01", "01.02.2026", "2026- 1-05", "heute", ""):
            self.assert_refused(WRONG_USAGE, ["--today", "YYYY-MM-DD"], "show", "21", "--today", text)

    def test_desktop_is_qt_or_headless(self):
        self.assert_refused(WRONG_USAGE, ["--ui", "gtk"], "show", "21", "--ui", "gtk")

    def test_the_application_folder_must_exist(self):
        for folder in ("nowhere", "a" * 300):
            self.assert_refused(WRONG_USAGE, ["--app-path", folder], "show", "21", "--app-path", folder)

    def test_the_script_must_be_readable(self):
        (self.folder / "folder").mkdir()
        for name in ("missing.jsonl", "folder"):
            self.assert_refused(WRONG_USAGE, ["--script", name], "show", "21", "--ui", "headless", "--script", name)

    def test_the_transcript_must_be_writable(self):
        url = self.sample()
        self.assert_refused(WRONG_USAGE, ["--transcript", "no/where.jsonl"], "show", "21", "--db", url, "--ui",
                            "headless", "--script", "-", "--transcript", "no/where.jsonl")

    def test_the_transcript_is_neither_the_database_nor_the_script(self):
        url = self.sample("a.sqlite")
        (self.folder / "s.jsonl").write_text('{"get":[]}\n')
        (self.folder / "link").symlink_to("a.sqlite")
        show = ("show", "21", "--db", url, "--ui", "headless", "--script")
        for transcript in ("a.sqlite", "./a.sqlite", "link", "s.jsonl"):
            self.assert_refused(WRONG_USAGE, ["--transcript", transcript, "another file"], *show, "s.jsonl",
                                "--transcript", transcript)
        with open(self.folder / "s.jsonl") as script:
            result = subprocess.run([COMMAND, *show, "-", "--transcript", "s.jsonl"], stdin=script, capture_output=True,
                                    text=True, cwd=self.folder, env=self.environment, timeout=60)
        self.assertEqual(result.returncode, WRONG_USAGE)
        self.assertEqual((self.folder / "s.jsonl").read_text(), '{"get":[]}\n')

    def test_options_stand_behind_the_command(self):
        self.assert_refused(WRONG_USAGE, ["--db", "behind"], "--db", "sqlite:a.sqlite", "kinds")

    def test_a_database_is_a_url(self):
        for url in ("a.sqlite", "foo:a.sqlite", "sqlite:", "odbc:", "odbc: ;", ""):
            for command in (("show", "21"), ("init",), ("sql",)):
                self.assert_refused(WRONG_USAGE, ["--db", "sqlite:FILE", "odbc:CONNECTION-STRING"], *command, "--db", url)

    def test_init_and_sql_need_a_database(self):
        self.assert_refused(WRONG_USAGE, ["--db"], "init", "--sample")
        self.assert_refused(WRONG_USAGE, ["--db"], "sql")

    def test_init_takes_the_sample_or_generated_rows(self):
        self.assert_refused(WRONG_USAGE, ["--rows"], "init", "--db", "sqlite:a.sqlite", "--sample", "--rows", "5")
        for rows in ("0", "-1", "many", "1.5"):
            self.assert_refused(WRONG_USAGE, ["--rows"], "init", "--db", "sqlite:a.sqlite", "--rows", rows)

    def test_a_data_source_that_is_not_there_is_no_wrong_usage(self):
        self.assert_refused(CANNOT_OPEN, ["'DSN=nirgends;PWD=***'"], "show", "21", "--db", "odbc:DSN=nirgends;PWD=x")


class Help(CommandTest):
    def test_help_names_every_command_and_every_option(self):
        text = self.run_fine("--help")
        for command in ("kinds", "init", "sql", "show"):
            self.assertRegex(text, rf"(?m)^ +{command} ")
        text = self.run_fine("show", "--help")
        self.assertIn("zqn-dialog show [OPTIONS] KIND [PARAM ...]", text)
        for option in ("--db", "--params", "--user", "--admin", "--no-session", "--set", "--set-user", "--multiselect",
                       "--generic", "--app-path", "--today", "--ui", "--script", "--transcript"):
            self.assertRegex(text, rf"(?m)^ +{option} ")

    def test_version(self):
        self.assertRegex(self.run_fine("--version"), r"^zqn-dialog \d+\.\d+\.\d+\n$")


class Kinds(CommandTest):
    def test_json_has_the_37_kinds_in_order(self):
        kinds = json.loads(self.run_fine("kinds", "--json"))
        self.assertEqual([kind["number"] for kind in kinds], list(range(1, 38)))
        self.assertEqual(kinds[20], {"number": 21, "constant": "zqnCommonDialogVertriebsStati",
                                     "form": "frmVertriebsstati", "definition": None,
                                     "tables": ["Vertriebsstati"], "offered": True})
        self.assertEqual(kinds[2]["form"], "frmDialog")
        self.assertEqual(kinds[2]["definition"], "clsZahlungsbedingungen")
        self.assertEqual(kinds[24]["tables"], ["Kontaktgruppen", "Vertriebsstati", "Adressherkunft"])

    def test_the_table_has_a_line_for_each_kind_under_the_same_columns(self):
        lines = self.run_fine("kinds").splitlines()
        self.assertEqual([line.split()[0].rstrip("*") for line in lines[1:38]], [str(n) for n in range(1, 38)])
        column = lines[0].index("form")
        self.assertTrue(lines[12][column:].startswith("frmDialog"))  # the constant has an umlaut
        self.assertTrue(lines[21][column:].startswith("frmVertriebsstati"))

    def test_no_database_is_made(self):
        self.run_fine("kinds")
        self.assertEqual(self.tree(), {})


if __name__ == "__main__":
    unittest.main()
