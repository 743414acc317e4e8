// SPDX-License-Identifier: MIT
//
// What labels, frames, menus and all kinds of buttons share: a caption. An "&" in it marks the letter that
// leads there with Alt (names.h).
#pragma once

#include "forms/control.h"

namespace zqn {

class CaptionedControl : public Control {
 public:
  const String& Caption() const noexcept { return caption_; }
  void Caption(StringView caption);

  String content() const override { return caption_; }

 protected:
  CaptionedControl(Form& form, const ControlDesign& design, int tabIndex);

  const PropertyEntry* findProperty(StringView name) const override;

 private:
  String caption_;
};

}  // namespace zqn
