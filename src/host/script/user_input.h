// SPDX-License-Identifier: MIT
//
// What a person can do and see at a desktop, one movement each. A desktop with a screen delivers
// real events to its widgets; the headless one feeds the form. Which movements make a click, and what a
// person may do at all, is decided above (gestures.h, user_actions.cpp).
//
//     input.mouseDown({form.control(u"btnOK")});
//     input.mouseUp({form.control(u"btnOK")});
#pragma once

#include <filesystem>
#include <vector>

#include "forms/control.h"
#include "forms/form.h"
#include "forms/menu.h"
#include "forms/message_box.h"

namespace zqn::script {

/// One key as a person presses it.
struct Key {
  /// The platform's key code (forms/keys.h), 0 for a character without one.
  int code = 0;
  /// Sum of the shift bits.
  int shift = 0;
  /// What the press types: nothing, one character, or the two halves of one beyond U+FFFF.
  String text;
  /// The character that the key stands for, whether it types it or not; empty for a key with a name.
  String sign = {};
};

/// Where the pointer is: on a control, and in a list on one of its rows, in a grid on a cell, -1 for none.
struct MouseTarget {
  Control& control;
  int row = -1;
  int col = -1;
  /// Which button: 1 left, 2 right.
  int button = 1;
  /// Sum of the shift bits of the keys held meanwhile.
  int shift = 0;
};

class UserInput {
 public:
  virtual ~UserInput() = default;

  /// The button goes down, or up again at the same place. A row is scrolled into view first.
  virtual void mouseDown(const MouseTarget& target) = 0;
  /// The pointer moves to another cell of a grid while the button is down.
  virtual void mouseMove(const MouseTarget& target) = 0;
  virtual void mouseUp(const MouseTarget& target) = 0;
  /// The second press of a double click.
  virtual void mouseDownAgain(const MouseTarget& target) = 0;

  /// Opens a drop-down and takes an entry, which is there.
  virtual void takeEntry(Control& control, int entry) = 0;

  /// Takes an item of the open popup menu, which can be taken; or closes the menu.
  virtual void takeItem(Menu& item) = 0;
  virtual void closeMenu() = 0;

  /// A key goes down, or up, while the form is on top.
  virtual void keyDown(Form& form, const Key& key) = 0;
  virtual void keyUp(Form& form, const Key& key) = 0;

  /// The close box of the form's window.
  virtual void closeBox(Form& form) = 0;
  /// A button that the open message box has.
  virtual void answer(MsgBoxResult button) = 0;

  /// Writes the form's window as a picture; nothing on a desktop without a screen. False when the file cannot
  /// be written.
  virtual bool screenshot(Form& /*form*/, const std::filesystem::path& /*file*/) { return true; }
  /// Where the window shows something else than the form says, a sentence each.
  virtual std::vector<String> differences(Form& /*form*/) { return {}; }
};

}  // namespace zqn::script
