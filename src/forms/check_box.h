// SPDX-License-Identifier: MIT
//
// A box with a caption. `Value` is 0, 1, or 2 for grey; a person switches between 0 and 1 and never reaches
// grey.
#pragma once

#include "forms/captioned_control.h"

namespace zqn {

class CheckBox : public CaptionedControl {
 public:
  CheckBox(Form& form, const ControlDesign& design, int tabIndex);

  int Value() const noexcept { return value_; }
  /// Raises Click when the value differs. Error 380 for anything but 0, 1, 2.
  void Value(int value);
  /// Assigns a field's value: converted to a whole number; errors 13, 94, 380.
  void Value(const Variant& value);

  bool ownKey(const KeyStroke& stroke) override;
  void clicked() override;

 protected:
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  int value_ = 0;
};

}  // namespace zqn
