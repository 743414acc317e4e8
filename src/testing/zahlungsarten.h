// SPDX-License-Identifier: MIT
//
// A clerk at the payment types: tables of both sides with their text blocks. Not part of the library.
#pragma once

#include "forms/toggle_button.h"
#include "forms/zq_combo.h"
#include "testing/dialog_test.h"

namespace zqn::testing {

class Zahlungsarten : public DialogTest {
 protected:
  Zahlungsarten() {
    for (const StringView table : {u"Zahlungsarten", u"ZahlungsartenEK"})
      execute(u"CREATE TABLE " + String(table) +
              u" (Zahlungsart VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, Kurztext VARCHAR(30) "
              u"COLLATE ZQN_TEXT, "
              u"OhneFibu BOOLEAN, ZahlungsartFibu VARCHAR(10) COLLATE ZQN_TEXT, DefaultZahlungsbedSchl "
              u"VARCHAR(3) COLLATE "
              u"ZQN_TEXT, OhneDruckSkonto INTEGER)");
    execute(
        u"CREATE TABLE Textbausteine (Textart VARCHAR(3) COLLATE ZQN_TEXT NOT NULL, TextNummer VARCHAR(15) "
        u"COLLATE "
        u"ZQN_TEXT NOT NULL, ZusatztextNummer VARCHAR(3) COLLATE ZQN_TEXT NOT NULL, SprachKZ VARCHAR(3) "
        u"COLLATE ZQN_TEXT "
        u"NOT NULL, Kurztext VARCHAR(50) COLLATE ZQN_TEXT, Langtext TEXT COLLATE ZQN_TEXT, WoDrucken "
        u"VARCHAR(8) COLLATE "
        u"ZQN_TEXT, Schriftart VARCHAR(50) COLLATE ZQN_TEXT, Schriftgröße INTEGER, Schriftstil VARCHAR(10) "
        u"COLLATE ZQN_TEXT, "
        u"PRIMARY KEY (Textart, TextNummer, ZusatztextNummer, SprachKZ));"
        u"CREATE TABLE Zahlungsbedingungen (ZahlBedSchl VARCHAR(3) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, "
        u"Kurztext "
        u"VARCHAR(100) COLLATE ZQN_TEXT);"
        u"INSERT INTO Zahlungsbedingungen VALUES ('14', '14 Tage netto.');"
        u"INSERT INTO Zahlungsarten VALUES ('-', 'System', 0, NULL, NULL, 0);"
        u"INSERT INTO Zahlungsarten VALUES ('BAR', 'Barzahlung', 1, '-', NULL, -1);"
        u"INSERT INTO Zahlungsarten VALUES ('LAS', 'Lastschrift', 0, 'E', '14', 0);"
        u"INSERT INTO Zahlungsarten VALUES ('UEB', 'Überweisung', 0, NULL, NULL, NULL);"
        u"INSERT INTO ZahlungsartenEK VALUES ('SCH', 'Scheck', 0, 'S', NULL, 0);"
        u"INSERT INTO Textbausteine VALUES ('ZAA', 'LAS', '000', 'ÿÿÿ', 'Lastschrift', 'Wir buchen ab.', "
        u"'N-LR----', "
        u"'Times', 12, 'B---');"
        u"INSERT INTO Textbausteine VALUES ('ZAA', 'LAS', '000', 'E', 'Debit', 'We debit.', 'N-------', "
        u"'Arial', 10, '---L');"
        u"INSERT INTO Textbausteine VALUES ('ZAA', 'BAR', '000', 'ÿÿÿ', 'Bar', '', '---R----', 'Arial', 10, "
        u"'---L');"
        u"INSERT INTO Textbausteine VALUES ('EZA', 'SCH', '000', 'ÿÿÿ', 'Scheck', 'Per Scheck.', 'N----AE-', "
        u"'Arial', 10, "
        u"'---L')");
  }

  /// Captions of the toggles that are down, those that are hidden in brackets.
  std::string toggles() const {
    std::string names;
    for (const StringView each : {u"AN", u"AB", u"LS", u"RG", u"GS", u"AF", u"BS", u"LM"}) {
      const auto& toggle = form().Get<ToggleButton>(u"tglDruck" + String(each));
      if (!toggle.Value()) continue;
      names += (names.empty() ? "" : " ") + (toggle.Visible() ? toUtf8(each) : "(" + toUtf8(each) + ")");
    }
    return names;
  }
  int number(StringView control) const { return *get(control, u"Value").as<std::int32_t>(); }
  Variant terms() const { return get(u"DefaultZahlungsbedSchl", u"Value"); }
  String row(StringView table, StringView key) {
    const std::vector<String> found = rows(
        u"SELECT Kurztext, CAST(OhneFibu AS INTEGER), ZahlungsartFibu, DefaultZahlungsbedSchl, "
        u"OhneDruckSkonto FROM " +
        String(table) + u" WHERE Zahlungsart='" + String(key) + u"'");
    return found.empty() ? String(u"(fehlt)") : found.front();
  }
  std::vector<String> blocks(StringView key) {
    return rows(
        u"SELECT Textart, ZusatztextNummer, SprachKZ, Kurztext, Langtext, WoDrucken, Schriftart, "
        u"Schriftgröße, "
        u"Schriftstil FROM Textbausteine WHERE TextNummer='" +
        String(key) + u"' ORDER BY 1, 2, 3");
  }
  void enter(StringView key) {
    click(u"btnNew");
    type(key);
    press(key::Tab);
  }
  void expectDeleteQuestion() {
    expectBox(u"Datensatz löschen?", u"Abfrage", msgbox::YesNo | msgbox::Question, MsgBoxResult::Yes);
  }
};

}  // namespace zqn::testing
