// SPDX-License-Identifier: MIT
//
// The cells of a grid for assistive technology.
#pragma once

#include <QAbstractTableModel>

#include "forms/flex_grid.h"

namespace zqn::qt {

/// The cells of a grid for a table view, headings included. Nothing is copied; follow() tells the view how
/// many rows and columns there are by now.
class FlexGridCells : public QAbstractTableModel {
 public:
  explicit FlexGridCells(const zqn::FlexGrid& grid)
      : grid_(grid), rows_(grid.Rows()), columns_(grid.Cols()) {}

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }
  /// The text; for a cell with a picture alone, what the picture means. Its description is the cell's place
  /// in words.
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

  void follow();

 private:
  const zqn::FlexGrid& grid_;
  int rows_, columns_;
};

}  // namespace zqn::qt
