// SPDX-License-Identifier: MIT
#include "ado/keyset_cursor.h"

#include <algorithm>
#include <limits>

#include "runtime/error.h"

namespace zqn::ado {

namespace {
constexpr int FirstKeys = 64;
constexpr int KeysPerBatch = 1024;
/// A new row whose key the database does not tell: it has its place, but nothing of it can be read.
constexpr RowHandle Untold = std::numeric_limits<RowHandle>::min();
}  // namespace

KeysetCursor::KeysetCursor(Provider& provider, StringView statement, std::unique_ptr<Keyset> keyset)
    : provider_(provider), statement_(statement), keyset_(std::move(keyset)), columns_(keyset_->columns()) {
  fetch(FirstKeys);
}

KeysetCursor::KeysetCursor(Provider& provider, StringView statement, std::shared_ptr<const Columns> columns,
                           RowStore rows, std::unique_ptr<Keyset> keyset)
    : provider_(provider),
      statement_(statement),
      keyset_(std::move(keyset)),
      columns_(std::move(columns)),
      complete_(true),
      first_(std::move(rows)) {
  const auto handle = std::ranges::find_if(*columns_, &Column::rowHandle);
  const int column = static_cast<int>(handle - columns_->begin());
  for (int row = 0; row < first_.rows(); ++row)
    handles_.push_back(keyset_ ? keyset_->handleOf({&first_, row}) : first_.at(row, column).integer);
}

Keyset& KeysetCursor::keyset() {
  if (!keyset_) keyset_ = provider_.keyset(statement_);
  if (!keyset_)
    throw RuntimeError(error::ProviderFailure,
                       u"Die Zeilen dieser Anweisung lassen sich nicht über ihre Schlüssel lesen.");
  return *keyset_;
}

void KeysetCursor::fetch(int atMost) {
  while (!complete_ && atMost > 0) {
    const int count = std::min(atMost, KeysPerBatch);
    batch_.clear();
    complete_ = !keyset().fetchKeys(batch_, static_cast<std::size_t>(count));
    handles_.insert(handles_.end(), batch_.begin(), batch_.end());
    atMost -= count;
  }
}

RowView KeysetCursor::row(int row, RowStore& buffer) {
  if (row == 0 && first_.rows() > 0) {
    buffer = std::move(first_);
    first_.clear(0);
    return {&buffer, 0};
  }
  buffer.clear(static_cast<int>(columns_->size()));
  const RowHandle handle = handles_[static_cast<std::size_t>(row)];
  const bool there = handle != Untold && keyset().readRow(handle, buffer);
  return there ? RowView{&buffer, 0} : RowView{};
}

RowView KeysetCursor::refresh(int row, RowStore& buffer) {
  first_.clear(0);
  return this->row(row, buffer);
}

int KeysetCursor::find(const Criterion& criterion, int from, int direction, RowStore& buffer) {
  std::vector<ColumnEquals> equalities = criterion.equalities();
  std::erase_if(equalities, [&](const ColumnEquals& one) {
    return (*columns_)[static_cast<std::size_t>(one.column)].baseColumn.empty();
  });
  if (equalities.empty()) return scan(criterion, from, direction, buffer);
  const auto matches = keyset().rowsWhere(equalities);
  if (!matches) return scan(criterion, from, direction, buffer);
  const bool decided = equalities.size() == criterion.count();
  return firstAmong(*matches, from, direction, [&](int at) {
    if (decided) return true;
    const RowView view = row(at, buffer);
    return view && criterion.holds(view);
  });
}

int KeysetCursor::firstAmong(const std::vector<RowHandle>& matches, int from, int direction,
                             const std::function<bool(int)>& fits) {
  index_.extend(handles_);
  std::vector<int> rows;
  std::vector<RowHandle> unknown;
  for (const RowHandle match : matches) {
    const auto at = index_.rowOf(handles_, match);
    if (!at) {
      unknown.push_back(match);
    } else if ((*at - from) * direction >= 0) {
      rows.push_back(*at);
    }
  }
  std::ranges::sort(rows);
  if (direction < 0) std::ranges::reverse(rows);
  for (const int at : rows) {
    if (fits(at)) return at;
  }
  // What is not known yet stands below all that is, and so below `from`.
  std::ranges::sort(unknown);
  while (direction > 0 && !unknown.empty() && !complete_) {
    const int known = knownRows();
    fetch(KeysPerBatch);
    for (int at = known; at < knownRows(); ++at) {
      const bool match = std::ranges::binary_search(unknown, handles_[static_cast<std::size_t>(at)]);
      if (match && fits(at)) return at;
    }
  }
  return -1;
}

void KeysetCursor::updated(int row, const std::vector<Variant>& values) {
  first_.clear(0);
  // Without a keyset the handles are the database's own, which no write changes.
  if (keyset_) keyset_->written(handles_[static_cast<std::size_t>(row)], values);
}

void KeysetCursor::inserted(const std::vector<Variant>& values, const RowView& returned) {
  first_.clear(0);
  handles_.push_back(keyset().inserted(values, returned).value_or(Untold));
}

}  // namespace zqn::ado
