// SPDX-License-Identifier: MIT
#include "host/database/server_catalogue.h"

#include <gmock/gmock.h>

#include "host/database/schema/schema.h"

namespace zqn::host {

namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// What the server calls a column of this kind.
String typeOn(Dialect dialect, ColumnKind kind) {
  switch (kind) {
    case ColumnKind::Text:
    case ColumnKind::Date14:
      return dialect == Dialect::PostgreSql ? u"character varying"
                                            : (dialect == Dialect::MariaDb ? u"varchar" : u"nvarchar");
    case ColumnKind::LongText:
      return dialect == Dialect::PostgreSql ? u"text"
                                            : (dialect == Dialect::MariaDb ? u"longtext" : u"nvarchar");
    case ColumnKind::Whole:
    case ColumnKind::Serial:
      return dialect == Dialect::PostgreSql ? u"integer" : u"int";
    case ColumnKind::Number:
      return dialect == Dialect::PostgreSql ? u"double precision"
                                            : (dialect == Dialect::MariaDb ? u"double" : u"float");
    case ColumnKind::Flag:
      return dialect == Dialect::PostgreSql ? u"boolean"
                                            : (dialect == Dialect::MariaDb ? u"tinyint" : u"bit");
  }
  return {};
}

String lower(StringView name) {
  String folded(name);
  for (char16_t& unit : folded)
    if (unit >= u'A' && unit <= u'Z') unit = static_cast<char16_t>(unit + 32);
  return folded;
}

/// The catalogue of a server on which `init` has run.
ServerCatalogue complete(Dialect dialect) {
  ServerCatalogue catalogue{.dialect = dialect, .columns = {}};
  const bool folds = dialect == Dialect::PostgreSql;
  for (const Table& table : tables())
    for (const Column& column : table.columns)
      catalogue.columns.push_back({folds ? lower(table.name) : String(table.name),
                                   folds ? lower(column.name) : String(column.name),
                                   typeOn(dialect, column.kind)});
  return catalogue;
}

ServerColumn& columnOf(ServerCatalogue& catalogue, StringView table, StringView name) {
  for (ServerColumn& column : catalogue.columns)
    if (lower(column.table) == lower(table) && lower(column.name) == lower(name)) return column;
  throw std::logic_error("no such column");
}

void dropTable(ServerCatalogue& catalogue, StringView name) {
  std::erase_if(catalogue.columns,
                [&](const ServerColumn& column) { return lower(column.table) == lower(name); });
}

std::string productOf(const ::testing::TestParamInfo<Dialect>& dialect) {
  const char* names[] = {"Sqlite", "PostgreSql", "MariaDb", "SqlServer"};
  return names[static_cast<int>(dialect.param)];
}

class AServer : public ::testing::TestWithParam<Dialect> {};

}  // namespace

TEST_P(AServer, WithAllThatTheDialogsNeedGivesNothingToTell) {
  const ServerCatalogue catalogue = complete(GetParam());
  EXPECT_THAT(findings(catalogue), IsEmpty());
  EXPECT_EQ(systemTablesIn(catalogue).size(), tables().size());
}

TEST_P(AServer, LacksATable) {
  ServerCatalogue catalogue = complete(GetParam());
  dropTable(catalogue, u"Keywords");
  EXPECT_THAT(
      findings(catalogue),
      ElementsAre("table Keywords is missing; 'zqn-dialog init' makes it in a database without tables "
                  "of the system"));
  EXPECT_EQ(systemTablesIn(catalogue).size(), tables().size() - 1);
}

TEST_P(AServer, MayHaveOtherTablesAndColumns) {
  ServerCatalogue catalogue = complete(GetParam());
  catalogue.columns.push_back({u"fremd", u"a", u"xml"});
  catalogue.columns.push_back({columnOf(catalogue, u"Keywords", u"Keyword").table, u"seit", u"date"});
  EXPECT_THAT(findings(catalogue), IsEmpty());
}

TEST_P(AServer, HasAColumnOfAnotherType) {
  ServerCatalogue catalogue = complete(GetParam());
  columnOf(catalogue, u"Vertriebsstati", u"Gewichtung").type = u"date";
  columnOf(catalogue, u"Vertriebsstati", u"AutoOverwrite").type = u"varchar";
  columnOf(catalogue, u"Vertriebsstati", u"Bezeichnung").type = u"integer";
  EXPECT_EQ(findings(catalogue).size(), 3u);
}

TEST_P(AServer, MayKeepNumbersAndFlagsInOtherTypesOfNumbers) {
  ServerCatalogue catalogue = complete(GetParam());
  columnOf(catalogue, u"Vertriebsstati", u"Gewichtung").type = u"NUMERIC";
  columnOf(catalogue, u"Vertriebsstati", u"AutoOverwrite").type = u"smallint";
  EXPECT_THAT(findings(catalogue), IsEmpty());
}

INSTANTIATE_TEST_SUITE_P(OfEachProduct, AServer,
                         ::testing::Values(Dialect::PostgreSql, Dialect::MariaDb, Dialect::SqlServer),
                         productOf);

TEST(AMissingColumn, IsToldWithTheStatementThatAddsIt) {
  const auto without = [](Dialect dialect) {
    ServerCatalogue catalogue = complete(dialect);
    columnOf(catalogue, u"Preislistenkopf", u"GlobalePreisliste").name = u"anders";
    return findings(catalogue);
  };
  const std::string place =
      "column GlobalePreisliste of table Preislistenkopf is missing; it can be added with: "
      "ALTER TABLE Preislistenkopf ADD GlobalePreisliste ";
  EXPECT_THAT(without(Dialect::PostgreSql), ElementsAre(place + "BOOLEAN"));
  EXPECT_THAT(without(Dialect::MariaDb), ElementsAre(place + "TINYINT"));
  EXPECT_THAT(without(Dialect::SqlServer), ElementsAre(place + "BIT"));
}

TEST(AColumnOfAnotherType, IsToldWithTheRightOne) {
  ServerCatalogue catalogue = complete(Dialect::PostgreSql);
  columnOf(catalogue, u"Vertriebsstati", u"Bezeichnung").type = u"integer";
  EXPECT_THAT(findings(catalogue),
              ElementsAre("column Bezeichnung of table Vertriebsstati is of the type integer; "
                          "VARCHAR(30) COLLATE zqn_text would be right"));
}

TEST(AnEncoding, ThatCannotHoldEveryTextIsTold) {
  ServerCatalogue catalogue = complete(Dialect::PostgreSql);
  catalogue.narrow = u"LATIN1";
  EXPECT_THAT(
      findings(catalogue),
      ElementsAre("the database has the encoding LATIN1, which cannot hold every character; UTF8 would be "
                  "right"));
}

TEST(TextColumns, ThatCannotHoldEveryTextAreToldOnceForATable) {
  ServerCatalogue catalogue = complete(Dialect::MariaDb);
  columnOf(catalogue, u"Artikelgruppen", u"Langtext").narrow = u"latin1";
  columnOf(catalogue, u"Artikelgruppen", u"Kurztext").narrow = u"latin1";
  EXPECT_THAT(
      findings(catalogue),
      ElementsAre("table Artikelgruppen keeps texts (Langtext, Kurztext) in latin1, which cannot hold every "
                  "character; utf8mb4 would be right"));
}

TEST(AKey, InWhichCaseCountsIsTold) {
  ServerCatalogue catalogue = complete(Dialect::PostgreSql);
  columnOf(catalogue, u"Keywords", u"Keyword").caseCounts = true;
  columnOf(catalogue, u"Keywords", u"Section").caseCounts = true;
  columnOf(catalogue, u"Vertriebsstati", u"Bezeichnung").caseCounts = true;
  EXPECT_THAT(
      findings(catalogue),
      ElementsAre("table Keywords tells capital from small letters in its key (Keyword, Section); COLLATE "
                  "zqn_text would be right"));
}

TEST(ATable, IsFoundHoweverItsCapitalsStand) {
  for (const Dialect dialect : {Dialect::PostgreSql, Dialect::MariaDb, Dialect::SqlServer}) {
    ServerCatalogue catalogue = complete(dialect);
    for (ServerColumn& column : catalogue.columns)
      if (lower(column.table) == u"keywords") column.table = u"KEYWORDS";
    EXPECT_THAT(findings(catalogue), IsEmpty());
  }
}

TEST(AProduct, HasADialectOrNone) {
  EXPECT_EQ(dialectOf(u"PostgreSQL"), Dialect::PostgreSql);
  EXPECT_EQ(dialectOf(u"MariaDB"), Dialect::MariaDb);
  EXPECT_EQ(dialectOf(u"MySQL"), Dialect::MariaDb);
  EXPECT_EQ(dialectOf(u"Microsoft SQL Server"), Dialect::SqlServer);
  EXPECT_EQ(dialectOf(u"SQLite"), std::nullopt);
}

}  // namespace zqn::host
