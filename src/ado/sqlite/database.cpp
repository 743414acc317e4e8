// SPDX-License-Identifier: MIT
#include "ado/sqlite/database.h"

#include "runtime/collation.h"

namespace zqn::ado::sqlite {

namespace {

int collate(void*, int leftSize, const void* left, int rightSize, const void* right) {
  return compareCollated(
      std::string_view(static_cast<const char*>(left), static_cast<std::size_t>(leftSize)),
      std::string_view(static_cast<const char*>(right), static_cast<std::size_t>(rightSize)));
}

bool onlyBlanks(sqlite3* database, std::string_view tail) {
  sqlite3_stmt* another = nullptr;
  const int result =
      sqlite3_prepare_v2(database, tail.data(), static_cast<int>(tail.size()), &another, nullptr);
  const bool nothing = result == SQLITE_OK && another == nullptr;
  sqlite3_finalize(another);
  return nothing;
}

}  // namespace

const String SourceName = u"SQLite";

Database::Database(const std::string& path, int flags, int busyMilliseconds) {
  const int result = sqlite3_open_v2(path.c_str(), &database_, flags | SQLITE_OPEN_NOMUTEX, nullptr);
  if (result != SQLITE_OK) {
    const RuntimeError error = failure(result);
    sqlite3_close(database_);
    throw error;
  }
  sqlite3_extended_result_codes(database_, 1);
  sqlite3_busy_timeout(database_, busyMilliseconds);
  sqlite3_create_collation_v2(database_, "ZQN_TEXT", SQLITE_UTF8, nullptr, collate, nullptr);
  // An unknown column in double quotes is an error, never a text.
  sqlite3_db_config(database_, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
  sqlite3_db_config(database_, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
}

// Statements may live longer than their database; SQLite closes the file with the last of them.
Database::~Database() { sqlite3_close_v2(database_); }

std::int32_t errorNumber(int result, std::string_view message) noexcept {
  switch (result & 0xFF) {
    case SQLITE_ERROR: {
      const bool table = message.starts_with("no such table") || message.starts_with("no such view");
      return table ? error::TableNotFound : error::CommandText;
    }
    case SQLITE_CONSTRAINT:
      return error::IntegrityViolation;
    case SQLITE_READONLY:
    case SQLITE_PERM:
    case SQLITE_AUTH:
      return error::PermissionDenied;
    case SQLITE_MISMATCH:
      return error::ConversionFailed;
    case SQLITE_TOOBIG:
      return error::ProviderDataOverflow;
    default:
      return error::ProviderFailure;
  }
}

RuntimeError Database::failure(int result) const {
  const std::string_view message = database_ ? sqlite3_errmsg(database_) : sqlite3_errstr(result);
  return RuntimeError(errorNumber(result, message), fromUtf8(message), SourceName);
}

StatementHandle Database::prepare(std::string_view statement) const {
  if (statement.find('\0') != std::string_view::npos) {
    throw RuntimeError(error::CommandText, u"Die Anweisung enthält ein Zeichen U+0000.", SourceName);
  }
  sqlite3_stmt* prepared = nullptr;
  const char* tail = nullptr;
  const int size = static_cast<int>(statement.size());
  const int result =
      sqlite3_prepare_v3(database_, statement.data(), size, SQLITE_PREPARE_PERSISTENT, &prepared, &tail);
  StatementHandle handle(prepared);
  if (result != SQLITE_OK) throw failure(result);
  if (!handle) throw RuntimeError(error::CommandText, u"Die Anweisung fehlt.", SourceName);
  const std::string_view rest = statement.substr(static_cast<std::size_t>(tail - statement.data()));
  if (!rest.empty() && !onlyBlanks(database_, rest)) {
    throw RuntimeError(error::CommandText, u"Auf die Anweisung folgt eine zweite: " + fromUtf8(rest),
                       SourceName);
  }
  return handle;
}

bool Database::step(sqlite3_stmt* statement) const {
  const int result = sqlite3_step(statement);
  if (result == SQLITE_ROW) return true;
  if (result == SQLITE_DONE) return false;
  const RuntimeError error = failure(result);
  sqlite3_reset(statement);
  throw error;
}

void Database::bind(sqlite3_stmt* statement, int index, const Value& value) const {
  int result = SQLITE_OK;
  switch (value.kind) {
    case Value::Kind::Null:
      result = sqlite3_bind_null(statement, index);
      break;
    case Value::Kind::Integer:
      result = sqlite3_bind_int64(statement, index, value.integer);
      break;
    case Value::Kind::Real:
      result = sqlite3_bind_double(statement, index, value.real);
      break;
    case Value::Kind::Text: {
      const std::string utf8 = toUtf8(value.text);
      result =
          sqlite3_bind_text(statement, index, utf8.data(), static_cast<int>(utf8.size()), SQLITE_TRANSIENT);
      break;
    }
  }
  if (result != SQLITE_OK) throw failure(result);
}

void Database::run(std::string_view statement) const {
  const StatementHandle handle = prepare(statement);
  while (step(handle.get())) {
  }
}

std::string Database::text(std::string_view statement) const {
  const StatementHandle handle = prepare(statement);
  if (!step(handle.get())) return {};
  const auto* cell = reinterpret_cast<const char*>(sqlite3_column_text(handle.get(), 0));
  return cell ? cell : "";
}

void readRow(sqlite3_stmt* statement, RowStore& rows) {
  for (int column = 0; column < rows.columns(); ++column) {
    switch (sqlite3_column_type(statement, column)) {
      case SQLITE_NULL:
        rows.addNull();
        break;
      case SQLITE_INTEGER:
        rows.addInteger(sqlite3_column_int64(statement, column));
        break;
      case SQLITE_FLOAT:
        rows.addReal(sqlite3_column_double(statement, column));
        break;
      default: {
        const auto* text = reinterpret_cast<const char*>(sqlite3_column_text(statement, column));
        rows.addText(
            std::string_view(text, static_cast<std::size_t>(sqlite3_column_bytes(statement, column))));
      }
    }
  }
}

}  // namespace zqn::ado::sqlite
