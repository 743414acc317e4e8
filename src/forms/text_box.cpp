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

int TextBox::startOfLine(int position) const {
  const auto before = StringView(Text()).substr(0, static_cast<std::size_t>(position)).rfind(u'\n');
  return before == StringView::npos ? 0 : static_cast<int>(before) + 1;
}

int TextBox::endOfLine(int position) const {
  const auto end = Text().find(u'\n', static_cast<std::size_t>(position));
  if (end == String::npos) return static_cast<int>(Text().size());
  const bool afterReturn = end > 0 && Text()[end - 1] == u'\r';
  return static_cast<int>(afterReturn ? end - 1 : end);
}

bool TextBox::ownKey(const KeyStroke& stroke) {
  const bool ctrl = (stroke.shift & shift::Ctrl) != 0;
  if (!MultiLine() || (stroke.shift & shift::Alt) != 0) return TextEntry::ownKey(stroke);
  if (stroke.code == key::Enter) {
    replaceSelection(lineBreak);
    return true;
  }
  if (ctrl) return TextEntry::ownKey(stroke);
  const bool extend = (stroke.shift & shift::Shift) != 0;
  const int start = startOfLine(caret());
  const int end = endOfLine(caret());
  const int column = caret() - start;
  switch (stroke.code) {
    case key::Home:
      moveCaret(start, extend);
      return true;
    case key::End:
      moveCaret(end, extend);
      return true;
    case key::Up:
      if (start > 0) {
        const int above = startOfLine(start - 1);
        moveCaret(std::min(above + column, endOfLine(above)), extend);
      }
      return true;
    case key::Down:
      if (end < static_cast<int>(Text().size())) {
        const int below = static_cast<int>(Text().find(u'\n', static_cast<std::size_t>(end))) + 1;
        moveCaret(std::min(below + column, endOfLine(below)), extend);
      }
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
