// SPDX-License-Identifier: MIT
#include "forms/option_button.h"

#include <algorithm>

#include "forms/form.h"
#include "runtime/convert.h"

namespace zqn {

OptionButton::OptionButton(Form& form, const ControlDesign& design, int tabIndex)
    : CaptionedControl(form, design, tabIndex), value_(design.other.Value) {}

std::vector<OptionButton*> OptionButton::group() const {
  std::vector<OptionButton*> options;
  for (const auto& each : form().controls()) {
    auto* option = dynamic_cast<OptionButton*>(each.get());
    if (option != nullptr && option->container() == container()) options.push_back(option);
  }
  return options;
}

void OptionButton::Value(bool value) {
  if (value) TabStop(true);
  if (value_ == value) return;
  value_ = value;
  changed();
  if (!value) return;
  for (OptionButton* other : group()) {
    if (other == this || !other->value_) continue;
    other->value_ = false;
    other->changed();
  }
  Click.raise();
}

bool OptionButton::isTabStop() const {
  if (!TabStop()) return false;
  return value_ || std::ranges::none_of(group(), [](const OptionButton* each) { return each->value_; });
}

void OptionButton::focusSettled(FocusCause cause) {
  // A press of the mouse chooses when it is released.
  if (cause != FocusCause::Mouse) Value(true);
}

OptionButton* OptionButton::neighbour(int step) const {
  const std::vector<OptionButton*> options = group();
  const int count = static_cast<int>(options.size());
  int at = static_cast<int>(std::ranges::find(options, this) - options.begin());
  do {
    at = (at + step + count) % count;
  } while (!options[static_cast<std::size_t>(at)]->isUsable());
  return options[static_cast<std::size_t>(at)];
}

bool OptionButton::ownKey(const KeyStroke& stroke) {
  if (stroke.shift != shift::None) return false;
  switch (stroke.code) {
    case key::Up:
    case key::Left:
      neighbour(-1)->SetFocus();
      return true;
    case key::Down:
    case key::Right:
      neighbour(1)->SetFocus();
      return true;
    default:
      break;
  }
  if (stroke.character != u' ') return false;
  clicked();
  return true;
}

const PropertyEntry* OptionButton::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Value", [](const Control& c) { return Variant(static_cast<const OptionButton&>(c).Value()); },
       [](Control& c, const Variant& value) { static_cast<OptionButton&>(c).Value(CBool(value)); }},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : CaptionedControl::findProperty(name);
}

}  // namespace zqn
