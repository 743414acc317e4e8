// SPDX-License-Identifier: MIT
#include "testing/row_checks.h"

#include <algorithm>

#include "host/database/schema/schema.h"
#include "runtime/ascii.h"
#include "runtime/collation.h"
#include "runtime/convert.h"

namespace zqn::host {

namespace {

bool kindFits(ColumnKind column, Variant::Kind value) {
  switch (column) {
    case ColumnKind::Text:
    case ColumnKind::LongText:
    case ColumnKind::Date14:
      return value == Variant::Kind::String;
    case ColumnKind::Whole:
      return value == Variant::Kind::Long;
    case ColumnKind::Number:
      return value == Variant::Kind::Double;
    case ColumnKind::Flag:
      return value == Variant::Kind::Boolean;
    case ColumnKind::Serial:
      return false;
  }
  return false;
}

bool isDate14(const String& text) { return text.size() == 14 && std::ranges::all_of(text, ascii::isDigit); }

}  // namespace

std::string rowFault(const Table& table, const Row& row) {
  const auto fault = [&](const std::string& what) { return toUtf8(table.name) + ": " + what; };
  if (row.size() != table.width()) return fault("has " + std::to_string(row.size()) + " values");
  for (std::size_t position = 0; position < row.size(); ++position) {
    const Column& column = table.columns[position];
    const auto wrong = [&](const std::string& what) {
      return fault(toUtf8(column.name) + " of " + toUtf8(concatenate(row.front())) + what);
    };
    if (row[position].isNull()) {
      if (!column.nullable) return wrong(" is Null");
      continue;
    }
    if (!kindFits(column.kind, row[position].kind())) return wrong(" has another kind");
    const String* text = row[position].as<String>();
    if (column.length > 0 && text->size() > static_cast<std::size_t>(column.length))
      return wrong(" is " + std::to_string(text->size()) + " long");
    if (column.kind == ColumnKind::Date14 && !isDate14(*text)) return wrong(" is no date string");
  }
  return "";
}

std::string RowLedger::add(const Table& table, const Row& row) {
  if (std::string fault = rowFault(table, row); !fault.empty()) return fault;
  Rows& rows = tables_[String(table.name)];
  ++rows.count;
  rows.values.resize(row.size());
  for (std::size_t position = 0; position < row.size(); ++position)
    if (const String* text = row[position].as<String>()) rows.values[position].insert(*text);

  if (table.columns.back().kind == ColumnKind::Serial) return "";
  Key key;
  for (const StringView column : table.primaryKey) key.push_back(CStr(row[table.position(column)]));
  if (rows.keys.insert(key).second) return "";
  return toUtf8(table.name) + ": the key " + toUtf8(key.back()) + " stands twice";
}

std::int64_t RowLedger::count(StringView tableName) const {
  const auto found = tables_.find(tableName);
  return found == tables_.end() ? 0 : found->second.count;
}

bool RowLedger::holds(StringView tableName, StringView column, const String& value) const {
  const auto found = tables_.find(tableName);
  return found != tables_.end() && found->second.values[table(tableName).position(column)].contains(value);
}

std::size_t RowLedger::Hash::operator()(const String& text) const noexcept { return hashCollated(text); }

std::size_t RowLedger::Hash::operator()(const Key& key) const noexcept {
  std::size_t hash = 0;
  for (const String& cell : key) hash = hash * 31 + hashCollated(cell);
  return hash;
}

bool RowLedger::Equal::operator()(const String& left, const String& right) const noexcept {
  return compareCollated(StringView(left), StringView(right)) == 0;
}

bool RowLedger::Equal::operator()(const Key& left, const Key& right) const noexcept {
  return std::ranges::equal(left, right, *this);
}

}  // namespace zqn::host
