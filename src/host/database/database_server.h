// SPDX-License-Identifier: MIT
//
// The host's database on a server; database.h says what holds for every database.
//
//     Ref<ado::Connection> connection = openDatabaseOnServer(address);
//     for (const std::string& finding : findingsOnServer(*connection, address)) warn(finding);
#pragma once

#include <string>
#include <vector>

#include "ado/connection.h"
#include "host/database/database_address.h"
#include "host/database/system_tables.h"
#include "runtime/ref.h"

namespace zqn::host {

/// CommandFailure (CannotOpen) with the driver's own words when there is no such driver, server or database,
/// when it does not let the user in, or when the database has no table of the system.
Ref<ado::Connection> openDatabaseOnServer(const DatabaseAddress& address);

/// A sentence for each finding that database.h speaks of; nothing for a product that is not known.
/// CommandFailure (CannotOpen) when the server cannot be asked.
std::vector<std::string> findingsOnServer(ado::Connection& connection, const DatabaseAddress& address);

/// CommandFailure (CannotOpen) when it cannot be done; no table is left behind then.
Created createTablesOnServer(const DatabaseAddress& address, const Content& content);

}  // namespace zqn::host
