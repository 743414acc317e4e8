// SPDX-License-Identifier: MIT
//
// Which tables and columns a server's database has, held against those of the system.
//
//     const ServerCatalogue catalogue = readCatalogue(connection, Dialect::PostgreSql);
//     for (const std::string& finding : findings(catalogue)) warn(finding);
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "ado/connection.h"
#include "host/database/schema/statements.h"

namespace zqn::host {

struct ServerColumn {
  String table, name;
  /// The type's name without its length, as the server says it.
  String type;
  /// The character set of a text column that cannot hold every text; empty for all others.
  String narrow = {};
  /// A text column in which "ab" is not "AB".
  bool caseCounts = false;
};

struct ServerCatalogue {
  Dialect dialect = Dialect::PostgreSql;
  /// False on a server where a session may have none.
  bool hasDatabase = true;
  /// Those that a statement reaches by the bare name of the table, in any order.
  std::vector<ServerColumn> columns;
  /// The encoding of the whole database, when that cannot hold every text; else empty.
  String narrow = {};
};

/// The dialect of a product, as a driver names it; none for a product that is not served.
std::optional<Dialect> dialectOf(StringView product);

/// Asks the server. The provider's errors.
ServerCatalogue readCatalogue(ado::Connection& connection, Dialect dialect);

/// The tables of the system that the database has, as the system spells them.
std::vector<StringView> systemTablesIn(const ServerCatalogue& catalogue);

/// A sentence for each thing that a dialog will stumble over, with what would be right.
std::vector<std::string> findings(const ServerCatalogue& catalogue);

}  // namespace zqn::host
