// SPDX-License-Identifier: MIT
#include "desktop/qt/multi_line_text_box.h"

#include <algorithm>
#include <cstdlib>

#include "forms/form.h"

namespace zqn::qt {

namespace {

constexpr int marginAtSides = 1;

}  // namespace

MultiLineTextBox::MultiLineTextBox(zqn::TextBox& model, QWidget* parent)
    : QPlainTextEdit(parent), TextField(model, *this), model_(model) {
  viewport()->setAcceptDrops(false);
  setUndoRedoEnabled(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  document()->setDocumentMargin(marginAtSides);
  const auto changed = [this] { report(); };
  connect(this, &QPlainTextEdit::textChanged, this, changed);
  connect(this, &QPlainTextEdit::selectionChanged, this, changed);
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, changed);
}

// ---- drawing

/// Not toPlainText: that makes blanks of protected ones.
QString MultiLineTextBox::shownText() const {
  return document()->toRawText().replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
}

TextField::Selection MultiLineTextBox::shownSelection() const {
  return {textCursor().anchor(), textCursor().position()};
}

void MultiLineTextBox::showText(int at, int length, const QString& text) {
  QTextCursor cursor(document());
  cursor.setPosition(at);
  cursor.setPosition(at + length, QTextCursor::KeepAnchor);
  cursor.insertText(text);
}

void MultiLineTextBox::showSelection(Selection selection) {
  QTextCursor cursor = textCursor();
  cursor.setPosition(selection.anchor);
  cursor.setPosition(selection.caret, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

Qt::ScrollBarPolicy MultiLineTextBox::wantedScrollBar() const {
  const bool oneLine = Scale(*this).y(model_.Height()) < 2 * fontMetrics().lineSpacing();
  return oneLine ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded;
}

void MultiLineTextBox::draw() {
  if (verticalScrollBarPolicy() != wantedScrollBar()) setVerticalScrollBarPolicy(wantedScrollBar());
  TextField::draw();
}

void MultiLineTextBox::compare(Differences& found) const {
  TextField::compare(found);
  found.expect("scroll bar", verticalScrollBarPolicy(), wantedScrollBar());
}

// ---- input

/// How many drawn lines a key goes down; 0 for a key that goes by none.
int MultiLineTextBox::linesOf(int key) const {
  const int page = std::max(1, viewport()->height() / std::max(1, fontMetrics().lineSpacing()));
  switch (key) {
    case key::Up:
      return -1;
    case key::Down:
      return 1;
    case key::PageUp:
      return -page;
    case key::PageDown:
      return page;
    default:
      return 0;
  }
}

void MultiLineTextBox::ownKey(const KeyStroke& stroke) {
  const int lines = linesOf(stroke.code);
  if (lines == 0 || (stroke.shift & (shift::Ctrl | shift::Alt)) != 0) return TextField::ownKey(stroke);
  const bool extend = (stroke.shift & shift::Shift) != 0;
  QTextCursor cursor = textCursor();
  cursor.movePosition(lines < 0 ? QTextCursor::Up : QTextCursor::Down,
                      extend ? QTextCursor::KeepAnchor : QTextCursor::MoveAnchor, std::abs(lines));
  {
    // The widget's cursor remembers how far from the edge it was.
    const Drawing drawing(*this);
    setTextCursor(cursor);
  }
  model_.userMoved(drawnText().inStored(cursor.position()), extend);
}

void MultiLineTextBox::inputMethodEvent(QInputMethodEvent* event) {
  QInputMethodEvent composed = composition(*event);
  {
    const Drawing drawing(*this);
    QPlainTextEdit::inputMethodEvent(&composed);
  }
  event->setAccepted(composed.isAccepted());
  typeCommitted(*event);
}

void MultiLineTextBox::focusInEvent(QFocusEvent* event) {
  QPlainTextEdit::focusInEvent(event);
  update();
}

void MultiLineTextBox::focusOutEvent(QFocusEvent* event) {
  {
    const Drawing drawing(*this);
    QPlainTextEdit::focusOutEvent(event);
  }
  focusLeft();
  update();
}

}  // namespace zqn::qt
