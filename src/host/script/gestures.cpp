// SPDX-License-Identifier: MIT
#include "host/script/gestures.h"

#include <algorithm>
#include <thread>
#include <utility>

namespace zqn::script {

bool Gestures::pressAndRelease(const MouseTarget& target, void (UserInput::*down)(const MouseTarget&)) {
  const int before = interruptions_;
  (input_.*down)(target);
  if (interruptions_ != before) return false;
  input_.mouseUp(target);
  return interruptions_ == before;
}

void Gestures::click(const MouseTarget& target) { pressAndRelease(target, &UserInput::mouseDown); }

void Gestures::doubleClick(const MouseTarget& target) {
  if (pressAndRelease(target, &UserInput::mouseDown)) pressAndRelease(target, &UserInput::mouseDownAgain);
}

void Gestures::drag(const MouseTarget& from, const MouseTarget& to) {
  const int before = interruptions_;
  input_.mouseDown(from);
  if (interruptions_ == before) input_.mouseMove(to);
  if (interruptions_ == before) input_.mouseUp(to);
}

void Gestures::press(Form& form, const Key& key) {
  held_ = key;
  input_.keyDown(form, key);
  letGo();
}

bool Gestures::letGo() {
  const std::optional<Key> key = std::exchange(held_, std::nullopt);
  if (!key) return false;
  Form* form = desktop_.activeForm();
  if (desktop_.openMessageBox() == nullptr && form != nullptr && form->Visible()) input_.keyUp(*form, *key);
  return true;
}

void Gestures::type(Form& form, const std::vector<Key>& keys) {
  if (!keys.empty()) typing_.push_back({&form, {keys.begin(), keys.end()}});
}

bool Gestures::typeOn() {
  Form* form = desktop_.activeForm();
  if (typing_.empty() || typing_.back().form != form) return false;
  if (desktop_.openMessageBox() != nullptr || !form->Visible()) return false;
  Typing& typing = typing_.back();
  const Key key = std::move(typing.keys.front());
  typing.keys.pop_front();
  if (typing.keys.empty()) typing_.pop_back();
  press(*form, key);
  return true;
}

void Gestures::rest(std::chrono::milliseconds time) { restsUntil_ = time_ + time; }

bool Gestures::restOn() {
  constexpr std::chrono::milliseconds moment{1};
  if (time_ >= restsUntil_) return false;
  std::this_thread::sleep_for(moment);
  time_ += moment;
  return true;
}

void Gestures::formClosed(const Form& form) {
  ++interruptions_;
  std::erase_if(typing_, [&](const Typing& typing) { return typing.form == &form; });
}

}  // namespace zqn::script
