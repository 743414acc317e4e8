// SPDX-License-Identifier: MIT
//
// A button that stays down: `Value` is True or False. Space and a click switch it.
#pragma once

#include "forms/control.h"

namespace zqn {

class ToggleButton : public Control {
 public:
  ToggleButton(Form& form, const ControlDesign& design, int tabIndex);

  const String& Caption() const noexcept { return caption_; }
  void Caption(StringView caption);
  bool Value() const noexcept { return value_; }
  /// Raises Click and Change when it differs.
  void Value(bool value);

  Event<> Change{*this, u"Change"};

  bool ownKey(const KeyStroke& stroke) override;
  void clicked() override;
  String content() const override { return caption_; }

 protected:
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  String caption_;
  bool value_ = false;
};

}  // namespace zqn
