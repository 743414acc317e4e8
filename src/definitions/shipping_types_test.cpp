// SPDX-License-Identifier: MIT
//
// The shipping types, kinds 4 and 18: head row and text block in step, and the layouts of the sales side.
#include "forms/combo_box.h"
#include "testing/text_blocks.h"

namespace zqn::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class Versandarten : public TextBlocks {
 protected:
  Versandarten() {
    execute(
        u"CREATE TABLE Versandtexte (Versandart VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, Kurztext "
        u"VARCHAR(30), "
        u"LayoutFrachtbrief VARCHAR(50), LayoutEtiketten VARCHAR(50));"
        u"CREATE TABLE VersandtexteEK (Versandart VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, "
        u"Kurztext "
        u"VARCHAR(30));"
        u"CREATE TABLE Versandformulare (Layout VARCHAR(15) COLLATE ZQN_TEXT, Langtext VARCHAR(50), Typ "
        u"VARCHAR(1) "
        u"COLLATE ZQN_TEXT);"
        u"INSERT INTO Versandformulare VALUES ('FB', 'Frachtbrief A4', 'F');"
        u"INSERT INTO Versandformulare VALUES ('AB', 'Speditionsauftrag', 'F');"
        u"INSERT INTO Versandformulare VALUES ('ET', 'Etikett rot', 'E');"
        u"INSERT INTO Versandformulare VALUES ('NN', 'Neutral', '-');"
        u"INSERT INTO Versandformulare VALUES ('-', '(kein Layout)', '-');"
        u"INSERT INTO Versandtexte VALUES ('LKW', 'Eigener LKW', 'FRACHTBRIEF a4', 'Altes Etikett');"
        u"INSERT INTO Versandtexte VALUES ('PAKET', NULL, NULL, NULL);"
        u"INSERT INTO VersandtexteEK VALUES ('LKW', 'LKW des Lieferanten')");
    block(u"VSA", u"LKW", u"Frei Haus.", u"NL");
    block(u"EVA", u"LKW", u"Wir holen ab.", u"-E-");
  }
  std::vector<String> head() { return rows(u"SELECT * FROM Versandtexte ORDER BY 1"); }
  std::vector<String> entries(StringView combo) const {
    const auto& box = dynamic_cast<ComboBox&>(*form().findControl(combo));
    std::vector<String> texts;
    for (int i = 0; i < box.ListCount(); ++i) texts.push_back(box.List(i));
    return texts;
  }
};

// ---- sales

TEST_F(Versandarten, ShowsTheFieldsOfTheSalesSide) {
  show(4, {u"LKW"}, [&] {
    EXPECT_EQ(form().Caption(), u"Versandarten bearbeiten");
    EXPECT_EQ(form().ScaleHeight(), 5235) << "as designed";
    EXPECT_EQ(form().control(u"cmdOK").Top(), 4770);
    EXPECT_THAT(shownControls(),
                ElementsAre(u"tdblShow", u"lblKey", u"txtKey", u"lblKeyText", u"txtKeyText", u"lblLangtext",
                            u"txtLangtext", u"lblWoDrucken", u"tglDruckAN", u"tglDruckAB", u"tglDruckLS",
                            u"tglDruckRG", u"tglDruckGS", u"lblCbo(0)", u"cbo(0)", u"lblCbo(1)", u"cbo(1)",
                            u"cmdOK", u"cmdCancel", u"cmdNew", u"cmdDelete"));
    EXPECT_EQ(get(u"lblKey", u"Caption"), Variant(u"Schlüssel"));
    EXPECT_EQ(get(u"lblKeyText", u"Caption"), Variant(u"Kurztext"));
    EXPECT_EQ(get(u"lblCbo(0)", u"Caption"), Variant(u"Layout Frachtbrief"));
    EXPECT_EQ(get(u"lblCbo(1)", u"Caption"), Variant(u"Layout Versandetiketten"));
    EXPECT_EQ(form().control(u"lblWoDrucken").Left(), 3045);
    EXPECT_EQ(get(u"txtKey", u"MaxLength"), Variant(std::int32_t{15}));
    EXPECT_EQ(get(u"txtKeyText", u"MaxLength"), Variant(std::int32_t{30}));
    EXPECT_EQ(get(u"tdblShow", u"Columns(0).Caption"), Variant(u"Schlüssel"));
    EXPECT_EQ(get(u"tdblShow", u"Columns(1).Caption"), Variant(u"Kurztext"));
  });
  EXPECT_THAT(
      statements(ado::Operation::Open),
      ElementsAre(u"SELECT * FROM Versandformulare WHERE Typ ='F' OR TYP ='-' ORDER BY Layout ASC",
                  u"SELECT * FROM Versandformulare WHERE Typ ='E' OR TYP ='-' ORDER BY Layout ASC",
                  u"SELECT * FROM Versandtexte ORDER BY Versandart",
                  u"SELECT * FROM Versandtexte WHERE Versandart = 'LKW'", blockQuery(u"VSA", u"LKW"),
                  u"SELECT * FROM Versandtexte WHERE Versandart = 'LKW'", blockQuery(u"VSA", u"LKW")));
}

TEST_F(Versandarten, KeyAndShortTextFillTheList) {
  show(4, {u"LKW"}, [&] {
    EXPECT_EQ(get(u"tdblShow", u"Columns(0).Width"), Variant(std::int32_t{1500}));
    EXPECT_EQ(get(u"tdblShow", u"Columns(1).Width"), Variant(std::int32_t{4695}));
    EXPECT_EQ(get(u"tdblShow", u"Columns(2).Visible"), Variant(true)) << "behind the scroll bar";
  });
}

TEST_F(Versandarten, TheRowHyphenGivesABlankEntryAtTheTop) {
  show(4, {u"LKW"}, [&] {
    EXPECT_THAT(entries(u"cbo(0)"), ElementsAre(u"", u"Speditionsauftrag", u"Frachtbrief A4", u"Neutral"));
    EXPECT_THAT(entries(u"cbo(1)"), ElementsAre(u"", u"Etikett rot", u"Neutral"));
  });
  execute(u"DELETE FROM Versandformulare WHERE Layout='-'");
  show(4, {u"LKW"}, [&] {
    EXPECT_THAT(entries(u"cbo(0)"), ElementsAre(u"Speditionsauftrag", u"Frachtbrief A4", u"Neutral"));
    EXPECT_EQ(text(u"cbo(0)"), u"Frachtbrief A4");
    EXPECT_EQ(text(u"cbo(1)"), u"Etikett rot") << "a text that is not offered shows the first entry";
  });
}

TEST_F(Versandarten, SeveralHyphensGiveOneBlankEntry) {
  execute(
      u"INSERT INTO Versandformulare VALUES ('-', 'noch eins', 'F');INSERT INTO Versandformulare VALUES "
      u"(NULL, "
      u"'ohne Schlüssel', 'F');INSERT INTO Versandformulare VALUES ('ZZ', NULL, 'F')");
  show(4, {u"LKW"}, [&] {
    EXPECT_THAT(entries(u"cbo(0)"),
                ElementsAre(u"", u"Speditionsauftrag", u"Frachtbrief A4", u"Neutral", u""));
  });
}

TEST_F(Versandarten, ALayoutIsMatchedWithoutRegardToCaseAndSavedAsTheEntry) {
  show(4, {u"LKW"}, [&] {
    EXPECT_EQ(text(u"cbo(0)"), u"Frachtbrief A4");
    EXPECT_EQ(get(u"cbo(1)", u"ListIndex"), Variant(std::int32_t{0}))
        << "the old label is not offered any more";
    press(key::Tab);
    press(key::F9);
  });
  EXPECT_THAT(head(), Contains(u"LKW|Eigener LKW|Frachtbrief A4|NULL"));
}

TEST_F(Versandarten, ANewRecordHasNoLayoutUntilOneIsTaken) {
  show(4, {u""}, [&] {
    enter(u"NEU");
    EXPECT_EQ(get(u"cbo(0)", u"ListIndex"), Variant(std::int32_t{-1}));
    type(u"Neu");
    click(u"cbo(1)");
    press(key::Down);
    press(key::Down);
    press(key::Enter);
    press(key::F9);
  });
  EXPECT_THAT(head(), Contains(u"NEU|Neu|NULL|Etikett rot"));
}

TEST_F(Versandarten, WithoutAnyFormTheDialogStillWorks) {
  execute(u"DELETE FROM Versandformulare");
  EXPECT_EQ(show(4, {u"LKW"},
                 [&] {
                   EXPECT_THAT(entries(u"cbo(0)"), IsEmpty());
                   EXPECT_EQ(get(u"cbo(0)", u"ListIndex"), Variant(std::int32_t{-1}));
                   EXPECT_EQ(text(u"txtLangtext"), u"Frei Haus.") << "reading goes on behind the drop-downs";
                   put(u"txtKeyText", u"LKW");
                   press(key::F9);
                 }),
            Variant(u"LKW"));
  EXPECT_THAT(head(), Contains(u"LKW|LKW|NULL|NULL"));
  execute(u"DROP TABLE Versandformulare");
  show(4, {u"PAKET"}, [&] { EXPECT_EQ(text(u"txtKey"), u"PAKET"); });
}

TEST_F(Versandarten, TheMarksAreReadByLetterAndWrittenByPosition) {
  show(4, {u"LKW"}, [&] {
    EXPECT_EQ(pressed(), u"AN LS ");
    click(u"cmdOK");
  });
  EXPECT_THAT(blocks(), Contains(u"VSA|LKW|000|ÿÿÿ|Eigener LKW|Frei Haus.|N-L--|Arial|10|---L"));
}

TEST_F(Versandarten, TheKeyOfAKnownRecordIsNeverRewritten) {
  show(4, {u"LKW"}, [&] {
    put(u"txtKey", u"lkw");
    press(key::F9);
  });
  EXPECT_THAT(head(), Contains(u"LKW|Eigener LKW|Frachtbrief A4|NULL"));
  EXPECT_THAT(blocks(), Contains(u"VSA|LKW|000|ÿÿÿ|Eigener LKW|Frei Haus.|N-L--|Arial|10|---L"));
}

TEST_F(Versandarten, AHeadRowWithoutABlockShowsTheDefaultsAndGetsItsBlockOnSaving) {
  show(4, {u"PAKET"}, [&] {
    EXPECT_EQ(text(u"txtLangtext"), u"");
    EXPECT_EQ(pressed(), u"AN AB LS RG ");
    click(u"cmdOK");
  });
  EXPECT_THAT(blocks(), Contains(u"VSA|PAKET|000|ÿÿÿ|NULL|NULL|NBLR-|Arial|10|---L"));
}

TEST_F(Versandarten, ABlockWithAnEmptyLongTextCountsAsNone) {
  block(u"VSA", u"PAKET", u"", u"G");
  show(4, {u"PAKET"}, [&] { EXPECT_EQ(pressed(), u"AN AB LS RG "); });
}

TEST_F(Versandarten, ABlockThatCannotBeReadShowsTheDefaults) {
  show(4, {u"PAKET"}, [&] {
    fail(ado::Operation::Open, u"Textbausteine", error::ProviderFailure);
    mark(0);
    EXPECT_EQ(text(u"txtKeyText"), u"Eigener LKW");
    EXPECT_EQ(text(u"txtLangtext"), u"");
    EXPECT_EQ(pressed(), u"AN AB LS RG ");
  });
}

TEST_F(Versandarten, ANewRecordStartsWithTheDefaultMarks) {
  show(4, {u"LKW"}, [&] {
    click(u"tglDruckGS");
    EXPECT_EQ(pressed(), u"AN LS GS ");
    enter(u"NEU");
    EXPECT_EQ(pressed(), u"AN AB LS RG ");
    type(u"Neu");
    click(u"tglDruckRG");
    click(u"txtLangtext");
    type(u"Lang");
    press(key::F9);
    EXPECT_EQ(pressed(), u"AN AB LS ");
  });
  EXPECT_THAT(blocks(), Contains(u"VSA|NEU|000|ÿÿÿ|Neu|Lang|NBL--|Arial|10|---L"));
}

TEST_F(Versandarten, SavingResetsTheFontAndLeavesOtherLanguagesAlone) {
  execute(u"UPDATE Textbausteine SET Schriftart='Courier', Schriftgröße=14, Schriftstil='B'");
  execute(
      u"INSERT INTO Textbausteine VALUES ('VSA', 'LKW', '000', 'ENG', 'Own truck', 'Free delivery.', 'N', "
      u"'Courier', "
      u"14, 'B')");
  execute(
      u"INSERT INTO Textbausteine VALUES ('VSA', 'LKW', '001', 'ÿÿÿ', NULL, 'Zusatz', 'N', 'Courier', 14, "
      u"'B')");
  show(4, {u"LKW"}, [&] { click(u"cmdOK"); });
  EXPECT_THAT(blocks(),
              ::testing::UnorderedElementsAre(u"VSA|LKW|000|ÿÿÿ|Eigener LKW|Frei Haus.|N-L--|Arial|10|---L",
                                              u"EVA|LKW|000|ÿÿÿ|NULL|Wir holen ab.|-E-|Courier|14|B",
                                              u"VSA|LKW|000|ENG|Own truck|Free delivery.|N|Courier|14|B",
                                              u"VSA|LKW|001|ÿÿÿ|NULL|Zusatz|N|Courier|14|B"));
}

TEST_F(Versandarten, AFailedHeadRowDoesNotStopTheBlock) {
  fail(ado::Operation::Update, u"Versandtexte", error::IntegrityViolation);
  show(4, {u""}, [&] {
    enter(u"NEU");
    type(u"Neu");
    press(key::F9);
  });
  EXPECT_EQ(head().size(), 2u);
  EXPECT_THAT(blocks(), Contains(u"VSA|NEU|000|ÿÿÿ|Neu|NULL|NBLR-|Arial|10|---L"));
}

TEST_F(Versandarten, AFailedColumnOfTheBlockLeavesTheOthers) {
  show(4, {u"LKW"}, [&] {
    put(u"txtLangtext", u"Anders.");
    // Kurztext, Langtext, Schriftart, Schriftgröße, Schriftstil, WoDrucken: the first of them.
    fail(ado::Operation::Field, u"Textbausteine WHERE Textart =", error::ProviderFailure, 1);
    click(u"cmdOK");
  });
  EXPECT_THAT(blocks(), Contains(u"VSA|LKW|000|ÿÿÿ|NULL|Anders.|N-L--|Arial|10|---L"));
}

TEST_F(Versandarten, DeletesHeadRowAndBlockOfTheMarkedRow) {
  execute(
      u"INSERT INTO Textbausteine VALUES ('VSA', 'LKW', '000', 'ENG', NULL, 'Free.', 'N', 'Arial', 10, "
      u"'---L')");
  show(4, {u"LKW"}, [&] {
    click(u"cmdNew");
    type(u"PAKET");
    form().control(u"tdblShow").SetFocus();
    operations.clear();
    expectDeleteQuestion(MsgBoxResult::Yes);
    press(key::Delete);
    EXPECT_THAT(statements(ado::Operation::Execute),
                ElementsAre(u"Delete From Versandtexte WHERE Versandart = 'LKW'",
                            u"DELETE FROM Textbausteine WHERE Textart ='VSA' AND TextNummer ='LKW' AND "
                            u"ZusatztextNummer ='000' AND SprachKZ ='ÿÿÿ'"));
  });
  EXPECT_THAT(head(), ElementsAre(u"PAKET|NULL|NULL|NULL"));
  EXPECT_THAT(keysOfBlocks(), ::testing::UnorderedElementsAre(u"EVA|LKW|ÿÿÿ", u"VSA|LKW|ENG"));
}

TEST_F(Versandarten, AHeadRowThatCannotBeDeletedKeepsItsBlock) {
  fail(ado::Operation::Execute, u"Delete From Versandtexte", error::IntegrityViolation);
  show(4, {u"LKW"}, [&] {
    operations.clear();
    deleteMarked();
    EXPECT_EQ(statements(ado::Operation::Execute).size(), 1u);
  });
  EXPECT_EQ(head().size(), 2u);
  EXPECT_THAT(keysOfBlocks(), Contains(u"VSA|LKW|ÿÿÿ"));
}

TEST_F(Versandarten, AHyphenIsAnOrdinaryKey) {
  show(4, {u""}, [&] {
    enter(u"-");
    press(key::F9);
    EXPECT_EQ(get(u"tdblShow", u"Text"), Variant(u"-"));
  });
  EXPECT_THAT(keysOfBlocks(), Contains(u"VSA|-|ÿÿÿ"));
}

TEST_F(Versandarten, KeysWithSignsBlanksAndForeignLettersAreSafe) {
  show(4, {u""}, [&] {
    for (const StringView typed : {u"a'b", u"ЖЩЮ", u"a b", u"' OR ''='"}) {
      enter(typed);
      press(key::F9);
    }
  });
  EXPECT_THAT(rows(u"SELECT Versandart FROM Versandtexte"),
              ::testing::UnorderedElementsAre(u"LKW", u"PAKET", u"ЖЩЮ", u"a b"));
  EXPECT_THAT(keysOfBlocks(), ::testing::UnorderedElementsAre(u"EVA|LKW|ÿÿÿ", u"VSA|LKW|ÿÿÿ", u"VSA|ЖЩЮ|ÿÿÿ",
                                                              u"VSA|a b|ÿÿÿ"));
}

TEST_F(Versandarten, ABlockOfNullsBesideItsTextShowsNoMarks) {
  execute(u"UPDATE Textbausteine SET WoDrucken=NULL, Schriftart=NULL, Schriftgröße=NULL");
  show(4, {u"LKW"}, [&] {
    EXPECT_EQ(text(u"txtLangtext"), u"Frei Haus.");
    EXPECT_EQ(pressed(), u"");
  });
}

TEST_F(Versandarten, MissingAndExtraColumnsDoNoHarm) {
  execute(
      u"ALTER TABLE Textbausteine DROP COLUMN Schriftstil; ALTER TABLE Textbausteine ADD COLUMN Farbe "
      u"INTEGER;"
      u"ALTER TABLE Versandtexte ADD COLUMN Gewicht INTEGER");
  show(4, {u"LKW"}, [&] {
    put(u"txtKeyText", u"LKW");
    press(key::F9);
  });
  EXPECT_THAT(head(), Contains(u"LKW|LKW|Frachtbrief A4|NULL|NULL"));
  EXPECT_THAT(blocks(), Contains(u"VSA|LKW|000|ÿÿÿ|LKW|Frei Haus.|N-L--|Arial|10|NULL"));
}

TEST_F(Versandarten, WithoutTextBlocksTheHeadRowIsKeptAllTheSame) {
  execute(u"DROP TABLE Textbausteine");
  show(4, {u"LKW"}, [&] {
    EXPECT_EQ(text(u"txtKeyText"), u"Eigener LKW");
    EXPECT_EQ(pressed(), u"AN AB LS RG ");
    put(u"txtKeyText", u"LKW");
    press(key::F9);
  });
  EXPECT_THAT(head(), Contains(u"LKW|LKW|Frachtbrief A4|NULL"));
}

TEST_F(Versandarten, AnyOperationMayFail) {
  failEachOperation([&] { show(4, {u"LKW"}, [&] { workThrough(u"NEU"); }); });
}

// ---- purchase

TEST_F(Versandarten, ShowsTheFieldsOfThePurchaseSide) {
  show(18, {u"LKW"}, [&] {
    EXPECT_EQ(form().Caption(), u"Versandarten bearbeiten");
    EXPECT_EQ(form().Height(), 4080 + 345 + 600);
    EXPECT_THAT(shownControls(),
                ElementsAre(u"tdblShow", u"lblKey", u"txtKey", u"lblKeyText", u"txtKeyText", u"lblLangtext",
                            u"txtLangtext", u"lblWoDrucken", u"tglDruckAF", u"tglDruckBS", u"tglDruckLM",
                            u"cmdOK", u"cmdCancel", u"cmdNew", u"cmdDelete"));
    EXPECT_EQ(form().control(u"lblWoDrucken").Left(), 3855);
    EXPECT_EQ(text(u"txtLangtext"), u"Wir holen ab.");
    EXPECT_EQ(pressed(), u"BS ");
  });
  EXPECT_THAT(statements(ado::Operation::Open).front(), u"SELECT * FROM VersandtexteEK ORDER BY Versandart");
}

TEST_F(Versandarten, ThePurchaseSideWritesThreeMarksAndItsOwnBlock) {
  show(18, {u"LKW"}, [&] {
    click(u"tglDruckAF");
    click(u"cmdOK");
    enter(u"NEU");
    EXPECT_EQ(pressed(), u"AF BS LM ");
    press(key::F9);
  });
  EXPECT_THAT(blocks(), ::testing::UnorderedElementsAre(
                            u"VSA|LKW|000|ÿÿÿ|NULL|Frei Haus.|NL|NULL|NULL|NULL",
                            u"EVA|LKW|000|ÿÿÿ|LKW des Lieferanten|Wir holen ab.|AE-|Arial|10|---L",
                            u"EVA|NEU|000|ÿÿÿ|NULL|NULL|AEM|Arial|10|---L"));
  show(18, {u"LKW"}, [&] {
    operations.clear();
    deleteMarked();
    EXPECT_THAT(statements(ado::Operation::Execute),
                ElementsAre(u"Delete From VersandtexteEK WHERE Versandart = 'LKW'",
                            u"DELETE FROM Textbausteine WHERE Textart ='EVA' AND TextNummer ='LKW' AND "
                            u"ZusatztextNummer ='000' AND SprachKZ ='ÿÿÿ'"));
  });
  EXPECT_THAT(keysOfBlocks(), ::testing::UnorderedElementsAre(u"VSA|LKW|ÿÿÿ", u"EVA|NEU|ÿÿÿ"));
}

}  // namespace
}  // namespace zqn::testing
