// SPDX-License-Identifier: MIT
#include "forms/command_button.h"

namespace zqn {

CommandButton::CommandButton(Form& form, const ControlDesign& design, int tabIndex)
    : CaptionedControl(form, design, tabIndex),
      cancel_(design.other.Cancel),
      default_(design.other.Default) {}

void CommandButton::Picture(const zqn::Picture* picture) {
  picture_ = picture;
  changed();
}

bool CommandButton::ownKey(const KeyStroke& stroke) {
  if (stroke.character != u' ') return false;
  clicked();
  return true;
}

const PropertyEntry* CommandButton::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Cancel", [](const Control& c) { return Variant(static_cast<const CommandButton&>(c).Cancel()); },
       nullptr},
      {u"Default", [](const Control& c) { return Variant(static_cast<const CommandButton&>(c).Default()); },
       nullptr},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : CaptionedControl::findProperty(name);
}

}  // namespace zqn
