// SPDX-License-Identifier: MIT
//
// Kinds 32 and 33 as a clerk works with them: one catalogue, and which of its reasons each kind takes.
#include "catalogues/kuendigungsgruende.h"

#include "testing/catalogue.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr std::int32_t ofCustomers = 32;
constexpr std::int32_t ofContracts = 33;

class Kuendigungsgruende : public CatalogueTest {
 protected:
  Kuendigungsgruende() {
    execute(
        u"CREATE TABLE Kuendigungsgruende (GrundVerlorenSchl VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY "
        u"KEY, "
        u"Text VARCHAR(50), Anzeigetyp INTEGER);"
        u"INSERT INTO Kuendigungsgruende VALUES ('-', 'wie jeder andere', 3);"
        u"INSERT INTO Kuendigungsgruende VALUES ('BONITÄT', 'Mangelnde Bonität', 1);"
        u"INSERT INTO Kuendigungsgruende VALUES ('GERÄT', 'Gerät verkauft', 2);"
        u"INSERT INTO Kuendigungsgruende VALUES ('PREIS', NULL, 3);"
        u"INSERT INTO Kuendigungsgruende VALUES ('VIER', 'beyond', 4);"
        u"INSERT INTO Kuendigungsgruende VALUES ('ZUNULL', 'Null', NULL);"
        u"INSERT INTO Kuendigungsgruende VALUES ('ZZERO', 'zero', 0)");
  }
  enum Row { Dash, Bonitaet, Geraet, Preis, Vier, ZuNull, ZZero };

  void expectRefusal(StringView of) {
    expectBox(u"Der ausgewählte Kündigungsgrund ist nicht als Grund für die Kündigung " + String(of) +
                  u" gekennzeichnet.",
              u"Übernahme nicht möglich", msgbox::Information);
  }
  void expectRefusalOfCustomer() { expectRefusal(u"eines Kunden"); }
  void expectRefusalOfContract() { expectRefusal(u"von Verträgen"); }
  int entry() const { return number(u"Anzeigetyp", u"ListIndex"); }
};

// ---- showing

TEST_F(Kuendigungsgruende, BothKindsListAllReasons) {
  for (const std::int32_t kind : {ofCustomers, ofContracts}) {
    show(kind, {u"GERÄT"}, [&] {
      EXPECT_EQ(form().Caption(), u"Kuendigungsgruende");
      EXPECT_EQ(listRows().size(), 7u);
      EXPECT_EQ(listRows().front(), u"-|wie jeder andere") << "no key is reserved";
      EXPECT_EQ(get(u"TDBList1", u"Columns(0).Caption"), Variant(u"Schlüssel"));
      EXPECT_EQ(get(u"TDBList1", u"Columns(1).Caption"), Variant(u"Text"));
      EXPECT_EQ(text(u"Text"), u"Gerät verkauft");
      EXPECT_EQ(text(u"Anzeigetyp"), u"Verträge");
    });
  }
}

TEST_F(Kuendigungsgruende, OffersThreePlacesToShowAReason) {
  show(ofCustomers, {u""}, [&] {
    EXPECT_EQ(number(u"Anzeigetyp", u"ListCount"), 3);
    EXPECT_EQ(get(u"Anzeigetyp", u"List(0)"), Variant(u"Kundenstamm"));
    EXPECT_EQ(get(u"Anzeigetyp", u"List(1)"), Variant(u"Verträge"));
    EXPECT_EQ(get(u"Anzeigetyp", u"List(2)"), Variant(u"Kundenstamm und Verträge"));
  });
}

TEST_F(Kuendigungsgruende, BrowsingShowsEveryReasonWithoutAWord) {
  show(ofCustomers, {u"BONITÄT"}, [&] {
    EXPECT_EQ(entry(), 0);
    press(key::Down);
    EXPECT_EQ(entry(), 1);
    press(key::Down);
    EXPECT_EQ(entry(), 2);
    EXPECT_EQ(text(u"Text"), u"");
    press(key::Down);
    EXPECT_EQ(entry(), -1) << "a value beyond the entries shows none";
    EXPECT_EQ(text(u"Anzeigetyp"), u"");
    select(ZZero);
    EXPECT_EQ(entry(), -1);
  });
}

TEST_F(Kuendigungsgruende, ANewReasonStartsForCustomersAndContracts) {
  show(ofContracts, {u"BONITÄT"}, [&] {
    enter(u"NEU");
    EXPECT_EQ(text(u"Anzeigetyp"), u"Kundenstamm und Verträge");
    EXPECT_EQ(text(u"Text"), u"");
  });
}

TEST_F(Kuendigungsgruende, TheKeyIsShownAsItIsStoredAndItsTextSelectedByAClick) {
  show(ofContracts, {u"PREIS"}, [&] {
    enter(u"gerät");
    EXPECT_EQ(text(u"Schluessel"), u"GERÄT");
    click(u"Schluessel");
    click(u"Text");
    EXPECT_EQ(number(u"Text", u"SelLength"), 14);
  });
}

TEST_F(Kuendigungsgruende, TabGoesFromTheButtonsToTheDropDown) {
  show(ofContracts, {u"PREIS"}, [&] {
    for (const StringView next : {u"Schluessel", u"Text", u"btnOK", u"btnCancel", u"btnNew", u"btnDelete",
                                  u"Anzeigetyp", u"TDBList1"}) {
      press(key::Tab);
      EXPECT_EQ(focus(), String(next));
    }
  });
}

TEST_F(Kuendigungsgruende, AnEmptyKeyStartsSoToo) {
  show(ofContracts, {u""}, [&] {
    EXPECT_EQ(entry(), 2);
    EXPECT_FALSE(enabled(u"btnOK"));
  });
}

// ---- taking over

TEST_F(Kuendigungsgruende, AReasonOfContractsIsNoReasonToLoseACustomer) {
  expectRefusalOfCustomer();
  EXPECT_EQ(show(ofCustomers, {u"PREIS"},
                 [&] {
                   doubleClick(Geraet);
                   EXPECT_TRUE(form().Visible());
                   EXPECT_EQ(text(u"Schluessel"), u"GERÄT");
                   click(u"btnCancel");
                 }),
            Variant(u"PREIS"));
  EXPECT_EQ(show(ofContracts, {u"PREIS"}, [&] { doubleClick(Geraet); }), Variant(u"GERÄT"));
}

TEST_F(Kuendigungsgruende, AReasonOfCustomersIsNoReasonToLoseAContract) {
  expectRefusalOfContract();
  EXPECT_EQ(show(ofContracts, {u"PREIS"}, [&] { doubleClick(Bonitaet); }), Variant(u"PREIS"));
  EXPECT_EQ(show(ofCustomers, {u"PREIS"}, [&] { doubleClick(Bonitaet); }), Variant(u"BONITÄT"));
}

TEST_F(Kuendigungsgruende, AReasonForBothIsTakenInBothKinds) {
  for (const std::int32_t kind : {ofCustomers, ofContracts})
    EXPECT_EQ(show(kind, {u""}, [&] { doubleClick(Preis); }), Variant(u"PREIS"));
}

TEST_F(Kuendigungsgruende, F9OnTheListIsRefusedLikeADoubleClick) {
  expectRefusalOfCustomer();
  EXPECT_EQ(show(ofCustomers, {u"GERÄT"},
                 [&] {
                   press(key::F9);
                   EXPECT_TRUE(form().Visible());
                 }),
            Variant(u"GERÄT"))
      << "the key handed in is not checked";
}

TEST_F(Kuendigungsgruende, AReasonOfferedNowhereIsTakenNowhere) {
  expectRefusalOfCustomer();
  expectRefusalOfContract();
  expectRefusalOfContract();
  EXPECT_EQ(show(ofCustomers, {u""}, [&] { doubleClick(ZZero); }), Variant(u""));
  EXPECT_EQ(show(ofContracts, {u""},
                 [&] {
                   doubleClick(ZZero);
                   doubleClick(Vier);
                 }),
            Variant(u""));
}

TEST_F(Kuendigungsgruende, WhatIsStoredCountsNotWhatTheDropDownSays) {
  expectRefusalOfCustomer();
  show(ofCustomers, {u"GERÄT"}, [&] {
    click(u"Anzeigetyp");
    press(key::Home);
    press(key::Enter);
    EXPECT_EQ(entry(), 0);
    doubleClick(Geraet);
    EXPECT_EQ(entry(), 1);
  });
}

TEST_F(Kuendigungsgruende, NobodyHearsOfPicks) {
  heard();
  EXPECT_EQ(show(ofCustomers, {u"-"},
                 [&] {
                   doubleClick(Preis);
                   doubleClick(Bonitaet);
                   EXPECT_TRUE(form().Visible());
                 }),
            Variant(u"BONITÄT"));
  EXPECT_THAT(heard(), IsEmpty());
}

// ---- saving

TEST_F(Kuendigungsgruende, SavesWhereTheReasonIsOffered) {
  show(ofCustomers, {u""}, [&] {
    enter(u"neu");
    type(u"  Neuer Grund ");
    click(u"btnOK");
    EXPECT_EQ(get(u"TDBList1", u"Columns(0).Caption"), Variant(u"Schlüssel"));
    click(u"Anzeigetyp");
    press(key::Up);
    press(key::Enter);
    click(u"btnOK");
  });
  EXPECT_THAT(rows(u"SELECT * FROM Kuendigungsgruende WHERE GrundVerlorenSchl='neu'"),
              ElementsAre(u"neu|Neuer Grund|2"));
}

TEST_F(Kuendigungsgruende, WithoutAnEntryZeroIsSaved) {
  show(ofCustomers, {u"VIER"}, [&] { click(u"btnOK"); });
  EXPECT_THAT(rows(u"SELECT Anzeigetyp FROM Kuendigungsgruende WHERE GrundVerlorenSchl='VIER'"),
              ElementsAre(u"0"));
}

TEST_F(Kuendigungsgruende, TheColumnKeepsItsCaptionAfterDeleting) {
  show(ofCustomers, {u"GERÄT"}, [&] {
    deleteRow();
    EXPECT_EQ(get(u"TDBList1", u"Columns(0).Caption"), Variant(u"Schlüssel"));
    EXPECT_EQ(listRows().size(), 6u);
  });
}

TEST_F(Kuendigungsgruende, HandsTheseStatementsToTheDatabase) {
  show(ofCustomers, {u"PREIS"}, [&] {
    EXPECT_THAT(
        statements(),
        ElementsAre(u"SELECT GrundVerlorenSchl, Text FROM Kuendigungsgruende ORDER BY GrundVerlorenSchl",
                    u"SELECT * FROM Kuendigungsgruende WHERE GrundVerlorenSchl ='PREIS'",
                    u"SELECT * FROM Kuendigungsgruende WHERE GrundVerlorenSchl ='PREIS'"));
    click(u"btnOK");
    EXPECT_EQ(statements().front(), u"SELECT * FROM Kuendigungsgruende WHERE GrundVerlorenSchl='PREIS'");
    deleteRow();
    EXPECT_EQ(statements().front(), u"Delete FROM Kuendigungsgruende WHERE GrundVerlorenSchl ='PREIS'");
  });
}

TEST_F(Kuendigungsgruende, WithoutTheRightNothingChanges) {
  forbidChanges();
  expectBox(noRightToSave, u"TALVEX Software", msgbox::Information);
  expectBox(noRightToDelete, u"TALVEX Software", msgbox::Information);
  show(ofContracts, {u"PREIS"}, [&] {
    click(u"btnOK");
    click(u"btnDelete");
  });
  EXPECT_EQ(rows(u"SELECT * FROM Kuendigungsgruende").size(), 7u);
}

// ---- failures

TEST_F(Kuendigungsgruende, AListThatCannotBeReadAfterDeletingIsShownAsClosed) {
  expectError(u"btnDelete_Click", error::ObjectClosed);
  show(ofCustomers, {u"PREIS"}, [&] {
    fail(ado::Operation::Open, u"ORDER BY GrundVerlorenSchl", error::ProviderFailure);
    deleteRow();
    EXPECT_TRUE(form().Visible());
  });
}

TEST_F(Kuendigungsgruende, ANullInTheDatabaseIsPassedOverWhenTheKeyIsLeft) {
  show(ofCustomers, {u"ZZERO"}, [&] {
    // Above the marked row, so that the list stays.
    enter(u"ZUNULL");
    EXPECT_EQ(text(u"Text"), u"Null");
    EXPECT_EQ(entry(), 2) << "as btnNew left it";
    EXPECT_TRUE(enabled(u"btnOK"));
  });
  EXPECT_EQ(connection->openRecordsets(), 0u);
}

TEST_F(Kuendigungsgruende, ANullInTheDatabaseIsShownWhereARowIsBrowsedTo) {
  expectError(u"TDBList1_RowColChange", error::InvalidUseOfNull);
  expectError(u"TDBList1_DblClick", error::InvalidUseOfNull);
  EXPECT_EQ(show(ofCustomers, {u"BONITÄT"},
                 [&] {
                   select(ZuNull);
                   EXPECT_EQ(text(u"Text"), u"Null");
                   EXPECT_EQ(entry(), 0);
                   doubleClick(ZuNull);
                 }),
            Variant(u"BONITÄT"));
}

}  // namespace
}  // namespace zqn::testing
