// SPDX-License-Identifier: MIT
//
// Inside the SQLite provider: an open file and its statements, closed by themselves, and its failures as
// RuntimeErrors.
//
//     StatementHandle handle = database.prepare("SELECT 1");
//     if (database.step(*handle)) ...
#pragma once

#include <sqlite3.h>

#include <memory>
#include <string>
#include <string_view>

#include "ado/provider.h"
#include "runtime/error.h"

namespace zqn::ado::sqlite {

struct Finalize {
  void operator()(sqlite3_stmt* statement) const noexcept { sqlite3_finalize(statement); }
};
using StatementHandle = std::unique_ptr<sqlite3_stmt, Finalize>;

class Database {
 public:
  /// `flags` as for sqlite3_open_v2. Registers the collation ZQN_TEXT. The error has SQLite's words.
  Database(const std::string& path, int flags, int busyMilliseconds);
  ~Database();
  Database(const Database&) = delete;
  Database& operator=(const Database&) = delete;

  sqlite3* get() const noexcept { return database_; }

  /// Error -2147217900 for a text that is no single statement.
  StatementHandle prepare(std::string_view statement) const;
  StatementHandle prepare(StringView statement) const { return prepare(std::string_view(toUtf8(statement))); }
  /// True on a row, false at the end; a failed statement is reset.
  bool step(sqlite3_stmt* statement) const;
  void bind(sqlite3_stmt* statement, int index, const Value& value) const;
  /// Runs a statement of which the rows do not matter.
  void run(std::string_view statement) const;
  /// The first cell of its first row, "" without rows.
  std::string text(std::string_view statement) const;

  /// The last failure, `result` being its code.
  RuntimeError failure(int result) const;

 private:
  sqlite3* database_ = nullptr;
};

/// Adds the row that the statement stands on.
void readRow(sqlite3_stmt* statement, RowStore& rows);

/// The number of runtime/error.h for a result code of SQLite.
std::int32_t errorNumber(int result, std::string_view message) noexcept;

extern const String SourceName;

}  // namespace zqn::ado::sqlite
