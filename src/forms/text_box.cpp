// SPDX-License-Identifier: MIT
#include "forms/text_box.h"

#include <algorithm>

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

// ---- several lines

namespace {

constexpr StringView lineBreak = u"\r\n";

}  // namespace

String TextBox::pastedAs(StringView text) const {
  return MultiLine() ? withBreaks(text, lineBreak) : TextEntry::pastedAs(text);
}

/// To the line that this place stands in, as far from its beginning as the caret is from its own.
void TextBox::moveToLine(int place, bool extend) {
  const int column = caret() - lineStart(Text(), caret());
  moveCaret(std::min(lineStart(Text(), place) + column, lineEnd(Text(), place)), extend);
}

bool TextBox::ownKey(const KeyStroke& stroke) {
  if (!MultiLine() || (stroke.shift & shift::Alt) != 0) return TextEntry::ownKey(stroke);
  if (stroke.code == key::Enter) {
    replaceSelection(lineBreak);
    return true;
  }
  if ((stroke.shift & shift::Ctrl) != 0) return TextEntry::ownKey(stroke);
  const bool extend = (stroke.shift & shift::Shift) != 0;
  const int size = static_cast<int>(Text().size());
  const int start = lineStart(Text(), caret());
  const int end = lineEnd(Text(), caret());
  switch (stroke.code) {
    case key::Up:
      if (start > 0) moveToLine(placeBefore(Text(), start), extend);
      return true;
    case key::Down:
      if (end < size) moveToLine(placeBehind(Text(), end), extend);
      return true;
    case key::PageUp:
      moveToLine(0, extend);
      return true;
    case key::PageDown:
      moveToLine(size, extend);
      return true;
    default:
      return TextEntry::ownKey(stroke);
  }
}

// ---- automation

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
      {u"MultiLine", [](const Control& c) { return Variant(static_cast<const TextBox&>(c).MultiLine()); },
       nullptr},
      {u"Locked", [](const Control& c) { return Variant(static_cast<const TextBox&>(c).Locked()); }, nullptr},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : TextEntry::findProperty(name);
}

}  // namespace zqn
