// SPDX-License-Identifier: MIT
#include "forms/date_input.h"

#include <algorithm>

#include "runtime/ascii.h"
#include "runtime/convert.h"

namespace zqn {

namespace {

constexpr std::size_t dayDigits = 8;  // yyyymmdd

}  // namespace

DateInput::DateInput(Form& form, const ControlDesign& design, int tabIndex)
    : DayEntry(form, design, tabIndex) {}

void DateInput::Value(const Variant& value) {
  const bool none = value.isNull() || CStr(value).empty();
  assignValue(none ? Variant(Null) : Variant(CStr(value)));
}

Variant DateInput::day() const {
  if (Value().isNull()) return Null;
  const String digits = Value().as<String>()->substr(0, dayDigits);
  const bool whole = digits.size() == dayDigits && std::ranges::all_of(digits, ascii::isDigit);
  if (!whole) return Null;
  return readDay(digits.substr(6, 2) + digits.substr(4, 2) + digits.substr(0, 4)).value_or(Variant(Null));
}

Variant DateInput::valueOf(const Variant& day) const {
  return day.isNull() ? Variant(Null) : Variant(Format(day, u"yyyymmdd") + u"000000");
}

void DateInput::took(const std::optional<Variant>& typed) {
  setValue(typed.value_or(Variant(Null)));
  Change.raise();
  if (typed) ValueChange.raise();
}

const PropertyEntry* DateInput::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Value", [](const Control& c) { return static_cast<const DateInput&>(c).Value(); },
       [](Control& c, const Variant& value) { static_cast<DateInput&>(c).Value(value); }},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : DayEntry::findProperty(name);
}

}  // namespace zqn
