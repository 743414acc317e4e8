# SPDX-License-Identifier: MIT
"""What a clerk meets when the server refuses: a text that it cannot hold, a column of another type, a table that is
gone. The dialog behaves by its error mode, no part of a refused row is written, and the work goes on.

The environment is that of server_test.py.
"""

import unittest

from command import CANNOT_OPEN, DONE
from server_test import SERVER, ServerTest

TABLE_NOT_FOUND = -2147217865
CONVERSION_FAILED = -2147217913

STATUS_10 = [["10", "Interesse geweckt", 10]]


class FaultTest(ServerTest):
    def work(self, kind, script):
        """A clerk works in a dialog; what the transcript tells, by its kinds of lines."""
        self.status, self.lines = self.show(kind, "10", "--db", self.url, script=script)
        self.assertIn("result", self.lines[-1])

    def all_of(self, name):
        return [line[name] for line in self.lines if name in line]

    def rows_read(self):
        return [line["rows"] for line in self.lines if list(line) == ["rows"]]

    def errors(self):
        return [(error["in"], error["number"]) for error in self.all_of("error")]


class TextThatTheServerCannotHold(FaultTest):
    """One byte a character: the server has a place for "ÿ", and none for "ж"."""

    def setUp(self):
        super().setUp()
        if SERVER == "postgresql":
            self.make_narrow()
        self.run_command("init", "--db", self.url)
        if SERVER == "mariadb":
            self.statements("ALTER TABLE Vertriebsstati CONVERT TO CHARACTER SET latin1",
                            "ALTER TABLE Zahlungsbedingungen CONVERT TO CHARACTER SET latin1")
        self.statements("INSERT INTO Vertriebsstati (Status, Bezeichnung, AutoOverwrite, Gewichtung) VALUES ('10', 'Größe', 0, 10)",
                        "INSERT INTO Zahlungsbedingungen (ZahlBedSchl, Kurztext, NettoTage) VALUES ('10', 'sofort', 0)")

    def statements(self, *statements):
        # The finding about the encoding is told each time.
        stdin = "".join(statement + ";\n" for statement in statements)
        self.assertEqual(self.run_command("sql", "--db", self.url, stdin=stdin).returncode, DONE)

    def test_a_change_and_a_new_row_are_passed_over_as_a_whole(self):
        self.work("21", """
            {"focus":"Kurztext"}
            {"type":"ÿ и ж"}
            {"focus":"Gewichtung"}
            {"type":"77"}
            {"key":"F9"}
            {"get":["Kurztext.Text","Gewichtung.Text"]}
            {"sql":"SELECT Status, Bezeichnung, Gewichtung FROM Vertriebsstati"}
            {"click":"btnNew"}
            {"type":"99"}
            {"key":"Tab"}
            {"type":"Preis in ж"}
            {"key":"F9"}
            {"sql":"SELECT Status, Bezeichnung, Gewichtung FROM Vertriebsstati"}
            {"click":"btnNew"}
            {"type":"99"}
            {"key":"Tab"}
            {"type":"ÿ"}
            {"key":"F9"}
            {"sql":"SELECT Status, Bezeichnung, Gewichtung FROM Vertriebsstati ORDER BY Status"}
        """)
        untouched = [["10", "Größe", 10]]
        self.assertEqual(self.errors(), [])
        self.assertEqual(self.all_of("values"), [{"Kurztext.Text": "Größe", "Gewichtung.Text": "10"}])
        self.assertEqual(self.rows_read(), [untouched, untouched, [*untouched, ["99", "ÿ", 0]]])

    def test_a_key_is_no_row_anywhere(self):
        self.work("21", """
            {"click":"btnNew"}
            {"type":"ж"}
            {"key":"Tab"}
            {"type":"neu"}
            {"key":"F9"}
            {"sql":"SELECT Status FROM Vertriebsstati"}
            {"click":"btnDelete"}
            {"answer":"yes"}
            {"sql":"SELECT Status FROM Vertriebsstati"}
        """)
        self.assertEqual(self.errors(), [("btnDelete_Click", CONVERSION_FAILED)])
        self.assertEqual(self.rows_read(), [[["10"]], [["10"]]])

    def test_a_payment_term_is_not_begun(self):
        self.work("3", """
            {"click":"cmdNew"}
            {"type":"ж"}
            {"focus":"tdbnNettoTage"}
            {"type":"30"}
            {"key":"F9"}
            {"sql":"SELECT ZahlBedSchl, Kurztext, NettoTage FROM Zahlungsbedingungen"}
            {"focus":"txtKey"}
            {"type":"ÿ"}
            {"focus":"tdbnNettoTage"}
            {"type":"30"}
            {"key":"F9"}
            {"sql":"SELECT ZahlBedSchl, Kurztext, NettoTage FROM Zahlungsbedingungen ORDER BY ZahlBedSchl"}
        """)
        untouched = [["10", "sofort", 0]]
        self.assertEqual(self.errors(), [])
        self.assertEqual(self.rows_read(), [untouched, [*untouched, ["ÿ", "30 Tage netto.", 30]]])

    def test_a_statement_of_ones_own_is_told(self):
        word = "LATIN1" if SERVER == "postgresql" else "Incorrect string value"
        self.assert_refused(CANNOT_OPEN, [word], "sql", "--db", self.url,
                            stdin="UPDATE Vertriebsstati SET Bezeichnung='ж';\n")


class ColumnOfAnotherType(FaultTest):
    SAVE = """
        {"focus":"Kurztext"}
        {"type":"%s"}
        {"focus":"Gewichtung"}
        {"type":"77"}
        {"key":"F9"}
        {"sql":"SELECT Status, Bezeichnung, Gewichtung FROM Vertriebsstati WHERE Status='10'"}
    """

    def setUp(self):
        super().setUp()
        self.init_sample()

    def test_a_text_that_the_server_refuses_is_passed_over_with_its_whole_row(self):
        if SERVER == "postgresql":
            self.foreign("CREATE DOMAIN stufe AS VARCHAR(30) CHECK (VALUE <> 'riesig'); "
                         'ALTER TABLE "Vertriebsstati" ALTER "Bezeichnung" TYPE stufe;')
        else:
            self.foreign("ALTER TABLE vertriebsstati ADD CHECK (Bezeichnung <> 'riesig');")
        self.work("21", self.SAVE % "riesig" + self.SAVE % "klein")
        self.assertEqual(self.errors(), [])
        self.assertEqual(self.rows_read(), [STATUS_10, [["10", "klein", 77]]])

    def test_a_text_for_a_column_of_numbers_is_passed_over_alone(self):
        self.statements("ALTER TABLE Vertriebsstati DROP COLUMN Bezeichnung",
                        "ALTER TABLE Vertriebsstati ADD Bezeichnung INTEGER")
        self.work("21", self.SAVE % "riesig" + self.SAVE % "42")
        self.assertEqual(self.errors(), [])
        self.assertEqual(self.rows_read(), [[["10", None, 77]], [["10", 42, 77]]])


class TableThatIsGone(FaultTest):
    def setUp(self):
        super().setUp()
        self.init_sample()

    def test_the_dialog_opens_without_it_and_writes_nothing(self):
        self.statements("DROP TABLE Vertriebsstati")
        self.work("21", """
            {"get":["Schluessel.Text","TDBList1.Row"]}
            {"focus":"Kurztext"}
            {"type":"neu"}
            {"key":"F9"}
            {"click":"btnDelete"}
            {"answer":"yes"}
            {"close":true}
        """)
        self.assertEqual(self.all_of("values"), [{"Schluessel.Text": "10", "TDBList1.Row": -1}])
        self.assertEqual(self.errors(), [("btnDelete_Click", TABLE_NOT_FOUND)])
        self.assertNotIn("vertriebsstati", {name.lower() for name in self.tables()})

    def test_the_work_goes_on_when_it_is_back(self):
        self.work("21", """
            {"list":"TDBList1"}
            {"exec":"ALTER TABLE Vertriebsstati RENAME TO Weg"}
            {"key":"Down"}
            {"focus":"Gewichtung"}
            {"type":"78"}
            {"key":"F9"}
            {"click":"btnDelete"}
            {"answer":"yes"}
            {"exec":"ALTER TABLE Weg RENAME TO Vertriebsstati"}
            {"sql":"SELECT count(*) FROM Vertriebsstati WHERE Gewichtung=78"}
            {"click":"btnNew"}
            {"type":"99"}
            {"key":"Tab"}
            {"type":"neu"}
            {"key":"F9"}
            {"sql":"SELECT Status, Bezeichnung FROM Vertriebsstati WHERE Status='99'"}
            {"list":"TDBList1"}
            {"click":"btnDelete"}
            {"answer":"yes"}
            {"list":"TDBList1"}
        """)
        self.assertEqual(self.errors(), [("TDBList1_RowColChange", TABLE_NOT_FOUND), ("btnDelete_Click", TABLE_NOT_FOUND)])
        self.assertEqual(self.rows_read(), [[[0]], [["99", "neu"]]])
        # A list that could not be read anew comes back with the next save.
        self.assertEqual([len(line["rows"]) for line in self.lines if "list" in line], [17, 18, 17])

    def test_a_payment_term_meets_it_in_silence(self):
        self.work("3", """
            {"exec":"ALTER TABLE Zahlungsbedingungen RENAME TO Weg"}
            {"focus":"tdbnNettoTage"}
            {"type":"31"}
            {"key":"F9"}
            {"exec":"ALTER TABLE Weg RENAME TO Zahlungsbedingungen"}
            {"sql":"SELECT count(*) FROM Zahlungsbedingungen WHERE NettoTage=31"}
            {"focus":"tdbnNettoTage"}
            {"type":"31"}
            {"key":"F9"}
            {"sql":"SELECT count(*) FROM Zahlungsbedingungen WHERE NettoTage=31"}
        """)
        self.assertEqual(self.errors(), [])
        self.assertEqual(self.rows_read(), [[[0]], [[1]]])


if __name__ == "__main__":
    unittest.main()
