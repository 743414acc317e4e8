// SPDX-License-Identifier: MIT
//
// The host's database: what `--db` names, opened or made. Everything that can be wrong with it ends the
// command with a sentence for the person (CommandFailure, CannotOpen) before anything is created or changed.
//
//     Ref<ado::Connection> connection = openDatabase(DatabaseAddress::read("sqlite:waren.db"));
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "ado/connection.h"
#include "host/database/database_address.h"
#include "host/database/system_tables.h"
#include "runtime/ref.h"

namespace zqn::host {

/// The user's data folder of this program, whether it exists or not.
std::filesystem::path dataFolder();

/// Opens a database that has tables of the system. A file is changed by nothing but the statements that run
/// on it.
Ref<ado::Connection> openDatabase(const DatabaseAddress& address);

/// Tells on standard error what the dialogs will stumble over in an open database of a server: a table or a
/// column that is missing or of another type, texts that it cannot hold, keys in which case counts. A line
/// each, with what would be right; nothing for a file.
void tellFindings(ado::Connection& connection, const DatabaseAddress& address);

/// Creates all tables of the system and their rows. A file is made when there is none, its folder must exist;
/// the database of a server must be there. Refuses when one of the tables exists already. After a failure the
/// database is as it was before, or the file absent again.
Created createTables(const DatabaseAddress& address, const Content& content);

/// The file that is used when no database is named: it stands in the data folder, and is created with the
/// sample when it is not there yet.
std::filesystem::path defaultDatabaseFile();

}  // namespace zqn::host
