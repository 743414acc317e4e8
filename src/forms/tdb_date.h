// SPDX-License-Identifier: MIT
//
// A field for one day as a Date. Empty and without the focus it shows the mask "__.__.____"; it is Null then.
//
//     tdbdValidOf.Value(Today());
//
// Value follows each key; a text that is no day leaves it as it was before.
#pragma once

#include "forms/day_entry.h"

namespace zqn {

class TDBDate : public DayEntry {
 public:
  TDBDate(Form& form, const ControlDesign& design, int tabIndex);

  /// A Date without time, or Null.
  using ValueEntry::Value;
  /// Null, or anything that converts to a date; the time is dropped. Raises ValueChange when the day differs.
  /// Errors 13, 6.
  void Value(const Variant& value);

  Variant day() const override { return Value(); }

 protected:
  Variant valueOf(const Variant& day) const override { return day; }
  String displayText() const override;
  const PropertyEntry* findProperty(StringView name) const override;
};

}  // namespace zqn
