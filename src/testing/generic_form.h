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
    if (focus() != control) click(control);  // a second click would take the selection off
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
  /// Runs a session again and again, each time with another one of its database operations failing: nothing
  /// of it reaches the person, the form closes, and nothing stays open.
  void failEachOperation(const std::function<void()>& session) {
    tolerateEverything();
    std::size_t position = 0;
    do {
      operations.clear();
      failAt(++position);
      session();
      EXPECT_THAT(reportedErrors, ::testing::IsEmpty()) << "operation " << position;
      EXPECT_EQ(connection->openRecordsets(), 0u) << "operation " << position;
    } while (operations.size() >= position);
    failAt(0);
    EXPECT_GT(position, 20u);
  }
  /// What a clerk does on any catalogue that can be written: browse, add, change, delete, pick.
  void workThrough(StringView newKey) {
    mark(0);
    press(key::Down);
    enter(newKey);
    type(u"Neu");
    press(key::F9);
    put(u"txtKeyText", u"Anders");
    click(u"cmdOK");
    click(u"cmdDelete");
    doubleClick(0, u"tdblShow");
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
