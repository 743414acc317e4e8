// SPDX-License-Identifier: MIT
//
// Which tables and columns a server's database has, held against those of the system.
//
//     const ServerSchema schema = readServerSchema(connection, DatabaseProduct::PostgreSql);
//     for (const std::string& finding : findings(schema)) warn(finding);
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
  /// The user has no right to read it.
  bool unreadable = false;
};

struct ServerSchema {
  DatabaseProduct product = DatabaseProduct::PostgreSql;
  /// False on a server where a session may have none.
  bool hasDatabase = true;
  /// Those that a statement reaches by the bare name of the table, in any order.
  std::vector<ServerColumn> columns;
  /// The encoding of the whole database, when that cannot hold every text; else empty.
  String narrow = {};
  /// `init` was ended while it made the tables: InitMarker stands there.
  bool unfinished = false;
};

/// The table that stands in a database while `init` makes the others, where it cannot do so in a transaction.
inline constexpr StringView InitMarker = u"zqn_init";

/// The product that a driver names so; none for one that is not served.
std::optional<DatabaseProduct> productNamed(StringView product);

/// Asks the server. The provider's errors.
ServerSchema readServerSchema(ado::Connection& connection, DatabaseProduct product);

/// The tables of the system that the database has, as the system spells them.
std::vector<StringView> systemTablesIn(const ServerSchema& schema);

/// A sentence for each thing that a dialog will stumble over, with what would be right.
std::vector<std::string> findings(const ServerSchema& schema);

}  // namespace zqn::host
