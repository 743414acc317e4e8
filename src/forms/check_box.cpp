// SPDX-License-Identifier: MIT
#include "forms/check_box.h"

#include "runtime/convert.h"

namespace zqn {

CheckBox::CheckBox(Form& form, const ControlDesign& design, int tabIndex)
    : CaptionedControl(form, design, tabIndex) {}

void CheckBox::Value(int value) {
  if (value < 0 || value > 2) throw RuntimeError(error::InvalidPropertyValue);
  if (value_ == value) return;
  value_ = value;
  changed();
  Click.raise();
}

void CheckBox::Value(const Variant& value) { Value(int{CLng(value)}); }

bool CheckBox::ownKey(const KeyStroke& stroke) {
  if (stroke.character != u' ') return false;
  clicked();
  return true;
}

void CheckBox::clicked() { Value(value_ == 0 ? 1 : 0); }

const PropertyEntry* CheckBox::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Value",
       [](const Control& c) { return Variant(std::int32_t{static_cast<const CheckBox&>(c).Value()}); },
       [](Control& c, const Variant& value) { static_cast<CheckBox&>(c).Value(value); }},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : CaptionedControl::findProperty(name);
}

}  // namespace zqn
