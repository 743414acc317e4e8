// SPDX-License-Identifier: MIT
#include "desktop/qt/painted_cells.h"

#include <QCoreApplication>
#include <QPainter>

#include "desktop/qt/control_widget.h"

namespace zqn::qt {

namespace {

/// More than any view has in sight.
constexpr int keptRows = 256;

}  // namespace

PaintedCells::PaintedCells(QAbstractItemView& view, CellFocus focus)
    : QStyledItemDelegate(&view), view_(view), focus_(focus) {
  view.setItemDelegate(this);
  connect(view.model(), &QAbstractItemModel::modelReset, this, [this] { cells_.clear(); });
}

std::size_t PaintedCells::place(const QModelIndex& index) const {
  const int columns = view_.model()->columnCount();
  return static_cast<std::size_t>(index.row() % keptRows * columns + index.column());
}

void PaintedCells::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (focus_ == CellFocus::Hidden) option->state &= ~(QStyle::State_HasFocus | QStyle::State_MouseOver);
}

void PaintedCells::paint(QPainter* painter, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem drawn(option);
  initStyleOption(&drawn, index);
  view_.style()->drawControl(QStyle::CE_ItemViewItem, &drawn, painter, &view_);

  const std::size_t at = place(index);
  if (at >= cells_.size())
    cells_.resize(static_cast<std::size_t>(keptRows) *
                  static_cast<std::size_t>(view_.model()->columnCount()));
  cells_[at] = {index.row(), drawn.text, (drawn.state & QStyle::State_Selected) != 0};
}

bool PaintedCells::bringUpToDate() const {
  QWidget* const window = view_.window();
  if (!view_.isVisible() || !window->testAttribute(Qt::WA_Mapped)) return false;
  QCoreApplication::sendPostedEvents(window, QEvent::UpdateRequest);
  return true;
}

void PaintedCells::compare(Differences& found, const QModelIndex& index, const QString& text,
                           bool marked) const {
  if (!view_.viewport()->rect().intersects(view_.visualRect(index))) return;
  const std::size_t at = place(index);
  const Cell painted = at < cells_.size() ? cells_[at] : Cell{};
  const QByteArray cell = QStringLiteral("cell %1,%2").arg(index.row()).arg(index.column()).toUtf8();
  if (painted.row != index.row()) {
    found.expect(cell.constData(), QStringLiteral("not painted"), text);
    return;
  }
  found.expect(cell.constData(), painted.text, text);
  found.expect((cell + " marked").constData(), painted.marked, marked);
}

}  // namespace zqn::qt
