// SPDX-License-Identifier: MIT
#include "host/database/schema/schema.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <set>

namespace zqn::host {
namespace {

std::vector<String> columnNames(StringView tableName) {
  std::vector<String> names;
  for (const Column& column : table(tableName).columns) names.emplace_back(column.name);
  return names;
}

TEST(Schema, EachTableStandsOnce) {
  std::set<StringView> names;
  for (const Table& table : tables()) EXPECT_TRUE(names.insert(table.name).second) << toUtf8(table.name);
  EXPECT_EQ(names.size(), 37u);
}

TEST(Schema, EachTableHasAKeyOfItsOwnColumnsThatMayNotBeNull) {
  for (const Table& table : tables()) {
    EXPECT_FALSE(table.primaryKey.empty()) << toUtf8(table.name);
    for (const StringView column : table.primaryKey)
      EXPECT_FALSE(table.columns[table.position(column)].nullable)
          << toUtf8(table.name) << '.' << toUtf8(column);
    for (const StringView column : table.indexed) EXPECT_NO_THROW(table.position(column)) << toUtf8(column);
  }
}

TEST(Schema, ColumnsOutsideTheKeyAndNoOthersMayBeNull) {
  for (const Table& table : tables())
    for (const Column& column : table.columns)
      EXPECT_EQ(column.nullable, std::ranges::find(table.primaryKey, column.name) == table.primaryKey.end())
          << toUtf8(table.name) << '.' << toUtf8(column.name);
}

TEST(Schema, TextColumnsAloneHaveALength) {
  for (const Table& table : tables())
    for (const Column& column : table.columns) {
      const bool limited = column.kind == ColumnKind::Text || column.kind == ColumnKind::Date14;
      EXPECT_EQ(column.length > 0, limited) << toUtf8(table.name) << '.' << toUtf8(column.name);
    }
}

TEST(Schema, SerialColumnsStandLast) {
  for (const Table& table : tables())
    for (std::size_t position = 0; position + 1 < table.columns.size(); ++position)
      EXPECT_NE(table.columns[position].kind, ColumnKind::Serial) << toUtf8(table.name);
  EXPECT_EQ(table(u"Staffelpreise").width(), 5u);
}

TEST(Schema, ListsThatShowAllFieldsFindThemInTheirOrder) {
  using testing::ElementsAre;
  for (const StringView group : {u"Artikelgruppen", u"Einkaufsgruppen", u"Kundengruppen",
                                 u"KundengruppenShop", u"Verkaufsgruppen", u"VerkaufsgruppenShop"}) {
    EXPECT_EQ(table(group).primaryKey.front(), columnNames(group)[0]);
    EXPECT_EQ(columnNames(group)[1], u"Langtext");
    EXPECT_EQ(columnNames(group)[2], u"Kurztext");
  }
  EXPECT_THAT(columnNames(u"Laendernamen"), ElementsAre(u"Kennung", u"ISOCode", u"BezeichnungDefault"));
  EXPECT_THAT(columnNames(u"Nummernkreis_Buchungskreise"),
              ElementsAre(u"Buchungskreis", u"Herkunft", u"Beschreibung"));
  EXPECT_THAT(columnNames(u"Versandtexte"),
              ElementsAre(u"Versandart", u"Kurztext", u"LayoutFrachtbrief", u"LayoutEtiketten"));
  EXPECT_THAT(columnNames(u"VersandtexteEK"), ElementsAre(u"Versandart", u"Kurztext"));
  EXPECT_THAT(columnNames(u"Zahlungsarten"),
              ElementsAre(u"Zahlungsart", u"Kurztext", u"OhneFibu", u"ZahlungsartFibu",
                          u"DefaultZahlungsbedSchl", u"OhneDruckSkonto"));
  EXPECT_EQ(columnNames(u"ZahlungsartenEK"), columnNames(u"Zahlungsarten"));
  EXPECT_THAT(columnNames(u"KontaktGruende"), ElementsAre(u"GrundSchl", u"Text"));
  EXPECT_THAT(columnNames(u"Erlöskontokennungen"), ElementsAre(u"ErlöskontoKennung", u"Langtext"));
}

TEST(Schema, TextBlocksAreKeyedByKindNumberSupplementAndLanguage) {
  EXPECT_THAT(table(u"Textbausteine").primaryKey,
              testing::ElementsAre(u"Textart", u"TextNummer", u"ZusatztextNummer", u"SprachKZ"));
}

TEST(Schema, NamesThatDoNotStandAreErrors) {
  try {
    table(u"Stati");
    FAIL();
  } catch (const RuntimeError& failure) {
    EXPECT_EQ(failure.number(), error::TableNotFound);
  }
  try {
    table(u"Vertriebsstati").position(u"status");
    FAIL();
  } catch (const RuntimeError& failure) {
    EXPECT_EQ(failure.number(), error::ItemNotFound);
  }
}

TEST(Schema, TheLanguageOfEveryLanguageIsThreeCharactersOfCode255) {
  EXPECT_EQ(everyLanguage, StringView(u"ÿÿÿ"));
  EXPECT_EQ(everyLanguage.size(), 3u);
}

}  // namespace
}  // namespace zqn::host
