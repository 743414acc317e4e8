// SPDX-License-Identifier: MIT
#include "desktop/qt/text_field.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <functional>

#include "desktop/qt/key_events.h"
#include "desktop/qt/shield.h"
#include "desktop/qt/text.h"
#include "forms/form.h"

namespace zqn::qt {

namespace {

/// The colour of a text that stands for nothing, red 176, green 0, blue 32.
constexpr std::uint32_t errorColour = 0x2000B0;

}  // namespace

TextField::TextField(zqn::TextEntry& model, QWidget& widget)
    : ControlWidget(model, widget, {QPalette::Base, QPalette::Text, colour::WindowBackground}),
      model_(model) {}

TextField::~TextField() = default;

// ---- drawing

DrawnText TextField::drawnText() const {
  return {model_.Text(), model_.hasLines() ? DrawnText::Lines::Several : DrawnText::Lines::One};
}

/// Without the focus a field shows no selection; the model keeps it.
TextField::Selection TextField::wantedSelection(const DrawnText& drawn) const {
  const int caret = drawn.inDrawn(model_.caret());
  const bool active = model_.form().ActiveControl() == &model_;
  return {active ? drawn.inDrawn(model_.anchor()) : caret, caret};
}

void TextField::draw() {
  const DrawnText drawn = drawnText();
  const QString shown = shownText();
  if (fromQt(shown) != drawn.text()) {
    // The part that differs alone, as a person edits: assistive technology reads out no more than that.
    const TextDifference other = differenceBetween(fromQt(shown), drawn.text());
    showText(other.at, static_cast<int>(other.left.size()), toQt(other.right));
  }
  const Selection wanted = wantedSelection(drawn);
  if (shownSelection() != wanted) showSelection(wanted);
}

void TextField::compare(Differences& found) const {
  const DrawnText drawn = drawnText();
  found.expect("Text", shownText(), toQt(drawn.text()));
  const Selection shown = shownSelection();
  const Selection wanted = wantedSelection(drawn);
  found.expect("anchor", shown.anchor, wanted.anchor);
  found.expect("caret", shown.caret, wanted.caret);
  const bool inErrorColour =
      widget().palette().color(QPalette::Active, QPalette::Text) == QColor(0xB0, 0x00, 0x20);
  found.expect("error colour", inErrorColour, model_.isInvalid());
}

std::uint32_t TextField::foreColor() const {
  return model_.isInvalid() ? errorColour : ControlWidget::foreColor();
}

QString TextField::description() const {
  const QString tip = ControlWidget::description();
  if (!model_.isInvalid()) return tip;
  return QStringLiteral("Ungültige Eingabe") + (tip.isEmpty() ? tip : QStringLiteral(". ") + tip);
}

// ---- mouse

int TextField::inModel(const QMouseEvent& event) const {
  return drawnText().inStored(positionAt(event.position().toPoint()));
}

bool TextField::pressed(const QMouseEvent& event, bool focusCame) {
  const bool extend = (event.modifiers() & Qt::ShiftModifier) != 0;
  model_.userPressed(inModel(event), focusCame, extend);
  return true;
}

void TextField::dragged(const QMouseEvent& event) {
  model_.userDragged(inModel(event));
  offerSelection();
}

bool TextField::pressedTwice(const QMouseEvent& event) {
  model_.userPressedTwice(inModel(event));
  offerSelection();
  return true;
}

void TextField::offerSelection() const {
  QClipboard& clipboard = *QGuiApplication::clipboard();
  const QString text = toQt(model_.Text()).mid(model_.SelStart(), model_.SelLength());
  if (clipboard.supportsSelection() && !text.isEmpty()) clipboard.setText(text, QClipboard::Selection);
}

void TextField::releasedElsewhere(const QMouseEvent& event) {
  QClipboard& clipboard = *QGuiApplication::clipboard();
  if (event.button() != Qt::MiddleButton || !clipboard.supportsSelection()) return;
  shielded(model_, u"Paste", [&] {
    if (model_.form().ActiveControl() != &model_) return;
    model_.userPressed(inModel(event), false);
    model_.userPasted(fromQt(clipboard.text(QClipboard::Selection)));
  });
}

// ---- assistive technology

void TextField::report() {
  if (isDrawing()) return;
  shielded(model_, u"Change", [this] {
    const DrawnText drawn = drawnText();
    const QString shown = shownText();
    if (fromQt(shown) != drawn.text()) {
      const TextDifference other = differenceBetween(drawn.text(), fromQt(shown));
      const int start = drawn.inStored(other.at);
      const int end = drawn.inStored(other.at + static_cast<int>(other.left.size()));
      model_.userReplaced(start, end - start, other.right);
    } else if (widget().hasFocus()) {
      const Selection selection = shownSelection();
      model_.userSelected(drawn.inStored(selection.anchor), drawn.inStored(selection.caret));
    }
  });
  sync();
}

// ---- input methods

QInputMethodEvent TextField::composition(const QInputMethodEvent& event) {
  // What is composed stands in the place of the selection.
  if (!event.preeditString().isEmpty()) shielded(model_, u"Change", [this] { model_.userDeleted(); });
  return {event.preeditString(), event.attributes()};
}

void TextField::typeCommitted(const QInputMethodEvent& event) {
  if (event.replacementLength() > 0) {
    shielded(model_, u"Change", [&] {
      const DrawnText drawn = drawnText();
      const int at = drawn.inDrawn(model_.caret()) + event.replacementStart();
      const int start = drawn.inStored(at);
      model_.userReplaced(start, drawn.inStored(at + event.replacementLength()) - start, u"");
    });
  }
  Form& form = model_.form();
  for (const QChar unit : event.commitString()) {
    shielded(model_, u"KeyPress", [&] {
      const KeyOutcome outcome = form.keyPressed(KeyStroke::ofCharacter(unit.unicode()));
      if (outcome.own) form.ActiveControl()->ownKey(outcome.stroke);
    });
  }
}

// ---- the context menu

void TextField::openMenu(QContextMenuEvent& event) {
  const bool writable = model_.isUsable() && !model_.isReadOnly();
  const bool selected = model_.SelLength() > 0;
  const auto paste = [](zqn::TextEntry& model) { model.userPasted(); };
  menu_ = std::make_unique<QMenu>(&widget());
  const auto add = [&](const char16_t* words, bool enabled, const std::function<void(zqn::TextEntry&)>& act) {
    QAction* const action = menu_->addAction(toQt(words));
    action->setEnabled(enabled);
    QObject::connect(action, &QAction::triggered, &widget(),
                     [this, act] { shielded(model_, u"Change", [&] { act(model_); }); });
  };
  add(u"Rückgängig", model_.canUndo(), &zqn::TextEntry::userUndid);
  add(u"Wiederherstellen", model_.canRedo(), &zqn::TextEntry::userRedid);
  menu_->addSeparator();
  add(u"Ausschneiden", writable && selected, &zqn::TextEntry::userCut);
  add(u"Kopieren", selected, &zqn::TextEntry::userCopied);
  add(u"Einfügen", writable && !QGuiApplication::clipboard()->text().isEmpty(), paste);
  add(u"Löschen", writable && selected, &zqn::TextEntry::userDeleted);
  menu_->addSeparator();
  add(u"Alles auswählen", !model_.Text().empty(), &zqn::TextEntry::userSelectedAll);
  menu_->popup(event.globalPos());
  event.accept();
}

}  // namespace zqn::qt
