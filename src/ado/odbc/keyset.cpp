// SPDX-License-Identifier: MIT
#include "ado/odbc/keyset.h"

#include <algorithm>

#include "ado/field_values.h"
#include "ado/odbc/query.h"
#include "runtime/digits.h"

namespace zqn::ado::odbc {

namespace {

constexpr std::size_t FirstPage = 1024;
constexpr std::size_t Growth = 8;
constexpr std::size_t LargestPage = FirstPage * Growth * Growth * Growth;
constexpr std::size_t AllAtOnce = 0;

}  // namespace

std::unique_ptr<OdbcKeyset> OdbcKeyset::make(std::shared_ptr<Server> server, StringView text,
                                             std::shared_ptr<const Columns> known) {
  auto select = KeyedSelect::of(text, server->tables());
  if (!select) return nullptr;
  if (!known) {
    const auto describe = [&](const std::vector<String>& hidden) {
      Query& query = server->kept(server->translated(select->oneRow(hidden)).text);
      query.describe();
      return query.columns();
    };
    Columns columns;
    std::vector<String> hidden;
    try {
      columns = describe(hidden);
      hidden = select->missing(columns);
      if (!hidden.empty()) columns = describe(hidden);
    } catch (const RuntimeError&) {
      // What is wrong with it the statement itself will show.
      return nullptr;
    }
    if (!select->mark(columns, hidden.size())) return nullptr;
    known = std::make_shared<const Columns>(std::move(columns));
  }
  return std::unique_ptr<OdbcKeyset>(new OdbcKeyset(std::move(server), std::move(*select), std::move(known)));
}

OdbcKeyset::OdbcKeyset(std::shared_ptr<Server> server, KeyedSelect select,
                       std::shared_ptr<const Columns> columns)
    : server_(std::move(server)),
      select_(std::move(select)),
      columns_(std::move(columns)),
      keyColumns_(select_.positions(*columns_)),
      keys_(static_cast<int>(keyColumns_.size())) {}

OdbcKeyset::~OdbcKeyset() { end(); }

void OdbcKeyset::begin() {
  begun_ = true;
  keysOnly_ = select_.keysInOrder(*columns_);
  Link& link = server_->link();
  // What the caller has not committed yet, another connection does not see.
  const bool inPages =
      !server_->dialect().snapshot.empty() && !select_.isLimited() && !server_->inTransaction();
  if (!inPages) return readPage(link, AllAtOnce);
  readPage(link, FirstPage + 1);
  if (read_.size() <= FirstPage) return;

  read_.clear();
  if (!beginSnapshot()) return readPage(link, AllAtOnce);
  nextPage();
}

bool OdbcKeyset::beginSnapshot() {
  if (server_->reading) server_->reading->readAll();
  try {
    Link& reader = server_->reader();
    for (const StringView statement : server_->dialect().snapshot) reader.run(statement);
  } catch (const RuntimeError&) {
    // The server has no connection left for us, or forbids the transaction: the list is read all the same.
    return false;
  }
  server_->reading = this;
  reading_ = true;
  pageSize_ = FirstPage;
  return true;
}

void OdbcKeyset::readPage(Link& link, std::size_t count) {
  String text = server_->translated(keysOnly_.text).text;
  if (count != AllAtOnce) text += u"\nLIMIT " + digits(count) + u" OFFSET " + digits(read_.size());
  // The beginning of a list is asked for again and again.
  const bool again = &link == &server_->link();
  std::optional<Query> once;
  if (!again) once.emplace(*server_, link, text);
  Query& query = again ? server_->kept(text) : *once;
  query.open();
  RowStore rows(static_cast<int>(query.columns().size()));
  std::vector<Value> key(keyColumns_.size());
  for (bool more = true; more;) {
    rows.clear(rows.columns());
    more = query.fetch(rows, FirstPage);
    for (int row = 0; row < rows.rows(); ++row) {
      for (std::size_t i = 0; i < key.size(); ++i)
        key[i] = rows.at(row, keysOnly_.column + static_cast<int>(i));
      read_.push_back(keys_.add(key));
    }
  }
}

void OdbcKeyset::nextPage() {
  const std::size_t before = read_.size();
  try {
    readPage(server_->reader(), pageSize_);
  } catch (const RuntimeError& failure) {
    read_.resize(before);
    failure_ = failure;
    return end();
  }
  if (read_.size() - before < pageSize_) end();
  pageSize_ = std::min(pageSize_ * Growth, LargestPage);
}

void OdbcKeyset::readAll() {
  while (reading_) nextPage();
}

void OdbcKeyset::end() noexcept {
  if (!reading_) return;
  reading_ = false;
  if (server_->reading == this) server_->reading = nullptr;
  try {
    // A connection that has dropped has ended the transaction by itself.
    if (!server_->reader().dropped()) server_->reader().run(u"ROLLBACK");
  } catch (const RuntimeError&) {
  }
}

bool OdbcKeyset::fetchKeys(std::vector<RowHandle>& keys, std::size_t atMost) {
  if (!begun_) begin();
  if (delivered_ == read_.size() && reading_) nextPage();
  const std::size_t count = std::min(atMost, read_.size() - delivered_);
  const auto first = read_.begin() + static_cast<std::ptrdiff_t>(delivered_);
  keys.insert(keys.end(), first, first + static_cast<std::ptrdiff_t>(count));
  delivered_ += count;
  const bool more = delivered_ < read_.size() || reading_;
  // A list that could not be read to its end never counts as complete.
  if (!more && failure_ && count == 0) throw RuntimeError(*failure_);
  return more || failure_;
}

RowHandle OdbcKeyset::handleOf(const RowView& row) {
  std::vector<Value> key;
  for (const int column : keyColumns_) key.push_back(row.at(column));
  return keys_.add(key);
}

std::optional<RowHandle> OdbcKeyset::inserted(const std::vector<Variant>& values, const RowView& returned) {
  const Dialect& dialect = server_->dialect();
  std::vector<Value> key;
  if (returned && dialect.returns) {
    for (std::size_t i = 0; i < keyColumns_.size(); ++i) key.push_back(returned.at(static_cast<int>(i)));
    return keys_.add(key);
  }
  RowStore counted(1);
  for (const int column : keyColumns_) {
    const auto place = static_cast<std::size_t>(column);
    if (place < values.size() && !values[place].isEmpty()) {
      key.push_back(storedAs(values[place]));
      continue;
    }
    // The database has counted: one column can be told.
    if (counted.rows() > 0) return {};
    if (returned) {
      counted.addRow(returned);
    } else if (!dialect.lastNumber.empty()) {
      askForNumber(counted);
    }
    if (counted.rows() == 0) return {};
    const Value number = counted.at(0, 0);
    if (number.kind == Value::Kind::Null || (number.kind == Value::Kind::Integer && number.integer == 0))
      return {};
    key.push_back(number);
  }
  return keys_.add(key);
}

void OdbcKeyset::askForNumber(RowStore& counted) {
  try {
    Query& last = server_->kept(String(server_->dialect().lastNumber));
    last.open();
    last.fetch(counted, 1);
    last.close();
  } catch (const RuntimeError&) {
    // The row is written; which one it is cannot be told.
  }
}

void OdbcKeyset::written(RowHandle row, const std::vector<Variant>& values) {
  for (std::size_t i = 0; i < keyColumns_.size(); ++i) {
    const auto place = static_cast<std::size_t>(keyColumns_[i]);
    if (place < values.size() && !values[place].isEmpty())
      keys_.change(row, static_cast<int>(i), storedAs(values[place]));
  }
}

bool OdbcKeyset::readRow(RowHandle row, RowStore& rows) {
  if (rowText_.empty()) {
    std::vector<String> hidden;
    for (const Column& column : *columns_)
      if (column.hidden) hidden.push_back(sql::quoted(column.baseColumn));
    rowText_ = server_->translated(select_.oneRow(hidden)).text;
  }
  Query& query = server_->kept(rowText_);
  query.open(keys_.key(row));
  const int before = rows.rows();
  query.fetch(rows, 1);
  query.close();
  return rows.rows() > before;
}

std::optional<std::vector<RowHandle>> OdbcKeyset::rowsWhere(std::span<const ColumnEquals> comparisons) {
  std::vector<String> columns;
  std::vector<Value> values;
  for (const ColumnEquals& comparison : comparisons) {
    columns.push_back(sql::quoted((*columns_)[static_cast<std::size_t>(comparison.column)].baseColumn));
    values.push_back(comparison.value);
  }
  Query& query = server_->kept(server_->translated(select_.keysWhere(columns)).text);
  query.open(values);
  RowStore rows(static_cast<int>(keyColumns_.size()));
  while (query.fetch(rows, FirstPage)) {
  }
  query.close();
  std::vector<RowHandle> found;
  std::vector<Value> key(keyColumns_.size());
  for (int row = 0; row < rows.rows(); ++row) {
    for (std::size_t i = 0; i < key.size(); ++i) key[i] = rows.at(row, static_cast<int>(i));
    found.push_back(keys_.add(key));
  }
  return found;
}

}  // namespace zqn::ado::odbc
