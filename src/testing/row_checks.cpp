// SPDX-License-Identifier: MIT
#include "testing/row_checks.h"

#include <algorithm>

#include "runtime/ascii.h"
#include "runtime/convert.h"
#include "runtime/locale.h"

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
    const std::string place = toUtf8(column.name) + " of " + toUtf8(concatenate(row.front()));
    if (row[position].isNull()) {
      if (!column.nullable) return fault(place + " is Null");
      continue;
    }
    if (!kindFits(column.kind, row[position].kind())) return fault(place + " has another kind");
    const String* text = row[position].as<String>();
    if (column.length > 0 && text->size() > static_cast<std::size_t>(column.length))
      return fault(place + " is " + std::to_string(text->size()) + " long");
    if (column.kind == ColumnKind::Date14 && !isDate14(*text)) return fault(place + " is no date string");
  }
  return "";
}

std::string RowLedger::add(const Table& table, const Row& row) {
  if (std::string fault = rowFault(table, row); !fault.empty()) return fault;
  const String name(table.name);
  ++counts_[name];
  for (std::size_t position = 0; position < row.size(); ++position)
    if (const String* text = row[position].as<String>())
      values_[{name, String(table.columns[position].name)}].insert(*text);

  if (table.columns.back().kind == ColumnKind::Serial) return "";
  std::vector<String> key;
  for (const StringView column : table.primaryKey) key.push_back(CStr(row[table.position(column)]));
  if (keys_[name].insert(key).second) return "";
  return toUtf8(table.name) + ": the key " + toUtf8(key.back()) + " stands twice";
}

std::int64_t RowLedger::count(StringView tableName) const {
  const auto found = counts_.find(String(tableName));
  return found == counts_.end() ? 0 : found->second;
}

bool RowLedger::holds(StringView tableName, StringView column, const String& value) const {
  const auto found = values_.find({String(tableName), String(column)});
  return found != values_.end() && found->second.contains(value);
}

bool RowLedger::Collated::operator()(const String& left, const String& right) const {
  return compareCollated(StringView(left), StringView(right)) < 0;
}

bool RowLedger::KeyLess::operator()(const std::vector<String>& left, const std::vector<String>& right) const {
  return std::ranges::lexicographical_compare(left, right, Collated{});
}

}  // namespace zqn::host
