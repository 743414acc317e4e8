// SPDX-License-Identifier: MIT
//
// Kind 25 as a clerk works with it: check boxes that depend on each other, and keys of two other catalogues.
#include "catalogues/crm_kategorien.h"

#include "testing/catalogue.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;

class CRMKategorien : public CatalogueTest {
 protected:
  CRMKategorien() {
    execute(
        u"CREATE TABLE Kontaktgruppen (Kontaktgruppe VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, "
        u"Bezeichnung VARCHAR(30), Historie SMALLINT, HelpDesk SMALLINT, VertriebsStatus VARCHAR(10), "
        u"Adressherkunft VARCHAR(15), AktLetzterKontakt SMALLINT, AktLetzterBesuch SMALLINT);"
        u"INSERT INTO Kontaktgruppen VALUES ('-', 'reserviert', 0, 0, NULL, NULL, 0, 0);"
        u"INSERT INTO Kontaktgruppen VALUES ('ANRUF', 'Telefonat', 1, 0, '20', NULL, 1, 0);"
        u"INSERT INTO Kontaktgruppen VALUES ('HILFE', 'Störung', 0, -1, NULL, NULL, 0, 0);"
        u"INSERT INTO Kontaktgruppen VALUES ('LEER', NULL, NULL, NULL, NULL, NULL, NULL, NULL);"
        u"INSERT INTO Kontaktgruppen VALUES ('MESSE', 'Messe', -1, -1, '99', 'MESSE', 0, -1);"
        u"CREATE TABLE Vertriebsstati (Status VARCHAR(10) PRIMARY KEY, Bezeichnung VARCHAR(30));"
        u"INSERT INTO Vertriebsstati VALUES ('10', 'Interesse');"
        u"INSERT INTO Vertriebsstati VALUES ('20', 'Angebot');"
        u"CREATE TABLE Adressherkunft (Herkunft VARCHAR(15) PRIMARY KEY, Bezeichnung VARCHAR(50));"
        u"INSERT INTO Adressherkunft VALUES ('MESSE', 'Messe Hannover')");
  }

  /// Historie, HelpDesk, Status, Herkunft, contact, visit; then the two keys with what can be done to them.
  std::string boxes() const {
    std::string all;
    for (const StringView box :
         {u"Historie", u"HelpDesk", u"Status", u"Herkunft", u"AktLetzterKontakt", u"AktLetzterBesuch"})
      all += std::to_string(number(box, u"Value"));
    return all + " " + key(u"VertriebsStatus") + " " + key(u"Adressherkunft");
  }
  std::string key(StringView combo) const {
    const Variant value = get(combo, u"Value");
    const bool stops = *get(combo, u"TabStop").as<bool>();
    return (value.isNull() ? std::string("Null") : "'" + toUtf8(CStr(value)) + "'") +
           (enabled(combo) ? "" : "-") + (stops ? "" : "*");
  }
  std::vector<String> stored(StringView category) {
    return rows(u"SELECT * FROM Kontaktgruppen WHERE Kontaktgruppe='" + String(category) + u"'");
  }
  void tick(StringView box) { click(box); }
};

// ---- reading

TEST_F(CRMKategorien, ShowsACategoryWithTheTextsOfItsKeys) {
  show(25, {u"ANRUF"}, [&] {
    EXPECT_EQ(form().Caption(), u"Kategorien");
    EXPECT_THAT(listRows(), ElementsAre(u"ANRUF|Telefonat", u"HILFE|Störung", u"LEER|", u"MESSE|Messe"));
    EXPECT_EQ(boxes(), "101010 '20' ''-*");
    EXPECT_EQ(text(u"VertriebsStatus"), u"20 Angebot");
  });
}

TEST_F(CRMKategorien, AKeyThatIsNotOfferedIsShownAndSavedBack) {
  show(25, {u"MESSE"}, [&] {
    EXPECT_EQ(boxes(), "111101 '99' 'MESSE'");
    EXPECT_EQ(text(u"VertriebsStatus"), u"99");
    EXPECT_EQ(text(u"Adressherkunft"), u"MESSE Messe Hannover");
    click(u"btnOK");
  });
  EXPECT_THAT(stored(u"MESSE"), ElementsAre(u"MESSE|Messe|1|1|99|MESSE|0|1"));
}

TEST_F(CRMKategorien, AnUnknownKeyGivesAllBoxesOffAndBothKeysDisabled) {
  show(25, {u"MESSE"}, [&] {
    enter(u"NEU");
    EXPECT_EQ(text(u"Schluessel"), u"NEU");
    EXPECT_EQ(text(u"Kurztext"), u"");
    EXPECT_EQ(boxes(), "000000 Null-* Null-*");
  });
}

TEST_F(CRMKategorien, AnUnknownKeyThatIsHandedInGivesTheSame) {
  show(25, {u"NEU"}, [&] { EXPECT_EQ(boxes(), "000000 Null-* Null-*"); });
}

TEST_F(CRMKategorien, ClearingEmptiesKeysThatWereNeverTickedAndTheDatesToUpdate) {
  for (const StringView category : {u"LEER", u"ANRUF", u"MESSE"}) {
    show(25, {Variant(category)}, [&] {
      press(key::F6);
      EXPECT_EQ(boxes(), "000000 Null-* Null-*") << toUtf8(category);
      EXPECT_EQ(text(u"Kurztext"), u"");
    });
  }
}

TEST_F(CRMKategorien, TheKeyIsShownAsItIsStored) {
  show(25, {u"MESSE"}, [&] {
    enter(u"anruf");
    EXPECT_EQ(text(u"Schluessel"), u"ANRUF");
    EXPECT_EQ(text(u"Kurztext"), u"Telefonat");
  });
}

TEST_F(CRMKategorien, TheNameIsSelectedWholeWhenItGetsTheFocus) {
  show(25, {u"ANRUF"}, [&] {
    click(u"Kurztext");
    EXPECT_EQ(number(u"Kurztext", u"SelLength"), 9);
  });
}

TEST_F(CRMKategorien, NullReadsAsOff) {
  show(25, {u"MESSE"}, [&] {
    select(2);
    EXPECT_EQ(text(u"Kurztext"), u"");
    EXPECT_EQ(boxes(), "000000 Null-* Null-*");
  });
}

TEST_F(CRMKategorien, TheKeysFollowEveryRecordThatIsShown) {
  show(25, {u"ANRUF"}, [&] {
    press(key::End);
    EXPECT_EQ(boxes(), "111101 '99' 'MESSE'");
    press(key::Home);
    EXPECT_EQ(boxes(), "101010 '20' Null-*");
    select(1);
    EXPECT_EQ(boxes(), "110000 Null-* ''-*");
  });
}

TEST_F(CRMKategorien, ACategoryOfTheHelpDeskWithoutHistoryReadsAsBothAndIsSavedSo) {
  show(25, {u"HILFE"}, [&] {
    EXPECT_EQ(boxes(), "110000 ''-* ''-*") << "what was never ticked keeps the empty text of the column";
    click(u"btnOK");
  });
  EXPECT_THAT(stored(u"HILFE"), ElementsAre(u"HILFE|Störung|1|1|NULL|NULL|0|0"));
}

// ---- boxes that depend on each other

TEST_F(CRMKategorien, TheHelpDeskAlwaysKeepsAHistory) {
  show(25, {u"LEER"}, [&] {
    tick(u"HelpDesk");
    EXPECT_EQ(boxes().substr(0, 2), "11");
    tick(u"HelpDesk");
    EXPECT_EQ(boxes().substr(0, 2), "10") << "unticking the help desk leaves the history";
    tick(u"HelpDesk");
    tick(u"Historie");
    EXPECT_EQ(boxes().substr(0, 2), "00");
    tick(u"Historie");
    EXPECT_EQ(boxes().substr(0, 2), "10") << "ticking the history leaves the help desk";
  });
}

TEST_F(CRMKategorien, UntickingTheStatusForgetsItsKeyForGood) {
  show(25, {u"ANRUF"}, [&] {
    tick(u"Status");
    EXPECT_EQ(boxes(), "100010 Null-* ''-*");
    EXPECT_EQ(text(u"VertriebsStatus"), u"");
    tick(u"Status");
    EXPECT_EQ(boxes(), "101010 Null ''-*");
    tick(u"Status");
    click(u"btnOK");
  });
  EXPECT_THAT(stored(u"ANRUF"), ElementsAre(u"ANRUF|Telefonat|1|0|NULL|NULL|1|0"));
}

TEST_F(CRMKategorien, ATickedBoxWithoutAKeyIsSavedAsNullAndReadBackUnticked) {
  show(25, {u"LEER"}, [&] {
    tick(u"Status");
    tick(u"Herkunft");
    EXPECT_EQ(boxes(), "001100 '' ''");
    click(u"btnOK");
    EXPECT_EQ(boxes().substr(0, 6), "000000");
  });
  EXPECT_THAT(stored(u"LEER"), ElementsAre(u"LEER|NULL|0|0|NULL|NULL|0|0"));
}

TEST_F(CRMKategorien, KeysAreTypedAndCompletedOnceTheirBoxIsTicked) {
  show(25, {u"LEER"}, [&] {
    click(u"VertriebsStatus");
    EXPECT_NE(focus(), u"VertriebsStatus");
    tick(u"Status");
    press(key::Tab);
    EXPECT_EQ(focus(), u"VertriebsStatus");
    type(u"1");
    EXPECT_EQ(text(u"VertriebsStatus"), u"10 Interesse");
    tick(u"Herkunft");
    press(key::Tab);
    type(u"messe h");
    EXPECT_EQ(key(u"Adressherkunft"), "'MESSE'");
    tick(u"AktLetzterBesuch");
    press(key::F9);
    EXPECT_EQ(boxes(), "001101 '10' 'MESSE'");
  });
  EXPECT_THAT(stored(u"LEER"), ElementsAre(u"LEER|NULL|0|0|10|MESSE|0|1"));
}

TEST_F(CRMKategorien, TabPassesKeysThatAreNotSet) {
  show(25, {u"ANRUF"}, [&] {
    const std::vector<StringView> order = {
        u"Schluessel",      u"Kurztext", u"Historie",          u"HelpDesk",         u"Status",
        u"VertriebsStatus", u"Herkunft", u"AktLetzterKontakt", u"AktLetzterBesuch", u"btnOK"};
    for (const StringView next : order) {
      press(key::Enter);
      EXPECT_EQ(focus(), String(next));
    }
  });
}

// ---- writing

TEST_F(CRMKategorien, ANewCategoryIsInsertedWithAllItsColumns) {
  show(25, {u""}, [&] {
    enter(u"neu ");
    type(u"  Neue Kategorie ");
    tick(u"HelpDesk");
    tick(u"AktLetzterKontakt");
    click(u"btnOK");
    EXPECT_EQ(number(u"TDBList1", u"Row"), 4);
  });
  EXPECT_THAT(stored(u"neu"), ElementsAre(u"neu |Neue Kategorie|1|1|NULL|NULL|1|0"));
}

TEST_F(CRMKategorien, TheReservedRowIsNotListedYetItsKeyOpensAndDeletesIt) {
  show(25, {u""}, [&] {
    enter(u"-");
    EXPECT_EQ(text(u"Kurztext"), u"reserviert");
    deleteRow();
  });
  EXPECT_TRUE(stored(u"-").empty());
}

TEST_F(CRMKategorien, HandsTheseStatementsToTheDatabase) {
  show(25, {u"ANRUF"}, [&] {
    // The reading of the two keys' texts is no statement of the dialog.
    EXPECT_THAT(statements(),
                ElementsAre(u"SELECT Kontaktgruppe, Bezeichnung FROM Kontaktgruppen Where Kontaktgruppe<>'-' "
                            u"ORDER BY Kontaktgruppe",
                            u"SELECT * FROM Kontaktgruppen WHERE Kontaktgruppe ='ANRUF'",
                            u"SELECT * FROM Kontaktgruppen WHERE Kontaktgruppe ='ANRUF'"));
    click(u"btnOK");
    EXPECT_EQ(statements().front(), u"SELECT * FROM Kontaktgruppen WHERE Kontaktgruppe='ANRUF'");
    deleteRow();
    EXPECT_EQ(statements().front(), u"Delete FROM Kontaktgruppen WHERE Kontaktgruppe ='ANRUF'");
  });
}

// ---- the host

TEST_F(CRMKategorien, ReportsPicksToTheHost) {
  heard();
  EXPECT_EQ(show(25, {u"ANRUF"},
                 [&] {
                   doubleClick(3);
                   doubleClick(1);
                 }),
            Variant(u"HILFE"));
  EXPECT_THAT(heard(), ElementsAre(Variant(u"MESSE"), Variant(u"HILFE")));
  EXPECT_EQ(dialog.Result(), Variant(u"HILFE"));
}

TEST_F(CRMKategorien, WithoutTheRightNothingChanges) {
  forbidChanges();
  expectBox(noRightToSave, u"TALVEX Software", msgbox::Information);
  expectBox(noRightToDelete, u"TALVEX Software", msgbox::Information);
  show(25, {u"ANRUF"}, [&] {
    tick(u"Status");
    click(u"btnOK");
    click(u"btnDelete");
    EXPECT_EQ(boxes(), "100010 Null-* ''-*");
  });
  EXPECT_THAT(stored(u"ANRUF"), ElementsAre(u"ANRUF|Telefonat|1|0|20|NULL|1|0"));
}

// ---- failures

TEST_F(CRMKategorien, WithoutTheOtherCataloguesTheKeysStandByThemselves) {
  execute(u"DROP TABLE Vertriebsstati;DROP TABLE Adressherkunft");
  show(25, {u"MESSE"}, [&] {
    EXPECT_EQ(boxes(), "111101 '99' 'MESSE'");
    EXPECT_EQ(text(u"Adressherkunft"), u"MESSE");
    click(u"btnOK");
  });
  EXPECT_THAT(stored(u"MESSE"), ElementsAre(u"MESSE|Messe|1|1|99|MESSE|0|1"));
}

}  // namespace
}  // namespace zqn::testing
