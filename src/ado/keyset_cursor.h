// SPDX-License-Identifier: MIT
//
// The keys of a SELECT's rows, read as they are needed; values are read from the database each time a row is
// asked for.
#pragma once

#include <functional>

#include "ado/cursor.h"
#include "ado/handle_index.h"

namespace zqn::ado {

class KeysetCursor : public Cursor {
 public:
  /// The keys are read through `keyset`, the first ones now.
  KeysetCursor(Provider& provider, StringView statement, std::unique_ptr<Keyset> keyset);
  /// `rows` are all there are; the first one need not be read again. Without a `keyset` they have their
  /// handles in a column of their own.
  KeysetCursor(Provider& provider, StringView statement, std::shared_ptr<const Columns> columns,
               RowStore rows, std::unique_ptr<Keyset> keyset);

  const Columns& columns() const override { return *columns_; }
  int knownRows() const noexcept override { return static_cast<int>(handles_.size()); }
  bool complete() const noexcept override { return complete_; }
  void fetch(int atMost) override;
  RowView row(int row, RowStore& buffer) override;
  RowView refresh(int row, RowStore& buffer) override;
  RowView readNow(int row, RowStore& buffer) override { return refresh(row, buffer); }
  bool readsRows() const noexcept override { return true; }
  int find(const Criterion& criterion, int from, int direction, RowStore& buffer) override;
  void updated(int row, const std::vector<Variant>& values) override;
  void inserted(const std::vector<Variant>& values, const RowView& returned) override;

 private:
  Keyset& keyset();
  /// The first of the rows with these handles from `from` on that fits; reads keys until it is met.
  int firstAmong(const std::vector<RowHandle>& matches, int from, int direction,
                 const std::function<bool(int)>& fits);

  Provider& provider_;
  String statement_;
  std::unique_ptr<Keyset> keyset_;
  std::shared_ptr<const Columns> columns_;
  Handles handles_;
  HandleIndex index_;
  bool complete_ = false;
  /// Row 0 as it was read when the recordset was opened, until it has been asked for.
  RowStore first_;
  std::vector<RowHandle> batch_;
};

}  // namespace zqn::ado
