// SPDX-License-Identifier: MIT
#include "desktop/qt/row_mark.h"

#include <QAbstractItemView>
#include <algorithm>

namespace zqn::qt {

bool showsMark(const QAbstractItemView& view, int row) {
  if (view.currentIndex().row() != row) return false;
  const QItemSelection selected = view.selectionModel()->selection();
  if (row < 0) return selected.isEmpty();
  return !selected.isEmpty() && std::ranges::all_of(selected, [row](const QItemSelectionRange& range) {
    return range.top() == row && range.bottom() == row;
  });
}

void showMark(QAbstractItemView& view, int row, int column) {
  const QModelIndex cell = view.model()->index(row, column, view.rootIndex());
  if (showsMark(view, row) && view.currentIndex() == cell) return;
  view.selectionModel()->setCurrentIndex(cell,
                                         QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows);
}

}  // namespace zqn::qt
