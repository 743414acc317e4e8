// SPDX-License-Identifier: MIT
#include "forms/value_entry.h"

#include <algorithm>
#include <utility>

#include "runtime/convert.h"

namespace zqn {

ValueEntry::ValueEntry(Form& form, const ControlDesign& design, int tabIndex)
    : TextEntry(form, design, tabIndex) {}

void ValueEntry::show(StringView text) {
  const bool before = std::exchange(showing_, true);
  assignText(text);
  showing_ = before;
}

void ValueEntry::showValue() { show(focused_ ? editText() : displayText()); }

void ValueEntry::assignValue(Variant value) {
  const bool differs = value != value_;
  value_ = settled_ = std::move(value);
  showValue();
  if (differs) ValueChange.raise();
}

void ValueEntry::edited() {
  if (!showing_) took(read(Text()));
}

void ValueEntry::took(const std::optional<Variant>& typed) {
  const Variant before = value_;
  value_ = typed.value_or(settled_);
  const bool differs = value_ != before;
  Change.raise();
  if (differs) ValueChange.raise();
}

String ValueEntry::pastedAs(StringView text) const {
  String typed = Trim(TextEntry::pastedAs(text));
  std::ranges::transform(typed, typed.begin(), [this](char16_t c) { return typedAs(c); });
  return typed;
}

void ValueEntry::focusEntered() {
  TextEntry::focusEntered();
  focused_ = true;
  settled_ = value_;
  show(editText());
  selectAll();
}

void ValueEntry::focusLeft() {
  focused_ = false;
  show(displayText());
}

}  // namespace zqn
