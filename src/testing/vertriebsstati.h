// SPDX-License-Identifier: MIT
//
// A clerk at the sales statuses, for tests. Not part of the library.
#pragma once

#include "testing/catalogue.h"

namespace zqn::testing {

class Vertriebsstati : public CatalogueTest {
 protected:
  Vertriebsstati() {
    execute(
        u"CREATE TABLE Vertriebsstati (Status VARCHAR(10) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, "
        u"Bezeichnung VARCHAR(30) COLLATE ZQN_TEXT, AutoOverwrite SMALLINT, Gewichtung DOUBLE);"
        u"INSERT INTO Vertriebsstati VALUES ('-', 'reserviert', 0, 0);"
        u"INSERT INTO Vertriebsstati VALUES ('10', 'Interesse geweckt', 0, 10);"
        u"INSERT INTO Vertriebsstati VALUES ('20', 'Angebot abgegeben', -1, 40);"
        u"INSERT INTO Vertriebsstati VALUES ('90', NULL, NULL, NULL)");
  }

  std::vector<String> fields() const {
    return {text(u"Schluessel"), text(u"Kurztext"), text(u"Gewichtung"),
            CStr(get(u"AutoOverwrite", u"Value"))};
  }
};

}  // namespace zqn::testing
