// SPDX-License-Identifier: MIT
#include "host/database/schema/sample.h"

#include <gtest/gtest.h>

#include "host/database/schema/schema.h"
#include "runtime/locale.h"
#include "testing/row_checks.h"

namespace zqn::host {
namespace {

bool sameText(StringView left, StringView right) { return compareCollated(left, right) == 0; }

void eachRow(StringView tableName, const std::function<void(const Row&)>& visit) {
  sampleRows([&](const Table& table, const Row& row) {
    if (table.name == tableName) visit(row);
  });
}

TEST(Sample, EachRowFitsItsTableAndNoKeyStandsTwice) {
  RowLedger ledger;
  sampleRows([&](const Table& table, const Row& row) { EXPECT_EQ(ledger.add(table, row), ""); });
}

TEST(Sample, EachCatalogueHasTwelveRowsBesideTheReservedOne) {
  std::map<String, int> counts;
  sampleRows([&](const Table& table, const Row& row) {
    const String* first = row.front().as<String>();
    if (!first || *first != u"-") ++counts[String(table.name)];
  });
  for (const Table& table : tables())
    EXPECT_TRUE(!table.catalogue || counts[String(table.name)] >= 12) << toUtf8(table.name);
}

TEST(Sample, TheReservedRowStandsWhereACatalogueHidesIt) {
  RowLedger ledger;
  sampleRows([&](const Table& table, const Row& row) { ledger.add(table, row); });
  for (const StringView name : {u"Artikelgruppen",         u"Einkaufsgruppen",
                                u"Kundengruppen",          u"Verkaufsgruppen",
                                u"VerkaufsgruppenShop",    u"ProvisionsgruppenArtikel",
                                u"ProvisionsgruppenKunde", u"Lieferantengruppen",
                                u"Vertragsarten",          u"Mitbewerber",
                                u"Adressherkunft",         u"KontaktGruende",
                                u"Laendernamen",           u"Nummernkreis_Buchungskreise",
                                u"Vertriebsstati",         u"Kontaktgruppen",
                                u"Zahlungsarten",          u"ZahlungsartenEK",
                                u"Preislistenkopf",        u"Versandformulare"})
    EXPECT_TRUE(ledger.holds(name, table(name).columns.front().name, u"-")) << toUtf8(name);
  for (const StringView name : {u"KundengruppenShop", u"Aufwandskontokennungen", u"Zahlungsbedingungen"})
    EXPECT_FALSE(ledger.holds(name, table(name).columns.front().name, u"-")) << toUtf8(name);
}

TEST(Sample, EachKeyThatARowNamesStandsInItsTable) {
  struct Reference {
    StringView table, column, target, key;
  };
  const Reference references[] = {
      {u"Zahlungsarten", u"DefaultZahlungsbedSchl", u"Zahlungsbedingungen", u"ZahlBedSchl"},
      {u"ZahlungsartenEK", u"DefaultZahlungsbedSchl", u"Zahlungsbedingungen", u"ZahlBedSchl"},
      {u"Kontaktgruppen", u"VertriebsStatus", u"Vertriebsstati", u"Status"},
      {u"Kontaktgruppen", u"Adressherkunft", u"Adressherkunft", u"Herkunft"},
      {u"Preislistenkopf", u"FuerPreisliste", u"Preislistenkopf", u"Preisliste"},
      {u"Preislistenkopf", u"FuerKunde", u"Kundenstamm", u"Kundennummer"},
      {u"Staffelpreise", u"Preisliste", u"Preislistenkopf", u"Preisliste"},
      {u"Kundenstamm", u"Land", u"Laendernamen", u"Kennung"},
      {u"Kundenstamm", u"Kundengruppe", u"Kundengruppen", u"Kundengruppe"},
      {u"Kundenstamm", u"Preisliste", u"Preislistenkopf", u"Preisliste"},
      {u"Kundenstamm", u"Zahlungsart", u"Zahlungsarten", u"Zahlungsart"},
      {u"Kundenstamm", u"ZahlBedSchl", u"Zahlungsbedingungen", u"ZahlBedSchl"},
      {u"Kundenstamm", u"Versandart", u"Versandtexte", u"Versandart"},
      {u"Kundenstamm", u"VertriebsStatus", u"Vertriebsstati", u"Status"},
      {u"Angebotskopf", u"Kundennummer", u"Kundenstamm", u"Kundennummer"},
  };
  RowLedger ledger;
  sampleRows([&](const Table& table, const Row& row) { ledger.add(table, row); });
  for (const Reference& reference : references) {
    int named = 0;
    eachRow(reference.table, [&](const Row& row) {
      const String* value = row[table(reference.table).position(reference.column)].as<String>();
      if (!value) return;
      ++named;
      EXPECT_TRUE(ledger.holds(reference.target, reference.key, *value))
          << toUtf8(reference.table) << '.' << toUtf8(reference.column) << " names " << toUtf8(*value);
    });
    EXPECT_GT(named, 0) << toUtf8(reference.column);
  }
}

TEST(Sample, EachTextBlockBelongsToARecordAndCarriesTheMarksOfItsSide) {
  struct TextKind {
    StringView name, owner, marks;
    std::size_t markCount;
  };
  const TextKind textKinds[] = {{u"VSA", u"Versandtexte", u"NBLRG-", 5},
                                {u"EVA", u"VersandtexteEK", u"AEM-", 3},
                                {u"ZAA", u"Zahlungsarten", u"NBLRG-", 8},
                                {u"EZA", u"ZahlungsartenEK", u"AEM-", 8}};
  RowLedger ledger;
  sampleRows([&](const Table& table, const Row& row) { ledger.add(table, row); });
  for (const TextKind& textKind : textKinds) {
    std::set<String> languages;
    eachRow(u"Textbausteine", [&](const Row& row) {
      if (*row[0].as<String>() != textKind.name) return;
      const String number = *row[1].as<String>();
      EXPECT_TRUE(ledger.holds(textKind.owner, table(textKind.owner).columns.front().name, number))
          << toUtf8(number);
      EXPECT_EQ(*row[2].as<String>(), mainText);
      languages.insert(*row[3].as<String>());
      const String marks = *row[6].as<String>();
      EXPECT_EQ(marks.size(), textKind.markCount) << toUtf8(number);
      EXPECT_EQ(marks.find_first_not_of(textKind.marks), String::npos) << toUtf8(number);
    });
    EXPECT_TRUE(languages.contains(String(everyLanguage))) << toUtf8(textKind.name);
    EXPECT_GE(languages.size(), 2u) << toUtf8(textKind.name);
  }
}

TEST(Sample, TheLayoutsOfShippingTypesAreOfferedButForOneThatIsGone) {
  std::set<String> offered;
  eachRow(u"Versandformulare", [&](const Row& row) { offered.insert(*row[1].as<String>()); });
  std::vector<String> gone;
  eachRow(u"Versandtexte", [&](const Row& row) {
    for (const std::size_t position : {2u, 3u})
      if (const String* layout = row[position].as<String>(); layout && !offered.contains(*layout))
        gone.push_back(*layout);
  });
  EXPECT_EQ(gone, std::vector<String>{u"Altes Etikett 2019"});
}

TEST(Sample, TheStatusLadderClimbsFromAwakenedInterestToOneHundredPercent) {
  std::map<String, Row> stati;
  eachRow(u"Vertriebsstati", [&](const Row& row) { stati[*row[0].as<String>()] = row; });
  EXPECT_EQ(stati.at(u"10"), (Row{u"10", u"Interesse geweckt", false, 10}));
  EXPECT_EQ(stati.at(u"95"), (Row{u"95", u"Auftrag erteilt", true, 100}));
  std::int32_t before = -1;
  for (const auto& [status, row] : stati) {
    if (status.size() != 2 || status[0] > u'9') continue;
    EXPECT_GT(*row[3].as<std::int32_t>(), before) << toUtf8(status);
    before = *row[3].as<std::int32_t>();
  }
}

TEST(Sample, PromotionsHoldForAllForAPriceListAndForACustomer) {
  int all = 0, forList = 0, forCustomer = 0;
  eachRow(u"Preislistenkopf", [&](const Row& row) {
    const bool* promotion = row[2].as<bool>();
    if (!promotion || !*promotion) return;
    if (!row[6].isNull())
      ++forCustomer;
    else if (!row[5].isNull())
      ++forList;
    else
      ++all;
  });
  EXPECT_GE(all, 2);
  EXPECT_GE(forList, 2);
  EXPECT_GE(forCustomer, 2);
}

TEST(Sample, SomeTextsFillTheirColumnToTheLastCharacter) {
  int full = 0;
  sampleRows([&](const Table& table, const Row& row) {
    for (std::size_t position = 0; position < row.size(); ++position)
      if (const String* text = row[position].as<String>();
          text && table.columns[position].length >= 30 &&
          text->size() == static_cast<std::size_t>(table.columns[position].length))
        ++full;
  });
  EXPECT_GE(full, 5);
}

TEST(Sample, KeysHoldNoApostropheWhichWouldBreakAStatement) {
  sampleRows([&](const Table& table, const Row& row) {
    for (const StringView column : table.primaryKey) {
      if (table.columns[table.position(column)].kind != ColumnKind::Text) continue;
      const String& key = *row[table.position(column)].as<String>();
      EXPECT_EQ(key.find(u'\''), String::npos) << toUtf8(key);
      EXPECT_TRUE(key.empty() || !sameText(key, u" ")) << toUtf8(table.name);
    }
  });
}

}  // namespace
}  // namespace zqn::host
