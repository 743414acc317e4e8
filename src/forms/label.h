// SPDX-License-Identifier: MIT
//
// A fixed text. It never takes the focus; `ForeColor` is the colour of its text.
#pragma once

#include "forms/control.h"

namespace zqn {

class Label : public Control {
 public:
  Label(Form& form, const ControlDesign& design, int tabIndex);

  const String& Caption() const noexcept { return caption_; }
  void Caption(StringView caption);

  bool takesFocus() const noexcept override { return false; }
  String content() const override { return caption_; }

 protected:
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  String caption_;
};

}  // namespace zqn
