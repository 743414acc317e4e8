// SPDX-License-Identifier: MIT
//
// A clerk at the price lists: heads with and without a promotion, price lines, customers. Not part of the
// library.
#pragma once

#include "testing/dialog_test.h"

namespace zqn::testing {

class Preislisten : public DialogTest {
 protected:
  Preislisten() {
    execute(
        u"CREATE TABLE Preislistenkopf (Preisliste VARCHAR(5) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, "
        u"Langtext "
        u"VARCHAR(30) COLLATE ZQN_TEXT, GlobalePreisliste BOOLEAN, GültigVon VARCHAR(14) COLLATE ZQN_TEXT, "
        u"GültigBis "
        u"VARCHAR(14) COLLATE ZQN_TEXT, FuerPreisliste VARCHAR(5) COLLATE ZQN_TEXT, FuerKunde VARCHAR(10) "
        u"COLLATE "
        u"ZQN_TEXT, Währung VARCHAR(10) COLLATE ZQN_TEXT);"
        u"CREATE TABLE Staffelpreise (Preisliste VARCHAR(5) COLLATE ZQN_TEXT, Preis DOUBLE);"
        u"CREATE TABLE Kundenstamm (Kundennummer VARCHAR(10) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, Bez1 "
        u"VARCHAR(50) "
        u"COLLATE ZQN_TEXT);"
        u"INSERT INTO Preislistenkopf VALUES ('-', 'System', 0, NULL, NULL, NULL, NULL, NULL);"
        u"INSERT INTO Preislistenkopf VALUES ('A', 'Aktion', 1, '20260301000000', '20260531000000', NULL, "
        u"NULL, 'EUR');"
        u"INSERT INTO Preislistenkopf VALUES ('B', 'Beides', 1, '00000000000000', '99991231999999', 'A', "
        u"'10001', 'EUR');"
        u"INSERT INTO Preislistenkopf VALUES ('H', 'Handwerk', 0, '20260101000000', '20261231000000', 'A', "
        u"'10001', 'CHF');"
        u"INSERT INTO Preislistenkopf VALUES ('K', NULL, 1, NULL, '99999999999999', 'H', NULL, 'EUR');"
        u"INSERT INTO Staffelpreise VALUES ('A', 10);"
        u"INSERT INTO Staffelpreise VALUES ('A', 9);"
        u"INSERT INTO Staffelpreise VALUES ('H', 8);"
        u"INSERT INTO Kundenstamm VALUES ('10001', 'Werft Nordhafen');"
        u"INSERT INTO Kundenstamm VALUES ('10002', 'Krause')");
  }

  bool option(int index) const {
    return *get(u"optGueltigFuer(" + String(1, static_cast<char16_t>(u'0' + index)) + u")", u"Value")
                .as<bool>();
  }
  Variant value(StringView control) const { return get(control, u"Value"); }
  String row(StringView key) {
    return rows(
               u"SELECT Langtext, GlobalePreisliste, GültigVon, GültigBis, FuerPreisliste, FuerKunde, "
               u"Währung FROM "
               u"Preislistenkopf WHERE Preisliste='" +
               String(key) + u"'")
        .at(0);
  }
  /// "Neu", the key, and on to the name.
  void enter(StringView key) {
    click(u"btnNew");
    type(key);
    press(key::Tab);
  }
  void expectDeleteQuestion(StringView key, MsgBoxResult answer) {
    expectBox(u"Möchten Sie die Preisliste '" + String(key) + u"' wirklich löschen?", u"Abfrage",
              msgbox::YesNo | msgbox::Question, answer);
  }
  void expectUnknownCustomer(StringView number) {
    expectBox(u"Kundenstammsatz '" + String(number) + u"' nicht angelegt.", u"Ungültige Kundennummer",
              msgbox::Exclamation);
  }
};

}  // namespace zqn::testing
