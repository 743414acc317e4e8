// SPDX-License-Identifier: MIT
//
// What a form shows and nobody acts on: a line that fills its place.
#pragma once

#include "forms/control.h"

namespace zqn {

class Shape : public Control {
 public:
  using Control::Control;
  bool takesFocus() const noexcept override { return false; }
};

}  // namespace zqn
