// SPDX-License-Identifier: MIT
//
// What a database must offer so that recordsets run on it: prepared statements, a description of their
// columns, and, if it can, the keys of a SELECT's rows without the rows. One folder per database implements
// it; forms and dialogs never see it. The smallest possible provider stands in empty_provider_test.cpp.
//
// All calls come from one thread. Failures are RuntimeErrors with the numbers of runtime/error.h (group
// "Providers") and the database's own words; after a failure the object is as if the call had not been made.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "ado/row_store.h"
#include "runtime/string.h"
#include "runtime/variant.h"

namespace zqn::ado {

/// Names a row of a table for as long as the row exists.
using RowHandle = std::int64_t;

/// One column of a statement's result.
struct Column {
  String name;  ///< As the result names it.
  /// DataTypeEnum, from the declaration; adVariant for an expression.
  int type = 0;
  /// Longest text in UTF-16 units, 0 for no limit.
  int definedSize = 0;
  /// Where the value is stored; both empty for an expression, which cannot be assigned.
  String baseTable;
  String baseColumn;
  /// Part of what identifies the row: its value when read goes into the WHERE of an Update.
  bool key = false;
  /// Added by the provider behind the statement's own columns (Purpose::Keyed); no Field shows it.
  bool hidden = false;
  /// The value is the row's RowHandle itself.
  bool rowHandle = false;
};
using Columns = std::vector<Column>;  ///< In the order of the statement.

/// A prepared statement. It is kept and run again with other parameters; it is never left open while others
/// run.
class Statement {
 public:
  virtual ~Statement() = default;

  /// Runs it from the start. A statement without result columns is finished when this returns.
  virtual void open(std::span<const Value> parameters) = 0;
  /// Adds the next rows, `atMost` of them, to `rows`. False when these were the last; the statement is closed
  /// then.
  virtual bool fetch(RowStore& rows, std::size_t atMost) = 0;
  /// Gives up the remaining rows. Without effect on a closed one.
  virtual void close() noexcept = 0;

  /// Known once it is open, and kept after. Empty for a statement that returns no rows at all (DELETE,
  /// UPDATE, CREATE).
  virtual std::shared_ptr<const Columns> columns() const = 0;
  /// Rows that the last open has changed.
  virtual std::int64_t rowsAffected() const = 0;
};

/// A piece of a WHERE, with a `?` for each parameter.
struct Condition {
  String text;                    ///< Without the word WHERE.
  std::vector<Value> parameters;  ///< One for each `?`.
};

/// A comparison that the database is asked to answer by its index.
struct ColumnEquals {
  int column = 0;  ///< Its place in the columns, from 0.
  Value value;     ///< What it is to be equal to.
};

/// The rows of a SELECT by their handles. Membership and order are those of the moment of the first
/// fetchKeys; values are read anew each time.
class Keyset {
 public:
  virtual ~Keyset() = default;

  /// Those of the SELECT, and hidden ones behind them.
  virtual std::shared_ptr<const Columns> columns() const = 0;
  /// Adds the next handles, `atMost` of them. False when these were the last.
  virtual bool fetchKeys(std::vector<RowHandle>& keys, std::size_t atMost) = 0;
  /// The handle of a row that a Keyed statement of the same SELECT has read.
  virtual RowHandle handleOf(const RowView& row) = 0;
  /// This connection has inserted a row with these values, one a column, Empty for those that were left to
  /// the database; nothing else has run since. `returned` is the row that the Insert statement gave, empty when
  /// it gave none. The new row's handle, where it can be told.
  virtual std::optional<RowHandle> inserted(const std::vector<Variant>& values, const RowView& returned) = 0;
  /// This connection has written these values into a row, Empty for those that were left alone: the handle
  /// goes on naming it, whatever its key is now.
  virtual void written(RowHandle row, const std::vector<Variant>& values) = 0;
  /// Adds that row's values to `rows`; false (and nothing added) when the row is gone.
  virtual bool readRow(RowHandle row, RowStore& rows) = 0;
  /// Handles of the rows of the table, in any order, for which all comparisons hold, each with a column that
  /// has a base column. Texts compare by the database's collation. No value when the database cannot tell
  /// better than by reading every row through readRow.
  virtual std::optional<std::vector<RowHandle>> rowsWhere(std::span<const ColumnEquals> comparisons) = 0;
};

/// What a statement is prepared for.
enum class Purpose {
  /// To be run and read.
  Plain,
  /// The rows must be found again: add what identifies a row and is not among the statement's own columns, as
  /// hidden columns.
  Keyed,
  /// An INSERT of one row: let it return what tells the row from all others, as the database has written it,
  /// if it can. Its Keyset is given that.
  Insert,
};

/// One database, open for as long as this lives.
class Provider {
 public:
  virtual ~Provider() = default;

  /// `?` in `text` marks a parameter. A text of more than one statement is a syntax error (-2147217900).
  virtual std::unique_ptr<Statement> prepare(StringView text, Purpose purpose) = 0;
  /// The same SELECT by its keys, or nullptr where that is not possible; the engine then reads all rows.
  /// `text` has no parameters; `known` are the columns of a Keyed statement of the same SELECT, where one has
  /// been opened.
  virtual std::unique_ptr<Keyset> keyset(StringView text, std::shared_ptr<const Columns> known = nullptr);

  /// An identifier as it stands in a statement, whatever letters it has. Default: in double quotes.
  virtual String quoted(StringView identifier) const;
  /// Holds exactly when the stored value of the column is, byte for byte, the one that was read, Null
  /// included. It refers to the text of `read`.
  virtual Condition sameValue(const Column& column, const Value& read) const = 0;

  /// Source of the errors, as in "SQLite".
  virtual String name() const = 0;
};

}  // namespace zqn::ado
