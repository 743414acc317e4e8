// SPDX-License-Identifier: MIT
//
// Reading and assigning fields, and writing the row that was edited.
#include <algorithm>

#include "ado/cursor.h"
#include "ado/field_values.h"
#include "ado/raise.h"
#include "ado/recordset.h"

namespace zqn::ado {

namespace {

/// Optimistic locking writes one table: that of the first column that has one.
const String& tableOf(const Columns& columns) {
  static const String none;
  for (const Column& column : columns) {
    if (!column.baseTable.empty()) return column.baseTable;
  }
  return none;
}

}  // namespace

const Column& Recordset::column(int ordinal) const {
  if (ordinal < 0 || ordinal >= fieldCount_) raise(error::ItemNotFound);
  return cursor_->columns()[static_cast<std::size_t>(ordinal)];
}

const RowView& Recordset::current() const {
  if (!current_) current_ = cursor_->row(row_, buffer_);
  if (!current_) raise(error::NoCurrentRecord);
  return current_;
}

Variant Recordset::fieldValue(int ordinal) const {
  before(Operation::Field);
  const Column& asked = column(ordinal);
  if (!isOnRow()) raise(error::NoCurrentRecord);
  if (editMode_ != adEditNone) {
    const Variant& value = assigned_[static_cast<std::size_t>(ordinal)];
    if (!value.isEmpty()) return value;
  }
  return place_ == Place::Added ? Variant(Null) : readAs(asked, current().at(ordinal));
}

void Recordset::fieldValue(int ordinal, const Variant& value) {
  before(Operation::Field);
  const Column& assigned = column(ordinal);
  requireUpdatable();
  if (!isOnRow()) raise(error::NoCurrentRecord);
  if (place_ == Place::Row) current();
  Variant converted = convertedFor(assigned, value);
  if (editMode_ == adEditNone) {
    assigned_.assign(static_cast<std::size_t>(fieldCount_), Variant());
    editMode_ = adEditInProgress;
  }
  assigned_[static_cast<std::size_t>(ordinal)] = std::move(converted);
}

void Recordset::requireUpdatable() const {
  const Columns& columns = cursor_->columns();
  const bool keyed = std::ranges::any_of(columns, &Column::key);
  const String& table = tableOf(columns);
  const bool oneTable = std::ranges::all_of(
      columns, [&](const Column& column) { return column.baseTable.empty() || column.baseTable == table; });
  if (lockType_ == adLockReadOnly || !keyed || !oneTable) {
    raise(error::FeatureNotAvailable,
          u"Diese Datensatzgruppe lässt sich nicht ändern: Die Abfrage oder die Art der Sperre erlaubt es "
          u"nicht.");
  }
}

int Recordset::EditMode() const {
  requireOpen();
  return editMode_;
}

void Recordset::AddNew() {
  requireOpen();
  before(Operation::AddNew);
  requireUpdatable();
  finishEdit();
  placeBeforeAdd_ = place_;
  place_ = Place::Added;
  assigned_.assign(static_cast<std::size_t>(fieldCount_), Variant());
  editMode_ = adEditAdd;
}

void Recordset::CancelUpdate() {
  requireOpen();
  if (editMode_ == adEditAdd) place_ = placeBeforeAdd_;
  endEdit();
}

void Recordset::endEdit() noexcept {
  editMode_ = adEditNone;
  assigned_.clear();
}

void Recordset::Update() {
  requireOpen();
  before(Operation::Update);
  if (!isOnRow()) raise(error::NoCurrentRecord);
  if (editMode_ == adEditAdd) {
    insertRow();
  } else if (editMode_ == adEditInProgress) {
    updateRow();
  }
}

void Recordset::insertRow() {
  // Which rows a list has is settled before there is another one.
  cursor_->fetchAll();
  const Provider& provider = connection_->provider();
  const Columns& columns = cursor_->columns();
  String names, marks;
  std::vector<Value> parameters;
  for (std::size_t i = 0; i < assigned_.size(); ++i) {
    if (assigned_[i].isEmpty()) continue;
    names += (names.empty() ? u"" : u", ") + provider.quoted(columns[i].baseColumn);
    marks += marks.empty() ? u"?" : u", ?";
    parameters.push_back(storedAs(assigned_[i]));
  }
  String text = u"INSERT INTO " + provider.quoted(tableOf(columns));
  text += names.empty() ? u" DEFAULT VALUES" : u" (" + names + u") VALUES (" + marks + u")";
  RowStore returned;
  {
    Statement& insert = connection_->statement(text, Purpose::Insert);
    const RunningStatement run(insert, parameters);
    returned.clear(static_cast<int>(insert.columns()->size()));
    try {
      if (returned.columns() > 0) insert.fetch(returned, 1);
    } catch (const RuntimeError&) {
      // The row is written: another attempt would write it twice.
      returned.clear(0);
    }
  }
  cursor_->inserted(assigned_, returned.rows() > 0 ? RowView{&returned, 0} : RowView{});
  endEdit();
  goTo(cursor_->knownRows() - 1);
}

void Recordset::updateRow() {
  const Provider& provider = connection_->provider();
  const Columns& columns = cursor_->columns();
  String changes, conditions;
  std::vector<Value> parameters;
  for (std::size_t i = 0; i < assigned_.size(); ++i) {
    if (assigned_[i].isEmpty()) continue;
    changes += (changes.empty() ? u"" : u", ") + provider.quoted(columns[i].baseColumn) + u"=?";
    parameters.push_back(storedAs(assigned_[i]));
  }
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const bool changed = i < assigned_.size() && !assigned_[i].isEmpty();
    if (!columns[i].key && !changed) continue;
    const Condition same = provider.sameValue(columns[i], current().at(static_cast<int>(i)));
    conditions += (conditions.empty() ? u"" : u" AND ") + same.text;
    parameters.insert(parameters.end(), same.parameters.begin(), same.parameters.end());
  }
  const String text =
      u"UPDATE " + provider.quoted(tableOf(columns)) + u" SET " + changes + u" WHERE " + conditions;
  const RunningStatement run(connection_->statement(text, Purpose::Plain), parameters);
  if (run->rowsAffected() == 0) {
    raise(error::RowConflict);
  }
  cursor_->updated(row_, assigned_);
  drawn_.drop(row_);
  endEdit();
  goTo(row_);
}

}  // namespace zqn::ado
