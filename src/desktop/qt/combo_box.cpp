// SPDX-License-Identifier: MIT
#include "desktop/qt/combo_box.h"

#include <QAbstractItemView>
#include <QCoreApplication>
#include <QWheelEvent>
#include <algorithm>

#include "desktop/qt/row_mark.h"
#include "desktop/qt/shield.h"
#include "desktop/qt/text.h"
#include "forms/form.h"

namespace zqn::qt {

ComboBox::ComboBox(zqn::ComboBox& model, QWidget* parent)
    : QComboBox(parent),
      ControlWidget(model, *this, {QPalette::Button, QPalette::ButtonText, colour::WindowBackground}),
      model_(model) {
  // Keys and clicks on the list, and its hiding, come here before the list's own window sees them.
  for (QObject* each : {static_cast<QObject*>(view()), static_cast<QObject*>(view()->viewport()),
                        static_cast<QObject*>(view()->window())})
    each->installEventFilter(this);
  connect(this, &QComboBox::currentIndexChanged, this, [this](int index) {
    if (isDrawing()) return;
    // Assistive technology has chosen: undone, and done again as by a person's click.
    sync();
    shielded(model_, u"Click", [&] {
      if (model_.form().mousePressed(model_)) model_.userChose(index);
    });
  });
  connect(view()->selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this](const QItemSelection& selected) {
            if (isDrawing()) return;
            // The pointer is over an entry, or assistive technology has selected one: the model marks it.
            const int row = selected.isEmpty() ? -1 : selected.first().top();
            sync();
            model_.userMarked(row);
          });
  connect(view()->selectionModel(), &QItemSelectionModel::currentChanged, this,
          [this](const QModelIndex& marked) {
            if (!isDrawing()) model_.userMarked(marked.row());
          });
}

void ComboBox::choose(int index) {
  shielded(model_, u"Click", [&] { model_.userChose(index); });
}

// ---- drawing

bool ComboBox::listShown() const { return view()->isVisible(); }

void ComboBox::draw() {
  drawEntries();
  if (currentIndex() != model_.ListIndex()) setCurrentIndex(model_.ListIndex());
  drawList();
}

void ComboBox::drawEntries() {
  while (count() > model_.ListCount()) removeItem(count() - 1);
  for (int i = 0; i < model_.ListCount(); ++i) {
    const QString wanted = toQt(model_.List(i));
    if (i >= count()) {
      addItem(wanted);
    } else if (itemText(i) != wanted) {
      setItemText(i, wanted);
    }
  }
}

void ComboBox::drawList() {
  if (listShown() != model_.isOpen()) {
    if (model_.isOpen()) {
      QComboBox::showPopup();
    } else {
      hidePopup();
    }
  }
  if (model_.isOpen()) showMark(*view(), model_.markedEntry());
}

void ComboBox::compare(Differences& found) const {
  found.expect("ListCount", count(), model_.ListCount());
  for (int i = 0; i < std::min(count(), model_.ListCount()); ++i)
    found.expect("List", itemText(i), toQt(model_.List(i)));
  found.expect("ListIndex", currentIndex(), model_.ListIndex());
  found.expect("open list", listShown(), model_.isOpen());
  found.expect("Text", currentText(), toQt(model_.Text()));
  if (model_.isOpen()) found.expect("marked entry", showsMark(*view(), model_.markedEntry()), true);
}

// ---- input

bool ComboBox::pressed(const QMouseEvent&, bool) { return true; }

void ComboBox::showPopup() {
  if (isDrawing()) return;
  shielded(model_, u"MouseDown", [this] {
    if (model_.form().mousePressed(model_)) model_.userOpened();
  });
}

bool ComboBox::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
      QCoreApplication::sendEvent(this, event);
      return true;
    case QEvent::MouseButtonRelease:
      if (watched == view()->viewport()) {
        const QModelIndex entry = view()->indexAt(static_cast<QMouseEvent*>(event)->position().toPoint());
        if (entry.isValid()) choose(entry.row());
        return true;
      }
      break;
    case QEvent::Hide:
      // A click elsewhere has closed it.
      if (watched == view()->window() && !isDrawing()) model_.userClosed();
      break;
    default:
      break;
  }
  return QComboBox::eventFilter(watched, event);
}

void ComboBox::wheelEvent(QWheelEvent* event) {
  // The wheel scrolls, and chooses nothing on its way.
  event->ignore();
}

}  // namespace zqn::qt
