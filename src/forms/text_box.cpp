// SPDX-License-Identifier: MIT
#include "forms/text_box.h"

namespace zqn {

TextBox::TextBox(Form& form, const ControlDesign& design, int tabIndex)
    : TextEntry(form, design, tabIndex), alignment_(design.other.Alignment) {
  limitLength(design.other.MaxLength);
}

void TextBox::Text(StringView text) {
  if (MaxLength() > 0) text = cutToLength(text, MaxLength());
  assignText(text);
}

void TextBox::MaxLength(int length) {
  if (length < 0) throw RuntimeError(error::InvalidPropertyValue);
  if (MaxLength() == length) return;
  limitLength(length);
  changed();
}

void TextBox::Alignment(zqn::Alignment alignment) {
  if (alignment_ == alignment) return;
  alignment_ = alignment;
  changed();
}

const PropertyEntry* TextBox::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Text", [](const Control& c) { return Variant(static_cast<const TextBox&>(c).Text()); },
       [](Control& c, const Variant& value) { static_cast<TextBox&>(c).Text(value); }},
      {u"MaxLength",
       [](const Control& c) { return Variant(std::int32_t{static_cast<const TextBox&>(c).MaxLength()}); },
       [](Control& c, const Variant& value) { static_cast<TextBox&>(c).MaxLength(CLng(value)); }},
      {u"Alignment",
       [](const Control& c) {
         return Variant(static_cast<std::int32_t>(static_cast<const TextBox&>(c).Alignment()));
       },
       nullptr},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : TextEntry::findProperty(name);
}

}  // namespace zqn
