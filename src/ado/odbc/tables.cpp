// SPDX-License-Identifier: MIT
#include "ado/odbc/tables.h"

#include <algorithm>
#include <array>

#include "ado/odbc/wide.h"
#include "runtime/collation.h"
#include "runtime/convert.h"

namespace zqn::ado::odbc {

namespace {

/// The rows that a catalogue function of ODBC gives, column by column from 1 in ascending order.
class DriverRows {
 public:
  explicit DriverRows(Link& link) : link_(link), handle_(link.statement()) {}

  SQLHSTMT handle() const noexcept { return handle_.get(); }
  void require(SQLRETURN result) {
    if (!SQL_SUCCEEDED(result)) throw link_.failure(handle_);
  }
  void run(StringView statement) {
    require(SQLPrepareW(handle_.get(), asWide(statement), static_cast<SQLINTEGER>(statement.size())));
    require(SQLExecute(handle_.get()));
  }
  bool next() {
    const SQLRETURN result = SQLFetch(handle_.get());
    if (result == SQL_NO_DATA) return false;
    require(result);
    return true;
  }
  String text(SQLUSMALLINT column) {
    std::array<SQLWCHAR, 260> buffer = {};
    SQLLEN bytes = 0;
    require(SQLGetData(handle_.get(), column, SQL_C_WCHAR, buffer.data(), sizeof buffer, &bytes));
    return bytes == SQL_NULL_DATA ? String() : String(asText(buffer.data()));
  }
  int number(SQLUSMALLINT column) {
    SQLINTEGER value = 0;
    SQLLEN bytes = 0;
    require(SQLGetData(handle_.get(), column, SQL_C_SLONG, &value, 0, &bytes));
    return bytes == SQL_NULL_DATA ? 0 : value;
  }

 private:
  Link& link_;
  Handle handle_;
};

/// The question about this table.
String about(StringView question, StringView table) {
  return Replace(question, u"?", u"'" + Replace(table, u"'", u"''") + u"'");
}

SQLSMALLINT length(StringView text) { return static_cast<SQLSMALLINT>(text.size()); }

/// nullptr, no restriction, for an empty schema.
SQLWCHAR* orAny(StringView text) { return text.empty() ? nullptr : asWide(text); }

bool isNumber(int type) {
  constexpr std::array<int, 9> types = {SQL_TINYINT, SQL_SMALLINT, SQL_INTEGER, SQL_BIGINT, SQL_REAL,
                                        SQL_FLOAT,   SQL_DOUBLE,   SQL_NUMERIC, SQL_DECIMAL};
  return std::ranges::find(types, type) != types.end();
}

}  // namespace

const TableInfo::Column* TableInfo::column(StringView asked) const {
  const auto found =
      std::ranges::find_if(columns, [&](const Column& one) { return sameName(one.name, asked); });
  return found == columns.end() ? nullptr : &*found;
}

const TableInfo* Tables::table(StringView asked) {
  const auto known = known_.find(asked);
  if (known != known_.end()) return known->second ? &*known->second : nullptr;
  const auto& all = names();
  auto found = std::ranges::find(all, asked, &Name::table);
  if (found == all.end())
    found = std::ranges::find_if(all, [&](const Name& one) { return sameName(one.table, asked); });
  // Only what has been read to its end is kept: a connection may drop on the way.
  auto info = found == all.end() ? std::nullopt : std::optional(read(*found));
  const auto& kept = known_[String(asked)] = std::move(info);
  return kept ? &*kept : nullptr;
}

void Tables::forget() noexcept {
  names_.reset();
  known_.clear();
}

const std::vector<Tables::Name>& Tables::names() {
  if (names_) return *names_;
  DriverRows rows(link_);
  static constexpr StringView types = u"TABLE,VIEW";
  const Dialect& dialect = link_.dialect();
  if (!dialect.tables.empty()) {
    rows.run(dialect.tables);
  } else {
    rows.require(SQLTablesW(rows.handle(), nullptr, 0, nullptr, 0, nullptr, 0, asWide(types), length(types)));
  }
  std::vector<Name> names;
  while (rows.next()) {
    Name name{rows.text(2), rows.text(3)};
    if (name.schema != u"information_schema" && name.schema != u"INFORMATION_SCHEMA" && name.schema != u"sys")
      names.push_back(std::move(name));
  }
  link_.requireAlive();
  return names_.emplace(std::move(names));
}

TableInfo Tables::read(const Name& name) {
  const Dialect& dialect = link_.dialect();
  TableInfo table{name.table, {}, {}};
  {
    DriverRows rows(link_);
    if (!dialect.columns.empty()) {
      rows.run(about(dialect.columns, name.table));
    } else {
      rows.require(SQLColumnsW(rows.handle(), nullptr, 0, orAny(name.schema), length(name.schema),
                               asWide(name.table), length(name.table), nullptr, 0));
    }
    while (rows.next()) {
      // The name is taken for a pattern, in which an underscore stands for any character.
      if (rows.text(3) != name.table) continue;
      const String column = rows.text(4);
      const int type = rows.number(5);
      table.columns.push_back({column, type == SQL_BIT, isNumber(type)});
    }
  }
  link_.requireAlive();
  DriverRows rows(link_);
  if (!dialect.primaryKey.empty()) {
    rows.run(about(dialect.primaryKey, name.table));
  } else {
    rows.require(SQLPrimaryKeysW(rows.handle(), nullptr, 0, orAny(name.schema), length(name.schema),
                                 asWide(name.table), length(name.table)));
  }
  std::vector<std::pair<int, String>> key;
  while (rows.next()) {
    if (rows.text(3) != name.table) continue;
    String column = rows.text(4);
    key.emplace_back(rows.number(5), std::move(column));
  }
  link_.requireAlive();
  std::ranges::sort(key);
  for (auto& part : key) table.key.push_back(std::move(part.second));
  return table;
}

}  // namespace zqn::ado::odbc
