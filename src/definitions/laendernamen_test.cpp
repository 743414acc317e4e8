// SPDX-License-Identifier: MIT
//
// Names of countries, kind 24: keys in capitals, the ISO code out of sight.
#include "testing/generic_form.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;

class Laendernamen : public GenericFormTest {
 protected:
  Laendernamen() {
    execute(
        u"CREATE TABLE Laendernamen (Kennung VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, ISOCode "
        u"VARCHAR(3), "
        u"BezeichnungDefault VARCHAR(50) COLLATE ZQN_TEXT);"
        u"INSERT INTO Laendernamen VALUES ('-', NULL, '(kein Land)');"
        u"INSERT INTO Laendernamen VALUES ('A', 'AT', 'Österreich');"
        u"INSERT INTO Laendernamen VALUES ('UK', NULL, NULL)");
  }
  std::vector<String> all() { return rows(u"SELECT * FROM Laendernamen ORDER BY Kennung"); }
};

TEST_F(Laendernamen, ShowsKeyAndNameAndNotTheCodeBetween) {
  show(24, {u"A"}, [&] {
    EXPECT_EQ(form().Caption(), u"Laendernamen bearbeiten");
    EXPECT_EQ(form().Height(), 3360 + 345 + 600);
    EXPECT_EQ(shownControls().size(), 9u);
    EXPECT_EQ(get(u"txtKey", u"MaxLength"), Variant(std::int32_t{15}));
    EXPECT_EQ(get(u"txtKeyText", u"MaxLength"), Variant(std::int32_t{50}));
    EXPECT_EQ(get(u"tdblShow", u"Columns(0).Caption"), Variant(u"Schlüssel"));
    EXPECT_EQ(get(u"tdblShow", u"Columns(1).Visible"), Variant(false));
    EXPECT_EQ(get(u"tdblShow", u"Columns(1).Width"), Variant(std::int32_t{0}));
    EXPECT_EQ(get(u"tdblShow", u"Columns(1).AllowSizing"), Variant(false));
    EXPECT_EQ(get(u"tdblShow", u"Columns(2).Caption"), Variant(u"Bezeichnung"));
    EXPECT_EQ(text(u"txtKeyText"), u"Österreich");
  });
  EXPECT_THAT(statements(ado::Operation::Open),
              ElementsAre(u"SELECT * FROM Laendernamen WHERE Kennung<>'-' ORDER BY Kennung",
                          u"SELECT * FROM Laendernamen WHERE Kennung = 'A'",
                          u"SELECT * FROM Laendernamen WHERE Kennung = 'A'"));
}

TEST_F(Laendernamen, ATypedKeyIsStoredInCapitals) {
  EXPECT_EQ(show(24, {u"A"},
                 [&] {
                   enter(u"de");
                   type(u"Deutschland");
                   operations.clear();
                   press(key::F9);
                   EXPECT_EQ(statements(ado::Operation::Open).front(),
                             u"SELECT * FROM Laendernamen WHERE Kennung = 'de'")
                       << "it is looked up as typed";
                   EXPECT_EQ(get(u"tdblShow", u"Text"), Variant(u"DE"));
                   EXPECT_EQ(text(u"txtKey"), u"DE");
                 }),
            Variant(u"DE"));
  EXPECT_THAT(
      all(), ElementsAre(u"-|NULL|(kein Land)", u"A|AT|Österreich", u"DE|NULL|Deutschland", u"UK|NULL|NULL"));
}

TEST_F(Laendernamen, TheKeyIsReportedInCapitalsThoughNothingWasSaved) {
  EXPECT_EQ(show(24, {u"öst"}, [&] { EXPECT_EQ(text(u"txtKey"), u"ÖST"); }), Variant(u"ÖST"));
  EXPECT_EQ(param.at(0), Variant(u"ÖST"));
  EXPECT_TRUE(show(24, {Null}, [&] { EXPECT_EQ(text(u"txtKey"), u""); }).isEmpty());
  EXPECT_TRUE(param.at(0).isNull());
  EXPECT_EQ(show(24, {Variant()}), Variant(u""));
}

TEST_F(Laendernamen, PicksAreReportedInCapitalsToo) {
  execute(u"INSERT INTO Laendernamen VALUES ('nl', 'NL', 'Niederlande')");
  EXPECT_EQ(show(24, {u"A"}, [&] { doubleClick(1, u"tdblShow"); }), Variant(u"NL"));
}

TEST_F(Laendernamen, TheNameIsSavedAndTheCodeStays) {
  show(24, {u"a"}, [&] {
    put(u"txtKeyText", u"Austria");
    press(key::F9);
    put(u"txtKey", u"UK");
    press(key::Tab);
    EXPECT_EQ(text(u"txtKeyText"), u"");
    press(key::F9);
  });
  EXPECT_THAT(all(), ElementsAre(u"-|NULL|(kein Land)", u"A|AT|Austria", u"UK|NULL|NULL"));
}

TEST_F(Laendernamen, AHyphenIsHiddenAndRefused) {
  show(24, {u"A"}, [&] {
    EXPECT_EQ(listRows(u"tdblShow").size(), 2u);
    enter(u"-");
    EXPECT_EQ(text(u"txtKeyText"), u"(kein Land)");
    type(u"Anderes");
    press(key::F9);
  });
  EXPECT_THAT(all(), ::testing::Contains(u"-|NULL|(kein Land)"));
}

TEST_F(Laendernamen, DeletesTheMarkedRow) {
  show(24, {u"A"}, [&] {
    operations.clear();
    deleteMarked();
    EXPECT_THAT(statements(ado::Operation::Execute),
                ElementsAre(u"Delete From Laendernamen WHERE Kennung = 'A'"));
    EXPECT_EQ(text(u"txtKey"), u"UK");
  });
}

TEST_F(Laendernamen, AMissingThirdColumnLeavesTheFormUp) {
  execute(u"ALTER TABLE Laendernamen DROP COLUMN BezeichnungDefault");
  show(24, {u"A"}, [&] {
    EXPECT_EQ(listRows(u"tdblShow").size(), 2u);
    EXPECT_EQ(text(u"txtKeyText"), u"");
  });
}

}  // namespace
}  // namespace zqn::testing
