// SPDX-License-Identifier: MIT
//
// A frame around other controls, which name it as their container. It never takes the focus; hidden or
// disabled, so is what stands in it.
#pragma once

#include "forms/captioned_control.h"

namespace zqn {

class Frame : public CaptionedControl {
 public:
  Frame(Form& form, const ControlDesign& design, int tabIndex) : CaptionedControl(form, design, tabIndex) {}

  bool takesFocus() const noexcept override { return false; }
};

}  // namespace zqn
