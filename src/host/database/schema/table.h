// SPDX-License-Identifier: MIT
//
// What a table of the reference host's database is, without any database: its columns in the order that
// `SELECT *` gives, its key, and a row of values. The tables themselves stand in schema.h, their statements
// in statements.h.
//
//     const Table& stati = table(u"Vertriebsstati");
//     Row row{u"10", u"Interesse geweckt", false, 10};
#pragma once

#include <functional>
#include <optional>
#include <vector>

#include "runtime/string.h"
#include "runtime/variant.h"

namespace zqn::host {

enum class ColumnKind {
  Text,      ///< up to `length` UTF-16 units; a row holds a String
  LongText,  ///< text without a limit; a String
  Whole,     ///< 32-bit integer; a Long
  Number,    ///< a Double
  Flag,      ///< yes or no; a Boolean. Stored as 1 and 0; any other number than 0 means yes when read
  Date14,    ///< fourteen digits "yyyymmddhhnnss" as text; a String
  Serial,    ///< a number that the database gives; rows and INSERT statements leave it out
};

struct Column {
  StringView name;
  ColumnKind kind = ColumnKind::Text;
  /// UTF-16 units that a Text or Date14 takes; 0 for all other kinds.
  int length = 0;
  bool nullable = true;
  /// The text that a row gets when an INSERT does not name the column; none unless stated.
  std::optional<StringView> defaultText = std::nullopt;
};

struct Table {
  StringView name;
  std::vector<Column> columns;
  /// Names of the key's columns, in the order in which the lists of the dialogs are narrowed and sorted.
  std::vector<StringView> primaryKey;
  /// Further columns that a dialog searches or sorts by; one index each.
  std::vector<StringView> indexed = {};
  /// False for a small table beside the catalogues: it has its sample rows also where rows are generated.
  bool catalogue = true;

  /// Position of a column from 0. Error 3265 when the table has none of that name (exact spelling).
  std::size_t position(StringView column) const;
  /// Number of values of a row: all columns but a Serial, which stands last.
  std::size_t width() const;
};

/// The values of one row, in the order of the table's columns, without the Serial.
using Row = std::vector<Variant>;

/// Takes one row at a time; both arguments are valid during the call only.
using RowSink = std::function<void(const Table& table, const Row& row)>;

}  // namespace zqn::host
