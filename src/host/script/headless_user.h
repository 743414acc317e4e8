// SPDX-License-Identifier: MIT
//
// The scripted user's input on the desktop without a screen: each movement goes to the form, in the calls
// that a window would make.
#pragma once

#include "desktop/headless/grid_mouse.h"
#include "desktop/headless/headless_desktop.h"
#include "host/script/user_input.h"

namespace zqn::script {

class HeadlessUser : public UserInput {
 public:
  explicit HeadlessUser(headless::HeadlessDesktop& desktop) : desktop_(desktop) {}

  void mouseDown(const MouseTarget& target) override;
  void mouseMove(const MouseTarget& target) override;
  void mouseUp(const MouseTarget& target) override;
  void mouseDownAgain(const MouseTarget& target) override;
  void takeEntry(Control& control, int entry) override;
  void takeItem(Menu& item) override { desktop_.take(&item); }
  void closeMenu() override { desktop_.take(nullptr); }
  void keyDown(Form& form, const Key& key) override;
  void keyUp(Form& form, const Key& key) override;
  void closeBox(Form& form) override;
  void answer(MsgBoxResult button) override { desktop_.answer(button); }

 private:
  headless::HeadlessDesktop& desktop_;
  headless::GridMouse gridMouse_;
  /// The form let the press pass, so a release belongs to the control.
  bool pressed_ = false;
};

}  // namespace zqn::script
