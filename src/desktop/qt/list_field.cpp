// SPDX-License-Identifier: MIT
#include "desktop/qt/list_field.h"

#include <QCoreApplication>
#include <QHeaderView>
#include <QScreen>
#include <QScrollBar>
#include <algorithm>

#include "desktop/qt/row_mark.h"
#include "desktop/qt/shield.h"
#include "desktop/qt/text.h"

namespace zqn::qt {

// ---- rows

QVariant ListFieldRows::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole || !index.isValid()) return {};
  return toQt(cell_(index.row(), index.column()));
}

void ListFieldRows::follow(int rows) {
  beginResetModel();
  rows_ = rows;
  endResetModel();
}

// ---- the kinds

ComboField::ComboField(zqn::ComboBox& model, QWidget* parent)
    : ListField(model, parent, 8, 1, [&model](int row, int) -> const String& { return model.List(row); }) {}

zqCombo::zqCombo(zqn::zqCombo& model, QWidget* parent)
    : ListField(model, parent, model.maxrows(), 2, [&model](int row, int column) -> const String& {
        return column == 0 ? model.keyOf(row) : model.textOf(row);
      }) {}

// ---- the field

ListField::ListField(zqn::TextEntry& field, zqn::DropDown& entries, bool editable, QWidget* parent,
                     int maxrows, int columns, ListFieldRows::Cell cell)
    : TextEntry(field, parent),
      model_(field),
      entries_(entries),
      maxrows_(maxrows),
      rows_(columns, std::move(cell)),
      window_(this, Qt::Popup) {
  setReadOnly(!editable);
  if (isReadOnly()) setCursor(Qt::ArrowCursor);
  window_.setFrameShape(QFrame::Box);
  list_.setModel(&rows_);
  cells_ = new PaintedCells(list_, PaintedCells::CellFocus::Hidden);
  connect(list_.selectionModel(), &QItemSelectionModel::selectionChanged, this,
          [this](const QItemSelection& selected) {
            if (isDrawing()) return;
            // Assistive technology has selected: undone, and done again by the model's rules.
            const int row = selected.isEmpty() ? -1 : selected.first().top();
            sync();
            entries_.userMarked(row);
          });
  list_.setFrameShape(QFrame::NoFrame);
  list_.setHeaderHidden(true);
  list_.setRootIsDecorated(false);
  list_.setItemsExpandable(false);
  list_.setUniformRowHeights(true);
  list_.setAllColumnsShowFocus(true);
  list_.setEditTriggers(QAbstractItemView::NoEditTriggers);
  list_.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  list_.setFocusPolicy(Qt::NoFocus);
  list_.setMouseTracking(true);
  list_.setAccessibleName(button_.accessibleName());
  // Keys and clicks on the list, and its hiding, come here first.
  for (QObject* each : {static_cast<QObject*>(&window_), static_cast<QObject*>(&list_),
                        static_cast<QObject*>(list_.viewport())})
    each->installEventFilter(this);
}

// ---- drawing

void ListField::draw() {
  button_.place(true);
  TextEntry::draw();
  drawList();
}

void ListField::drawList() {
  if (window_.isVisible() != entries_.isOpen()) {
    if (entries_.isOpen()) {
      openList();
    } else {
      window_.hide();
    }
  }
  if (entries_.isOpen()) showMark(list_, entries_.markedEntry());
}

void ListField::openList() {
  rows_.follow(entries_.ListCount());
  int columns = 0;
  for (int column = 0; column < rows_.columnCount(); ++column) {
    list_.resizeColumnToContents(column);
    columns += list_.columnWidth(column);
  }
  const int frames = 2 * window_.frameWidth();
  const int shown = std::min(maxrows_, rows_.rowCount());
  const bool scrolls = rows_.rowCount() > shown;
  const int bar = scrolls ? list_.verticalScrollBar()->sizeHint().width() : 0;
  const QSize inside(std::max(columns + bar, width() - frames), shown * list_.sizeHintForRow(0));
  list_.setGeometry(QRect(QPoint(window_.frameWidth(), window_.frameWidth()), inside));

  const QRect room = screen()->availableGeometry();
  const QSize size(inside.width() + frames, inside.height() + frames);
  QPoint place = mapToGlobal(QPoint(0, height()));
  if (place.y() + size.height() > room.bottom()) place.ry() -= size.height() + height();
  place.setX(std::clamp(place.x(), room.left(), std::max(room.left(), room.right() - size.width())));
  window_.setGeometry(QRect(place, size));
  window_.show();
}

void ListField::compare(Differences& found) const {
  TextEntry::compare(found);
  found.expect("open list", window_.isVisible(), entries_.isOpen());
  if (!entries_.isOpen()) return;
  found.expect("entries", rows_.rowCount(), entries_.ListCount());
  found.expect("marked entry", showsMark(list_, entries_.markedEntry()), true);
  if (!cells_->bringUpToDate()) return;
  for (int row = 0; row < std::min(rows_.rowCount(), entries_.ListCount()); ++row) {
    for (int column = 0; column < rows_.columnCount(); ++column) {
      const QModelIndex cell = rows_.index(row, column);
      cells_->compare(found, cell, cell.data().toString(), row == entries_.markedEntry());
    }
  }
}

void ListField::resizeEvent(QResizeEvent* event) {
  TextEntry::resizeEvent(event);
  button_.place(true);
}

// ---- input

void ListField::toList(const QMouseEvent& event) {
  const QModelIndex entry = list_.indexAt(event.position().toPoint());
  if (!entry.isValid()) return;
  if (event.type() == QEvent::MouseMove) {
    entries_.userMarked(entry.row());
  } else {
    shielded(model_, u"Click", [&] { entries_.userChose(entry.row()); });
  }
}

bool ListField::eventFilter(QObject* watched, QEvent* event) {
  switch (event->type()) {
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::ShortcutOverride:
      QCoreApplication::sendEvent(this, event);
      return true;
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      if (watched == list_.viewport()) {
        toList(static_cast<QMouseEvent&>(*event));
        return true;
      }
      break;
    case QEvent::MouseButtonPress: {
      // A press on the list marks nothing by itself; one on the field or its button closes the list and is
      // over, and opens it not again.
      if (watched == list_.viewport()) return true;
      const QPoint place = static_cast<QMouseEvent*>(event)->globalPosition().toPoint();
      window_.setAttribute(Qt::WA_NoMouseReplay, rect().contains(mapFromGlobal(place)));
      break;
    }
    case QEvent::Hide:
      // A click elsewhere has closed it.
      if (watched == &window_ && !isDrawing()) entries_.userClosed();
      break;
    default:
      break;
  }
  return TextEntry::eventFilter(watched, event);
}

}  // namespace zqn::qt
