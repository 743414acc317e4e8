// SPDX-License-Identifier: MIT
//
// A clerk at the generic form, whatever its catalogue: tests of the form and of its definition classes.
//
//     show(22, {u""}, [&] {
//       enter(u"ADLER");
//       press(key::F9);
//       EXPECT_THAT(statements(ado::Operation::Open), ...);
//     });
#pragma once

#include "testing/dialog_test.h"

namespace zqn::testing {

class GenericFormTest : public DialogTest {
 protected:
  /// New, a key, and on to the first field.
  void enter(StringView key) {
    click(u"cmdNew");
    type(key);
    press(key::Tab);
  }
  /// Puts the focus into a field and types over what it holds.
  void put(StringView control, StringView content) {
    click(control);
    type(content);
  }
  /// Marks a row of the list by mouse.
  void mark(int row) { select(row, u"tdblShow"); }
  Variant number(StringView control) const { return get(control, u"Value"); }
  void expectDeleteQuestion(MsgBoxResult answer) {
    expectBox(u"Datensatz löschen?", u"Abfrage", msgbox::YesNo | msgbox::Question, answer);
  }
  /// Presses the button and says Yes.
  void deleteMarked() {
    expectDeleteQuestion(MsgBoxResult::Yes);
    click(u"cmdDelete");
  }
  /// The statements of one kind of operation since operations was cleared.
  std::vector<String> statements(ado::Operation operation) const {
    std::vector<String> texts;
    for (const auto& [kind, statement] : operations) {
      if (kind == operation) texts.push_back(statement);
    }
    return texts;
  }
  /// Full names of the controls that a person sees, in tab order.
  std::vector<String> shownControls() const {
    std::vector<String> names;
    for (const auto& control : form().controls()) {
      if (control->isShown()) names.push_back(control->fullName());
    }
    return names;
  }
};

}  // namespace zqn::testing
