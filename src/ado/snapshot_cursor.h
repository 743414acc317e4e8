// SPDX-License-Identifier: MIT
//
// All rows of a SELECT, read once. Finds by equality go through an index per column, made when it is first
// needed.
#pragma once

#include <map>
#include <set>

#include "ado/cursor.h"
#include "ado/value_index.h"

namespace zqn::ado {

class SnapshotCursor : public Cursor {
 public:
  /// `statement` is kept to read a row that this recordset has inserted, defaults included.
  SnapshotCursor(Connection& connection, StringView statement, std::shared_ptr<const Columns> columns,
                 RowStore rows);

  const Columns& columns() const override { return *columns_; }
  int knownRows() const noexcept override { return rows_.rows(); }
  bool complete() const noexcept override { return true; }
  void fetch(int) override {}
  RowView row(int row, RowStore& buffer) override;
  RowView refresh(int row, RowStore& buffer) override;
  RowView readNow(int row, RowStore& buffer) override;
  bool readsRows() const noexcept override { return false; }
  int find(const Criterion& criterion, int from, int direction, RowStore& buffer) override;
  void updated(int row, const std::vector<Variant>& values) override;
  void inserted(const std::vector<Variant>& values, const RowView& returned) override;

 private:
  const ValueIndex& index(int column);
  void readInserted();
  enum class Again { Unknown, Gone, Read };
  /// Reads a row of the snapshot again, where its key can be told, into `read`.
  Again readAgain(int row, RowStore& read);

  Connection& connection_;
  String statement_;
  std::shared_ptr<const Columns> columns_;
  RowStore rows_;
  std::map<int, ValueIndex> indexes_;
  /// The last row, inserted and not read back so far, with what can read it.
  std::optional<RowHandle> unread_;
  std::unique_ptr<Keyset> reader_;
  std::set<int> gone_;  // rows that were deleted when they were read again
};

}  // namespace zqn::ado
