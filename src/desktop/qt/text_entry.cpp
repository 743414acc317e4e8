// SPDX-License-Identifier: MIT
#include "desktop/qt/text_entry.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QInputMethodEvent>
#include <QValidator>
#include <algorithm>
#include <climits>

#include "desktop/qt/key_events.h"
#include "desktop/qt/shield.h"
#include "desktop/qt/text.h"
#include "desktop/qt/text_editing.h"
#include "forms/form.h"

namespace zqn::qt {

namespace {

/// Refuses an edit that the model does not accept, and Qt takes it back.
class ModelValidator : public QValidator {
 public:
  ModelValidator(const zqn::TextEntry& model, QObject* parent) : QValidator(parent), model_(model) {}
  State validate(QString& text, int&) const override {
    return model_.accepts(fromQt(text)) ? Acceptable : Invalid;
  }

 private:
  const zqn::TextEntry& model_;
};

}  // namespace

TextEntry::TextEntry(zqn::TextEntry& model, QWidget* parent)
    : QLineEdit(parent),
      ControlWidget(model, *this, {QPalette::Base, QPalette::Text, colour::WindowBackground}),
      model_(model) {
  setAcceptDrops(false);
  setValidator(new ModelValidator(model, this));
  const auto changed = [this] { report(); };
  connect(this, &QLineEdit::textChanged, this, changed);
  connect(this, &QLineEdit::selectionChanged, this, changed);
  connect(this, &QLineEdit::cursorPositionChanged, this, changed);
}

TextEntry::~TextEntry() = default;

void TextEntry::draw() {
  const QString wanted = toQt(model_.Text());
  const int size = static_cast<int>(wanted.size());
  // A text that is longer than the limit stays; it can become shorter only.
  const int longest = model_.lengthLimit() > 0 ? std::max(model_.lengthLimit(), size) : INT_MAX;
  if (maxLength() < longest) setMaxLength(longest);
  if (text() != wanted) setText(wanted);
  if (maxLength() != longest) setMaxLength(longest);
  if (isReadOnly() != model_.isReadOnly()) setReadOnly(model_.isReadOnly());
  if (shownSelStart() == model_.SelStart() && shownSelLength() == model_.SelLength()) return;
  if (model_.SelLength() > 0) {
    setSelection(model_.SelStart(), model_.SelLength());
  } else {
    setCursorPosition(model_.SelStart());
    deselect();
  }
}

void TextEntry::compare(Differences& found) const {
  found.expect("Text", text(), toQt(model_.Text()));
  // Without the focus a field shows no selection.
  if (model_.form().ActiveControl() != &model_) return;
  found.expect("SelStart", shownSelStart(), model_.SelStart());
  found.expect("SelLength", shownSelLength(), model_.SelLength());
}

// ---- native editing

void TextEntry::edit(const std::function<void()>& natively) {
  ++editing_;
  natively();
  --editing_;
  report();
}

void TextEntry::report() {
  if (isDrawing() || editing_ > 0) return;
  joinLines();
  shielded(model_, u"Change", [this] {
    const QString now = text();
    if (fromQt(now) != model_.Text()) {
      model_.userEdited(fromQt(now), shownSelStart(), shownSelLength());
    } else if (hasFocus()) {
      // A field without the focus drops its selection by itself; the model keeps it.
      model_.userSelected(shownSelStart(), shownSelLength());
    }
  });
}

QString TextEntry::pasted(const QString& text) const { return toQt(model_.pastedAs(fromQt(text))); }

void TextEntry::joinLines() {
  const QString plain = pasted(text());
  if (plain == text()) return;
  const auto caret = pasted(text().left(cursorPosition())).size();
  ++editing_;
  selectAll();
  insert(plain);  // one step that can be undone
  setCursorPosition(static_cast<int>(caret));
  --editing_;
}

void TextEntry::pasteLine() {
  const QString text = QGuiApplication::clipboard()->text();
  bool taken = text.isEmpty();
  if (!taken) shielded(model_, u"Paste", [&] { taken = model_.pasteTaken(fromQt(text)); });
  if (!taken) edit([&] { insert(pasted(text)); });
}

void TextEntry::ownKey(QKeyEvent& event, const KeyStroke& stroke, bool asTyped) {
  KeyStroke typed = stroke;
  typed.character = model_.typedAs(stroke.character);
  if (event.matches(QKeySequence::Paste)) {
    pasteLine();
    return;
  }
  edit([&] {
    if (asTyped && typed.character == stroke.character) {
      QLineEdit::keyPressEvent(&event);
    } else {
      QKeyEvent other = eventOf(typed, QEvent::KeyPress);
      QLineEdit::keyPressEvent(&other);
    }
  });
}

void TextEntry::inputMethodEvent(QInputMethodEvent* event) {
  passAsKeyPress(*event, model_);
  edit([&] { QLineEdit::inputMethodEvent(event); });
}

bool TextEntry::pressed(const QMouseEvent&, bool focusCame) { return focusCame && model_.SelLength() > 0; }

void TextEntry::focusOutEvent(QFocusEvent* event) {
  const Drawing drawing(*this);
  QLineEdit::focusOutEvent(event);
}

void TextEntry::contextMenuEvent(QContextMenuEvent* event) {
  menu_ = makeEditMenu(*this, {.undo = [this] { undo(); },
                               .redo = [this] { redo(); },
                               .cut = [this] { cut(); },
                               .copy = [this] { copy(); },
                               .paste = [this] { pasteLine(); },
                               .remove = [this] { del(); },
                               .selectAll = [this] { selectAll(); },
                               .writable = isEnabled() && !isReadOnly(),
                               .canUndo = isUndoAvailable(),
                               .canRedo = isRedoAvailable(),
                               .selected = hasSelectedText(),
                               .filled = !text().isEmpty()});
  menu_->popup(event->globalPos());
  event->accept();
}

}  // namespace zqn::qt
