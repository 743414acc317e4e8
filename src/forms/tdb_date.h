// SPDX-License-Identifier: MIT
//
// A field for one day, "dd.mm.yyyy". A person types digits and points, or digits alone (two-digit years and a
// missing year are completed), takes today with F2, empties it with F3, or picks from the calendar, which F4
// opens in a window. Empty and without the focus it shows the mask "__.__.____"; it is Null then.
//
//     tdbdValidOf.Value(Today());
//
// Value follows each key; a text that is no day leaves it as it was before.
#pragma once

#include "forms/value_entry.h"

namespace zqn {

class TDBDate : public ValueEntry {
 public:
  TDBDate(Form& form, const ControlDesign& design, int tabIndex);

  /// The text that stands in the control in front of the date: "Gültig von:".
  const String& Caption() const noexcept { return caption_; }

  /// A Date without time, or Null.
  using ValueEntry::Value;
  /// Null, or anything that converts to a date; the time is dropped. Raises ValueChange when the day differs.
  /// Errors 13, 6.
  void Value(const Variant& value);

  /// What stands in the field while it is empty and without the focus.
  static constexpr StringView emptyMask = u"__.__.____";

  // ---- for toolkits

  /// A person picks a day, or none with Null: by key, or from a calendar. Raises what typing raises.
  void userChose(const Variant& day);
  bool accepts(StringView text) const override;
  bool ownKey(const KeyStroke& stroke) override;

 protected:
  String displayText() const override;
  String editText() const override;
  std::optional<Variant> read(StringView typed) const override;
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  String caption_;
};

}  // namespace zqn
