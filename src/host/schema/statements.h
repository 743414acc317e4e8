// SPDX-License-Identifier: MIT
//
// The schema as statements of one database. A database is a row of spellings in statements.cpp: how it writes
// each kind of column, and nothing else; a further one is a further row and a further enumerator.
//
//     for (const Table& table : tables())
//       for (const String& statement : createStatements(table, Dialect::Sqlite))
//       connection.Execute(statement);
#pragma once

#include "host/schema/table.h"

namespace zqn::host {

enum class Dialect { Sqlite };

/// CREATE TABLE, then one CREATE INDEX for each indexed column; to be run in this order, one by one. Names
/// are unquoted, as the dialogs write them. On SQLite each text column has the collation ZQN_TEXT, which the
/// connection must know by then.
std::vector<String> createStatements(const Table& table, Dialect dialect);

/// INSERT with a `?` for each value of a Row, in its order. The columns are named, so a Serial gets its
/// number by itself.
String insertStatement(const Table& table, Dialect dialect);

}  // namespace zqn::host
