// SPDX-License-Identifier: MIT
//
// Booking ranges, kind 27: those of the origin that the dialog was opened with.
#include "testing/generic_form.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;

class Buchungskreise : public GenericFormTest {
 protected:
  Buchungskreise() {
    execute(
        u"CREATE TABLE Nummernkreis_Buchungskreise (Buchungskreis VARCHAR(3) COLLATE ZQN_TEXT NOT NULL, "
        u"Herkunft "
        u"VARCHAR(50) COLLATE ZQN_TEXT NOT NULL, Beschreibung VARCHAR(50) COLLATE ZQN_TEXT, PRIMARY KEY "
        u"(Herkunft, "
        u"Buchungskreis));"
        u"INSERT INTO Nummernkreis_Buchungskreise VALUES ('-', 'VK', '(ohne)');"
        u"INSERT INTO Nummernkreis_Buchungskreise VALUES ('1', 'VK', 'Barverkauf');"
        u"INSERT INTO Nummernkreis_Buchungskreise VALUES ('001', 'VK', 'Angebote');"
        u"INSERT INTO Nummernkreis_Buchungskreise VALUES ('002', 'VK', 'Aufträge');"
        u"INSERT INTO Nummernkreis_Buchungskreise VALUES ('001', 'EK', 'Anfragen');"
        u"INSERT INTO Nummernkreis_Buchungskreise VALUES ('900', '', 'Ohne Herkunft')");
  }
  std::vector<String> of(StringView origin) {
    return rows(u"SELECT Buchungskreis, Beschreibung FROM Nummernkreis_Buchungskreise WHERE Herkunft='" +
                String(origin) + u"' ORDER BY 1");
  }
};

TEST_F(Buchungskreise, TheKeyHandedInIsTheOriginAndNoRow) {
  EXPECT_EQ(show(27, {u"VK"},
                 [&] {
                   EXPECT_EQ(form().Caption(), u"Buchungskreise bearbeiten");
                   EXPECT_EQ(form().Height(), 3360 + 345 + 600);
                   EXPECT_THAT(listRows(u"tdblShow"),
                               ElementsAre(u"001|VK|Angebote", u"002|VK|Aufträge", u"1|VK|Barverkauf"));
                   EXPECT_EQ(text(u"txtKey"), u"");
                   EXPECT_FALSE(enabled(u"cmdDelete"));
                   EXPECT_EQ(focus(), u"txtKey");
                 }),
            Variant(u""));
  EXPECT_EQ(param.at(0), Variant(u""));
  EXPECT_THAT(
      statements(ado::Operation::Open),
      ElementsAre(
          u"SELECT * FROM Nummernkreis_Buchungskreise WHERE Buchungskreis<>'-' AND Herkunft='VK' ORDER BY "
          u"Buchungskreis",
          u"SELECT * FROM Nummernkreis_Buchungskreise WHERE Buchungskreis = '' AND Herkunft='VK'"));
}

TEST_F(Buchungskreise, TheCaptionGoesToTheHiddenColumn) {
  show(27, {u"VK"}, [&] {
    EXPECT_EQ(get(u"tdblShow", u"Columns(0).Caption"), Variant(u"Buchungskreis"));
    EXPECT_EQ(get(u"tdblShow", u"Columns(1).Caption"), Variant(u"Beschreibung"));
    EXPECT_EQ(get(u"tdblShow", u"Columns(1).Visible"), Variant(false));
    EXPECT_EQ(get(u"tdblShow", u"Columns(1).AllowSizing"), Variant(false));
    EXPECT_EQ(get(u"tdblShow", u"Columns(2).Caption"), Variant(u"Beschreibung")) << "the column's own name";
    EXPECT_EQ(get(u"tdblShow", u"Columns(2).Visible"), Variant(true));
  });
}

TEST_F(Buchungskreise, FindsAKeyOfDigitsAsText) {
  show(27, {u"VK"}, [&] {
    put(u"txtKey", u"1");
    press(key::Tab);
    EXPECT_EQ(get(u"tdblShow", u"Text"), Variant(u"1")) << "and not 001";
    EXPECT_EQ(text(u"txtKeyText"), u"Barverkauf");
    put(u"txtKey", u"002");
    press(key::Tab);
    EXPECT_EQ(get(u"tdblShow", u"Row"), Variant(std::int32_t{1}));
  });
}

TEST_F(Buchungskreise, TheCriterionHasTheKeyWithoutQuotes) {
  fail(ado::Operation::Find, u"Buchungskreis=002 AND Herkunft='VK'", error::ProviderFailure);
  show(27, {u"VK"}, [&] {
    mark(0);
    put(u"txtKey", u"002");
    press(key::Tab);
    EXPECT_EQ(get(u"tdblShow", u"Row"), Variant(std::int32_t{0})) << "the search failed, and it was this one";
    EXPECT_EQ(text(u"txtKeyText"), u"Aufträge");
  });
}

TEST_F(Buchungskreise, ANewRowGetsTheOrigin) {
  EXPECT_EQ(show(27, {u"VK"},
                 [&] {
                   enter(u"010");
                   type(u"Rechnungen");
                   press(key::F9);
                   EXPECT_EQ(get(u"tdblShow", u"Text"), Variant(u"010"));
                   put(u"txtKeyText", u"Rechnungen Inland");
                   press(key::F9);
                 }),
            Variant(u"010"));
  EXPECT_THAT(of(u"VK"), ElementsAre(u"-|(ohne)", u"001|Angebote", u"002|Aufträge", u"010|Rechnungen Inland",
                                     u"1|Barverkauf"));
}

TEST_F(Buchungskreise, TheOriginOfAKnownRowIsNeverRewritten) {
  show(27, {u"vk"}, [&] {
    put(u"txtKey", u"001");
    press(key::Tab);
    put(u"txtKeyText", u"Angebote Inland");
    press(key::F9);
    enter(u"010");
    press(key::F9);
  });
  EXPECT_THAT(rows(u"SELECT * FROM Nummernkreis_Buchungskreise WHERE Buchungskreis IN ('001', '010') AND "
                   u"Herkunft='VK'"),
              ::testing::UnorderedElementsAre(u"001|VK|Angebote Inland", u"010|vk|NULL"));
}

TEST_F(Buchungskreise, TheSameRangeOfAnotherOriginStays) {
  show(27, {u"VK"}, [&] {
    mark(0);
    put(u"txtKeyText", u"Angebote Inland");
    press(key::F9);
    operations.clear();
    deleteMarked();
    EXPECT_THAT(
        statements(ado::Operation::Execute),
        ElementsAre(u"Delete From Nummernkreis_Buchungskreise WHERE Buchungskreis='001' AND Herkunft='VK'"));
  });
  EXPECT_THAT(of(u"VK"), ElementsAre(u"-|(ohne)", u"002|Aufträge", u"1|Barverkauf"));
  EXPECT_THAT(of(u"EK"), ElementsAre(u"001|Anfragen"));
}

TEST_F(Buchungskreise, AnEmptyOriginIsAnOriginToo) {
  for (const Variant& origin : {Variant(u""), Variant(), Variant(Null)}) {
    EXPECT_EQ(show(27, {origin},
                   [&] {
                     EXPECT_EQ(text(u"txtKey"), u"");
                     EXPECT_THAT(listRows(u"tdblShow"), ElementsAre(u"900||Ohne Herkunft"));
                     enter(u"901");
                     press(key::F9);
                     EXPECT_EQ(listRows(u"tdblShow").size(), 2u);
                     deleteMarked();
                   }),
              Variant(u"901"));
    EXPECT_EQ(param.at(0), Variant(u"901"));
    EXPECT_EQ(statements(ado::Operation::Open).front(),
              u"SELECT * FROM Nummernkreis_Buchungskreise WHERE Buchungskreis<>'-' AND Herkunft='' ORDER BY "
              u"Buchungskreis");
    operations.clear();
  }
}

TEST_F(Buchungskreise, NullComesBackAsItWentInUnlessARangeIsTaken) {
  EXPECT_TRUE(show(27, {Null}, [&] { press(key::Escape); }).isEmpty());
  EXPECT_TRUE(param.at(0).isNull());
  EXPECT_EQ(show(27, {Null}, [&] { doubleClick(0, u"tdblShow"); }), Variant(u"900"));
  EXPECT_EQ(param.at(0), Variant(u"900"));
}

TEST_F(Buchungskreise, TheKeyTakesThreeCharacters) {
  show(27, {u"VK"}, [&] {
    enter(u"1234");
    EXPECT_EQ(text(u"txtKey"), u"123");
    EXPECT_EQ(get(u"txtKeyText", u"MaxLength"), Variant(std::int32_t{50}));
  });
}

TEST_F(Buchungskreise, AHyphenIsHiddenAndRefused) {
  show(27, {u"EK"}, [&] {
    enter(u"-");
    type(u"Nichts");
    press(key::F9);
    EXPECT_THAT(listRows(u"tdblShow"), ElementsAre(u"001|EK|Anfragen"));
  });
  EXPECT_THAT(of(u"EK"), ElementsAre(u"001|Anfragen"));
}

TEST_F(Buchungskreise, KeysOfSignsAndBlanksAreSafe) {
  show(27, {u"VK"}, [&] {
    for (const StringView typed : {u"a b", u"a'b", u"ЖЩЮ", u"%_*", u"#1", u"'"}) {
      enter(typed);
      press(key::F9);
    }
  });
  EXPECT_THAT(rows(u"SELECT Buchungskreis FROM Nummernkreis_Buchungskreise WHERE Herkunft='VK'"),
              ::testing::UnorderedElementsAre(u"-", u"1", u"001", u"002", u"a b", u"ЖЩЮ", u"%_*", u"#1"));
}

TEST_F(Buchungskreise, AnyOperationMayFail) {
  failEachOperation([&] { show(27, {u"VK"}, [&] { workThrough(u"NEU"); }); });
}

TEST_F(Buchungskreise, AnOriginWithAnApostropheShowsNothingAndWritesNothing) {
  show(27, {u"V'K"}, [&] {
    EXPECT_TRUE(listRows(u"tdblShow").empty());
    put(u"txtKey", u"5");
    press(key::Tab);
    press(key::F9);
  });
  EXPECT_EQ(rows(u"SELECT * FROM Nummernkreis_Buchungskreise").size(), 6u);
}

}  // namespace
}  // namespace zqn::testing
