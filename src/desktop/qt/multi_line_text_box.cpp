// SPDX-License-Identifier: MIT
#include "desktop/qt/multi_line_text_box.h"

#include <QContextMenuEvent>
#include <QInputMethodEvent>
#include <QMimeData>
#include <algorithm>
#include <climits>

#include "desktop/qt/key_events.h"
#include "desktop/qt/shield.h"
#include "desktop/qt/text.h"
#include "desktop/qt/text_editing.h"
#include "forms/form.h"

namespace zqn::qt {

namespace {

bool isCrLf(StringView text, std::size_t at) {
  return text[at] == u'\r' && at + 1 < text.size() && text[at + 1] == u'\n';
}

/// A position in the model's text as one in the widget, and back.
int inWidget(StringView text, int position) {
  int shown = 0;
  for (std::size_t i = 0; i < text.size() && static_cast<int>(i) < position; ++i) {
    if (isCrLf(text, i)) ++i;
    ++shown;
  }
  return shown;
}

int inModel(StringView text, int shown) {
  std::size_t i = 0;
  for (; i < text.size() && shown > 0; --shown) i += isCrLf(text, i) ? 2 : 1;
  return static_cast<int>(i);
}

constexpr int marginAtSides = 1;

}  // namespace

MultiLineTextBox::MultiLineTextBox(zqn::TextBox& model, QWidget* parent)
    : QPlainTextEdit(parent),
      ControlWidget(model, *this, {QPalette::Base, QPalette::Text, colour::WindowBackground}),
      model_(model) {
  viewport()->setAcceptDrops(false);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  document()->setDocumentMargin(marginAtSides);
  const auto changed = [this] { report(); };
  connect(this, &QPlainTextEdit::textChanged, this, changed);
  connect(this, &QPlainTextEdit::selectionChanged, this, changed);
  connect(this, &QPlainTextEdit::cursorPositionChanged, this, changed);
}

MultiLineTextBox::~MultiLineTextBox() = default;

// ---- drawing

QString MultiLineTextBox::wantedText() const { return toQt(withBreaks(model_.Text(), u"\n")); }

/// Not toPlainText: that makes blanks of protected ones.
QString MultiLineTextBox::shownText() const {
  return document()->toRawText().replace(QChar::ParagraphSeparator, QLatin1Char('\n'));
}

Qt::ScrollBarPolicy MultiLineTextBox::wantedScrollBar() const {
  const bool oneLine = Scale(*this).y(model_.Height()) < 2 * fontMetrics().lineSpacing();
  return oneLine ? Qt::ScrollBarAlwaysOff : Qt::ScrollBarAsNeeded;
}

void MultiLineTextBox::draw() {
  if (verticalScrollBarPolicy() != wantedScrollBar()) setVerticalScrollBarPolicy(wantedScrollBar());
  if (shownText() != wantedText()) setPlainText(wantedText());
  const int start = inWidget(model_.Text(), model_.SelStart());
  const int end = inWidget(model_.Text(), model_.SelStart() + model_.SelLength());
  QTextCursor cursor = textCursor();
  if (cursor.selectionStart() == start && cursor.selectionEnd() == end) return;
  cursor.setPosition(start);
  cursor.setPosition(end, QTextCursor::KeepAnchor);
  setTextCursor(cursor);
}

void MultiLineTextBox::compare(Differences& found) const {
  found.expect("Text", shownText(), wantedText());
  found.expect("scroll bar", verticalScrollBarPolicy(), wantedScrollBar());
  if (model_.form().ActiveControl() != &model_) return;
  const int start = inModel(model_.Text(), textCursor().selectionStart());
  found.expect("SelStart", start, model_.SelStart());
  found.expect("SelLength", inModel(model_.Text(), textCursor().selectionEnd()) - start, model_.SelLength());
}

// ---- native editing

void MultiLineTextBox::edit(const std::function<void()>& natively) {
  ++editing_;
  natively();
  --editing_;
  report();
}

void MultiLineTextBox::report() {
  if (isDrawing() || editing_ > 0) return;
  shielded(model_, u"Change", [this] {
    const QString now = shownText();
    const String text = now != wantedText() ? withBreaks(fromQt(now), u"\r\n") : model_.Text();
    const int start = inModel(text, textCursor().selectionStart());
    model_.userEdited(text, start, inModel(text, textCursor().selectionEnd()) - start);
  });
}

int MultiLineTextBox::room() const {
  if (model_.lengthLimit() == 0) return INT_MAX;
  return std::max(0, model_.lengthLimit() - (static_cast<int>(model_.Text().size()) - model_.SelLength()));
}

void MultiLineTextBox::ownKey(QKeyEvent& event, const KeyStroke& stroke, bool asTyped) {
  const bool newLine = stroke.code == key::Enter && (stroke.shift & shift::Alt) == 0;
  const int units = newLine ? 2 : stroke.character >= u' ' ? 1 : 0;
  if (units > room()) return;
  edit([&] {
    if (newLine) {
      textCursor().insertBlock();
      ensureCursorVisible();
    } else if (asTyped) {
      QPlainTextEdit::keyPressEvent(&event);
    } else {
      QKeyEvent other = eventOf(stroke, QEvent::KeyPress);
      QPlainTextEdit::keyPressEvent(&other);
    }
  });
}

void MultiLineTextBox::inputMethodEvent(QInputMethodEvent* event) {
  passAsKeyPress(*event, model_);
  edit([&] { QPlainTextEdit::inputMethodEvent(event); });
}

void MultiLineTextBox::insertFromMimeData(const QMimeData* source) {
  if (model_.pasteTaken(fromQt(source->text()))) return;
  const String pasted = model_.pastedAs(fromQt(source->text()));
  insertPlainText(toQt(withBreaks(cutToLength(pasted, room()), u"\n")));
  ensureCursorVisible();
}

bool MultiLineTextBox::pressed(const QMouseEvent&, bool focusCame) {
  return focusCame && model_.SelLength() > 0;
}

void MultiLineTextBox::focusInEvent(QFocusEvent* event) {
  QPlainTextEdit::focusInEvent(event);
  update();
}

void MultiLineTextBox::focusOutEvent(QFocusEvent* event) {
  const Drawing drawing(*this);
  QPlainTextEdit::focusOutEvent(event);
  update();
}

void MultiLineTextBox::contextMenuEvent(QContextMenuEvent* event) {
  menu_ = makeEditMenu(*this, {.undo = [this] { undo(); },
                               .redo = [this] { redo(); },
                               .cut = [this] { cut(); },
                               .copy = [this] { copy(); },
                               .paste = [this] { paste(); },
                               .remove = [this] { textCursor().removeSelectedText(); },
                               .selectAll = [this] { selectAll(); },
                               .writable = isEnabled() && !isReadOnly(),
                               .canUndo = document()->isUndoAvailable(),
                               .canRedo = document()->isRedoAvailable(),
                               .selected = textCursor().hasSelection(),
                               .filled = !document()->isEmpty()});
  menu_->popup(event->globalPos());
  event->accept();
}

}  // namespace zqn::qt
