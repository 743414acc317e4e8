// SPDX-License-Identifier: MIT
#include "forms/text_entry.h"

#include <algorithm>
#include <utility>

#include "forms/desktop.h"
#include "runtime/convert.h"
#include "runtime/unicode.h"

namespace zqn {

TextEntry::TextEntry(Form& form, const ControlDesign& design, int tabIndex)
    : Control(form, design, tabIndex), editor_(design.text) {}

void TextEntry::assignText(StringView text) {
  if (Text() == text) return;
  editor_.assign(text);
  changed();
  edited();
}

void TextEntry::SelStart(int start) {
  if (start < 0) throw RuntimeError(error::InvalidPropertyValue);
  select(start, start);
}

void TextEntry::SelLength(int length) {
  if (length < 0) throw RuntimeError(error::InvalidPropertyValue);
  const int room = static_cast<int>(Text().size()) - SelStart();
  select(SelStart(), SelStart() + std::min(length, room));
}

void TextEntry::focusEntered() {
  editor_.forget();
  firstHalf_ = u'\0';
}

// ---- selection

void TextEntry::select(int anchor, int caret) {
  if (editor_.select(anchor, caret)) changed();
}

void TextEntry::moveCaret(int position, bool extend) {
  const int place = placeAt(Text(), position);
  select(extend ? anchor() : place, place);
}

void TextEntry::userPressed(int position, bool focusCame, bool extend) {
  if (!hasCaret()) return;
  pressed_ = placeAt(Text(), position);
  dragging_ = false;
  if (!focusCame || SelLength() == 0) moveCaret(position, extend);
  dragsFrom_ = extend ? anchor() : pressed_;
}

void TextEntry::userDragged(int position) {
  const int place = placeAt(Text(), position);
  if (!hasCaret() || (!dragging_ && place == pressed_)) return;
  dragging_ = true;
  select(dragsFrom_, place);
}

void TextEntry::userPressedTwice(int position) {
  if (!hasCaret()) return;
  const int place = placeAt(Text(), position);
  const int start = wordBefore(Text(), placeBehind(Text(), place));
  select(start, wordBehind(Text(), start));
}

void TextEntry::userMoved(int position, bool extend) { moveCaret(position, extend); }

void TextEntry::userSelected(int anchor, int caret) {
  select(placeAt(Text(), anchor), placeAt(Text(), caret));
}

void TextEntry::userSelectedAll() { selectAll(); }

// ---- edits

void TextEntry::makeEdit(TextState next, TextEditor::Step step) {
  const bool differs = next.text != Text();
  // A view that edits by itself draws the old text again.
  if (differs && (isReadOnly() || !accepts(next.text))) return changed();
  complete(next);
  const bool becomes = next.text != Text();
  editor_.edit(std::move(next), step);
  changed();
  if (becomes) edited();
}

void TextEntry::userEdited(StringView text, int selStart, int selLength) {
  const int size = static_cast<int>(text.size());
  const int start = std::clamp(selStart, 0, size);
  makeEdit({String(text), start, std::clamp(start + selLength, start, size)}, TextEditor::Step::Other);
}

void TextEntry::replace(int start, int length, StringView text, TextEditor::Step step) {
  if (lengthLimit_ > 0) {
    const int room = std::max(0, lengthLimit_ - (static_cast<int>(Text().size()) - length));
    text = cutToLength(text, room);
  }
  makeEdit(editor_.replaced(start, length, text), step);
}

void TextEntry::userReplaced(int start, int length, StringView text) {
  if (!isUsable()) return changed();
  const int size = static_cast<int>(Text().size());
  start = std::clamp(start, 0, size);
  replace(start, std::clamp(length, 0, size - start), pastedAs(text), TextEditor::Step::Other);
}

void TextEntry::travel(void (TextEditor::*where)()) {
  if (isReadOnly()) return;
  const String before = Text();
  (editor_.*where)();
  changed();
  if (before != Text()) edited();
}

void TextEntry::userUndid() { travel(&TextEditor::undo); }
void TextEntry::userRedid() { travel(&TextEditor::redo); }

void TextEntry::userDeleted() {
  if (SelLength() > 0) replaceSelection(u"");
}

// ---- clipboard

void TextEntry::userCopied() {
  if (SelLength() > 0) Desktop::current().copyToClipboard(editor_.selected());
}

void TextEntry::userCut() {
  userCopied();
  userDeleted();
}

String TextEntry::pastedAs(StringView text) const { return withBreaks(text, u" "); }

void TextEntry::userPasted() { userPasted(Desktop::current().clipboardText()); }

void TextEntry::userPasted(StringView text) {
  if (text.empty()) return;
  bool taken = false;
  Paste.raise(text, taken);
  if (!taken) replaceSelection(pastedAs(text));
}

// ---- keys

bool TextEntry::ownKey(const KeyStroke& stroke) {
  const char16_t firstHalf = std::exchange(firstHalf_, u'\0');
  if ((stroke.shift & shift::Alt) != 0) return false;
  return clipboardKey(stroke) || caretKey(stroke) || deletingKey(stroke) || typingKey(stroke, firstHalf);
}

bool TextEntry::clipboardKey(const KeyStroke& stroke) {
  struct Row {
    int code, shift;
    void (TextEntry::*act)();
  };
  static constexpr Row table[] = {
      {'A', shift::Ctrl, &TextEntry::userSelectedAll},
      {'C', shift::Ctrl, &TextEntry::userCopied},
      {'X', shift::Ctrl, &TextEntry::userCut},
      {'V', shift::Ctrl, &TextEntry::userPasted},
      {'Z', shift::Ctrl, &TextEntry::userUndid},
      {'Y', shift::Ctrl, &TextEntry::userRedid},
      {key::Insert, shift::Ctrl, &TextEntry::userCopied},
      {key::Insert, shift::Shift, &TextEntry::userPasted},
      {key::Delete, shift::Shift, &TextEntry::userCut},
  };
  const auto* row = std::ranges::find_if(
      table, [&](const Row& each) { return each.code == stroke.code && each.shift == stroke.shift; });
  if (row == std::end(table)) return false;
  (this->*row->act)();
  return true;
}

bool TextEntry::caretKey(const KeyStroke& stroke) {
  const bool ctrl = (stroke.shift & shift::Ctrl) != 0;
  const bool extend = (stroke.shift & shift::Shift) != 0;
  const bool collapse = SelLength() > 0 && !extend && !ctrl;
  const int size = static_cast<int>(Text().size());
  switch (stroke.code) {
    case key::Left:
      moveCaret(ctrl       ? wordBefore(Text(), caret())
                : collapse ? SelStart()
                           : placeBefore(Text(), caret()),
                extend);
      return true;
    case key::Right:
      moveCaret(ctrl       ? wordBehind(Text(), caret())
                : collapse ? SelStart() + SelLength()
                           : placeBehind(Text(), caret()),
                extend);
      return true;
    case key::Home:
      moveCaret(ctrl || !hasLines() ? 0 : lineStart(Text(), caret()), extend);
      return true;
    case key::End:
      moveCaret(ctrl || !hasLines() ? size : lineEnd(Text(), caret()), extend);
      return true;
    default:
      return false;
  }
}

bool TextEntry::deletingKey(const KeyStroke& stroke) {
  if (stroke.code != key::Delete && stroke.code != key::Backspace) return false;
  const bool ctrl = (stroke.shift & shift::Ctrl) != 0;
  int start = SelStart();
  int end = start + SelLength();
  if (start == end && stroke.code == key::Backspace)
    start = ctrl ? wordBefore(Text(), start) : placeBefore(Text(), start);
  else if (start == end)
    end = ctrl ? wordBehind(Text(), end) : placeBehind(Text(), end);
  if (start != end) replace(start, end - start, u"", TextEditor::Step::Other);
  return true;
}

bool TextEntry::typingKey(const KeyStroke& stroke, char16_t firstHalf) {
  const char16_t typed = typedAs(stroke.character);
  if (!isText(typed) || (stroke.shift & shift::Ctrl) != 0) return false;
  if (unicode::isHighSurrogate(typed)) {
    firstHalf_ = typed;
  } else if (!unicode::isLowSurrogate(typed)) {
    replaceSelection(StringView(&typed, 1), TextEditor::Step::Typing);
  } else if (firstHalf != u'\0') {
    replaceSelection(String{firstHalf, typed}, TextEditor::Step::Typing);
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
