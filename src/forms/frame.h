// SPDX-License-Identifier: MIT
//
// A frame around other controls, which name it as their container. It never takes the focus; hidden or
// disabled, so is what stands in it.
#pragma once

#include "forms/control.h"

namespace zqn {

class Frame : public Control {
 public:
  Frame(Form& form, const ControlDesign& design, int tabIndex);

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
