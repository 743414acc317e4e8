// SPDX-License-Identifier: MIT
//
// What fields of numbers and of dates share: a text that stands for a value. Without the focus the field
// shows the value as its format says; with the focus what is typed, and Value follows each key. While what is
// typed is no value, Value is what it was when the focus came; that is shown again when the focus leaves.
//
//     tdbnPercent.Value(2.5);  // shows "2,50"
#pragma once

#include <optional>
#include <utility>

#include "forms/text_entry.h"

namespace zqn {

class ValueEntry : public TextEntry {
 public:
  /// Null when the field is empty.
  const Variant& Value() const noexcept { return value_; }

  /// The value is another one, by code or by typing. Change tells of each edit by a person, whether the value
  /// differs or not, and comes first.
  Event<> ValueChange{*this, u"ValueChange"};

  /// Without blanks around it, and each character as if it were typed.
  String pastedAs(StringView text) const override;
  void focusEntered() override;
  void focusLeft() override;

 protected:
  ValueEntry(Form& form, const ControlDesign& design, int tabIndex);

  /// How the value looks without the focus, and when the focus comes.
  virtual String displayText() const = 0;
  virtual String editText() const = 0;
  /// What a typed text stands for; nullopt while it is no value.
  virtual std::optional<Variant> read(StringView typed) const = 0;

  /// Code assigns the value: it is shown, and ValueChange comes when it differs.
  void assignValue(Variant value);
  void edited() override;
  /// A person has typed: what it stands for, nullopt while it is no value. Raises Change, and ValueChange
  /// when the value differs.
  virtual void took(const std::optional<Variant>& typed);
  /// Takes the value without showing it.
  void setValue(Variant value) { value_ = std::move(value); }
  /// Shows the value anew. A constructor calls it once the format is known.
  void showValue();

 private:
  void show(StringView text);

  Variant value_ = Null;
  /// The value when the focus came, or as code has assigned it since.
  Variant settled_ = Null;
  bool focused_ = false;
  /// The text changes with the look of the field: no edit.
  bool showing_ = false;
};

}  // namespace zqn
