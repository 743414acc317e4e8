// SPDX-License-Identifier: MIT
//
// Inside the SQLite provider: what a SELECT's columns are, and the forms of a plain SELECT over one table by
// which its rows are found again.
#pragma once

#include <optional>

#include "ado/sql_tokens.h"
#include "ado/sqlite/database.h"

namespace zqn::ado::sqlite {

/// Name, type and origin of the result's columns; none is key or hidden.
Columns describe(sqlite3_stmt* statement);

/// A plain SELECT over one table of the database, with its row handle and those columns of the primary key
/// that it does not name, as hidden columns behind its own.
struct SelectWithHandle {
  sql::PlainSelect select;
  StatementHandle statement;
  Columns columns;
  /// Name of the row handle in this table; empty for a table without one, which is keyed by its primary key
  /// alone.
  String rowId;
};

enum class RowsOf { Statement, OneHandle };  // OneHandle: the row whose handle is the parameter

/// No value when the statement is not of that kind, or does not prepare. `text` must outlive the result.
std::optional<SelectWithHandle> selectWithHandle(const Database& database, StringView text, RowsOf rows);

}  // namespace zqn::ado::sqlite
