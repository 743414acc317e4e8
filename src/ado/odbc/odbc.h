// SPDX-License-Identifier: MIT
//
// Database servers over ODBC: PostgreSQL, MariaDB and SQL Server, told apart by what the driver reports.
// The dialogs' statements reach them as they are written; what a server says differently (names in quotes,
// booleans as numbers, LIKE without case) is translated on the way.
//
//     Ref<ado::Connection> connection =
//         ado::openOdbc(u"Driver={PostgreSQL Unicode};Server=db;Database=waren;UID=anna;PWD=geheim");
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <span>
#include <vector>

#include "ado/connection.h"
#include "runtime/ref.h"

namespace zqn::ado {

struct OdbcOptions {
  /// How long a server may take to answer when a connection is opened, now or after a drop.
  std::chrono::seconds loginTimeout{5};
  /// Told of each statement as it is handed to the driver, after translation. For measurements and tests.
  std::function<void(StringView statement)> ran = {};
  /// Told of each run of a statement, one kept from before included, with the values of its parameters. Rows
  /// of a list are read by such runs, too; a list's pages over its own connection are among them. For
  /// measurements.
  std::function<void(StringView statement, std::span<const Value> parameters)> runs = {};
};

/// Connects. Keys of the connection string as the driver names them; `Driver` or `DSN` chooses it. Errors:
/// -2147467259 with the driver's own words (no such driver, wrong password, server down, no such database).
///
/// The provider's `name()` is what the driver reports as its product: "PostgreSQL", "MariaDB", "MySQL",
/// "Microsoft SQL Server", ...
///
/// A connection that drops raises -2147467259 once; outside a transaction of the caller's own, the next
/// statement connects again. No statement is ever sent twice.
std::unique_ptr<Provider> odbcProvider(StringView connectionString, const OdbcOptions& options = {});
Ref<Connection> openOdbc(StringView connectionString, const OdbcOptions& options = {});

/// Names of the drivers that are installed, in the order of the driver manager.
std::vector<String> odbcDrivers();

}  // namespace zqn::ado
