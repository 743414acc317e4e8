// SPDX-License-Identifier: MIT
#include "ado/sqlite/sqlite.h"

#include "ado/field_values.h"
#include "ado/sqlite/keyset.h"
#include "ado/sqlite/statement.h"
#include "ado/transaction.h"

namespace zqn::ado {

namespace {

using Mode = SqliteOptions::Mode;
using sqlite::Database;

class SqliteProvider : public Provider, public TransactionState {
 public:
  explicit SqliteProvider(std::shared_ptr<sqlite::OpenFile> file) : file_(std::move(file)) {}
  ~SqliteProvider() override {
    // What a recordset still holds of them must not keep the file open.
    file_->reader.reset();
  }

  std::unique_ptr<Statement> prepare(StringView text, Purpose purpose) override {
    return std::make_unique<sqlite::SqliteStatement>(file_->database, text, purpose);
  }
  std::unique_ptr<Keyset> keyset(StringView text, std::shared_ptr<const Columns>) override {
    return sqlite::SqliteKeyset::make(file_, text);
  }
  Condition sameValue(const Column& column, const Value& read) const override {
    if (column.rowHandle) return {column.baseColumn + u"=?", {read}};
    return {quoted(column.baseColumn) + (isTextType(column.type) ? u" COLLATE BINARY IS ?" : u" IS ?"),
            {read}};
  }
  bool inTransaction() const override { return sqlite3_get_autocommit(file_->database->get()) == 0; }
  String name() const override { return sqlite::SourceName; }

 private:
  std::shared_ptr<sqlite::OpenFile> file_;
};

[[noreturn]] void refuse(std::int32_t number, const std::filesystem::path& path, StringView rest) {
  throw RuntimeError(number, u"\"" + path.u16string() + u"\" " + String(rest), sqlite::SourceName);
}

[[noreturn]] void refuseUnwritable(const std::filesystem::path& path) {
  refuse(error::PermissionDenied, path,
         u"lässt sich nur lesen. Geben Sie diesem Benutzer das Recht, die Datei und ihren Ordner zu "
         u"schreiben, in "
         u"dem SQLite sein Protokoll führt, oder öffnen Sie sie nur zum Lesen.");
}

void checkPath(const std::filesystem::path& path, Mode mode) {
  std::error_code ignored;
  if (std::filesystem::is_directory(path, ignored)) {
    refuse(error::ProviderFailure, path, u"ist ein Ordner. Nennen Sie eine Datenbankdatei darin.");
  }
  if (std::filesystem::exists(path, ignored)) return;
  const std::filesystem::path folder = path.parent_path();
  if (!std::filesystem::is_directory(folder, ignored)) {
    refuse(error::ProviderFailure, path,
           u"lässt sich nicht öffnen: Es gibt keinen Ordner \"" + folder.u16string() +
               u"\". Legen Sie ihn zuerst an, oder nennen Sie einen anderen.");
  }
  if (mode != Mode::Create) {
    refuse(error::ProviderFailure, path,
           u"gibt es nicht. Nennen Sie eine vorhandene Datenbankdatei, oder lassen Sie eine neue anlegen.");
  }
}

/// What SQLite said, and what would help.
[[noreturn]] void explain(const Database& database, const RuntimeError& failure,
                          const std::filesystem::path& path) {
  const String words = u" (" + failure.description() + u"). ";
  switch (sqlite3_errcode(database.get()) & 0xFF) {
    case SQLITE_NOTADB:
    case SQLITE_CORRUPT:
      refuse(failure.number(), path,
             u"ist keine SQLite-Datenbank" + words +
                 u"Nennen Sie eine Datenbankdatei, oder stellen Sie sie aus einer Kopie wieder her.");
    case SQLITE_BUSY:
    case SQLITE_LOCKED:
      refuse(failure.number(), path,
             u"wird von einem anderen Programm benutzt" + words +
                 u"Beenden Sie es, oder versuchen Sie es später wieder.");
    case SQLITE_READONLY:
      refuseUnwritable(path);
    default:
      refuse(failure.number(), path,
             u"lässt sich nicht lesen" + words +
                 u"Dieser Benutzer muss die Datei und ihren Ordner lesen und schreiben dürfen.");
  }
}

std::shared_ptr<Database> openFile(const std::string& path, const std::filesystem::path& shown,
                                   const SqliteOptions& options) {
  const int flags = options.mode == Mode::ReadOnly   ? SQLITE_OPEN_READONLY
                    : options.mode == Mode::Existing ? SQLITE_OPEN_READWRITE
                                                     : SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE;
  try {
    return std::make_shared<Database>(path, flags, static_cast<int>(options.busyTimeout.count()));
  } catch (const RuntimeError& failure) {
    refuse(failure.number(), shown,
           u"lässt sich nicht öffnen (" + failure.description() +
               u"). Dieser Benutzer muss die Datei und ihren Ordner lesen und schreiben dürfen.");
  }
}

/// Whether the database has a write-ahead log now. One that cannot have it works with what it has.
bool prepareFile(const Database& database, const std::filesystem::path& path, Mode mode) {
  try {
    database.run("SELECT count(*) FROM sqlite_schema");
  } catch (const RuntimeError& failure) {
    explain(database, failure, path);
  }
  if (mode != Mode::ReadOnly && sqlite3_db_readonly(database.get(), "main") == 1) {
    refuseUnwritable(path);
  }
  database.run("PRAGMA foreign_keys=ON");
  database.run("PRAGMA synchronous=FULL");
  try {
    return database.text(mode == Mode::ReadOnly ? "PRAGMA journal_mode" : "PRAGMA journal_mode=WAL") == "wal";
  } catch (const RuntimeError&) {
    return database.text("PRAGMA journal_mode") == "wal";
  }
}

}  // namespace

std::unique_ptr<Provider> sqliteProvider(const std::filesystem::path& path, const SqliteOptions& options) {
  auto open = std::make_shared<sqlite::OpenFile>();
  open->busyMilliseconds = static_cast<int>(options.busyTimeout.count());
  if (path == ":memory:") {
    open->database = openFile(":memory:", path, options);
    open->database->run("PRAGMA foreign_keys=ON");
    return std::make_unique<SqliteProvider>(std::move(open));
  }
  // An absolute path is never taken for a URI.
  const std::filesystem::path file = std::filesystem::absolute(path);
  checkPath(file, options.mode);
  const std::u8string utf8 = file.u8string();
  const std::string name(utf8.begin(), utf8.end());
  open->database = openFile(name, file, options);
  if (prepareFile(*open->database, file, options.mode)) open->path = name;
  return std::make_unique<SqliteProvider>(std::move(open));
}

Ref<Connection> openSqlite(const std::filesystem::path& path, const SqliteOptions& options) {
  return Ref<Connection>::make(sqliteProvider(path, options));
}

}  // namespace zqn::ado
