// SPDX-License-Identifier: MIT
//
// A small catalogue of payment terms for tests of the generic form.
#pragma once

#include "testing/dialog_test.h"

namespace zqn::testing {

class PaymentTerms : public DialogTest {
 protected:
  PaymentTerms() {
    execute(
        u"CREATE TABLE Zahlungsbedingungen (ZahlBedSchl VARCHAR(3) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, "
        u"Kurztext VARCHAR(100) COLLATE ZQN_TEXT, SkontoTage1 INTEGER, SkontoTage2 INTEGER, SkontoTage3 "
        u"INTEGER, "
        u"NettoTage INTEGER, SkontoProzent1 DOUBLE, SkontoProzent2 DOUBLE, SkontoProzent3 DOUBLE);"
        u"INSERT INTO Zahlungsbedingungen VALUES ('00', 'sofort rein Netto.', 0, 0, 0, 0, 0, 0, 0);"
        u"INSERT INTO Zahlungsbedingungen VALUES ('14', '14 Tage netto.', 0, 0, 0, 14, 0, 0, 0);"
        u"INSERT INTO Zahlungsbedingungen VALUES ('S1', '10 Tage 2%, 30 Tage netto.', 10, 0, 0, 30, 2, 0, "
        u"0)");
  }

  /// New, a key, and on to the first field.
  void enter(StringView key) {
    click(u"cmdNew");
    type(key);
    press(key::Tab);
  }
  Variant number(StringView control) const { return get(control, u"Value"); }
  void expectDeleteQuestion(MsgBoxResult answer) {
    expectBox(u"Datensatz löschen?", u"Abfrage", msgbox::YesNo | msgbox::Question, answer);
  }
};

}  // namespace zqn::testing
