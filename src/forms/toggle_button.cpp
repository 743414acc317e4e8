// SPDX-License-Identifier: MIT
#include "forms/toggle_button.h"

#include "runtime/convert.h"

namespace zqn {

ToggleButton::ToggleButton(Form& form, const ControlDesign& design, int tabIndex)
    : CaptionedControl(form, design, tabIndex) {}

void ToggleButton::Value(bool value) {
  if (value_ == value) return;
  value_ = value;
  changed();
  Click.raise();
  Change.raise();
}

bool ToggleButton::ownKey(const KeyStroke& stroke) {
  if (stroke.character != u' ') return false;
  clicked();
  return true;
}

void ToggleButton::clicked() { Value(!value_); }

const PropertyEntry* ToggleButton::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Value", [](const Control& c) { return Variant(static_cast<const ToggleButton&>(c).Value()); },
       [](Control& c, const Variant& value) { static_cast<ToggleButton&>(c).Value(CBool(value)); }},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : CaptionedControl::findProperty(name);
}

}  // namespace zqn
