// SPDX-License-Identifier: MIT
//
// A person at a form, for tests of forms and desktops. Not part of the library. What the person does is
// written as straight code that runs while the form stands open; the form is closed by its close box
// afterwards. What happened meanwhile is one line of names, in the order of events:
//
//     TEST_F(TabOrder, LeadsToTheNextControl) {
//       show(form, [&] {
//         press(key::Tab);
//         EXPECT_EQ(happened(), "a_LostFocus b_GotFocus");
//       });
//     }
//
// Message boxes stand in the line as "[text]" and run-time errors as "!procedure:number"; one that no test
// has read fails it. What a procedure that writes has passed over stands there as "~procedure:number".
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <deque>
#include <functional>
#include <map>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

#include "desktop/headless/headless_desktop.h"
#include "forms/form.h"
#include "forms/text_entry.h"
#include "testing/runtime.h"

namespace zqn::testing {

/// A form of these controls.
class SampleForm : public Form {
 public:
  explicit SampleForm(std::span<const ControlDesign> roster, const char16_t* name = u"frmSample")
      : Form({name, u"Muster", 6000, 4500, roster}) {}
};

class FormTest : public ::testing::Test, private DesktopListener {
 protected:
  FormTest() {
    desktop.addListener(this);
    desktop.whenIdle([this] { idle(); });
  }
  ~FormTest() override {
    desktop.removeListener(this);
    for (const std::string& each : line_) {
      if (each.starts_with('[') || each.starts_with('!')) ADD_FAILURE() << "unexpected: " << each;
    }
    EXPECT_TRUE(answers.empty()) << "a message box was expected and did not come";
  }

  // ---- what happened

  /// The names since the last call, blanks between them.
  std::string happened() {
    std::string all;
    for (const std::string& each : std::exchange(line_, {})) all += (all.empty() ? "" : " ") + each;
    return all;
  }
  void note(std::string name) { line_.push_back(std::move(name)); }

  /// Every event of a subject is written down, until a test gives the event a handler of its own.
  void watchFocus(Form& form) {
    for (const auto& each : form.controls()) {
      const std::string name = toUtf8(each->Name());
      each->GotFocus = [this, name] { note(name + "_GotFocus"); };
      each->LostFocus = [this, name] { note(name + "_LostFocus"); };
    }
  }
  void watchValidate(Form& form) {
    for (const auto& each : form.controls()) {
      each->Validate = [this, name = toUtf8(each->Name())](bool&) { note(name + "_Validate"); };
    }
  }
  void watchClicks(Form& form) {
    for (const auto& each : form.controls()) {
      each->Click = [this, name = toUtf8(each->Name())] { note(name + "_Click"); };
    }
  }
  /// With the key code or the character behind the name.
  void watchKeys(Form& form) {
    watchKeys(form, "Form");
    for (const auto& each : form.controls()) watchKeys(*each, toUtf8(each->Name()));
  }
  void watchChange(TextEntry& entry) {
    entry.Change = [this, &entry] { note(toUtf8(entry.Name()) + "_Change"); };
  }
  /// With the form's name, and the mode behind QueryUnload.
  void watchLife(Form& form) {
    const std::string name = toUtf8(form.Name());
    form.Load = [this, name] { note(name + "_Load"); };
    form.Activate = [this, name] { note(name + "_Activate"); };
    form.QueryUnload = [this, name](int&, int mode) { note(name + "_QueryUnload:" + std::to_string(mode)); };
    form.Unload = [this, name](int&) { note(name + "_Unload"); };
  }

  // ---- the person

  /// Shows the form; `acts` runs once when it waits for the person. Forms may nest.
  void show(Form& form, std::function<void()> acts = {}) {
    acts_[&form] = std::move(acts);
    form.Show();
  }
  /// The answers to the next message boxes; without one the default button is pressed.
  std::deque<MsgBoxResult> answers;

  void press(int code, int shift = 0) { desktop.press(KeyStroke::ofCode(code, shift)); }
  void pressCtrl(char16_t letter) { desktop.press(KeyStroke::ofCharacter(letter, shift::Ctrl)); }
  void type(StringView text) {
    for (const char16_t unit : text) desktop.press(KeyStroke::ofCharacter(unit));
  }
  void click(Control& control) { desktop.click(control); }

  /// Full name of the control with the focus, "" for none.
  static std::string focusOf(const Form& form) {
    return form.ActiveControl() == nullptr ? "" : toUtf8(form.ActiveControl()->fullName());
  }

  headless::HeadlessDesktop desktop;

 private:
  template <class Owner>
  void watchKeys(Owner& owner, const std::string& name) {
    owner.KeyDown = [this, name](int& code, int) { note(name + "_KeyDown:" + std::to_string(code)); };
    owner.KeyPress = [this, name](int& ascii) { note(name + "_KeyPress:" + std::to_string(ascii)); };
    owner.KeyUp = [this, name](int code, int) { note(name + "_KeyUp:" + std::to_string(code)); };
  }

  void messageBoxOpened(const MessageBox& box) override { note("[" + toUtf8(box.text) + "]"); }
  bool runtimeErrorRaised(Form&, StringView procedure, const RuntimeError& failure) override {
    note("!" + toUtf8(procedure) + ":" + std::to_string(failure.number()));
    return true;
  }
  void failurePassedOver(Form&, StringView procedure, const RuntimeError& failure) override {
    note("~" + toUtf8(procedure) + ":" + std::to_string(failure.number()));
  }

  void idle() {
    if (const MessageBox* box = desktop.openMessageBox()) {
      MsgBoxResult answer = box->buttons()[static_cast<std::size_t>(box->defaultButton() - 1)];
      if (!answers.empty()) {
        answer = answers.front();
        answers.pop_front();
      }
      if (!desktop.answer(answer)) throw std::logic_error("the message box has no such button");
      return;
    }
    Form& form = *desktop.activeForm();
    if (const auto acts = std::exchange(acts_[&form], nullptr)) return acts();
    form.closeBox();
    if (form.Visible()) throw std::logic_error("the form refused its close box");
  }

  Desktop::Scope scope_{desktop};
  std::map<Form*, std::function<void()>> acts_;
  std::vector<std::string> line_;
};

}  // namespace zqn::testing
