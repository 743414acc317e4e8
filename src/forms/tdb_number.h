// SPDX-License-Identifier: MIT
//
// A field for one number. Its design's Format says how many digits a person may type and how the number
// stands in the field while it does not have the focus: "###0;;0;0" four digits, "##0.00;(##0.00);0;0" three
// and two; the four sections are positive, negative, zero and Null. Without a negative section no minus sign
// can be typed.
//
//     tdbnPercent.Value(2.5);  // shows "2,50"
//
// With the focus the field shows what is typed; comma and point both give the decimal sign. Value follows
// each key.
#pragma once

#include "forms/text_entry.h"

namespace zqn {

class TDBNumber : public TextEntry {
 public:
  TDBNumber(Form& form, const ControlDesign& design, int tabIndex);

  /// A Double, or Null when the field is empty.
  const Variant& Value() const noexcept { return value_; }
  /// Null, Empty (as 0), or anything that converts to a number; raises ValueChange, for the same number, too.
  /// Errors 13, 6; 380 for a number with more digits than the field holds, or a negative one where none may
  /// be.
  void Value(const Variant& value);

  /// Code has assigned the number, or typing has made it another one. Change tells of each edit by a person,
  /// whether the number differs or not.
  Event<> ValueChange{*this, u"ValueChange"};

  bool accepts(StringView text) const override;
  char16_t typedAs(char16_t character) const override;
  bool ownKey(const KeyStroke& stroke) override;
  void focusEntered() override;
  void focusLeft() override;

 protected:
  void edited() override;
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  struct Sections {
    String positive, negative, zero, null;
  };
  static Sections split(StringView format);
  String displayText() const;
  String editText() const;
  void show(StringView text);

  Sections format_;
  std::size_t digits_ = 0;
  std::size_t decimals_ = 0;
  Variant value_ = Null;
  bool focused_ = false;
  /// The text changes with the look of the field: no edit.
  bool showing_ = false;
};

}  // namespace zqn
