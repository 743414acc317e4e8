// SPDX-License-Identifier: MIT
#include "host/database/database_file.h"

#include <fstream>
#include <system_error>
#include <vector>

#include "ado/sqlite/sqlite.h"
#include "ado/transaction.h"
#include "host/database/failure.h"
#include "host/database/new_file.h"
#include "host/database/rows.h"
#include "host/database/schema/schema.h"
#include "runtime/collation.h"

namespace zqn::host {

namespace fs = std::filesystem;

namespace {

using Mode = ado::SqliteOptions::Mode;

/// How long the first look at a database waits for somebody who has locked it.
constexpr std::chrono::milliseconds patience{1000};

CommandFailure cannotOpen(const fs::path& file, const std::string& reason) {
  return CommandFailure(ExitStatus::CannotOpen, "database '" + file.string() + "': " + reason);
}

CommandFailure cannotOpen(const fs::path& file, const RuntimeError& failure) {
  const std::string words = toUtf8(failure.description());
  if (words.find(file.string()) == std::string::npos) return cannotOpen(file, words);
  return CommandFailure(ExitStatus::CannotOpen, words);
}

/// The failure's words with the file's own name, where they say that of its draft.
std::string named(const fs::path& file, const fs::path& draft, const RuntimeError& failure) {
  std::string words = toUtf8(failure.description());
  const auto place = words.find(draft.string());
  return place == std::string::npos ? words : words.replace(place, draft.string().size(), file.string());
}

std::string createHint(const fs::path& file) {
  return "make a database with: zqn-dialog init --db sqlite:" + file.string() + " --sample";
}

/// What stands at the path, if anything; says why when nobody can know.
fs::file_status statusOf(const fs::path& file) {
  std::error_code failure;
  const fs::file_status status = fs::status(file, failure);
  if (!fs::status_known(status)) throw cannotOpen(file, failure.message() + "; name another file");
  return status;
}

bool isProtected(const fs::file_status& status) {
  using enum fs::perms;
  // The bits count for root, too, whom the system would let write: the mark says that somebody wants it kept.
  return (status.permissions() & (owner_write | group_write | others_write)) == none;
}

/// A file that SQLite can take; says what it is when it is something else.
void requireDatabaseFile(const fs::path& file) {
  const fs::file_status status = statusOf(file);
  if (fs::is_directory(status)) throw cannotOpen(file, "is a folder; name a file in it");
  if (!fs::is_regular_file(status)) throw cannotOpen(file, "is no file; name a file on a disk");
  if (isProtected(status))
    throw cannotOpen(file, "is write-protected; give it write permission or name a copy");
}

/// The file keeps a write-ahead log: its header says format 2.
bool hasWriteAheadLog(const fs::path& file) {
  char header[20] = {};
  std::ifstream(file, std::ios::binary).read(header, sizeof header);
  return header[18] == 2;
}

std::vector<String> systemTablesOn(ado::Connection& connection) {
  std::vector<String> found;
  const RowSet names = runStatement(connection, u"SELECT name FROM sqlite_master WHERE type='table'");
  for (int row = 0; row < names.rows.rows(); ++row) {
    const StringView name = names.rows.at(row, 0).text;
    for (const Table& table : tables())
      if (sameName(name, table.name)) found.emplace_back(name);
  }
  return found;
}

/// Tables of the system that the file has. The look leaves file and folder as they are: for reading alone,
/// SQLite would leave the files of a write-ahead log behind; for writing, the connection would begin one.
std::vector<String> systemTablesIn(const fs::path& file) {
  const Mode mode = hasWriteAheadLog(file) ? Mode::Existing : Mode::ReadOnly;
  return systemTablesOn(*ado::openSqlite(file, {.mode = mode, .busyTimeout = patience}));
}

void requireNoTableOfTheSystem(const fs::path& file, const std::vector<String>& found) {
  if (found.empty()) return;
  throw cannotOpen(file, "has " + std::to_string(found.size()) + " tables of the system already, such as " +
                             toUtf8(found.front()) + "; name another file");
}

Created makeAndFill(ado::Connection& connection, const Content& content) {
  const std::int64_t made = makeTables(connection, DatabaseProduct::Sqlite);
  return {.tables = made, .rows = fillTables(connection, DatabaseProduct::Sqlite, content)};
}

/// In a file that is there: all or nothing of it is written.
Created createInExisting(const fs::path& file, const Content& content) {
  requireDatabaseFile(file);
  requireNoTableOfTheSystem(file, systemTablesIn(file));
  const auto connection = ado::openSqlite(file, {.mode = Mode::Existing});
  ado::Transaction transaction(*connection, u"BEGIN IMMEDIATE");
  // Somebody else may have made them since the first look.
  requireNoTableOfTheSystem(file, systemTablesOn(*connection));
  const Created created = makeAndFill(*connection, content);
  transaction.commit();
  return created;
}

/// In a new file, which nobody sees before it is complete.
Created createInNew(const fs::path& file, const Content& content) {
  if (!fs::is_directory(file.parent_path()))
    throw cannotOpen(file, "its folder does not exist; make the folder first");
  try {
    NewFile draft(file);
    Created created;
    try {
      const auto connection = ado::openSqlite(draft.draft(), {.mode = Mode::Existing});
      ado::Transaction transaction(*connection, u"BEGIN IMMEDIATE");
      created = makeAndFill(*connection, content);
      transaction.commit();
    } catch (const RuntimeError& failure) {
      throw cannotOpen(file, named(file, draft.draft(), failure));
    }
    if (draft.publish()) return created;
  } catch (const std::system_error& failure) {
    throw cannotOpen(file, "cannot be made: " + failure.code().message());
  }
  throw cannotOpen(file, "has been made by another program meanwhile; name another file");
}

}  // namespace

Ref<ado::Connection> openDatabaseFile(const fs::path& file) {
  if (!fs::exists(statusOf(file))) throw cannotOpen(file, "does not exist; " + createHint(file));
  requireDatabaseFile(file);
  try {
    if (systemTablesIn(file).empty())
      throw cannotOpen(file, "has no table of the system; " + createHint(file));
    return ado::openSqlite(file, {.mode = Mode::Existing});
  } catch (const RuntimeError& failure) {
    throw cannotOpen(file, failure);
  }
}

Created createTablesInFile(const fs::path& file, const Content& content) {
  if (!fs::exists(statusOf(file))) return createInNew(file, content);
  try {
    return createInExisting(file, content);
  } catch (const RuntimeError& failure) {
    throw cannotOpen(file, failure);
  }
}

bool hasSystemTables(const fs::path& file) {
  requireDatabaseFile(file);
  try {
    return !systemTablesIn(file).empty();
  } catch (const RuntimeError& failure) {
    throw cannotOpen(file, failure);
  }
}

}  // namespace zqn::host
