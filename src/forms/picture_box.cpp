// SPDX-License-Identifier: MIT
#include "forms/picture_box.h"

namespace zqn {

PictureBox::PictureBox(Form& form, const ControlDesign& design, int tabIndex)
    : Control(form, design, tabIndex) {
  BackColor(colour::ButtonFace);
}

void PictureBox::Picture(const zqn::Picture* picture) {
  if (picture_ == picture) return;
  picture_ = picture;
  changed();
}

String PictureBox::content() const { return picture_ != nullptr ? String(picture_->name) : String(); }

const PropertyEntry* PictureBox::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Picture", [](const Control& c) { return Variant(c.content()); }, nullptr},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : Control::findProperty(name);
}

}  // namespace zqn
