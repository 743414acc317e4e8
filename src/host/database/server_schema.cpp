// SPDX-License-Identifier: MIT
#include "host/database/server_schema.h"

#include <algorithm>
#include <map>
#include <set>

#include "host/database/rows.h"
#include "host/database/schema/schema.h"
#include "runtime/ascii.h"
#include "runtime/convert.h"

namespace zqn::host {

namespace {

// Table, column, type, the character set where it is too small, whether case counts, and whether the user may
// not read it. Views count as tables.
struct Questions {
  StringView columns;
  /// One value: the encoding of the database, empty where it holds every text.
  StringView narrow = {};
  /// One value: the name of the database; Null for none.
  StringView database = {};
};

const Questions& questions(DatabaseProduct product) {
  static constexpr Questions postgreSql{
      .columns =
          u"SELECT c.relname, a.attname, format_type(a.atttypid, NULL), '', "
          u"CASE WHEN k.collisdeterministic AND format_type(a.atttypid, NULL) <> 'citext' THEN 1 ELSE 0 END, "
          u"CASE WHEN has_column_privilege(c.oid, a.attnum, 'SELECT') THEN 0 ELSE 1 END "
          u"FROM pg_catalog.pg_class c "
          u"JOIN pg_catalog.pg_attribute a ON a.attrelid = c.oid "
          u"JOIN pg_catalog.pg_namespace n ON n.oid = c.relnamespace "
          u"LEFT JOIN pg_catalog.pg_collation k ON k.oid = a.attcollation "
          u"WHERE c.relkind IN ('r', 'p', 'v', 'm', 'f') AND a.attnum > 0 AND NOT a.attisdropped "
          u"AND n.nspname NOT IN ('pg_catalog', 'information_schema') AND pg_table_is_visible(c.oid)",
      .narrow = u"SELECT CASE WHEN getdatabaseencoding() = 'UTF8' THEN '' ELSE getdatabaseencoding() END",
  };
  static constexpr Questions mariaDb{
      .columns =
          u"SELECT TABLE_NAME, COLUMN_NAME, DATA_TYPE, CASE WHEN CHARACTER_SET_NAME IN ('utf8mb4', "
          u"'utf16', 'utf16le', 'utf32') THEN '' ELSE COALESCE(CHARACTER_SET_NAME, '') END, "
          u"CASE WHEN RIGHT(COLLATION_NAME, 3) <> '_ci' THEN 1 ELSE 0 END, "
          u"CASE WHEN FIND_IN_SET('select', PRIVILEGES) > 0 THEN 0 ELSE 1 END "
          u"FROM information_schema.COLUMNS WHERE TABLE_SCHEMA = DATABASE()",
      .database = u"SELECT DATABASE()",
  };
  static constexpr Questions sqlServer{
      .columns =
          u"SELECT TABLE_NAME, COLUMN_NAME, DATA_TYPE, CASE WHEN DATA_TYPE IN ('char', 'varchar', 'text') "
          u"AND RIGHT(COLLATION_NAME, 5) <> '_UTF8' THEN COLLATION_NAME ELSE '' END, "
          u"CASE WHEN CHARINDEX('_CI_', COLLATION_NAME) = 0 THEN 1 ELSE 0 END, "
          u"CASE WHEN HAS_PERMS_BY_NAME(QUOTENAME(TABLE_SCHEMA) + '.' + QUOTENAME(TABLE_NAME), 'OBJECT', "
          u"'SELECT') = 1 THEN 0 ELSE 1 END "
          u"FROM INFORMATION_SCHEMA.COLUMNS WHERE TABLE_SCHEMA IN (SCHEMA_NAME(), 'dbo')",
  };
  if (product == DatabaseProduct::MariaDb) return mariaDb;
  return product == DatabaseProduct::SqlServer ? sqlServer : postgreSql;
}

String textOf(const ado::Value& value) { return String(value.text); }

/// The only value of a question; Null for one that is not asked.
Variant answer(ado::Connection& connection, StringView question) {
  if (question.empty()) return Null;
  const ado::RowStore rows = runStatement(connection, question).rows;
  return rows.rows() == 0 ? Variant(Null) : rowValues(rows, 0).front();
}

class TablesOnServer {
 public:
  explicit TablesOnServer(const ServerSchema& schema) {
    for (const ServerColumn& column : schema.columns)
      tables_[ascii::lower(column.table)][ascii::lower(column.name)] = &column;
  }

  /// Columns by their folded names; nullptr when a dialog does not find the table.
  const std::map<String, const ServerColumn*>* find(StringView name) const {
    const auto found = tables_.find(ascii::lower(name));
    return found == tables_.end() ? nullptr : &found->second;
  }

 private:
  std::map<String, std::map<String, const ServerColumn*>> tables_;
};

bool holdsTexts(const String& type) {
  return type.find(u"char") != String::npos || type.find(u"text") != String::npos;
}

bool holdsNumbers(const String& type) {
  static const std::set<StringView> numbers{
      u"smallint", u"integer", u"int",   u"bigint",           u"mediumint", u"tinyint", u"numeric",
      u"decimal",  u"real",    u"float", u"double precision", u"double",    u"money"};
  return numbers.contains(type);
}

bool fits(ColumnKind kind, const String& type, DatabaseProduct product) {
  switch (kind) {
    case ColumnKind::Text:
    case ColumnKind::LongText:
    case ColumnKind::Date14:
      return holdsTexts(type);
    case ColumnKind::Whole:
    case ColumnKind::Number:
    case ColumnKind::Serial:
      return holdsNumbers(type);
    case ColumnKind::Flag:
      // PostgreSQL's bit is a text of ones and zeros.
      return type == u"boolean" || (type == u"bit" && product != DatabaseProduct::PostgreSql) ||
             holdsNumbers(type);
  }
  return false;
}

std::string tooNarrow(const String& set, const std::string& right) {
  return toUtf8(set) + ", which cannot hold every character; " + right + " would be right";
}

/// PostgreSQL changes the encoding of no database.
std::string wrongEncoding(const String& encoding) {
  const StringView why = encoding == u"SQL_ASCII" ? u", which takes bytes of any encoding for text"
                                                  : u", which cannot hold every character";
  return toUtf8(encoding + String(why)) +
         "; make another one with CREATE DATABASE name ENCODING 'UTF8' TEMPLATE template0, and copy the "
         "tables with pg_dump and psql";
}

/// "COLLATE ..." as the text columns of the system say it.
std::string rightCollation(DatabaseProduct product) {
  const std::string type = toUtf8(columnType({.name = {}, .length = 1}, product));
  return type.substr(type.find("COLLATE"));
}

void addName(std::string& list, StringView name) { list += (list.empty() ? "" : ", ") + toUtf8(name); }

void addColumnFindings(const Table& table, const std::map<String, const ServerColumn*>& found,
                       DatabaseProduct product, std::vector<std::string>& findings) {
  std::map<String, std::string> narrow;
  std::string caseCounts, unreadable;
  for (const Column& column : table.columns) {
    const std::string place = "column " + toUtf8(column.name) + " of table " + toUtf8(table.name);
    const auto there = found.find(ascii::lower(column.name));
    if (there == found.end()) {
      findings.push_back(place + " is missing; it can be added with: ALTER TABLE " + toUtf8(table.name) +
                         " ADD " + toUtf8(column.name) + " " + toUtf8(columnType(column, product)));
      continue;
    }
    const ServerColumn& present = *there->second;
    if (!fits(column.kind, ascii::lower(present.type), product)) {
      findings.push_back(place + " is of the type " + toUtf8(present.type) + "; " +
                         toUtf8(columnType(column, product)) + " would be right");
      continue;
    }
    if (present.unreadable) addName(unreadable, column.name);
    if (!present.narrow.empty()) addName(narrow[present.narrow], column.name);
    if (present.caseCounts && std::ranges::count(table.primaryKey, column.name) > 0)
      addName(caseCounts, column.name);
  }
  if (!unreadable.empty())
    findings.push_back("table " + toUtf8(table.name) + " may not be read by this user (" + unreadable +
                       "); the right SELECT on it would be right");
  if (!caseCounts.empty())
    findings.push_back("table " + toUtf8(table.name) + " tells capital from small letters in its key (" +
                       caseCounts + "); " + rightCollation(product) + " would be right");
  const std::string right = product == DatabaseProduct::MariaDb ? "utf8mb4" : "NVARCHAR";
  for (const auto& each : narrow)
    findings.push_back("table " + toUtf8(table.name) + " keeps texts (" + each.second + ") in " +
                       tooNarrow(each.first, right));
}

}  // namespace

std::optional<DatabaseProduct> productNamed(StringView product) {
  if (product == u"PostgreSQL") return DatabaseProduct::PostgreSql;
  if (product == u"MariaDB" || product == u"MySQL") return DatabaseProduct::MariaDb;
  if (product == u"Microsoft SQL Server") return DatabaseProduct::SqlServer;
  return std::nullopt;
}

ServerSchema readServerSchema(ado::Connection& connection, DatabaseProduct product) {
  const Questions& ask = questions(product);
  ServerSchema schema{.product = product, .columns = {}};
  schema.hasDatabase = ask.database.empty() || !answer(connection, ask.database).isNull();
  const ado::RowStore rows = runStatement(connection, ask.columns).rows;
  for (int row = 0; row < rows.rows(); ++row)
    schema.columns.push_back({textOf(rows.at(row, 0)), textOf(rows.at(row, 1)), textOf(rows.at(row, 2)),
                              textOf(rows.at(row, 3)), rows.at(row, 4).integer != 0,
                              rows.at(row, 5).integer != 0});
  schema.unfinished = std::ranges::any_of(
      schema.columns, [](const ServerColumn& column) { return ascii::same(column.table, InitMarker); });
  if (const Variant encoding = answer(connection, ask.narrow); !encoding.isNull())
    schema.narrow = CStr(encoding);
  return schema;
}

std::vector<StringView> systemTablesIn(const ServerSchema& schema) {
  const TablesOnServer present(schema);
  std::vector<StringView> names;
  for (const Table& table : tables())
    if (present.find(table.name) != nullptr) names.push_back(table.name);
  return names;
}

std::vector<std::string> findings(const ServerSchema& schema) {
  const TablesOnServer present(schema);
  std::vector<std::string> findings;
  if (!schema.narrow.empty())
    findings.push_back("the database has the encoding " + wrongEncoding(schema.narrow));
  for (const Table& table : tables()) {
    if (const auto* columns = present.find(table.name)) {
      addColumnFindings(table, *columns, schema.product, findings);
    } else {
      findings.push_back(
          "table " + toUtf8(table.name) +
          " is missing; 'zqn-dialog init' makes it in a database without tables of the system");
    }
  }
  return findings;
}

}  // namespace zqn::host
