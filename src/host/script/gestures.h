// SPDX-License-Identifier: MIT
//
// What a person does as one thing, a click, a double click, a key, a typed text, made of the movements of
// UserInput; and what becomes of it when a message box or a form comes up in the middle: the rest of a click
// goes nowhere, a key is released over whatever is on top by then, and typing goes on when the form is on top
// again.
#pragma once

#include <chrono>
#include <deque>
#include <optional>
#include <vector>

#include "forms/desktop.h"
#include "host/script/user_input.h"

namespace zqn::script {

class Gestures {
 public:
  Gestures(Desktop& desktop, UserInput& input) : desktop_(desktop), input_(input) {}

  void click(const MouseTarget& target);
  void doubleClick(const MouseTarget& target);
  void mouseDown(const MouseTarget& target) { input_.mouseDown(target); }
  void mouseUp(const MouseTarget& target) { input_.mouseUp(target); }
  /// Presses on one target, releases on another one of the same control.
  void drag(const MouseTarget& from, const MouseTarget& to);
  void press(Form& form, const Key& key);
  /// Begins to type; typeOn presses key by key, so that what a key sets off is over before the next.
  void type(Form& form, const std::vector<Key>& keys);
  /// Presses the next key of the text being typed; False when there is none for the form on top.
  bool typeOn();
  /// Releases the key that is held down, False when none is. To be called before anything else is done in a
  /// nested modal loop.
  bool letGo();
  /// Does nothing for so long; timers run.
  void rest(std::chrono::milliseconds time);
  /// A moment of the rest has passed; False when it is over.
  bool restOn();
  /// What timers go by: time passes for them while the user rests, and never otherwise, so that a script
  /// comes to the same transcript on a slow machine.
  std::chrono::milliseconds time() const noexcept { return time_; }

  // ---- what has happened meanwhile

  void somethingOpened() noexcept { ++interruptions_; }
  void formClosed(const Form& form);

 private:
  struct Typing {
    Form* form;
    std::deque<Key> keys;
  };

  /// The press, and the release unless something came up: False when the click is over.
  bool pressAndRelease(const MouseTarget& target, void (UserInput::*down)(const MouseTarget&));

  Desktop& desktop_;
  UserInput& input_;
  std::optional<Key> held_;
  std::vector<Typing> typing_;
  int interruptions_ = 0;
  std::chrono::milliseconds time_{0};
  std::chrono::milliseconds restsUntil_{0};
};

}  // namespace zqn::script
