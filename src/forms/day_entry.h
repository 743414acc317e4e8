// SPDX-License-Identifier: MIT
//
// What the fields for one day share, "dd.mm.yyyy". A person types digits and points, or digits alone
// (two-digit years and a missing year are completed), takes today with F2, empties the field with F3, or
// picks from the calendar, which F4 opens in a window. A kind says what its Value makes of a day.
#pragma once

#include "forms/value_entry.h"

namespace zqn {

class DayEntry : public ValueEntry {
 public:
  /// The text that stands in the control in front of the date: "Gültig von:".
  const String& Caption() const noexcept { return caption_; }

  /// What a field without a date may show while it has not the focus; no date is wider.
  static constexpr StringView emptyMask = u"__.__.____";

  // ---- for toolkits

  /// The day that Value stands for, a Date; Null for none.
  virtual Variant day() const = 0;
  /// A person picks a day, or none with Null: by key, or from a calendar. Raises what typing raises.
  void userChose(const Variant& day);
  bool accepts(StringView text) const override;
  bool ownKey(const KeyStroke& stroke) override;

 protected:
  DayEntry(Form& form, const ControlDesign& design, int tabIndex);

  /// The Value that stands for a day, or for none: a Date, or Null.
  virtual Variant valueOf(const Variant& day) const = 0;
  /// What a typed text stands for: a Date, or Null for the empty text; nullopt while it is no day.
  static std::optional<Variant> readDay(StringView typed);
  String displayText() const override { return editText(); }
  String editText() const override;
  std::optional<Variant> read(StringView typed) const override;
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  String caption_;
};

}  // namespace zqn
