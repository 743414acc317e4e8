// SPDX-License-Identifier: MIT
#include "desktop/qt/text_editing.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QInputMethodEvent>

#include "desktop/qt/shield.h"
#include "forms/form.h"

namespace zqn::qt {

std::unique_ptr<QMenu> makeEditMenu(QWidget& field, const Editing& editing) {
  auto menu = std::make_unique<QMenu>(&field);
  const auto add = [&](const char16_t* words, bool enabled, const std::function<void()>& act) {
    QObject::connect(menu->addAction(QString::fromUtf16(words)), &QAction::triggered, &field, act);
    menu->actions().constLast()->setEnabled(enabled);
  };
  add(u"Rückgängig", editing.writable && editing.canUndo, editing.undo);
  add(u"Wiederherstellen", editing.writable && editing.canRedo, editing.redo);
  menu->addSeparator();
  add(u"Ausschneiden", editing.writable && editing.selected, editing.cut);
  add(u"Kopieren", editing.selected, editing.copy);
  add(u"Einfügen", editing.writable && !QGuiApplication::clipboard()->text().isEmpty(), editing.paste);
  add(u"Löschen", editing.writable && editing.selected, editing.remove);
  menu->addSeparator();
  add(u"Alles auswählen", editing.filled, editing.selectAll);
  return menu;
}

void passAsKeyPress(QInputMethodEvent& event, zqn::TextEntry& model) {
  const QString committed = event.commitString();
  QString left = committed;
  if (committed.size() == 1) {
    shielded(model, u"KeyPress", [&] {
      const KeyOutcome outcome = model.form().keyPressed(KeyStroke::ofCharacter(committed.at(0).unicode()));
      const char16_t typed = model.typedAs(outcome.stroke.character);
      left = outcome.own && typed != 0 ? QString(QChar(typed)) : QString();
    });
  }
  event.setCommitString(left, event.replacementStart(), event.replacementLength());
}

}  // namespace zqn::qt
