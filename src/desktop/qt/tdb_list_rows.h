// SPDX-License-Identifier: MIT
//
// The rows of a TDBList for a table view. Nothing is copied: each cell is asked for as it is drawn. The list
// may know more rows than the view has been told of; follow() tells it.
#pragma once

#include <QAbstractTableModel>
#include <QStringList>

#include "forms/tdb_list.h"

namespace zqn::qt {

class TDBListRows : public QAbstractTableModel {
 public:
  explicit TDBListRows(zqn::TDBList& list) : list_(list) {}

  int rowCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : rows_; }
  int columnCount(const QModelIndex& parent = {}) const override { return parent.isValid() ? 0 : columns_; }
  QVariant data(const QModelIndex& index, int role) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  bool canFetchMore(const QModelIndex& parent) const override;
  void fetchMore(const QModelIndex& parent) override;

  /// Tells the view what has changed since: a new binding, more rows, captions. True when everything is new.
  bool follow();

 private:
  /// What the row says beside the cell: a reader of the cell hears the whole row.
  QString besides(const QModelIndex& cell) const;

  zqn::TDBList& list_;
  int bindings_ = -1;
  int rows_ = 0;
  int columns_ = 0;
  QStringList captions_;
};

}  // namespace zqn::qt
