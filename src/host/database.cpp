// SPDX-License-Identifier: MIT
#include "host/database.h"

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <vector>

#include "ado/sqlite/sqlite.h"
#include "host/failure.h"
#include "host/rows.h"
#include "host/schema/generate.h"
#include "host/schema/sample.h"
#include "host/schema/sample_layouts.h"
#include "host/schema/schema.h"
#include "host/schema/statements.h"
#include "runtime/locale.h"

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

std::string createHint(const fs::path& file) {
  return "make a database with: zqn-dialog init --db sqlite:" + file.string() + " --sample";
}

bool isProtected(const fs::path& file) {
  using enum fs::perms;
  // The bits count for root, too, whom the system would let write: the mark says that somebody wants it kept.
  return (fs::status(file).permissions() & (owner_write | group_write | others_write)) == none;
}

/// A file that SQLite can take; says what it is when it is something else.
void requireDatabaseFile(const fs::path& file) {
  if (fs::is_directory(file)) throw cannotOpen(file, "is a folder; name a file in it");
  if (!fs::is_regular_file(file)) throw cannotOpen(file, "is no file; name a file on a disk");
  if (isProtected(file))
    throw cannotOpen(file, "is write-protected; give it write permission or name a copy");
}

/// The file keeps a write-ahead log: its header says format 2.
bool hasWriteAheadLog(const fs::path& file) {
  char header[20] = {};
  std::ifstream(file, std::ios::binary).read(header, sizeof header);
  return header[18] == 2;
}

/// Tables of the system that the file has. The look leaves file and folder as they are: for reading alone,
/// SQLite would leave the files of a write-ahead log behind; for writing, the connection would begin one.
std::vector<String> systemTablesIn(const fs::path& file) {
  const Mode mode = hasWriteAheadLog(file) ? Mode::Existing : Mode::ReadOnly;
  const auto connection = ado::openSqlite(file, {.mode = mode, .busyTimeout = patience});
  std::vector<String> found;
  const RowSet names = runStatement(*connection, u"SELECT name FROM sqlite_master WHERE type='table'");
  for (int row = 0; row < names.rows.rows(); ++row) {
    const StringView name = names.rows.at(row, 0).text;
    for (const Table& table : tables())
      if (compareIgnoringCase(name, table.name) == 0) found.emplace_back(name);
  }
  return found;
}

class Transaction {
 public:
  explicit Transaction(ado::Connection& connection) : connection_(connection) {
    connection_.Execute(u"BEGIN IMMEDIATE");
  }
  ~Transaction() {
    if (committed_) return;
    try {
      connection_.Execute(u"ROLLBACK");
    } catch (const RuntimeError&) {
      // The database has already rolled back by itself, after a full disk for instance.
    }
  }
  Transaction(const Transaction&) = delete;
  Transaction& operator=(const Transaction&) = delete;
  void commit() {
    connection_.Execute(u"COMMIT");
    committed_ = true;
  }

 private:
  ado::Connection& connection_;
  bool committed_ = false;
};

Created fill(ado::Connection& connection, const Content& content) {
  Created created;
  Transaction transaction(connection);
  for (const Table& table : tables()) {
    for (const String& statement : createStatements(table, Dialect::Sqlite)) connection.Execute(statement);
    ++created.tables;
  }
  const Table* current = nullptr;
  std::unique_ptr<ado::Statement> insert;
  const RowSink sink = [&](const Table& table, const Row& row) {
    if (current != &table) {
      insert = connection.provider().prepare(insertStatement(table, Dialect::Sqlite), ado::Purpose::Plain);
      current = &table;
    }
    insert->open(parameters(row));
    ++created.rows;
  };
  if (content.sample) sampleRows(sink);
  if (content.rows > 0) generateRows(content.rows, sink);
  transaction.commit();
  return created;
}

void removeDatabase(const fs::path& file) noexcept {
  std::error_code ignored;
  for (const char* suffix : {"", "-wal", "-shm", "-journal"}) fs::remove(file.string() + suffix, ignored);
}

}  // namespace

fs::path dataFolder() {
  if (const char* folder = std::getenv("XDG_DATA_HOME"); folder && *folder == '/')
    return fs::path(folder) / "zqn-dialog";
  const char* home = std::getenv("HOME");
  if (home == nullptr || *home == '\0')
    throw CommandFailure(ExitStatus::CannotOpen,
                         "no home folder: HOME is not set; name a database with --db");
  return fs::path(home) / ".local" / "share" / "zqn-dialog";
}

fs::path databaseFile(const std::string& url) {
  constexpr std::string_view sqlite = "sqlite:", odbc = "odbc:";
  if (url.starts_with(odbc))
    throw CommandFailure(
        ExitStatus::CannotOpen,
        "'" + url + "': this version serves no ODBC databases; name an SQLite file as sqlite:FILE");
  if (!url.starts_with(sqlite) || url.size() == sqlite.size())
    throw CommandFailure(ExitStatus::WrongUsage, "--db '" + url + "' is no database; write sqlite:FILE");
  // Made absolute, so that no file name means anything else to SQLite.
  return fs::absolute(url.substr(sqlite.size()));
}

Ref<ado::Connection> openDatabase(const fs::path& file) {
  if (!fs::exists(file)) throw cannotOpen(file, "does not exist; " + createHint(file));
  requireDatabaseFile(file);
  try {
    if (systemTablesIn(file).empty())
      throw cannotOpen(file, "has no table of the system; " + createHint(file));
    return ado::openSqlite(file, {.mode = Mode::Existing});
  } catch (const RuntimeError& failure) {
    throw cannotOpen(file, failure);
  }
}

Created createTables(const fs::path& file, const Content& content) {
  const bool existed = fs::exists(file);
  try {
    if (existed) {
      requireDatabaseFile(file);
      if (const auto found = systemTablesIn(file); !found.empty())
        throw cannotOpen(file, "has " + std::to_string(found.size()) +
                                   " tables of the system already, such as " + toUtf8(found.front()) +
                                   "; name another file");
    } else if (!fs::is_directory(file.parent_path())) {
      throw cannotOpen(file, "its folder does not exist; make the folder first");
    }
    return fill(*ado::openSqlite(file), content);
  } catch (const RuntimeError& failure) {
    if (!existed) removeDatabase(file);
    throw cannotOpen(file, failure);
  }
}

fs::path defaultDatabaseFile() {
  fs::path file = dataFolder() / "zqn-dialog.sqlite";
  if (fs::exists(file)) return file;
  std::error_code failure;
  fs::create_directories(file.parent_path(), failure);
  if (failure) throw cannotOpen(file, "its folder cannot be made: " + failure.message());
  createTables(file, {.sample = true});
  writeSampleLayouts(file.parent_path());
  return file;
}

}  // namespace zqn::host
