// SPDX-License-Identifier: MIT
#include "host/database/database_server.h"

#include <algorithm>
#include <optional>

#include "ado/odbc/connection_string.h"
#include "ado/odbc/odbc.h"
#include "ado/transaction.h"
#include "host/database/failure.h"
#include "host/database/rows.h"
#include "host/database/server_schema.h"
#include "runtime/collation.h"

namespace zqn::host {

namespace {

/// Messages of drivers have lines and tabs.
std::string oneLine(const String& words) {
  std::string line;
  for (const char character : toUtf8(words)) {
    const bool blank = character == '\n' || character == '\r' || character == '\t' || character == ' ';
    if (!blank) line += character;
    if (blank && !line.empty() && line.back() != ' ') line += ' ';
  }
  while (!line.empty() && line.back() == ' ') line.pop_back();
  return line;
}

CommandFailure cannotOpen(const DatabaseAddress& address, const std::string& reason) {
  return CommandFailure(ExitStatus::CannotOpen, "database '" + address.shown() + "': " + reason);
}

/// What is right instead, when the address names no driver, or one that is not installed.
std::string driverHint(const DatabaseAddress& address) {
  const String name = ado::odbc::connectionValue(address.connectionString(), u"Driver");
  if (name.empty() && !ado::odbc::connectionValue(address.connectionString(), u"DSN").empty()) return "";
  const std::vector<String> installed = ado::odbcDrivers();
  const auto isNamed = [&](const String& driver) { return sameName(driver, name); };
  // A driver may also be named by the path of its library.
  if (name.find(u'/') != String::npos || std::ranges::any_of(installed, isNamed)) return "";
  std::string hint = name.empty() ? "; write Driver={...}" : "; there is no driver '" + toUtf8(name) + "'";
  for (std::size_t i = 0; i < installed.size(); ++i)
    hint += (i == 0 ? "; installed are: " : ", ") + toUtf8(installed[i]);
  return installed.empty() ? hint + "; no ODBC driver is installed" : hint;
}

Ref<ado::Connection> connect(const DatabaseAddress& address) {
  try {
    return ado::openOdbc(address.connectionString());
  } catch (const RuntimeError& failure) {
    throw cannotOpen(address, oneLine(failure.description()) + driverHint(address));
  }
}

ServerSchema schemaOf(ado::Connection& connection, DatabaseProduct product, const DatabaseAddress& address) {
  try {
    ServerSchema schema = readServerSchema(connection, product);
    if (!schema.hasDatabase) throw cannotOpen(address, "names no database; add Database=NAME");
    return schema;
  } catch (const RuntimeError& failure) {
    throw cannotOpen(address, oneLine(failure.description()));
  }
}

/// The statement that begins a transaction around the tables themselves; none where a CREATE TABLE ends it.
std::optional<StringView> beginAroundTables(DatabaseProduct product) {
  switch (product) {
    case DatabaseProduct::Sqlite:
    case DatabaseProduct::PostgreSql:
      return u"BEGIN";
    case DatabaseProduct::SqlServer:
      return u"BEGIN TRANSACTION";
    case DatabaseProduct::MariaDb:
      break;
  }
  return std::nullopt;
}

Created createInTransaction(ado::Connection& connection, DatabaseProduct product, StringView begin,
                            const Content& content) {
  ado::Transaction transaction(connection, begin);
  const std::int64_t made = makeTables(connection, product);
  const std::int64_t rows = fillTables(connection, product, content);
  transaction.commit();
  return {.tables = made, .rows = rows};
}

/// Drops the tables, the last one first, and gives the names of those that would not go.
std::string dropTables(ado::Connection& connection, const std::vector<StringView>& names) {
  std::string left;
  for (auto name = names.rbegin(); name != names.rend(); ++name) {
    try {
      connection.Execute(u"DROP TABLE " + String(*name));
    } catch (const RuntimeError&) {
      left += (left.empty() ? "" : ", ") + toUtf8(*name);
    }
  }
  return left;
}

void requireNoTableOfTheSystem(const DatabaseAddress& address, const ServerSchema& schema) {
  const std::vector<StringView> found = systemTablesIn(schema);
  if (found.empty()) return;
  throw cannotOpen(address, "has " + std::to_string(found.size()) +
                                " tables of the system already, such as " + toUtf8(found.front()) +
                                "; name another database");
}

/// One `init` at a time: the lock is the session's and ends with it.
void lockForInit(ado::Connection& connection, const DatabaseAddress& address) {
  const RowSet answer =
      runStatement(connection, u"SELECT GET_LOCK(CONCAT('zqn_init.', SHA1(DATABASE())), 0)");
  if (answer.rows.at(0, 0).integer != 1)
    throw cannotOpen(address, "another 'zqn-dialog init' is making its tables; wait until it has ended");
}

/// For a server on which CREATE TABLE ends every transaction. The marker says as long as it stands that the
/// tables of the system beside it are an init's that has not come to its end: the next one removes them.
Created createOneByOne(ado::Connection& connection, const DatabaseAddress& address, DatabaseProduct product,
                       const Content& content) {
  schemaOf(connection, product, address);  // an address without a database is none to wait for
  lockForInit(connection, address);
  const ServerSchema schema = schemaOf(connection, product, address);
  const String marker(InitMarker);
  std::vector<StringView> made;
  if (schema.unfinished) {
    made = systemTablesIn(schema);
  } else {
    requireNoTableOfTheSystem(address, schema);
    connection.Execute(u"CREATE TABLE " + marker + u" (Beginn INT)");
  }
  try {
    if (!dropTables(connection, made).empty())
      throw RuntimeError(error::ProviderFailure, u"what an earlier init has left cannot be dropped");
    made.clear();
    makeTables(connection, product, [&](const Table& table) { made.push_back(table.name); });
    ado::Transaction transaction(connection);
    const std::int64_t rows = fillTables(connection, product, content);
    transaction.commit();
    connection.Execute(u"DROP TABLE " + marker);
    return {.tables = static_cast<std::int64_t>(made.size()), .rows = rows};
  } catch (const RuntimeError& failure) {
    std::string left = dropTables(connection, made);
    // While one of them stands, the marker does, too.
    if (left.empty()) left = dropTables(connection, {InitMarker});
    if (left.empty()) throw;
    throw RuntimeError(
        failure.number(),
        failure.description() + fromUtf8("; these tables were made and could not be dropped: " + left +
                                         "; the next init removes them"),
        failure.source());
  }
}

}  // namespace

Ref<ado::Connection> openDatabaseOnServer(const DatabaseAddress& address) {
  Ref<ado::Connection> connection = connect(address);
  const auto product = productNamed(connection->provider().name());
  if (!product) return connection;
  const ServerSchema schema = schemaOf(*connection, *product, address);
  if (schema.unfinished)
    throw cannotOpen(address,
                     "is unfinished: an init was ended while it made the tables; run it again: zqn-dialog "
                     "init --db '" +
                         address.shownUrl() + "' --sample");
  if (!systemTablesIn(schema).empty()) return connection;
  throw cannotOpen(address, "has no table of the system; make them with: zqn-dialog init --db '" +
                                address.shownUrl() + "' --sample");
}

std::vector<std::string> findingsOnServer(ado::Connection& connection, const DatabaseAddress& address) {
  const auto product = productNamed(connection.provider().name());
  return product ? findings(schemaOf(connection, *product, address)) : std::vector<std::string>();
}

Created createTablesOnServer(const DatabaseAddress& address, const Content& content) {
  const Ref<ado::Connection> connection = connect(address);
  const String name = connection->provider().name();
  const auto product = productNamed(name);
  if (!product)
    throw cannotOpen(address, "is a database of the product '" + toUtf8(name) +
                                  "'; tables can be made in PostgreSQL, MariaDB and Microsoft SQL Server");
  try {
    const auto begin = beginAroundTables(*product);
    if (!begin) return createOneByOne(*connection, address, *product, content);
    requireNoTableOfTheSystem(address, schemaOf(*connection, *product, address));
    return createInTransaction(*connection, *product, *begin, content);
  } catch (const RuntimeError& failure) {
    throw cannotOpen(address, oneLine(failure.description()));
  }
}

}  // namespace zqn::host
