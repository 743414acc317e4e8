// SPDX-License-Identifier: MIT
//
// The tables of the system on an open connection: made and filled, whatever database it is.
//
//     ado::Transaction transaction(connection);
//     Created created = makeTables(connection, DatabaseProduct::PostgreSql);
//     created.rows = fillTables(connection, DatabaseProduct::PostgreSql, {.sample = true});
//     transaction.commit();
#pragma once

#include <cstdint>
#include <functional>

#include "ado/connection.h"
#include "host/database/schema/statements.h"

namespace zqn::host {

/// What a new database starts with.
struct Content {
  bool sample = false;
  /// Generated rows in each catalogue; not together with the sample.
  std::int64_t rows = 0;
};
struct Created {
  std::int64_t tables = 0;
  std::int64_t rows = 0;
};

/// Creates all tables, none of which may exist, and gives their number. `made` is told of each as soon as it
/// stands. The provider's errors.
std::int64_t makeTables(ado::Connection& connection, DatabaseProduct product,
                        const std::function<void(const Table&)>& made = {});

/// Inserts the rows of a new database and gives their number. The provider's errors.
std::int64_t fillTables(ado::Connection& connection, DatabaseProduct product, const Content& content);

}  // namespace zqn::host
