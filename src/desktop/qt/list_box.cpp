// SPDX-License-Identifier: MIT
#include "desktop/qt/list_box.h"

#include <algorithm>

#include "desktop/qt/key_events.h"
#include "desktop/qt/shield.h"
#include "desktop/qt/text.h"

namespace zqn::qt {

ListBox::ListBox(zqn::ListBox& model, QWidget* parent)
    : QListWidget(parent),
      ControlWidget(model, *this, {QPalette::Base, QPalette::Text, colour::WindowBackground}),
      model_(model) {
  cells_ = new PaintedCells(*this, PaintedCells::CellFocus::Shown);
  setSelectionMode(QAbstractItemView::MultiSelection);
  setEditTriggers(QAbstractItemView::NoEditTriggers);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  connect(this, &QListWidget::itemSelectionChanged, this, [this] { report(); });
}

void ListBox::draw() {
  while (count() > model_.ListCount()) delete takeItem(count() - 1);
  for (int i = 0; i < model_.ListCount(); ++i) {
    const QString wanted = toQt(model_.List(i));
    if (i >= count()) {
      addItem(wanted);
    } else if (item(i)->text() != wanted) {
      item(i)->setText(wanted);
    }
    if (item(i)->isSelected() != model_.Selected(i)) item(i)->setSelected(model_.Selected(i));
  }
  if (currentRow() == model_.ListIndex()) return;
  setCurrentRow(model_.ListIndex(), QItemSelectionModel::NoUpdate);
  if (currentItem() != nullptr) scrollToItem(currentItem());
}

void ListBox::compare(Differences& found) const {
  found.expect("ListCount", count(), model_.ListCount());
  for (int i = 0; i < std::min(count(), model_.ListCount()); ++i) {
    found.expect("List", item(i)->text(), toQt(model_.List(i)));
    found.expect("Selected", item(i)->isSelected(), model_.Selected(i));
  }
  found.expect("ListIndex", currentRow(), model_.ListIndex());
  if (!cells_->bringUpToDate()) return;
  for (int i = 0; i < std::min(count(), model_.ListCount()); ++i)
    cells_->compare(found, indexFromItem(item(i)), toQt(model_.List(i)), model_.Selected(i));
}

void ListBox::focusInEvent(QFocusEvent* event) {
  QListWidget::focusInEvent(event);
  // The view would make its first row the current one.
  sync();
}

bool ListBox::reportPress(const QMouseEvent& event) {
  if (event.button() != Qt::LeftButton) return ControlWidget::reportPress(event);
  const int held = shiftOf(event.modifiers()) & (shift::Shift | shift::Ctrl);
  return event.type() == QEvent::MouseButtonDblClick
             ? model_.userPressedAgain(held)
             : model_.userPressed(indexAt(event.position().toPoint()).row(), held);
}

bool ListBox::pressed(const QMouseEvent&, bool) { return true; }

void ListBox::report() {
  if (isDrawing()) return;
  // Assistive technology has selected: undone, and done again by the model's rules.
  std::vector<bool> rows;
  for (int i = 0; i < count(); ++i) rows.push_back(item(i)->isSelected());
  sync();
  shielded(model_, u"Click", [&] { model_.userSelected(rows); });
}

}  // namespace zqn::qt
