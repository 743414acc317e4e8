// SPDX-License-Identifier: MIT
#include "ado/recordset.h"

#include <algorithm>
#include <limits>

#include "ado/cursor.h"
#include "ado/raise.h"

namespace zqn::ado {

Recordset::Recordset() = default;

Recordset::~Recordset() { shut(); }

void Recordset::requireOpen() const {
  if (!cursor_) raise(error::ObjectClosed);
}

void Recordset::requireClosed() const {
  if (cursor_) raise(error::ObjectOpen);
}

void Recordset::before(Operation operation, StringView criterion) const {
  connection_->before(operation, source_, criterion);
}

void Recordset::CursorLocation(int location) {
  requireClosed();
  if (location != adUseServer && location != adUseClient) raise(error::InvalidArgument);
  location_ = location;
}

void Recordset::CursorType(int type) {
  requireClosed();
  if (type < adOpenForwardOnly || type > adOpenStatic) raise(error::InvalidArgument);
  cursorType_ = type;
}

void Recordset::LockType(int type) {
  requireClosed();
  if (type < adLockReadOnly || type > adLockOptimistic) raise(error::InvalidArgument);
  lockType_ = type;
}

// ---- open and close

void Recordset::Open(const sql::Text& source, const Ref<Connection>& connection, int cursorType, int lockType,
                     int) {
  if (!connection.isNothing()) connection->before(Operation::Open, source.text());
  requireClosed();
  mayReopen_ = false;
  if (connection.isNothing() || connection->State() == adStateClosed) raise(error::InvalidConnection);
  CursorType(cursorType);
  LockType(lockType);
  if (location_ == adUseClient) cursorType_ = adOpenStatic;
  connection->requireRunnable(source);
  source_ = source.text();
  connection_ = connection;
  execute();
}

void Recordset::execute() {
  const bool keyed = lockType_ != adLockReadOnly;
  cursor_ = openCursor(*connection_, source_,
                       location_ == adUseServer ? CursorKind::Server : CursorKind::Client, keyed);
  if (!cursor_) return shut();
  const Columns& columns = cursor_->columns();
  fieldCount_ = static_cast<int>(std::ranges::find_if(columns, &Column::hidden) - columns.begin());
  if (!anchor_) {
    anchor_ = std::make_shared<FieldAnchor>(FieldAnchor{this});
    connection_->enlist(*this);
  }
  generation_ = 0;
  if (cursor_->knownRows() > 0) {
    goTo(0);
  } else {
    leaveTo(Place::Empty);
  }
  tellWatchers();
}

void Recordset::shut() noexcept {
  cursor_.reset();
  drawn_.clear();
  endEdit();
  leaveTo(Place::Empty);
  if (!anchor_) return;
  anchor_->recordset = nullptr;
  anchor_.reset();
  connection_->dismiss(*this);
  tellWatchers();
}

void Recordset::Close() {
  requireOpen();
  before(Operation::Close);
  if (editMode_ != adEditNone) raise(error::IllegalOperation);
  shut();
}

void Recordset::Requery(int) {
  if (!mayReopen_) requireOpen();
  if (editMode_ != adEditNone) raise(error::IllegalOperation);
  mayReopen_ = true;
  try {
    before(Operation::Requery);
    drawn_.clear();
    cursor_.reset();
    execute();
    mayReopen_ = false;
  } catch (...) {
    shut();
    throw;
  }
}

// ---- position

void Recordset::leaveTo(Place place) noexcept {
  place_ = place;
  row_ = -1;
  current_ = {};
}

void Recordset::goTo(int row) noexcept {
  place_ = Place::Row;
  row_ = row;
  current_ = {};
}

bool Recordset::hasRow(int row) const {
  if (row >= cursor_->knownRows()) cursor_->fetch(row - cursor_->knownRows() + 1);
  return row < cursor_->knownRows();
}

void Recordset::finishEdit() {
  if (editMode_ != adEditNone) Update();
}

bool Recordset::IsEOF() const {
  requireOpen();
  return place_ == Place::Eof || place_ == Place::Empty;
}

bool Recordset::IsBOF() const {
  requireOpen();
  return place_ == Place::Bof || place_ == Place::Empty;
}

void Recordset::MoveFirst() {
  requireOpen();
  finishEdit();
  if (!hasRow(0)) raise(error::NoCurrentRecord);
  goTo(0);
}

void Recordset::MoveLast() {
  requireOpen();
  finishEdit();
  cursor_->fetchAll();
  if (!hasRow(0)) raise(error::NoCurrentRecord);
  goTo(cursor_->knownRows() - 1);
}

void Recordset::MoveNext() {
  requireOpen();
  finishEdit();
  if (IsEOF()) raise(error::NoCurrentRecord);
  const int next = place_ == Place::Bof ? 0 : row_ + 1;
  if (hasRow(next)) {
    goTo(next);
  } else {
    leaveTo(Place::Eof);
  }
}

void Recordset::MovePrevious() {
  requireOpen();
  if (forwardOnly()) raise(error::IllegalOperation);
  finishEdit();
  if (IsBOF()) raise(error::NoCurrentRecord);
  if (place_ == Place::Eof) cursor_->fetchAll();
  const int previous = place_ == Place::Eof ? cursor_->knownRows() - 1 : row_ - 1;
  if (previous >= 0) {
    goTo(previous);
  } else {
    leaveTo(Place::Bof);
  }
}

std::int32_t Recordset::RecordCount() const {
  requireOpen();
  if (forwardOnly()) return -1;
  cursor_->fetchAll();
  return cursor_->knownRows() + (place_ == Place::Added ? 1 : 0);
}

void Recordset::Find(const sql::Text& criterion, int skipRecords, int direction, const Variant& start) {
  requireOpen();
  before(Operation::Find, criterion.text());
  if ((direction != adSearchForward && direction != adSearchBackward) || skipRecords < 0)
    raise(error::InvalidArgument);
  const int begin = start.isMissing() ? row_ : rowOf(start);
  finishEdit();
  if (start.isMissing() && place_ != Place::Row) raise(error::NoCurrentRecord);
  int found = -1;
  try {
    if (!criterion.valid()) raise(error::InvalidArgument);
    const Criterion comparisons(criterion.text(), cursor_->columns());
    const std::int64_t from =
        std::int64_t{start.isMissing() ? row_ : begin} + std::int64_t{skipRecords} * direction;
    const bool inRange = from >= 0 && from < std::numeric_limits<int>::max();
    if (inRange && hasRow(static_cast<int>(from)))
      found = cursor_->find(comparisons, static_cast<int>(from), direction, scratch_);
  } catch (const RuntimeError& failure) {
    const bool unreadable =
        failure.number() == error::InvalidArgument || failure.number() == error::ProviderTypeMismatch;
    if (unreadable) leaveTo(cursor_->knownRows() > 0 ? Place::Eof : Place::Empty);
    throw;
  }
  if (found >= 0) {
    goTo(found);
  } else {
    leaveTo(direction == adSearchForward ? Place::Eof : Place::Bof);
  }
}

}  // namespace zqn::ado
