// SPDX-License-Identifier: MIT
#include "host/database/schema/generate.h"

#include <gtest/gtest.h>

#include "host/database/schema/schema.h"
#include "testing/row_checks.h"

namespace zqn::host {
namespace {

std::vector<Row> rowsOf(StringView tableName, std::int64_t n) {
  std::vector<Row> rows;
  generateRows(table(tableName), n, [&](const Table&, const Row& row) { rows.push_back(row); });
  return rows;
}

TEST(Generate, EachRowFitsItsTableAndNoKeyStandsTwice) {
  RowLedger ledger;
  generateRows(1000, [&](const Table& table, const Row& row) { ASSERT_EQ(ledger.add(table, row), ""); });
  for (const Table& table : tables()) {
    EXPECT_EQ(ledger.count(table.name), generatedRowCount(table, 1000)) << toUtf8(table.name);
    EXPECT_TRUE(!table.catalogue || ledger.count(table.name) == 1000) << toUtf8(table.name);
  }
}

TEST(Generate, KeysStayUniqueBeyondWhatThreeCharactersHold) {
  for (const StringView name :
       {u"Vertriebsstati", u"Zahlungsarten", u"Zahlungsbedingungen", u"Nummernkreis_Buchungskreise",
        u"Preislistenkopf", u"Angebotskopf", u"Textbausteine"}) {
    RowLedger ledger;
    generateRows(table(name), 50'000,
                 [&](const Table& table, const Row& row) { ASSERT_EQ(ledger.add(table, row), ""); });
    EXPECT_EQ(ledger.count(name), name == u"Zahlungsbedingungen" ? 46'656 : 50'000) << toUtf8(name);
  }
}

TEST(Generate, KeysCountToTheBaseThirtySix) {
  const std::vector<Row> stati = rowsOf(u"Vertriebsstati", 46'657);
  EXPECT_EQ(stati[0][0], Variant(u"000"));
  EXPECT_EQ(stati[35][0], Variant(u"00Z"));
  EXPECT_EQ(stati[46'655][0], Variant(u"ZZZ"));
  EXPECT_EQ(stati[46'656][0], Variant(u"1000"));
  EXPECT_EQ(rowsOf(u"Artikelgruppen", 37)[36][0], Variant(u"0000010"));
  EXPECT_EQ(rowsOf(u"Preislistenkopf", 1)[0][0], Variant(u"00000"));
}

TEST(Generate, TheNextOriginBeginsWhereTheRangesOfOneAreUsedUp) {
  const std::vector<Row> ranges = rowsOf(u"Nummernkreis_Buchungskreise", 46'657);
  EXPECT_EQ(ranges[46'655][0], Variant(u"ZZZ"));
  EXPECT_EQ(ranges[46'655][1], Variant(u"VK"));
  EXPECT_EQ(ranges[46'656][0], Variant(u"000"));
  EXPECT_EQ(ranges[46'656][1], Variant(u"H01"));
}

TEST(Generate, TheSameNumberGivesTheSameRows) {
  const auto collect = [] {
    std::vector<Row> rows;
    generateRows(200, [&](const Table&, const Row& row) { rows.push_back(row); });
    return rows;
  };
  EXPECT_EQ(collect(), collect());
}

TEST(Generate, MoreRowsBeginWithTheFewer) {
  const std::vector<Row> few = rowsOf(u"Preislistenkopf", 50), more = rowsOf(u"Preislistenkopf", 500);
  EXPECT_TRUE(std::equal(few.begin(), few.end(), more.begin()));
}

TEST(Generate, TablesBesideTheCataloguesHaveTheirSampleRows) {
  EXPECT_EQ(generatedRowCount(table(u"Versandformulare"), 5), 14);
  EXPECT_EQ(rowsOf(u"Versandformulare", 5).size(), 14u);
  EXPECT_EQ(rowsOf(u"Einstellungen", 5).size(), 1u);
}

TEST(Generate, NoRowsLeaveTheCataloguesEmpty) {
  EXPECT_TRUE(rowsOf(u"Vertriebsstati", 0).empty());
  EXPECT_EQ(generatedRowCount(table(u"Angebotskopf"), 1'000'000'000'000), 2'127'483'647);
}

}  // namespace
}  // namespace zqn::host
