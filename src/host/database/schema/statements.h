// SPDX-License-Identifier: MIT
//
// The schema as statements of one database. A database is a row of spellings in statements.cpp: how it writes
// each kind of column, and nothing else; a further one is a further row and a further enumerator.
//
// On each of them texts compare without case while accents count. By which collation, each text column says.
//
//     for (const String& statement : preparations(DatabaseProduct::Sqlite)) connection.Execute(statement);
//     for (const Table& table : tables())
//       for (const String& statement : createStatements(table, DatabaseProduct::Sqlite))
//       connection.Execute(statement);
#pragma once

#include "host/database/schema/table.h"

namespace zqn::host {

enum class DatabaseProduct { Sqlite, PostgreSql, MariaDb, SqlServer };

/// What the database needs before its first table: the collation `zqn_text` on PostgreSQL, nothing elsewhere.
/// Without effect where it is there already.
std::vector<String> preparations(DatabaseProduct product);

/// CREATE TABLE, then one CREATE INDEX for each indexed column; to be run in this order, one by one. Names
/// keep their spelling: PostgreSQL has them in quotes, elsewhere they need none. On SQLite each text column
/// has the collation ZQN_TEXT, which the connection must know by then.
std::vector<String> createStatements(const Table& table, DatabaseProduct product);

/// The type of the column as its CREATE TABLE says it, with length and collation.
String columnType(const Column& column, DatabaseProduct product);

/// INSERT with a `?` for each value of a Row, in its order, for so many rows. The columns are named, so a
/// Serial gets its number by itself.
String insertStatement(const Table& table, DatabaseProduct product, std::size_t rows = 1);

}  // namespace zqn::host
