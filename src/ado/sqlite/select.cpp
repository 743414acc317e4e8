// SPDX-License-Identifier: MIT
#include "ado/sqlite/select.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

#include "ado/enums.h"
#include "ado/select_text.h"
#include "runtime/ascii.h"
#include "runtime/collation.h"

namespace zqn::ado::sqlite {

namespace {

String asText(const char* utf8) { return utf8 ? fromUtf8(utf8) : String(); }

/// No text is longer than this; a declaration that says more says nothing.
constexpr std::int64_t NoLimit = std::numeric_limits<std::int32_t>::max();

/// Type and size from a declaration such as "VARCHAR(30)".
void readDeclaration(Column& column, const char* declaration) {
  std::string name;
  std::int64_t size = 0;
  bool inside = false;
  for (const char* at = declaration ? declaration : ""; *at; ++at) {
    if (*at == '(' || *at == ',') {
      inside = !inside && *at == '(';
    } else if (inside && ascii::isDigit(static_cast<unsigned char>(*at))) {
      size = std::min(size * 10 + (*at - '0'), NoLimit);
    } else if (!inside && size == 0) {
      name += static_cast<char>(*at >= 'a' && *at <= 'z' ? *at - 32 : *at);
    }
  }
  const auto holds = [&](std::string_view word) { return name.find(word) != std::string::npos; };
  if (name.empty()) {
    column.type = adVariant;
  } else if (holds("BOOL") || name == "BIT") {
    column.type = adBoolean;
  } else if (holds("DATE") || holds("TIME")) {
    column.type = adDBTimeStamp;
  } else if (holds("CHAR") || holds("TEXT") || holds("CLOB")) {
    const bool limited = size > 0 && size < NoLimit;
    column.type = limited ? adVarWChar : adLongVarWChar;
    column.definedSize = limited ? static_cast<int>(size) : 0;
  } else if (holds("BIGINT")) {
    column.type = adBigInt;
  } else if (holds("SMALLINT") || holds("TINYINT")) {
    column.type = adSmallInt;
  } else if (holds("INT")) {
    column.type = adInteger;
  } else if (holds("REAL") || holds("FLOA") || holds("DOUB")) {
    column.type = adDouble;
  } else {
    column.type = holds("BLOB") ? adVariant : adNumeric;
  }
}

struct Table {
  std::vector<String> key;
  String rowId;
};

Table tableInfo(const Database& database, StringView name) {
  Table table;
  std::array<StringView, 3> rowIds = {u"rowid", u"_rowid_", u"oid"};
  const StatementHandle info = database.prepare("SELECT name, pk FROM pragma_table_info(?) ORDER BY pk");
  database.bind(info.get(), 1, Value::of(name));
  while (database.step(info.get())) {
    const String column = asText(reinterpret_cast<const char*>(sqlite3_column_text(info.get(), 0)));
    if (sqlite3_column_int(info.get(), 1) > 0) table.key.push_back(column);
    std::ranges::replace_if(
        rowIds, [&](StringView rowId) { return sameName(rowId, column); }, StringView());
  }
  const auto rowId = std::ranges::find_if_not(rowIds, &StringView::empty);
  if (rowId != rowIds.end()) table.rowId = *rowId;
  return table;
}

StatementHandle tryPrepare(const Database& database, StringView text) {
  try {
    return database.prepare(text);
  } catch (const RuntimeError&) {
    return nullptr;
  }
}

bool isOfTable(const Columns& columns, StringView table) {
  const auto based = [](const Column& column) { return !column.baseTable.empty(); };
  return std::ranges::any_of(columns, based) && std::ranges::all_of(columns, [&](const Column& column) {
           return !based(column) || sameName(column.baseTable, table);
         });
}

bool names(const Columns& columns, StringView baseColumn) {
  return std::ranges::any_of(columns,
                             [&](const Column& column) { return sameName(column.baseColumn, baseColumn); });
}

}  // namespace

Columns describe(sqlite3_stmt* statement) {
  Columns columns(static_cast<std::size_t>(sqlite3_column_count(statement)));
  for (int i = 0; i < static_cast<int>(columns.size()); ++i) {
    Column& column = columns[static_cast<std::size_t>(i)];
    column.name = asText(sqlite3_column_name(statement, i));
    column.baseTable = asText(sqlite3_column_table_name(statement, i));
    column.baseColumn = asText(sqlite3_column_origin_name(statement, i));
    readDeclaration(column, sqlite3_column_decltype(statement, i));
  }
  return columns;
}

std::optional<SelectWithHandle> selectWithHandle(const Database& database, StringView text, RowsOf rows) {
  const auto select = sql::plainSelect(text);
  if (!select) return {};
  const Table table = tableInfo(database, select->table);
  SelectWithHandle keyed{*select, nullptr, {}, table.rowId};

  std::vector<String> hidden;
  const auto prepare = [&] {
    const String byHandle = u"WHERE " + keyed.rowId + u"=?";
    const StringView rest = rows == RowsOf::OneHandle ? StringView(byHandle) : select->rest;
    keyed.statement = tryPrepare(database, sql::selectText(*select, hidden, rest));
    if (keyed.statement) keyed.columns = describe(keyed.statement.get());
    return keyed.statement != nullptr;
  };
  if (!keyed.rowId.empty()) hidden.push_back(keyed.rowId);
  if (!prepare()) {
    // A view, a table without row handles, or an error that the statement itself will show.
    if (rows == RowsOf::OneHandle || table.key.empty() || hidden.empty()) return {};
    keyed.rowId.clear();
    hidden.clear();
    if (!prepare()) return {};
  }
  const std::size_t own = keyed.columns.size() - hidden.size();
  const bool handle = !hidden.empty();
  const std::size_t before = hidden.size();
  const Columns visible(keyed.columns.begin(), keyed.columns.begin() + static_cast<std::ptrdiff_t>(own));
  for (const String& key : table.key) {
    if (!names(visible, key)) hidden.push_back(sql::quoted(key));
  }
  if (hidden.size() > before && !prepare()) return {};
  if (!isOfTable(keyed.columns, select->table)) return {};

  for (std::size_t i = 0; i < keyed.columns.size(); ++i) {
    Column& column = keyed.columns[i];
    column.hidden = i >= own;
    column.rowHandle = handle && i == own;
    if (column.rowHandle) column.baseColumn = keyed.rowId;
    column.key = column.hidden || std::ranges::any_of(table.key, [&](const String& key) {
                   return sameName(key, column.baseColumn);
                 });
  }
  return keyed;
}

}  // namespace zqn::ado::sqlite
