// SPDX-License-Identifier: MIT
//
// A clerk at a catalogue form, for tests: what all forms of the pattern have in common to be done and said.
// Not part of the library.
#pragma once

#include "testing/dialog_test.h"

namespace zqn::testing {

class CatalogueTest : public DialogTest {
 protected:
  static constexpr StringView noRightToSave =
      u"Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu speichern.";
  static constexpr StringView noRightToDelete =
      u"Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu löschen.";

  /// "Neu", the key, and on to the next field.
  void enter(StringView key) {
    click(u"btnNew");
    type(key);
    press(key::Tab);
  }
  void expectDeleteQuestion(MsgBoxResult answer) {
    expectBox(u"Datensatz löschen?", u"Abfrage", msgbox::YesNo | msgbox::Question, answer);
  }
  void deleteRow() {
    expectDeleteQuestion(MsgBoxResult::Yes);
    click(u"btnDelete");
  }
  void forbidChanges() {
    session->SaveSetting(u"ZQNComDlg", u"AdminsOnly", u"1", Missing, zqnSaveAsGlobalSetting);
  }
  /// What the host hears of.
  std::vector<Variant> heard() {
    dialog.Multiselect(true);
    dialog.DblClick = [this](const Variant& result) { heard_.push_back(result); };
    return std::exchange(heard_, {});
  }
  std::int32_t number(StringView control, StringView property) const {
    return *get(control, property).as<std::int32_t>();
  }
  std::vector<String> statements() {
    std::vector<String> texts;
    for (const auto& [operation, statement] : std::exchange(operations, {})) {
      if (operation == ado::Operation::Open || operation == ado::Operation::Execute)
        texts.push_back(statement);
    }
    return texts;
  }

 private:
  std::vector<Variant> heard_;
};

}  // namespace zqn::testing
