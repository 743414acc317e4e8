// SPDX-License-Identifier: MIT
#include "forms/text_box.h"

#include <algorithm>

#include "forms/desktop.h"

namespace zqn {

TextBox::TextBox(Form& form, const ControlDesign& design, int tabIndex)
    : Control(form, design, tabIndex),
      text_(design.text),
      maxLength_(design.other.MaxLength),
      alignment_(design.other.Alignment) {}

void TextBox::Text(StringView text) {
  if (maxLength_ > 0) text = text.substr(0, static_cast<std::size_t>(maxLength_));
  if (text_ == text) return;
  text_ = text;
  selStart_ = selLength_ = 0;
  caretAtStart_ = false;
  changed();
  Change.raise();
}

void TextBox::MaxLength(int length) {
  if (length < 0) throw RuntimeError(error::InvalidPropertyValue);
  if (maxLength_ == length) return;
  maxLength_ = length;
  changed();
}

void TextBox::Alignment(zqn::Alignment alignment) {
  if (alignment_ == alignment) return;
  alignment_ = alignment;
  changed();
}

void TextBox::SelStart(int start) {
  if (start < 0) throw RuntimeError(error::InvalidPropertyValue);
  moveCaret(start, false);
}

void TextBox::SelLength(int length) {
  if (length < 0) throw RuntimeError(error::InvalidPropertyValue);
  selLength_ = std::min(length, static_cast<int>(text_.size()) - selStart_);
  caretAtStart_ = false;
  changed();
}

void TextBox::userEdited(StringView text, int selStart, int selLength) {
  userSelected(0, 0);
  const bool differs = text_ != text;
  text_ = text;
  userSelected(selStart, selLength);
  if (!differs) return;
  changed();
  Change.raise();
}

void TextBox::userSelected(int selStart, int selLength) {
  const int size = static_cast<int>(text_.size());
  selStart_ = std::clamp(selStart, 0, size);
  selLength_ = std::clamp(selLength, 0, size - selStart_);
  caretAtStart_ = false;
}

void TextBox::userPasted(StringView text) {
  // A one-line field takes the lines of a text as words of one line.
  String line;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') continue;
    line += text[i] == u'\r' || text[i] == u'\n' ? u' ' : text[i];
  }
  replaceSelection(line);
}

void TextBox::replaceSelection(StringView text) {
  if (maxLength_ > 0) {
    const int room = std::max(0, maxLength_ - (static_cast<int>(text_.size()) - selLength_));
    text = text.substr(0, static_cast<std::size_t>(room));
  }
  String edited = text_;
  edited.replace(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_), text);
  const int caret = selStart_ + static_cast<int>(text.size());
  userEdited(edited, caret, 0);
}

void TextBox::moveCaret(int position, bool extend) {
  const int anchor = caretAtStart_ ? selStart_ + selLength_ : selStart_;
  position = std::clamp(position, 0, static_cast<int>(text_.size()));
  selStart_ = extend ? std::min(anchor, position) : position;
  selLength_ = extend ? std::abs(anchor - position) : 0;
  caretAtStart_ = extend && position < anchor;
  changed();
}

bool TextBox::ownKey(const KeyStroke& stroke) {
  const bool control = (stroke.shift & shift::Ctrl) != 0;
  const bool extend = (stroke.shift & shift::Shift) != 0;
  const int caret = caretAtStart_ ? selStart_ : selStart_ + selLength_;
  const String selected =
      text_.substr(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_));
  if (control) {
    switch (stroke.code) {
      case 'A':
        userSelected(0, static_cast<int>(text_.size()));
        changed();
        return true;
      case 'C':
      case 'X':
        if (!selected.empty()) {
          Desktop::current().copyToClipboard(selected);
          if (stroke.code == 'X') replaceSelection(u"");
        }
        return true;
      case 'V':
        userPasted(Desktop::current().clipboardText());
        return true;
      case key::Home:
      case key::End:
        break;
      default:
        return false;
    }
  }
  switch (stroke.code) {
    case key::Left:
      moveCaret(selLength_ > 0 && !extend ? selStart_ : caret - 1, extend);
      return true;
    case key::Right:
      moveCaret(selLength_ > 0 && !extend ? selStart_ + selLength_ : caret + 1, extend);
      return true;
    case key::Home:
      moveCaret(0, extend);
      return true;
    case key::End:
      moveCaret(static_cast<int>(text_.size()), extend);
      return true;
    case key::Delete:
      if (selLength_ == 0) userSelected(selStart_, 1);
      replaceSelection(u"");
      return true;
    case key::Backspace:
      if (selLength_ == 0 && selStart_ > 0) userSelected(selStart_ - 1, 1);
      replaceSelection(u"");
      return true;
    default:
      break;
  }
  if (stroke.character < u' ' || stroke.character == u'\x7f') return false;
  replaceSelection(StringView(&stroke.character, 1));
  return true;
}

const PropertyEntry* TextBox::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      {u"Text", [](const Control& c) { return Variant(static_cast<const TextBox&>(c).Text()); },
       [](Control& c, const Variant& value) { static_cast<TextBox&>(c).Text(value); }},
      {u"MaxLength",
       [](const Control& c) { return Variant(std::int32_t{static_cast<const TextBox&>(c).MaxLength()}); },
       [](Control& c, const Variant& value) { static_cast<TextBox&>(c).MaxLength(CLng(value)); }},
      {u"SelStart",
       [](const Control& c) { return Variant(std::int32_t{static_cast<const TextBox&>(c).SelStart()}); },
       [](Control& c, const Variant& value) { static_cast<TextBox&>(c).SelStart(CLng(value)); }},
      {u"SelLength",
       [](const Control& c) { return Variant(std::int32_t{static_cast<const TextBox&>(c).SelLength()}); },
       [](Control& c, const Variant& value) { static_cast<TextBox&>(c).SelLength(CLng(value)); }},
      {u"Alignment",
       [](const Control& c) {
         return Variant(static_cast<std::int32_t>(static_cast<const TextBox&>(c).Alignment()));
       },
       nullptr},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : Control::findProperty(name);
}

}  // namespace zqn
