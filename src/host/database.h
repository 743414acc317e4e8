// SPDX-License-Identifier: MIT
//
// The host's database: what `--db` names, opened or made. Everything that can be wrong with it ends the
// command with a sentence for the person (CommandFailure, CannotOpen) before anything is created or changed.
//
//     Ref<ado::Connection> connection = openDatabase(databaseFile("sqlite:waren.db"));
#pragma once

#include <cstdint>
#include <filesystem>
#include <string>

#include "ado/connection.h"
#include "runtime/ref.h"

namespace zqn::host {

/// The user's data folder of this program, whether it exists or not.
std::filesystem::path dataFolder();

/// The file behind a URL; WrongUsage for a text that is no URL, CannotOpen for a kind of database that this
/// program does not serve.
std::filesystem::path databaseFile(const std::string& url);

/// Opens a database that has tables of the system. The file is changed by nothing but the statements that
/// run on it.
Ref<ado::Connection> openDatabase(const std::filesystem::path& file);

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
/// Creates all tables of the system and their rows in one transaction; the file is made when there is none,
/// its folder must exist. Refuses when one of the tables exists already. After a failure the file is as it
/// was before, or absent again.
Created createTables(const std::filesystem::path& file, const Content& content);

/// The file that is used when no database is named: it stands in the data folder, and is created with the
/// sample when it is not there yet.
std::filesystem::path defaultDatabaseFile();

}  // namespace zqn::host
