// SPDX-License-Identifier: MIT
//
// A small catalogue of payment terms for tests of the generic form.
#pragma once

#include "testing/generic_form.h"

namespace zqn::testing {

class PaymentTerms : public GenericFormTest {
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
};

}  // namespace zqn::testing
