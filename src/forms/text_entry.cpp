// SPDX-License-Identifier: MIT
#include "forms/text_entry.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "forms/desktop.h"
#include "runtime/convert.h"
#include "runtime/unicode.h"

namespace zqn {

namespace {

/// The two units of a character beyond U+FFFF, or of a line break, meet at this position: a caret cannot
/// stand there.
bool splitsPair(StringView text, int position) {
  const auto at = static_cast<std::size_t>(position);
  if (position <= 0 || at >= text.size()) return false;
  return (unicode::isHighSurrogate(text[at - 1]) && unicode::isLowSurrogate(text[at])) ||
         (text[at - 1] == u'\r' && text[at] == u'\n');
}

int before(StringView text, int position) {
  return splitsPair(text, position - 1) ? position - 2 : position - 1;
}
int behind(StringView text, int position) {
  return splitsPair(text, position + 1) ? position + 2 : position + 1;
}

}  // namespace

StringView cutToLength(StringView text, int units) {
  if (units >= static_cast<int>(text.size())) return text;
  return text.substr(0, static_cast<std::size_t>(splitsPair(text, units) ? units - 1 : units));
}

String withBreaks(StringView text, StringView lineBreak) {
  String all;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const bool isBreak = text[i] == u'\r' || text[i] == u'\n';
    all += isBreak ? lineBreak : text.substr(i, 1);
    if (text[i] == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
  }
  return all;
}

TextEntry::TextEntry(Form& form, const ControlDesign& design, int tabIndex)
    : Control(form, design, tabIndex), text_(design.text) {}

void TextEntry::assignText(StringView text) {
  if (text_ == text) return;
  text_ = text;
  selStart_ = selLength_ = 0;
  caretAtStart_ = false;
  changed();
  edited();
}

void TextEntry::SelStart(int start) {
  if (start < 0) throw RuntimeError(error::InvalidPropertyValue);
  moveCaret(start, false);
}

void TextEntry::SelLength(int length) {
  if (length < 0) throw RuntimeError(error::InvalidPropertyValue);
  selLength_ = std::min(length, static_cast<int>(text_.size()) - selStart_);
  caretAtStart_ = false;
  changed();
}

// ---- a person edits

void TextEntry::userEdited(StringView text, int selStart, int selLength) {
  const bool differs = text_ != text;
  if (differs && (isReadOnly() || !accepts(text))) return changed();
  text_ = text;
  userSelected(selStart, selLength);
  if (!differs) return;
  changed();
  edited();
}

void TextEntry::userSelected(int selStart, int selLength) {
  const int size = static_cast<int>(text_.size());
  selStart_ = std::clamp(selStart, 0, size);
  selLength_ = std::clamp(selLength, 0, size - selStart_);
  caretAtStart_ = false;
}

String TextEntry::pastedAs(StringView text) const { return withBreaks(text, u" "); }

bool TextEntry::pasteTaken(StringView text) {
  bool taken = false;
  Paste.raise(text, taken);
  return taken;
}

void TextEntry::userPasted(StringView text) {
  if (!text.empty() && !pasteTaken(text)) replaceSelection(pastedAs(text));
}

void TextEntry::replaceSelection(StringView text) {
  if (lengthLimit_ > 0) {
    const int room = std::max(0, lengthLimit_ - (static_cast<int>(text_.size()) - selLength_));
    text = cutToLength(text, room);
  }
  String edited = text_;
  edited.replace(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_), text);
  userEdited(edited, selStart_ + static_cast<int>(text.size()), 0);
}

void TextEntry::moveCaret(int position, bool extend) {
  const int anchor = caretAtStart_ ? selStart_ + selLength_ : selStart_;
  position = std::clamp(position, 0, static_cast<int>(text_.size()));
  selStart_ = extend ? std::min(anchor, position) : position;
  selLength_ = extend ? std::abs(anchor - position) : 0;
  caretAtStart_ = extend && position < anchor;
  changed();
}

bool TextEntry::ownControlKey(const KeyStroke& stroke) {
  const String selected =
      text_.substr(static_cast<std::size_t>(selStart_), static_cast<std::size_t>(selLength_));
  switch (stroke.code) {
    case 'A':
      userSelected(0, static_cast<int>(text_.size()));
      changed();
      return true;
    case 'C':
    case 'X':
      if (selected.empty()) return true;
      Desktop::current().copyToClipboard(selected);
      if (stroke.code == 'X') replaceSelection(u"");
      return true;
    case 'V':
      userPasted(Desktop::current().clipboardText());
      return true;
    default:
      return false;
  }
}

bool TextEntry::ownKey(const KeyStroke& stroke) {
  const char16_t firstHalf = std::exchange(firstHalf_, u'\0');
  if ((stroke.shift & shift::Ctrl) != 0 && ownControlKey(stroke)) return true;
  const bool extend = (stroke.shift & shift::Shift) != 0;
  const bool collapse = selLength_ > 0 && !extend;
  switch (stroke.code) {
    case key::Left:
      moveCaret(collapse ? selStart_ : before(text_, caret()), extend);
      return true;
    case key::Right:
      moveCaret(collapse ? selStart_ + selLength_ : behind(text_, caret()), extend);
      return true;
    case key::Home:
      moveCaret(0, extend);
      return true;
    case key::End:
      moveCaret(static_cast<int>(text_.size()), extend);
      return true;
    case key::Delete:
      if (selLength_ == 0) userSelected(selStart_, behind(text_, selStart_) - selStart_);
      replaceSelection(u"");
      return true;
    case key::Backspace:
      if (selLength_ == 0 && selStart_ > 0) {
        const int start = before(text_, selStart_);
        userSelected(start, selStart_ - start);
      }
      replaceSelection(u"");
      return true;
    default:
      break;
  }
  const char16_t typed = typedAs(stroke.character);
  if (typed < u' ' || typed == u'\x7f') return false;
  if (unicode::isHighSurrogate(typed)) {
    firstHalf_ = typed;
  } else if (!unicode::isLowSurrogate(typed)) {
    replaceSelection(StringView(&typed, 1));
  } else if (firstHalf != u'\0') {
    replaceSelection(String{firstHalf, typed});
  }
  return true;
}

// ---- automation

const PropertyEntry* TextEntry::findProperty(StringView name) const {
  static constexpr auto entry = [](const Control& c) -> const TextEntry& {
    return static_cast<const TextEntry&>(c);
  };
  static constexpr PropertyEntry entries[] = {
      {u"Text", [](const Control& c) { return Variant(entry(c).Text()); }, nullptr},
      {u"SelStart", [](const Control& c) { return Variant(std::int32_t{entry(c).SelStart()}); },
       [](Control& c, const Variant& value) { static_cast<TextEntry&>(c).SelStart(CLng(value)); }},
      {u"SelLength", [](const Control& c) { return Variant(std::int32_t{entry(c).SelLength()}); },
       [](Control& c, const Variant& value) { static_cast<TextEntry&>(c).SelLength(CLng(value)); }},
  };
  const PropertyEntry* found = findIn(entries, name);
  return found != nullptr ? found : Control::findProperty(name);
}

}  // namespace zqn
