// SPDX-License-Identifier: MIT
//
// A push button. Enter and Space press it when it has the focus; the form's Cancel button is pressed by Esc
// and its Default button by Enter from anywhere, without moving the focus, as long as it is visible and
// enabled.
#pragma once

#include "forms/captioned_control.h"
#include "forms/picture.h"

namespace zqn {

class CommandButton : public CaptionedControl {
 public:
  CommandButton(Form& form, const ControlDesign& design, int tabIndex);

  /// Shown in the middle, for a button without a caption; nullptr for none. The picture must outlive the
  /// button.
  const zqn::Picture* Picture() const noexcept { return picture_; }
  void Picture(const zqn::Picture* picture);
  bool Cancel() const noexcept { return cancel_; }
  bool Default() const noexcept { return default_; }

  bool ownKey(const KeyStroke& stroke) override;

 protected:
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  bool cancel_, default_;
  const zqn::Picture* picture_ = nullptr;
};

}  // namespace zqn
