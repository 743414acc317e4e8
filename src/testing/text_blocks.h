// SPDX-License-Identifier: MIT
//
// The shared table of text blocks, for tests of the dialogs that keep one in step with their head row.
//
//     block(u"VSA", u"LKW", u"Frei Haus.", u"NL");
#pragma once

#include "forms/toggle_button.h"
#include "testing/generic_form.h"

namespace zqn::testing {

class TextBlocks : public GenericFormTest {
 protected:
  TextBlocks() {
    execute(
        u"CREATE TABLE Textbausteine (Textart VARCHAR(3) COLLATE ZQN_TEXT NOT NULL, TextNummer VARCHAR(15) "
        u"COLLATE "
        u"ZQN_TEXT NOT NULL, ZusatztextNummer VARCHAR(3) COLLATE ZQN_TEXT NOT NULL, SprachKZ VARCHAR(3) "
        u"COLLATE ZQN_TEXT "
        u"NOT NULL, Kurztext VARCHAR(50), Langtext TEXT, WoDrucken VARCHAR(8), Schriftart VARCHAR(50), "
        u"Schriftgröße INTEGER, Schriftstil VARCHAR(10), PRIMARY KEY (Textart, TextNummer, ZusatztextNummer, "
        u"SprachKZ))");
  }

  /// Adds the main text of a key in the language-independent row.
  void block(StringView kind, StringView key, StringView text, StringView marks) {
    somebodyElse(
        u"INSERT INTO Textbausteine (Textart, TextNummer, ZusatztextNummer, SprachKZ, Langtext, WoDrucken) "
        u"VALUES ('" +
        String(kind) + u"', '" + String(key) + u"', '000', 'ÿÿÿ', '" + String(text) + u"', '" +
        String(marks) + u"')");
  }
  /// All blocks, all columns.
  std::vector<String> blocks() { return rows(u"SELECT * FROM Textbausteine"); }
  /// All blocks, "kind|key|language".
  std::vector<String> keysOfBlocks() {
    return rows(u"SELECT Textart, TextNummer, SprachKZ FROM Textbausteine");
  }
  static String blockQuery(StringView kind, StringView key) {
    return u"SELECT * FROM Textbausteine WHERE Textart='" + String(kind) + u"' AND TextNummer='" +
           String(key) + u"' AND ZusatztextNummer='000' AND SprachKZ='ÿÿÿ'";
  }
  /// Captions of the visible toggles that are down, a blank behind each: "AN LS ".
  String pressed() const {
    String captions;
    for (const auto& control : form().controls()) {
      const auto* toggle = dynamic_cast<const ToggleButton*>(control.get());
      if (toggle != nullptr && toggle->isShown() && toggle->Value()) captions += toggle->Caption() + u" ";
    }
    return captions;
  }
};

}  // namespace zqn::testing
