// SPDX-License-Identifier: MIT
#include "host/database/database.h"

#include <cstdlib>

#include "host/database/database_file.h"
#include "host/database/database_server.h"
#include "host/database/failure.h"
#include "host/database/layout_files.h"
#include "host/database/messages.h"

namespace zqn::host {

namespace fs = std::filesystem;

fs::path dataFolder() {
  if (const char* folder = std::getenv("XDG_DATA_HOME"); folder && *folder == '/')
    return fs::path(folder) / "zqn-dialog";
  const char* home = std::getenv("HOME");
  if (home == nullptr || *home == '\0')
    throw CommandFailure(ExitStatus::CannotOpen,
                         "no home folder: HOME is not set; name a database with --db");
  return fs::path(home) / ".local" / "share" / "zqn-dialog";
}

Ref<ado::Connection> openDatabase(const DatabaseAddress& address) {
  return address.isServer() ? openDatabaseOnServer(address) : openDatabaseFile(address.file());
}

void tellFindings(ado::Connection& connection, const DatabaseAddress& address) {
  if (!address.isServer()) return;
  for (const std::string& finding : findingsOnServer(connection, address)) tell(finding);
}

Created createTables(const DatabaseAddress& address, const Content& content) {
  return address.isServer() ? createTablesOnServer(address, content)
                            : createTablesInFile(address.file(), content);
}

fs::path defaultDatabaseFile() {
  fs::path file = dataFolder() / "zqn-dialog.sqlite";
  std::error_code failure;
  // An older program that was killed at its first start has left a file without a table.
  if (fs::exists(file, failure) && hasSystemTables(file)) return file;
  fs::create_directories(file.parent_path(), failure);
  if (failure)
    throw CommandFailure(ExitStatus::CannotOpen,
                         "database '" + file.string() + "': its folder cannot be made: " + failure.message());
  // The database last: where it stands, the first start is over.
  writeSampleLayouts(file.parent_path());
  try {
    createTablesInFile(file, {.sample = true});
  } catch (const CommandFailure&) {
    // Another first start was quicker.
    if (!fs::exists(file, failure) || !hasSystemTables(file)) throw;
  }
  return file;
}

}  // namespace zqn::host
