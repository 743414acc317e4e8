// SPDX-License-Identifier: MIT
#include "host/schema/statements.h"

namespace zqn::host {

namespace {

// `#` in a spelling is the column's length.
struct Spelling {
  StringView text, longText, whole, number, flag, date14, serial;
};

const Spelling& spelling(Dialect dialect) {
  // SQLite gives a Serial its number because a lone INTEGER key is the row's own number there.
  static constexpr Spelling sqlite{
      .text = u"VARCHAR(#) COLLATE ZQN_TEXT",
      .longText = u"TEXT COLLATE ZQN_TEXT",
      .whole = u"INTEGER",
      .number = u"DOUBLE",
      .flag = u"BOOLEAN",
      .date14 = u"VARCHAR(#) COLLATE ZQN_TEXT",
      .serial = u"INTEGER",
  };
  switch (dialect) {
    case Dialect::Sqlite:
      break;
  }
  return sqlite;
}

StringView spellingOf(ColumnKind kind, const Spelling& words) {
  switch (kind) {
    case ColumnKind::Text:
      return words.text;
    case ColumnKind::LongText:
      return words.longText;
    case ColumnKind::Whole:
      return words.whole;
    case ColumnKind::Number:
      return words.number;
    case ColumnKind::Flag:
      return words.flag;
    case ColumnKind::Date14:
      return words.date14;
    case ColumnKind::Serial:
      return words.serial;
  }
  return words.text;
}

String columnDefinition(const Column& column, const Spelling& words) {
  String type(spellingOf(column.kind, words));
  if (const auto mark = type.find(u'#'); mark != String::npos)
    type.replace(mark, 1, fromUtf8(std::to_string(column.length)));

  String definition = String(column.name) + u" " + type;
  if (column.defaultText) definition += u" DEFAULT '" + String(*column.defaultText) + u"'";
  if (!column.nullable) definition += u" NOT NULL";
  return definition;
}

template <class Names, class Spell>
String commaList(const Names& names, Spell spell) {
  String list;
  for (const auto& name : names) {
    if (!list.empty()) list += u", ";
    list += spell(name);
  }
  return list;
}

}  // namespace

std::vector<String> createStatements(const Table& table, Dialect dialect) {
  const Spelling& words = spelling(dialect);
  const String name(table.name);
  std::vector<String> statements{
      u"CREATE TABLE " + name + u" (" +
      commaList(table.columns, [&](const Column& column) { return columnDefinition(column, words); }) +
      u", PRIMARY KEY (" + commaList(table.primaryKey, [](StringView column) { return String(column); }) +
      u"))"};
  for (const StringView column : table.indexed)
    statements.push_back(u"CREATE INDEX " + name + u"_" + String(column) + u" ON " + name + u" (" +
                         String(column) + u")");
  return statements;
}

String insertStatement(const Table& table, Dialect) {
  const std::vector<Column> written(table.columns.begin(),
                                    table.columns.begin() + static_cast<std::ptrdiff_t>(table.width()));
  return u"INSERT INTO " + String(table.name) + u" (" +
         commaList(written, [](const Column& column) { return String(column.name); }) + u") VALUES (" +
         commaList(written, [](const Column&) { return String(u"?"); }) + u")";
}

}  // namespace zqn::host
