// SPDX-License-Identifier: MIT
//
// A place for a picture: decoration, or the store of a picture that a grid shows. It never takes the focus.
#pragma once

#include "forms/control.h"
#include "forms/picture.h"

namespace zqn {

class PictureBox : public Control {
 public:
  PictureBox(Form& form, const ControlDesign& design, int tabIndex);

  /// nullptr for none. The picture must outlive the box.
  const zqn::Picture* Picture() const noexcept { return picture_; }
  void Picture(const zqn::Picture* picture);

  bool takesFocus() const noexcept override { return false; }
  /// Name of the picture, "" for none.
  String content() const override;

 protected:
  /// "Picture" reads as the name of the picture.
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  const zqn::Picture* picture_ = nullptr;
};

}  // namespace zqn
