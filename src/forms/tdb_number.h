// SPDX-License-Identifier: MIT
//
// A field for one number. Its design's Format says how many digits a person may type and how the number
// stands in the field: "###0;;0;0" four digits, "##0.00;(##0.00);0;0" three and two; the four sections are
// positive, negative, zero and Null. Without a negative section no minus sign can be typed.
//
//     tdbnPercent.Value(2.5);  // shows "2,50"
//
// Comma and point both give the decimal sign, typed or pasted.
#pragma once

#include "forms/value_entry.h"

namespace zqn {

class TDBNumber : public ValueEntry {
 public:
  TDBNumber(Form& form, const ControlDesign& design, int tabIndex);

  /// A Double, or Null when the field is empty.
  using ValueEntry::Value;
  /// Null, Empty (as 0), or anything that converts to a number; raises ValueChange, for the same number, too.
  /// The format binds typing alone: a number with more digits than it has is kept, and shown in full. Errors
  /// 13, 6.
  void Value(const Variant& value);

  bool accepts(StringView text) const override;
  char16_t typedAs(char16_t character) const override;

 protected:
  String displayText() const override;
  String editText() const override;
  std::optional<Variant> read(StringView typed) const override;
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  struct Sections {
    String positive, negative, zero, null;
  };
  static Sections split(StringView format);

  Sections format_;
  std::size_t digits_ = 0;
  std::size_t decimals_ = 0;
};

}  // namespace zqn
