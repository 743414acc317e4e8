// SPDX-License-Identifier: MIT
//
// A field for one day as a text of fourteen digits, "20260301000000"; Null when it is empty. What code
// assigns is kept to the digit until somebody types, even when it stands for no day and nothing is shown.
//
//     txtDatumVon.Value(u"20260301000000");  // shows "01.03.2026"
#pragma once

#include "forms/day_entry.h"

namespace zqn {

class DateInput : public DayEntry {
 public:
  DateInput(Form& form, const ControlDesign& design, int tabIndex);

  /// A text, or Null.
  using ValueEntry::Value;
  /// Null, or anything that converts to text; the empty text is Null. Raises ValueChange when it differs.
  void Value(const Variant& value);

  Variant day() const override;
  /// The text is no day: Value is Null, and the text goes when the focus leaves.
  bool isInvalid() const override { return !read(Text()).has_value(); }

 protected:
  Variant valueOf(const Variant& day) const override;
  /// While the text is no day, Value is Null; ValueChange comes when it is a whole day, or empty.
  void took(const std::optional<Variant>& typed) override;
  const PropertyEntry* findProperty(StringView name) const override;
};

}  // namespace zqn
