// SPDX-License-Identifier: MIT
#include "ado/sqlite/keyset.h"

#include <algorithm>

#include "ado/field_values.h"

namespace zqn::ado::sqlite {

namespace {

bool inMainDatabase(sqlite3_stmt* statement, int column) {
  const char* database = sqlite3_column_database_name(statement, column);
  return database && std::string_view(database) == "main";
}

}  // namespace

std::unique_ptr<SqliteKeyset> SqliteKeyset::make(std::shared_ptr<OpenFile> file, StringView text) {
  auto keyed = selectWithHandle(*file->database, text, RowsOf::OneHandle);
  if (!keyed || sqlite3_bind_parameter_count(keyed->statement.get()) != 1) return nullptr;
  auto keyset = std::unique_ptr<SqliteKeyset>(new SqliteKeyset(std::move(file), *keyed));
  keyset->columns_ = std::make_shared<const Columns>(std::move(keyed->columns));
  keyset->rowStatement_ = std::move(keyed->statement);
  return keyset;
}

SqliteKeyset::SqliteKeyset(std::shared_ptr<OpenFile> file, const SelectWithHandle& keyed)
    : file_(std::move(file)),
      keysOnly_(sql::keysOnly(keyed.select, keyed.columns, {keyed.rowId})),
      from_(keyed.select.from),
      rowId_(keyed.rowId) {}

SqliteKeyset::~SqliteKeyset() { end(); }

void SqliteKeyset::begin() {
  if (!beginThroughReader()) {
    keyDatabase_ = file_->database;
    keyStatement_ = keyDatabase_->prepare(keysOnly_.text);
    advance();
    readAll();
  }
  begun_ = true;
}

bool SqliteKeyset::beginThroughReader() {
  const Database& database = *file_->database;
  const auto handle = std::ranges::find_if(*columns_, &Column::rowHandle);
  const bool sameRows = !file_->path.empty() && sqlite3_get_autocommit(database.get()) != 0 &&
                        inMainDatabase(rowStatement_.get(), static_cast<int>(handle - columns_->begin()));
  if (!sameRows) return false;
  // A statement that is still open would lend this one its view of the file, which may be out of date.
  if (file_->reading) file_->reading->readAll();
  try {
    if (!file_->reader) {
      file_->reader = std::make_shared<Database>(file_->path, SQLITE_OPEN_READONLY, file_->busyMilliseconds);
    }
    keyDatabase_ = file_->reader;
    keyStatement_ = keyDatabase_->prepare(keysOnly_.text);
  } catch (const RuntimeError&) {
    return false;
  }
  file_->reading = this;
  advance();
  const bool readable = !failure_;
  failure_.reset();
  return readable;
}

void SqliteKeyset::advance() {
  try {
    onKey_ = keyDatabase_->step(keyStatement_.get());
  } catch (const RuntimeError& failure) {
    onKey_ = false;
    failure_ = failure;
  }
  if (!onKey_) end();
}

void SqliteKeyset::readAll() {
  while (onKey_) {
    readAhead_.push_back(sqlite3_column_int64(keyStatement_.get(), keysOnly_.column));
    advance();
  }
}

void SqliteKeyset::end() noexcept {
  keyStatement_.reset();
  keyDatabase_.reset();
  if (file_->reading == this) file_->reading = nullptr;
}

bool SqliteKeyset::fetchKeys(std::vector<RowHandle>& keys, std::size_t atMost) {
  if (!begun_) begin();
  const std::size_t before = keys.size();
  for (; onKey_ && atMost > 0; --atMost) {
    keys.push_back(sqlite3_column_int64(keyStatement_.get(), keysOnly_.column));
    advance();
  }
  const auto first = readAhead_.begin() + static_cast<std::ptrdiff_t>(delivered_);
  const std::size_t count = std::min(atMost, readAhead_.size() - delivered_);
  keys.insert(keys.end(), first, first + static_cast<std::ptrdiff_t>(count));
  delivered_ += count;
  const bool more = onKey_ || delivered_ < readAhead_.size();
  // A list that could not be read to its end never counts as complete.
  if (!more && failure_ && keys.size() == before) throw RuntimeError(*failure_);
  return more || failure_;
}

RowHandle SqliteKeyset::handleOf(const RowView& row) {
  const auto handle = std::ranges::find_if(*columns_, &Column::rowHandle);
  return row.at(static_cast<int>(handle - columns_->begin())).integer;
}

bool SqliteKeyset::readRow(RowHandle row, RowStore& rows) {
  const Database& database = *file_->database;
  sqlite3_stmt* const statement = rowStatement_.get();
  sqlite3_bind_int64(statement, 1, row);
  const bool there = database.step(statement);
  if (there) sqlite::readRow(statement, rows);
  sqlite3_reset(statement);
  return there;
}

std::optional<std::vector<RowHandle>> SqliteKeyset::rowsWhere(std::span<const ColumnEquals> comparisons) {
  const Database& database = *file_->database;
  if (!std::ranges::equal(comparisons, whereColumns_, {}, &ColumnEquals::column)) {
    String text = u"SELECT " + rowId_ + u" FROM " + from_ + u"\nWHERE 1";
    whereColumns_.clear();
    for (const ColumnEquals& comparison : comparisons) {
      const Column& column = (*columns_)[static_cast<std::size_t>(comparison.column)];
      text += u" AND " + sql::quoted(column.baseColumn) +
              (isTextType(column.type) ? u"=? COLLATE ZQN_TEXT" : u"=?");
      whereColumns_.push_back(comparison.column);
    }
    whereStatement_ = database.prepare(text);
  }
  sqlite3_stmt* const statement = whereStatement_.get();
  int index = 0;
  for (const ColumnEquals& comparison : comparisons) database.bind(statement, ++index, comparison.value);
  std::vector<RowHandle> rows;
  while (database.step(statement)) rows.push_back(sqlite3_column_int64(statement, 0));
  sqlite3_reset(statement);
  return rows;
}

}  // namespace zqn::ado::sqlite
