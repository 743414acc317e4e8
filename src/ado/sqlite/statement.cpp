// SPDX-License-Identifier: MIT
#include "ado/sqlite/statement.h"

#include "ado/sqlite/select.h"

namespace zqn::ado::sqlite {

namespace {}  // namespace

SqliteStatement::SqliteStatement(std::shared_ptr<Database> database, StringView text, Purpose purpose)
    : database_(std::move(database)), text_(text), purpose_(purpose) {
  prepare();
}

void SqliteStatement::prepare() {
  if (purpose_ == Purpose::Keyed) {
    if (auto keyed = selectWithHandle(*database_, text_, RowsOf::Statement)) {
      statement_ = std::move(keyed->statement);
      columns_ = std::make_shared<const Columns>(std::move(keyed->columns));
      return;
    }
  }
  statement_ = database_->prepare(text_);
  columns_ = std::make_shared<const Columns>(describe(statement_.get()));
}

void SqliteStatement::start(std::span<const Value> parameters) {
  if (sqlite3_bind_parameter_count(statement_.get()) != static_cast<int>(parameters.size())) {
    throw RuntimeError(error::NoValueForParameter, error::description(error::NoValueForParameter),
                       SourceName);
  }
  int index = 0;
  for (const Value& parameter : parameters) database_->bind(statement_.get(), ++index, parameter);
  onRow_ = database_->step(statement_.get());
}

void SqliteStatement::open(std::span<const Value> parameters) {
  close();
  const std::int64_t before = sqlite3_total_changes64(database_->get());
  start(parameters);
  // A schema that has changed since may have given the statement other columns.
  const bool changed = sqlite3_stmt_status(statement_.get(), SQLITE_STMTSTATUS_REPREPARE, 1) > 0;
  if (changed && !columns_->empty() && sqlite3_stmt_readonly(statement_.get())) {
    prepare();
    start(parameters);
  }
  const bool none = sqlite3_total_changes64(database_->get()) == before;
  rowsAffected_ = none ? 0 : sqlite3_changes64(database_->get());
  if (columns_->empty()) close();
}

bool SqliteStatement::fetch(RowStore& rows, std::size_t atMost) {
  sqlite3_stmt* const statement = statement_.get();
  for (; onRow_ && atMost > 0; --atMost) {
    readRow(statement, rows);
    onRow_ = database_->step(statement);
  }
  if (!onRow_) close();
  return onRow_;
}

void SqliteStatement::close() noexcept {
  onRow_ = false;
  sqlite3_reset(statement_.get());
}

}  // namespace zqn::ado::sqlite
