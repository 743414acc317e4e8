// SPDX-License-Identifier: MIT
#include "ado/odbc/keyed_select.h"

#include <algorithm>

#include "runtime/collation.h"
#include "runtime/digits.h"

namespace zqn::ado::odbc {

namespace {

using Kind = sql::Token::Kind;

const Column* baseOf(const Columns& columns, StringView baseColumn) {
  const auto found =
      std::ranges::find_if(columns, [&](const Column& one) { return sameName(one.baseColumn, baseColumn); });
  return found == columns.end() ? nullptr : &*found;
}

String joined(const std::vector<String>& columns, StringView behindEach, StringView between) {
  String text;
  for (const String& column : columns)
    text.append(text.empty() ? StringView() : between).append(column).append(behindEach);
  return text;
}

}  // namespace

std::optional<KeyedSelect> KeyedSelect::of(StringView text, Tables& tables) {
  const auto select = sql::plainSelect(text);
  if (!select) return {};
  const TableInfo* table = tables.table(select->table);
  if (!table || table->key.empty()) return {};
  return KeyedSelect(text, *table);
}

KeyedSelect::KeyedSelect(StringView text, const TableInfo& table)
    : text_(std::make_shared<const String>(text)),
      select_(*sql::plainSelect(*text_)),
      table_(table.name),
      key_(table.key) {}

std::vector<String> KeyedSelect::key() const {
  std::vector<String> names;
  for (const String& column : key_) names.push_back(sql::quoted(column));
  return names;
}

std::vector<String> KeyedSelect::renamed(std::vector<String> columns) {
  for (std::size_t i = 0; i < columns.size(); ++i) columns[i] += u" AS zqn_key_" + digits(i);
  return columns;
}

std::vector<String> KeyedSelect::missing(const Columns& described) const {
  std::vector<String> names;
  for (const String& column : key_)
    if (!baseOf(described, column)) names.push_back(sql::quoted(column));
  return names;
}

String KeyedSelect::withHidden(const std::vector<String>& hidden) const {
  return sql::selectText(select_, renamed(hidden), select_.rest);
}

String KeyedSelect::oneRow(const std::vector<String>& hidden) const {
  return sql::selectText(select_, hidden, u"WHERE " + joined(key(), u"=?", u" AND "));
}

String KeyedSelect::keysWhere(const std::vector<String>& columns) const {
  return u"SELECT " + joined(key(), u"", u", ") + u" FROM " + String(select_.from) + u"\nWHERE " +
         joined(columns, u"=?", u" AND ");
}

sql::KeysOnly KeyedSelect::keysInOrder(const Columns& columns) const {
  std::vector<String> sorted;
  bool sorting = false;
  sql::Scanner scanner(select_.rest);
  for (sql::Token token = scanner.next(); token.kind != Kind::End; token = scanner.next()) {
    sorting = sorting || (token.depth == 0 && token.is(u"ORDER"));
    if (sorting && (token.kind == Kind::Word || token.kind == Kind::Name)) sorted.push_back(token.unquoted());
  }
  String tail;
  for (const String& column : key_) {
    const bool there = std::ranges::any_of(sorted, [&](const String& one) { return sameName(one, column); });
    if (there) continue;
    tail += sorting || !tail.empty() ? u"\n, " : u"\nORDER BY ";
    tail += sql::quoted(column);
  }
  return sql::keysOnly(select_, columns, renamed(key()), tail);
}

bool KeyedSelect::isLimited() const {
  sql::Scanner scanner(select_.rest);
  for (sql::Token token = scanner.next(); token.kind != Kind::End; token = scanner.next()) {
    if (token.depth == 0 && (token.is(u"LIMIT") || token.is(u"OFFSET"))) return true;
  }
  return false;
}

bool KeyedSelect::mark(Columns& columns, std::size_t hidden) const {
  const bool ofTable = std::ranges::all_of(columns, [&](const Column& column) {
    return column.baseTable.empty() || sameName(column.baseTable, table_);
  });
  if (!ofTable) return false;
  for (Column& column : columns) {
    column.key =
        std::ranges::any_of(key_, [&](const String& name) { return sameName(name, column.baseColumn); });
  }
  for (std::size_t i = columns.size() - hidden; i < columns.size(); ++i) columns[i].hidden = true;
  return std::ranges::all_of(key_, [&](const String& name) { return baseOf(columns, name) != nullptr; });
}

std::vector<int> KeyedSelect::positions(const Columns& columns) const {
  std::vector<int> places;
  for (const String& name : key_)
    if (const Column* column = baseOf(columns, name))
      places.push_back(static_cast<int>(column - columns.data()));
  return places;
}

}  // namespace zqn::ado::odbc
