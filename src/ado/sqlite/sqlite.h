// SPDX-License-Identifier: MIT
//
// The embedded database: one SQLite file. Write-ahead log, synchronous FULL (what a clerk saved is on the
// disk), foreign keys on.
//
//     Ref<ado::Connection> connection = ado::openSqlite("/home/anna/Stammdaten.db");
//
// Its texts compare by the collation ZQN_TEXT (compareCollated of runtime/collation.h: without case and trailing
// blanks), which a schema names on each text column: `Status VARCHAR(10) COLLATE ZQN_TEXT PRIMARY KEY`.
#pragma once

#include <chrono>
#include <filesystem>
#include <memory>

#include "ado/connection.h"
#include "runtime/ref.h"

namespace zqn::ado {

/// How a file is opened.
struct SqliteOptions {
  /// What is expected of the file.
  enum class Mode {
    Create,    // make the file when there is none; its folder must exist
    Existing,  // refuse when there is no file
    ReadOnly,  // as Existing; every write raises -2147217911
  };
  Mode mode = Mode::Create;  ///< Create unless said.
  /// How long a statement waits for another one's lock.
  std::chrono::milliseconds busyTimeout{5000};
};

/// `path` is a file, or ":memory:" for a database that lives as long as its connection. Errors: -2147467259,
/// the description says what is wrong with the path and what would be right (a folder, no such file, no
/// database, no right to read); -2147217911 for a file that can only be read, unless opened so.
std::unique_ptr<Provider> sqliteProvider(const std::filesystem::path& path,
                                         const SqliteOptions& options = {});
Ref<Connection> openSqlite(const std::filesystem::path& path, const SqliteOptions& options = {});

}  // namespace zqn::ado
