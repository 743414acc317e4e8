// SPDX-License-Identifier: MIT
//
// The rows of an open recordset: all of them in memory (a snapshot), or their keys, with the values read as
// they are asked for (a keyset). The recordset stands above it and knows the position, the edit and the
// rules; a cursor knows rows by number, from 0.
#pragma once

#include <memory>

#include "ado/connection.h"
#include "ado/criterion.h"
#include "ado/provider.h"

namespace zqn::ado {

class Cursor {
 public:
  virtual ~Cursor() = default;

  virtual const Columns& columns() const = 0;
  virtual int knownRows() const noexcept = 0;
  virtual bool complete() const noexcept = 0;
  /// Makes up to `atMost` more rows known.
  virtual void fetch(int atMost) = 0;
  void fetchAll();

  /// A known row; an empty view when it is gone. `buffer` may be used to hold it. Valid until the next call
  /// that is not const.
  virtual RowView row(int row, RowStore& buffer) = 0;
  /// The same, read afresh where its key can be told.
  virtual RowView refresh(int row, RowStore& buffer) = 0;
  /// The same, and nothing of it is kept.
  virtual RowView readNow(int row, RowStore& buffer) = 0;
  /// Rows are read from the database each time: a list keeps those that it draws.
  virtual bool readsRows() const noexcept = 0;
  /// The first row from `from` on, a known one, that the criterion fits; -1 for none. `buffer` as in row.
  virtual int find(const Criterion& criterion, int from, int direction, RowStore& buffer) = 0;

  /// The row has been written with these values, one a column, Empty for those that were left alone.
  virtual void updated(int row, const std::vector<Variant>& values) = 0;
  /// A row has been inserted with these values, as above, and its statement returned `returned`; it is the last
  /// one from now on. All rows were known before.
  virtual void inserted(const std::vector<Variant>& values, const RowView& returned) = 0;

 protected:
  /// find, row by row.
  int scan(const Criterion& criterion, int from, int direction, RowStore& buffer);
};

enum class CursorKind { Server, Client };

/// Runs a SELECT. `keyed` when its rows are to be updated. nullptr when the statement returned no rows at
/// all.
std::unique_ptr<Cursor> openCursor(Connection& connection, StringView statement, CursorKind kind, bool keyed);

}  // namespace zqn::ado
