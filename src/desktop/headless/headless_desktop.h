// SPDX-License-Identifier: MIT
//
// A desktop without a screen: forms run as they do in a window, and a program acts as the person. It acts
// from the idle step:
//
//     HeadlessDesktop desktop;
//     Desktop::Scope scope(desktop);
//     desktop.whenIdle([&] { desktop.press(KeyStroke::ofCode(key::F9)); ... });
//
// Without an idle step nobody is there: open forms are closed by their close box, one that refuses it by the
// button that backs out, and message boxes get their default answer.
#pragma once

#include <optional>

#include "forms/desktop.h"

namespace zqn::headless {

/// The button that backs out of a form: the one that Esc presses, else the one that is called so; nullptr for
/// none that can be pressed.
Control* cancelButton(const Form& form);

class HeadlessDesktop : public Desktop {
 public:
  // ---- the person; each acts on the form on top, and does nothing while a message box is open

  /// Presses and releases a key. The release belongs to whoever has the focus by then: a form that the press
  /// has opened.
  void press(const KeyStroke& stroke);
  /// Presses the keys that forms have queued until none is left.
  void pressQueuedKeys();
  /// A click of the left button on a control: moves the focus, and has its effect when the form lets it. In a
  /// text it falls behind the last character.
  void click(Control& control);
  /// The first half of it; False when the form lets no release follow.
  bool mouseDown(Control& control);
  /// Answers the open message box; false when none is open or it lacks the button.
  bool answer(MsgBoxResult result);
  /// Takes an item of the open menu, or none with nullptr; False when none is open, or it lacks the item, or
  /// the item is disabled. Esc takes none, too.
  bool take(Menu* item);

  void doEvents() override;
  void copyToClipboard(StringView text) override { clipboard_ = text; }
  String clipboardText() const override { return clipboard_; }

 protected:
  void openWindow(Form&) override {}
  void closeWindow(Form&) override {}
  void runLoop(const std::function<bool()>& done) override;
  MsgBoxResult runMessageBox(const MessageBox& box) override;
  Menu* runPopupMenu(Menu& menu) override;

 private:
  void release();
  void leaveAlone();

  String clipboard_;
  std::optional<MsgBoxResult> answer_;
  std::optional<Menu*> taken_;
  /// The key that is down.
  std::optional<KeyStroke> down_;
};

}  // namespace zqn::headless
