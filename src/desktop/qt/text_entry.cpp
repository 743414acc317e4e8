// SPDX-License-Identifier: MIT
#include "desktop/qt/text_entry.h"

#include <climits>

namespace zqn::qt {

TextEntry::TextEntry(zqn::TextEntry& model, QWidget* parent)
    : QLineEdit(parent), TextField(model, *this), model_(model) {
  setAcceptDrops(false);
  setMaxLength(INT_MAX);
  const auto changed = [this] { report(); };
  connect(this, &QLineEdit::textChanged, this, changed);
  connect(this, &QLineEdit::selectionChanged, this, changed);
  connect(this, &QLineEdit::cursorPositionChanged, this, changed);
}

void TextEntry::draw() {
  if (isReadOnly() != model_.isReadOnly()) setReadOnly(model_.isReadOnly());
  TextField::draw();
}

TextField::Selection TextEntry::shownSelection() const {
  const int caret = cursorPosition();
  if (!hasSelectedText()) return {caret, caret};
  return {selectionStart() == caret ? selectionEnd() : selectionStart(), caret};
}

void TextEntry::showText(int at, int length, const QString& text) {
  if (length == this->text().size()) {
    setText(text);
  } else {
    setSelection(at, length);
    insert(text);
  }
}

void TextEntry::showSelection(Selection selection) {
  setSelection(selection.anchor, selection.caret - selection.anchor);
}

int TextEntry::positionAt(QPoint point) const {
  return const_cast<TextEntry*>(this)->cursorPositionAt(point);
}

void TextEntry::inputMethodEvent(QInputMethodEvent* event) {
  QInputMethodEvent composed = composition(*event);
  {
    const Drawing drawing(*this);
    QLineEdit::inputMethodEvent(&composed);
  }
  event->setAccepted(composed.isAccepted());
  typeCommitted(*event);
}

void TextEntry::focusOutEvent(QFocusEvent* event) {
  {
    const Drawing drawing(*this);
    QLineEdit::focusOutEvent(event);
  }
  focusLeft();
}

}  // namespace zqn::qt
