// SPDX-License-Identifier: MIT
//
// A field for one day, "dd.mm.yyyy". A person types digits and points (two-digit years and a missing year are
// completed), takes today with F2, empties it with F3, or picks from the calendar, which F4 opens in a
// window. Empty it shows the mask "__.__.____" and is Null.
//
// `Value` follows each key as soon as the text is a day, or empty. What is no day when the focus leaves gives
// way to the last value.
#pragma once

#include "forms/text_entry.h"

namespace zqn {

class TDBDate : public TextEntry {
 public:
  TDBDate(Form& form, const ControlDesign& design, int tabIndex);

  /// The text that stands in the control in front of the date: "Gültig von:".
  const String& Caption() const noexcept { return caption_; }

  /// A Date without time, or Null.
  const Variant& Value() const noexcept { return value_; }
  /// Null, or anything that converts to a date; the time is dropped. Raises ValueChange when the day differs.
  /// Error 13.
  void Value(const Variant& value);

  Event<> ValueChange{*this, u"ValueChange"};

  /// What stands in the field while it is empty and without the focus.
  static constexpr StringView emptyMask = u"__.__.____";

  bool accepts(StringView text) const override;
  bool ownKey(const KeyStroke& stroke) override;
  void focusEntered() override;
  void focusLeft() override;

 protected:
  void edited() override;
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  void show(StringView text);
  void become(Variant value);
  String dayText() const;

  String caption_;
  Variant value_ = Null;
  bool showing_ = false;
};

}  // namespace zqn
