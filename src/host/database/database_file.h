// SPDX-License-Identifier: MIT
//
// The host's database in an SQLite file; database.h says what holds for every database.
//
//     Ref<ado::Connection> connection = openDatabaseFile(address.file());
#pragma once

#include <filesystem>

#include "ado/connection.h"
#include "host/database/system_tables.h"
#include "runtime/ref.h"

namespace zqn::host {

/// CommandFailure (CannotOpen) for a file that is none, is no database, or has no table of the system.
Ref<ado::Connection> openDatabaseFile(const std::filesystem::path& file);

/// CommandFailure (CannotOpen) when it cannot be done; the file is as it was before then, or absent. A new file
/// appears when it is complete; one that somebody else makes meanwhile is left to him.
Created createTablesInFile(const std::filesystem::path& file, const Content& content);

/// Whether a database in a file that is there has a table of the system. CommandFailure (CannotOpen) for a file
/// that is no database.
bool hasSystemTables(const std::filesystem::path& file);

}  // namespace zqn::host
