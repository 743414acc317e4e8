// SPDX-License-Identifier: MIT
#include "host/script/headless_user.h"

#include "forms/tdb_list.h"

namespace zqn::script {

void HeadlessUser::mouseDown(const Spot& spot) {
  pressed_ = spot.control.form().mousePressed(spot.control);
  auto* list = dynamic_cast<TDBList*>(&spot.control);
  if (pressed_ && list != nullptr && spot.row >= 0) list->userSelect(spot.row);
}

void HeadlessUser::mouseUp(const Spot& spot) {
  if (pressed_) spot.control.form().mouseReleased(spot.control);
  pressed_ = false;
}

void HeadlessUser::mouseDownAgain(const Spot& spot) {
  if (auto* list = dynamic_cast<TDBList*>(&spot.control)) list->userDoubleClick(spot.row);
}

void HeadlessUser::keyDown(Form& form, const Key& key) {
  const String units = key.text.empty() ? String(1, u'\0') : key.text;
  for (const char16_t unit : units) {
    const KeyOutcome outcome = form.keyPressed({key.code, key.shift, unit});
    if (outcome.own) form.ActiveControl()->ownKey(outcome.stroke);
  }
}

void HeadlessUser::keyUp(Form& form, const Key& key) { form.keyReleased(key.code, key.shift); }

}  // namespace zqn::script
