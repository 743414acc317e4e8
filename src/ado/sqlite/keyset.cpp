// SPDX-License-Identifier: MIT
#include "ado/sqlite/keyset.h"

#include <algorithm>
#include <limits>

#include "ado/field_values.h"

namespace zqn::ado::sqlite {

namespace {

constexpr std::size_t AllKeys = std::numeric_limits<std::size_t>::max();

bool inMainDatabase(sqlite3_stmt* statement, int column) {
  const char* database = sqlite3_column_database_name(statement, column);
  return database && std::string_view(database) == "main";
}

}  // namespace

std::unique_ptr<SqliteKeyset> SqliteKeyset::make(std::shared_ptr<Session> session, StringView text) {
  auto keyed = keyedSelect(*session->database, text, RowsOf::OneHandle);
  if (!keyed || sqlite3_bind_parameter_count(keyed->statement.get()) != 1) return nullptr;
  auto keyset = std::unique_ptr<SqliteKeyset>(new SqliteKeyset(std::move(session), *keyed));
  keyset->columns_ = std::make_shared<const Columns>(std::move(keyed->columns));
  keyset->rowStatement_ = std::move(keyed->statement);
  return keyset;
}

SqliteKeyset::SqliteKeyset(std::shared_ptr<Session> session, const KeyedSelect& keyed)
    : session_(std::move(session)),
      keysOnly_(keysOnly(keyed)),
      from_(keyed.select.from),
      rowId_(keyed.rowId) {}

SqliteKeyset::~SqliteKeyset() { end(); }

void SqliteKeyset::begin() {
  if (beginThroughReader()) return;
  keyDatabase_ = session_->database;
  keyStatement_ = keyDatabase_->prepare(keysOnly_.text);
  readKeys(AllKeys);
}

bool SqliteKeyset::beginThroughReader() {
  const Database& database = *session_->database;
  const auto handle = std::ranges::find_if(*columns_, &Column::rowHandle);
  const bool sameRows = !session_->path.empty() && sqlite3_get_autocommit(database.get()) != 0 &&
                        inMainDatabase(rowStatement_.get(), static_cast<int>(handle - columns_->begin()));
  if (!sameRows) return false;
  // A statement that is still open would lend this one its view of the file, which may be out of date.
  if (session_->reading) session_->reading->readKeys(AllKeys);
  try {
    if (!session_->reader) {
      session_->reader =
          std::make_shared<Database>(session_->path, SQLITE_OPEN_READONLY, session_->busyMilliseconds);
    }
    keyDatabase_ = session_->reader;
    keyStatement_ = keyDatabase_->prepare(keysOnly_.text);
  } catch (const RuntimeError&) {
    return false;
  }
  state_ = Reading::ThroughReader;
  session_->reading = this;
  return true;
}

void SqliteKeyset::readKeys(std::size_t atMost) {
  for (; atMost > 0; --atMost) {
    if (!keyDatabase_->step(keyStatement_.get())) {
      end();
      return;
    }
    read_.push_back(sqlite3_column_int64(keyStatement_.get(), keysOnly_.column));
  }
}

void SqliteKeyset::end() noexcept {
  state_ = Reading::Read;
  keyStatement_.reset();
  keyDatabase_.reset();
  if (session_->reading == this) session_->reading = nullptr;
}

bool SqliteKeyset::fetchKeys(std::vector<RowHandle>& keys, std::size_t atMost) {
  if (state_ == Reading::NotBegun) begin();
  const std::size_t waiting = read_.size() - delivered_;
  // One more, so that the last keys are known to be the last.
  if (state_ == Reading::ThroughReader && waiting <= atMost) readKeys(atMost - waiting + 1);
  const std::size_t count = std::min(atMost, read_.size() - delivered_);
  const auto first = read_.begin() + static_cast<std::ptrdiff_t>(delivered_);
  keys.insert(keys.end(), first, first + static_cast<std::ptrdiff_t>(count));
  delivered_ += count;
  const bool more = delivered_ < read_.size();
  if (delivered_ == read_.size()) {
    delivered_ = 0;
    read_ = {};
  }
  return more;
}

bool SqliteKeyset::readRow(RowHandle row, RowStore& rows) {
  const Database& database = *session_->database;
  sqlite3_stmt* const statement = rowStatement_.get();
  sqlite3_bind_int64(statement, 1, row);
  const bool there = database.step(statement);
  if (there) sqlite::readRow(statement, rows);
  sqlite3_reset(statement);
  return there;
}

std::optional<std::vector<RowHandle>> SqliteKeyset::rowsWhere(std::span<const ColumnEquals> comparisons) {
  String conditions;
  for (const ColumnEquals& comparison : comparisons) {
    const Column& column = (*columns_)[static_cast<std::size_t>(comparison.column)];
    if (column.baseColumn.empty()) continue;
    conditions += (conditions.empty() ? u" WHERE " : u" AND ") + sql::quoted(column.baseColumn);
    conditions += isTextType(column.type) ? u"=? COLLATE ZQN_TEXT" : u"=?";
  }
  if (conditions.empty()) return {};

  const Database& database = *session_->database;
  String text = u"SELECT " + rowId_ + u" FROM " + from_ + u"\n" + conditions;
  if (text != whereText_) {
    whereStatement_ = database.prepare(text);
    whereText_ = std::move(text);
  }
  int index = 0;
  for (const ColumnEquals& comparison : comparisons) {
    const bool stored = !(*columns_)[static_cast<std::size_t>(comparison.column)].baseColumn.empty();
    if (stored) database.bind(whereStatement_.get(), ++index, comparison.value);
  }
  std::vector<RowHandle> rows;
  while (database.step(whereStatement_.get())) rows.push_back(sqlite3_column_int64(whereStatement_.get(), 0));
  sqlite3_reset(whereStatement_.get());
  return rows;
}

}  // namespace zqn::ado::sqlite
