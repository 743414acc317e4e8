// SPDX-License-Identifier: MIT
#include "forms/captioned_control.h"

#include "runtime/convert.h"

namespace zqn {

CaptionedControl::CaptionedControl(Form& form, const ControlDesign& design, int tabIndex)
    : Control(form, design, tabIndex), caption_(design.text) {
  BackColor(colour::ButtonFace);
}

void CaptionedControl::Caption(StringView caption) {
  if (caption_ == caption) return;
  caption_ = caption;
  changed();
}

const PropertyEntry* CaptionedControl::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Caption",
       [](const Control& c) { return Variant(static_cast<const CaptionedControl&>(c).Caption()); },
       [](Control& c, const Variant& value) { static_cast<CaptionedControl&>(c).Caption(CStr(value)); }},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : Control::findProperty(name);
}

}  // namespace zqn
