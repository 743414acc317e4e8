// SPDX-License-Identifier: MIT
#include "desktop/qt/flex_grid_cells.h"

#include "desktop/qt/text.h"

namespace zqn::qt {

QVariant FlexGridCells::data(const QModelIndex& index, int role) const {
  if (role != Qt::DisplayRole && role != Qt::AccessibleTextRole && role != Qt::AccessibleDescriptionRole)
    return {};
  if (!index.isValid() || index.row() >= grid_.Rows() || index.column() >= grid_.Cols()) return {};
  if (role == Qt::AccessibleDescriptionRole) return toQt(grid_.wordsForPlace(index.row(), index.column()));
  const zqn::FlexGrid::Cell& cell = grid_.cell(index.row(), index.column());
  if (role == Qt::AccessibleTextRole && cell.text.empty() && cell.picture != nullptr)
    return toQt(grid_.wordsForPicture(*cell.picture));
  return toQt(cell.text);
}

QVariant FlexGridCells::headerData(int section, Qt::Orientation orientation, int role) const {
  const bool words = role == Qt::DisplayRole || role == Qt::AccessibleTextRole;
  if (!words || orientation != Qt::Horizontal || grid_.FixedRows() == 0) return {};
  return data(index(0, section), role);
}

void FlexGridCells::follow() {
  if (grid_.Cols() != columns_) {
    beginResetModel();
    rows_ = grid_.Rows();
    columns_ = grid_.Cols();
    endResetModel();
  } else if (grid_.Rows() > rows_) {
    beginInsertRows({}, rows_, grid_.Rows() - 1);
    rows_ = grid_.Rows();
    endInsertRows();
  } else if (grid_.Rows() < rows_) {
    beginRemoveRows({}, grid_.Rows(), rows_ - 1);
    rows_ = grid_.Rows();
    endRemoveRows();
  }
}

}  // namespace zqn::qt
