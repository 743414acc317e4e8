// SPDX-License-Identifier: MIT
#include "forms/tdb_date.h"

#include <cmath>

#include "runtime/convert.h"

namespace zqn {

TDBDate::TDBDate(Form& form, const ControlDesign& design, int tabIndex) : DayEntry(form, design, tabIndex) {
  showValue();
}

void TDBDate::Value(const Variant& value) {
  assignValue(value.isNull() ? Variant(Null) : Variant(Date{std::trunc(CDate(value).days)}));
}

String TDBDate::displayText() const { return Value().isNull() ? String(emptyMask) : editText(); }

const PropertyEntry* TDBDate::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Value", [](const Control& c) { return static_cast<const TDBDate&>(c).Value(); },
       [](Control& c, const Variant& value) { static_cast<TDBDate&>(c).Value(value); }},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : DayEntry::findProperty(name);
}

}  // namespace zqn
