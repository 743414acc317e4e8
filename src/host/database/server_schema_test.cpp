// SPDX-License-Identifier: MIT
#include "host/database/server_schema.h"

#include <gmock/gmock.h>

#include "host/database/schema/schema.h"

namespace zqn::host {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// What the server calls a column of this kind.
String typeOn(DatabaseProduct product, ColumnKind kind) {
  switch (kind) {
    case ColumnKind::Text:
    case ColumnKind::Date14:
      return product == DatabaseProduct::PostgreSql
                 ? u"character varying"
                 : (product == DatabaseProduct::MariaDb ? u"varchar" : u"nvarchar");
    case ColumnKind::LongText:
      return product == DatabaseProduct::PostgreSql
                 ? u"text"
                 : (product == DatabaseProduct::MariaDb ? u"longtext" : u"nvarchar");
    case ColumnKind::Whole:
    case ColumnKind::Serial:
      return product == DatabaseProduct::PostgreSql ? u"integer" : u"int";
    case ColumnKind::Number:
      return product == DatabaseProduct::PostgreSql
                 ? u"double precision"
                 : (product == DatabaseProduct::MariaDb ? u"double" : u"float");
    case ColumnKind::Flag:
      return product == DatabaseProduct::PostgreSql
                 ? u"boolean"
                 : (product == DatabaseProduct::MariaDb ? u"tinyint" : u"bit");
  }
  return {};
}

String lower(StringView name) {
  String folded(name);
  for (char16_t& unit : folded)
    if (unit >= u'A' && unit <= u'Z') unit = static_cast<char16_t>(unit + 32);
  return folded;
}

/// The schema of a server on which `init` has run.
ServerSchema complete(DatabaseProduct product) {
  ServerSchema schema{.product = product, .columns = {}};
  const bool folds = product == DatabaseProduct::PostgreSql;
  for (const Table& table : tables())
    for (const Column& column : table.columns)
      schema.columns.push_back({folds ? lower(table.name) : String(table.name),
                                folds ? lower(column.name) : String(column.name),
                                typeOn(product, column.kind)});
  return schema;
}

ServerColumn& columnOf(ServerSchema& schema, StringView table, StringView name) {
  for (ServerColumn& column : schema.columns)
    if (lower(column.table) == lower(table) && lower(column.name) == lower(name)) return column;
  throw std::logic_error("no such column");
}

void dropTable(ServerSchema& schema, StringView name) {
  std::erase_if(schema.columns,
                [&](const ServerColumn& column) { return lower(column.table) == lower(name); });
}

std::string productOf(const ::testing::TestParamInfo<DatabaseProduct>& product) {
  const char* names[] = {"Sqlite", "PostgreSql", "MariaDb", "SqlServer"};
  return names[static_cast<int>(product.param)];
}

class AServer : public ::testing::TestWithParam<DatabaseProduct> {};

}  // namespace

TEST_P(AServer, WithAllThatTheDialogsNeedGivesNothingToTell) {
  const ServerSchema schema = complete(GetParam());
  EXPECT_THAT(findings(schema), IsEmpty());
  EXPECT_EQ(systemTablesIn(schema).size(), tables().size());
}

TEST_P(AServer, LacksATable) {
  ServerSchema schema = complete(GetParam());
  dropTable(schema, u"Keywords");
  EXPECT_THAT(
      findings(schema),
      ElementsAre("table Keywords is missing; 'zqn-dialog init' makes it in a database without tables "
                  "of the system"));
  EXPECT_EQ(systemTablesIn(schema).size(), tables().size() - 1);
}

TEST_P(AServer, MayHaveOtherTablesAndColumns) {
  ServerSchema schema = complete(GetParam());
  schema.columns.push_back({u"fremd", u"a", u"xml"});
  schema.columns.push_back({columnOf(schema, u"Keywords", u"Keyword").table, u"seit", u"date"});
  EXPECT_THAT(findings(schema), IsEmpty());
}

TEST_P(AServer, MayKeepTheUserFromReading) {
  ServerSchema schema = complete(GetParam());
  columnOf(schema, u"Keywords", u"Keyword").unreadable = true;
  columnOf(schema, u"Keywords", u"Section").unreadable = true;
  EXPECT_THAT(
      findings(schema),
      ElementsAre("table Keywords may not be read by this user (Keyword, Section); the right SELECT on it "
                  "would be right"));
}

TEST_P(AServer, HasAColumnOfAnotherType) {
  ServerSchema schema = complete(GetParam());
  columnOf(schema, u"Vertriebsstati", u"Gewichtung").type = u"date";
  columnOf(schema, u"Vertriebsstati", u"AutoOverwrite").type = u"varchar";
  columnOf(schema, u"Vertriebsstati", u"Bezeichnung").type = u"integer";
  EXPECT_EQ(findings(schema).size(), 3u);
}

TEST_P(AServer, MayKeepNumbersAndFlagsInOtherTypesOfNumbers) {
  ServerSchema schema = complete(GetParam());
  columnOf(schema, u"Vertriebsstati", u"Gewichtung").type = u"NUMERIC";
  columnOf(schema, u"Vertriebsstati", u"AutoOverwrite").type = u"smallint";
  EXPECT_THAT(findings(schema), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(OfEachProduct, AServer,
                         ::testing::Values(DatabaseProduct::PostgreSql, DatabaseProduct::MariaDb,
                                           DatabaseProduct::SqlServer),
                         productOf);

TEST(AMissingColumn, IsToldWithTheStatementThatAddsIt) {
  const auto without = [](DatabaseProduct product) {
    ServerSchema schema = complete(product);
    columnOf(schema, u"Preislistenkopf", u"GlobalePreisliste").name = u"anders";
    return findings(schema);
  };
  const std::string place =
      "column GlobalePreisliste of table Preislistenkopf is missing; it can be added with: "
      "ALTER TABLE Preislistenkopf ADD GlobalePreisliste ";
  EXPECT_THAT(without(DatabaseProduct::PostgreSql), ElementsAre(place + "BOOLEAN"));
  EXPECT_THAT(without(DatabaseProduct::MariaDb), ElementsAre(place + "TINYINT"));
  EXPECT_THAT(without(DatabaseProduct::SqlServer), ElementsAre(place + "BIT"));
}

TEST(AColumnOfAnotherType, IsToldWithTheRightOne) {
  ServerSchema schema = complete(DatabaseProduct::PostgreSql);
  columnOf(schema, u"Vertriebsstati", u"Bezeichnung").type = u"integer";
  EXPECT_THAT(findings(schema),
              ElementsAre("column Bezeichnung of table Vertriebsstati is of the type integer; "
                          "VARCHAR(30) COLLATE zqn_text would be right"));
}

TEST(AnEncoding, ThatCannotHoldEveryTextIsTold) {
  ServerSchema schema = complete(DatabaseProduct::PostgreSql);
  schema.narrow = u"LATIN1";
  EXPECT_THAT(
      findings(schema),
      ElementsAre("the database has the encoding LATIN1, which cannot hold every character; make another "
                  "one with CREATE DATABASE name ENCODING 'UTF8' TEMPLATE template0, and copy the tables "
                  "with pg_dump and psql"));
  schema.narrow = u"SQL_ASCII";
  EXPECT_THAT(findings(schema), ElementsAre(testing::StartsWith(
                                    "the database has the encoding SQL_ASCII, which takes bytes of any "
                                    "encoding for text; make another one with CREATE DATABASE")));
}

TEST(TextColumns, ThatCannotHoldEveryTextAreToldOnceForATable) {
  ServerSchema schema = complete(DatabaseProduct::MariaDb);
  columnOf(schema, u"Artikelgruppen", u"Langtext").narrow = u"latin1";
  columnOf(schema, u"Artikelgruppen", u"Kurztext").narrow = u"latin1";
  EXPECT_THAT(
      findings(schema),
      ElementsAre("table Artikelgruppen keeps texts (Langtext, Kurztext) in latin1, which cannot hold every "
                  "character; utf8mb4 would be right"));
}

TEST(AKey, InWhichCaseCountsIsTold) {
  ServerSchema schema = complete(DatabaseProduct::PostgreSql);
  columnOf(schema, u"Keywords", u"Keyword").caseCounts = true;
  columnOf(schema, u"Keywords", u"Section").caseCounts = true;
  columnOf(schema, u"Vertriebsstati", u"Bezeichnung").caseCounts = true;
  EXPECT_THAT(
      findings(schema),
      ElementsAre("table Keywords tells capital from small letters in its key (Keyword, Section); COLLATE "
                  "zqn_text would be right"));
}

TEST(ATable, IsFoundHoweverItsCapitalsStand) {
  for (const DatabaseProduct product :
       {DatabaseProduct::PostgreSql, DatabaseProduct::MariaDb, DatabaseProduct::SqlServer}) {
    ServerSchema schema = complete(product);
    for (ServerColumn& column : schema.columns)
      if (lower(column.table) == u"keywords") column.table = u"KEYWORDS";
    EXPECT_THAT(findings(schema), IsEmpty());
  }
}

TEST(AProduct, IsKnownOrNot) {
  EXPECT_EQ(productNamed(u"PostgreSQL"), DatabaseProduct::PostgreSql);
  EXPECT_EQ(productNamed(u"MariaDB"), DatabaseProduct::MariaDb);
  EXPECT_EQ(productNamed(u"MySQL"), DatabaseProduct::MariaDb);
  EXPECT_EQ(productNamed(u"Microsoft SQL Server"), DatabaseProduct::SqlServer);
  EXPECT_EQ(productNamed(u"SQLite"), std::nullopt);
}

}  // namespace zqn::host
