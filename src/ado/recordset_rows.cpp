// SPDX-License-Identifier: MIT
//
// Bookmarks, and what a list reads of a recordset.
#include <cmath>

#include "ado/cursor.h"
#include "ado/field_values.h"
#include "ado/raise.h"
#include "ado/recordset.h"
#include "runtime/convert.h"

namespace zqn::ado {

namespace {

/// A bookmark is a Double: the generation above, the row below.
constexpr double Generation = 0x1p32;
constexpr std::int64_t Generations = std::int64_t{1} << 20;

std::int64_t nextGeneration() {
  static std::int64_t last = 0;
  last = last % Generations + 1;
  return last;
}

}  // namespace

void Recordset::requireBookmarks() const {
  requireOpen();
  if (forwardOnly()) raise(error::FeatureNotAvailable);
}

Variant Recordset::Bookmark() const {
  requireBookmarks();
  if (place_ != Place::Row) raise(error::NoCurrentRecord);
  return bookmarkOf(row_);
}

void Recordset::Bookmark(const Variant& bookmark) {
  requireBookmarks();
  const int row = rowOf(bookmark);
  finishEdit();
  goTo(row);
}

Variant Recordset::bookmarkOf(int row) const {
  requireOpen();
  if (row < 0 || row >= cursor_->knownRows()) raise(error::NoCurrentRecord);
  if (generation_ == 0) generation_ = nextGeneration();
  return static_cast<double>(generation_) * Generation + row;
}

int Recordset::rowOf(const Variant& bookmark) const {
  requireOpen();
  const double* mark = bookmark.as<double>();
  const double row = mark && generation_ != 0 ? *mark - static_cast<double>(generation_) * Generation : -1;
  if (!(row >= 0 && row < cursor_->knownRows()) || row != std::floor(row)) raise(error::InvalidArgument);
  return static_cast<int>(row);
}

int Recordset::knownRows() const noexcept { return cursor_ && !forwardOnly() ? cursor_->knownRows() : 0; }

bool Recordset::rowsComplete() const noexcept { return !cursor_ || forwardOnly() || cursor_->complete(); }

void Recordset::fetchKeys(int atMost) {
  if (!rowsComplete()) cursor_->fetch(atMost);
}

int Recordset::currentRow() const noexcept { return cursor_ && place_ == Place::Row ? row_ : -1; }

std::vector<Variant> Recordset::valuesOf(const RowView& read) const {
  std::vector<Variant> values;
  if (!read) return values;
  values.reserve(static_cast<std::size_t>(fieldCount_));
  for (int i = 0; i < fieldCount_; ++i) values.push_back(readAs(column(i), read.at(i)));
  return values;
}

Variant Recordset::rowValue(int row, int ordinal) {
  requireOpen();
  if (row < 0 || row >= knownRows()) raise(error::NoCurrentRecord);
  const Column& asked = column(ordinal);
  if (!cursor_->readsRows()) {
    const RowView view = cursor_->row(row, scratch_);
    return view ? readAs(asked, view.at(ordinal)) : Variant(Null);
  }
  const std::vector<Variant>* values = drawn_.find(row);
  if (!values) values = &drawn_.put(row, valuesOf(cursor_->row(row, scratch_)));
  return values->empty() ? Null : (*values)[static_cast<std::size_t>(ordinal)];
}

std::vector<Variant> Recordset::readRow(int row) {
  requireOpen();
  if (row < 0 || row >= knownRows()) raise(error::NoCurrentRecord);
  return valuesOf(cursor_->readNow(row, scratch_));
}

bool Recordset::refreshRow(int row) {
  requireOpen();
  if (row < 0 || row >= knownRows()) raise(error::NoCurrentRecord);
  if (editMode_ != adEditNone && row == row_) return true;
  drawn_.drop(row);
  const RowView read = cursor_->refresh(row, scratch_);
  if (row == row_) current_ = {};
  if (cursor_->readsRows()) drawn_.put(row, valuesOf(read));
  return static_cast<bool>(read);
}

String Recordset::rowText(int row, int column) { return concatenate(rowValue(row, column)); }

// ---- watchers

void Recordset::addWatcher(Watcher& watcher) { watchers_.push_back(&watcher); }

void Recordset::removeWatcher(Watcher& watcher) noexcept { std::erase(watchers_, &watcher); }

void Recordset::tellWatchers() noexcept {
  for (Watcher* each : watchers_) each->rowsReplaced();
}

}  // namespace zqn::ado
