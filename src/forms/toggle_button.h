// SPDX-License-Identifier: MIT
//
// A button that stays down: `Value` is True or False. Space and a click switch it.
#pragma once

#include "forms/captioned_control.h"

namespace zqn {

class ToggleButton : public CaptionedControl {
 public:
  ToggleButton(Form& form, const ControlDesign& design, int tabIndex);

  bool Value() const noexcept { return value_; }
  /// Raises Click and Change when it differs.
  void Value(bool value);

  Event<> Change{*this, u"Change"};

  bool ownKey(const KeyStroke& stroke) override;
  void clicked() override;

 protected:
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  bool value_ = false;
};

}  // namespace zqn
