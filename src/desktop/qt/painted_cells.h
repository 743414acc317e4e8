// SPDX-License-Identifier: MIT
//
// Paints the cells of a view and remembers what a person has been shown, so that it can be held against the
// model: a view that was not told to paint anew still shows the old.
//
//     PaintedCells cells{*this};  // setItemDelegate(&cells)
//     cells.compare(found, index, toQt(list.cellText(row, column)), row == list.Row());
#pragma once

#include <QAbstractItemView>
#include <QStyledItemDelegate>
#include <vector>

namespace zqn::qt {

class Differences;

class PaintedCells : public QStyledItemDelegate {
 public:
  /// Whether a cell shows that it has the focus, or is under the pointer.
  enum class CellFocus { Shown, Hidden };

  /// Becomes the delegate of the view, which must have its model by then.
  PaintedCells(QAbstractItemView& view, CellFocus focus);

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

  /// What waits to be painted is painted now. False when the view is not on the screen, so that nothing is.
  bool bringUpToDate() const;
  /// The cell, where any of it is in sight, must have been painted like this.
  void compare(Differences& found, const QModelIndex& index, const QString& text, bool marked) const;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  struct Cell {
    int row = -1;
    QString text;
    bool marked = false;
  };

  std::size_t place(const QModelIndex& index) const;

  QAbstractItemView& view_;
  const CellFocus focus_;
  /// Neighbouring rows never push each other out: row n has its place at n modulo the rows that are kept.
  mutable std::vector<Cell> cells_;
};

}  // namespace zqn::qt
