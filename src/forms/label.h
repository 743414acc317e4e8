// SPDX-License-Identifier: MIT
//
// A fixed text. It never takes the focus; `ForeColor` is the colour of its text.
#pragma once

#include "forms/captioned_control.h"

namespace zqn {

class Label : public CaptionedControl {
 public:
  Label(Form& form, const ControlDesign& design, int tabIndex) : CaptionedControl(form, design, tabIndex) {}

  bool takesFocus() const noexcept override { return false; }
};

}  // namespace zqn
