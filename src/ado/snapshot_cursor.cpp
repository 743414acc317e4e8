// SPDX-License-Identifier: MIT
#include "ado/snapshot_cursor.h"

#include <algorithm>

#include "ado/field_values.h"

namespace zqn::ado {

namespace {
/// Below it, comparing all rows costs less than an index.
constexpr int RowsForIndex = 64;
}  // namespace

SnapshotCursor::SnapshotCursor(Connection& connection, StringView statement,
                               std::shared_ptr<const Columns> columns, RowStore rows)
    : connection_(connection), statement_(statement), columns_(std::move(columns)), rows_(std::move(rows)) {}

RowView SnapshotCursor::row(int row, RowStore&) {
  if (unread_ && row == rows_.rows() - 1) readInserted();
  return gone_.contains(row) ? RowView{} : RowView{&rows_, row};
}

RowView SnapshotCursor::refresh(int row, RowStore& buffer) {
  if (unread_) readInserted();
  switch (readAgain(row, buffer)) {
    case Again::Gone:
      gone_.insert(row);
      break;
    case Again::Read:
      for (int column = 0; column < std::min(rows_.columns(), buffer.columns()); ++column)
        rows_.set(row, column, buffer.at(0, column));
      indexes_.clear();
      [[fallthrough]];
    case Again::Unknown:
      gone_.erase(row);
      break;
  }
  return this->row(row, buffer);
}

RowView SnapshotCursor::readNow(int row, RowStore& buffer) {
  if (unread_) readInserted();
  switch (readAgain(row, buffer)) {
    case Again::Gone:
      return {};
    case Again::Read:
      return {&buffer, 0};
    case Again::Unknown:
      break;
  }
  return this->row(row, buffer);
}

SnapshotCursor::Again SnapshotCursor::readAgain(int row, RowStore& read) {
  if (!reader_) reader_ = connection_.provider().keyset(statement_);
  if (!reader_) return Again::Unknown;
  const Columns& columns = *reader_->columns();
  std::vector<ColumnEquals> key;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    if (!columns[i].key || columns[i].rowHandle) continue;
    const int column = static_cast<int>(i);
    if (column >= rows_.columns()) return Again::Unknown;
    key.push_back({column, rows_.at(row, column)});
  }
  if (key.empty()) return Again::Unknown;
  const auto found = reader_->rowsWhere(key);
  if (!found) return Again::Unknown;
  read.clear(static_cast<int>(columns.size()));
  return !found->empty() && reader_->readRow(found->front(), read) ? Again::Read : Again::Gone;
}

const ValueIndex& SnapshotCursor::index(int column) {
  const auto known = indexes_.find(column);
  return known != indexes_.end() ? known->second : indexes_.try_emplace(column, rows_, column).first->second;
}

int SnapshotCursor::find(const Criterion& criterion, int from, int direction, RowStore& buffer) {
  const std::vector<ColumnEquals> equalities = criterion.equalities();
  if (unread_) readInserted();
  if (equalities.empty() || rows_.rows() < RowsForIndex) return scan(criterion, from, direction, buffer);
  const ValueIndex& rows = index(equalities.front().column);
  if (!rows.usable()) return scan(criterion, from, direction, buffer);
  return rows.first(equalities.front().value, from, direction, [&](int candidate) {
    return !gone_.contains(candidate) && criterion.holds({&rows_, candidate});
  });
}

void SnapshotCursor::updated(int row, const std::vector<Variant>& values) {
  indexes_.clear();
  for (std::size_t column = 0; column < values.size(); ++column) {
    if (!values[column].isEmpty()) rows_.set(row, static_cast<int>(column), storedAs(values[column]));
  }
}

void SnapshotCursor::inserted(const std::vector<Variant>& values, const RowView& returned) {
  indexes_.clear();
  if (!reader_) reader_ = connection_.provider().keyset(statement_, columns_);
  if (reader_) unread_ = reader_->inserted(values, returned);
  for (std::size_t column = 0; column < columns_->size(); ++column) {
    rows_.add(column < values.size() ? storedAs(values[column]) : Value{});
  }
}

void SnapshotCursor::readInserted() {
  const RowHandle handle = *unread_;
  unread_.reset();
  RowStore read(rows_.columns());
  if (!reader_->readRow(handle, read)) return;
  for (int column = 0; column < rows_.columns(); ++column)
    rows_.set(rows_.rows() - 1, column, read.at(0, column));
}

}  // namespace zqn::ado
