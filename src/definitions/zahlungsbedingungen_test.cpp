// SPDX-License-Identifier: MIT
//
// Payment terms, kind 3: the seven numbers, the sentence that is built of them, and their row.
#include "runtime/convert.h"
#include "testing/payment_terms.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;

class Zahlungsbedingungen : public PaymentTerms {
 protected:
  std::vector<String> row(StringView key) {
    return rows(u"SELECT * FROM Zahlungsbedingungen WHERE ZahlBedSchl='" + String(key) + u"'");
  }
};

TEST_F(Zahlungsbedingungen, ShowsItsFieldsAndCaptions) {
  show(3, {u"14"}, [&] {
    EXPECT_EQ(form().Caption(), u"Zahlungsbedingungen bearbeiten");
    EXPECT_EQ(form().Height(), 4440 + 345 + 600);
    EXPECT_EQ(get(u"tdblShow", u"Columns(0).Caption"), Variant(u"Schlüssel"));
    EXPECT_EQ(get(u"tdblShow", u"Columns(1).Caption"), Variant(u"Kurztext:"));
    EXPECT_EQ(get(u"txtKey", u"MaxLength"), Variant(std::int32_t{3}));
    EXPECT_FALSE(enabled(u"txtKeyText"));
    EXPECT_EQ(CDbl(get(u"txtKeyText", u"BackColor")), 1.0 * 0x8000000F);
    const std::vector<String> shown = shownControls();
    EXPECT_EQ(shown.size(), 28u);
    EXPECT_THAT(shown, ::testing::Not(
                           ::testing::Contains(::testing::AnyOf(u"txtZusatz", u"cbo(0)", u"chk1", u"fra"))));
  });
}

TEST_F(Zahlungsbedingungen, EachDigitRebuildsTheSentence) {
  show(3, {u"00"}, [&] {
    EXPECT_EQ(text(u"txtKeyText"), u"sofort rein Netto.");
    put(u"tdbnSkTage(0)", u"1");
    EXPECT_EQ(text(u"txtKeyText"), u"sofort rein Netto.");
    put(u"tdbnPercent(0)", u"2");
    EXPECT_EQ(text(u"txtKeyText"), u"1 Tag 2%.");
    put(u"tdbnSkTage(0)", u"14");
    EXPECT_EQ(text(u"txtKeyText"), u"14 Tage 2%.");
    put(u"tdbnNettoTage", u"3");
    EXPECT_EQ(text(u"txtKeyText"), u"14 Tage 2%, 3 Tage netto.");
    type(u"0");
    EXPECT_EQ(text(u"txtKeyText"), u"14 Tage 2%, 30 Tage netto.");
  });
}

TEST_F(Zahlungsbedingungen, AHalfPercentIsNoDiscountAndOneAndAHalfIs) {
  show(3, {u"00"}, [&] {
    put(u"tdbnPercent(0)", u"0,5");
    EXPECT_EQ(text(u"txtKeyText"), u"sofort rein Netto.");
    press(key::Tab);
    put(u"tdbnPercent(0)", u"1.5");
    EXPECT_EQ(text(u"txtKeyText"), u"0 Tage 1,5%.");
  });
}

TEST_F(Zahlungsbedingungen, SavesTheNumbersAndTheirSentence) {
  show(3, {u""}, [&] {
    enter(u"N1");
    put(u"tdbnSkTage(0)", u"10");
    put(u"tdbnPercent(0)", u"3");
    put(u"tdbnSkTage(1)", u"20");
    put(u"tdbnPercent(1)", u"2");
    put(u"tdbnNettoTage", u"30");
    click(u"cmdOK");
    EXPECT_EQ(get(u"tdblShow", u"Text"), Variant(u"N1"));
  });
  EXPECT_THAT(row(u"N1"), ElementsAre(u"N1|10 Tage 3%, 20 Tage 2%, 30 Tage netto.|10|20|0|30|3|2|0"));
}

TEST_F(Zahlungsbedingungen, AllSevenNumbersAreStoredAndReadAgain) {
  show(3, {u""}, [&] {
    enter(u"N1");
    put(u"tdbnSkTage(0)", u"7");
    put(u"tdbnPercent(0)", u"4");
    put(u"tdbnSkTage(1)", u"14");
    put(u"tdbnPercent(1)", u"3");
    put(u"tdbnSkTage(2)", u"21");
    put(u"tdbnPercent(2)", u"2,5");
    put(u"tdbnNettoTage", u"60");
    click(u"cmdOK");
    mark(0);
    EXPECT_EQ(number(u"tdbnSkTage(2)"), Variant(0.0));
    put(u"txtKey", u"N1");
    press(key::Tab);
    EXPECT_EQ(text(u"txtKeyText"), u"7 Tage 4%, 14 Tage 3%, 21 Tage 2,5%, 60 Tage netto.");
    EXPECT_EQ((std::vector{number(u"tdbnSkTage(0)"), number(u"tdbnPercent(0)"), number(u"tdbnSkTage(1)"),
                           number(u"tdbnPercent(1)"), number(u"tdbnSkTage(2)"), number(u"tdbnPercent(2)"),
                           number(u"tdbnNettoTage")}),
              (std::vector<Variant>{7.0, 4.0, 14.0, 3.0, 21.0, 2.5, 60.0}));
  });
  EXPECT_THAT(row(u"N1"),
              ElementsAre(u"N1|7 Tage 4%, 14 Tage 3%, 21 Tage 2,5%, 60 Tage netto.|7|14|21|60|4|3|2,5"));
}

TEST_F(Zahlungsbedingungen, AnEmptyTextIsStoredAsOne) {
  execute(u"INSERT INTO Zahlungsbedingungen (ZahlBedSchl) VALUES ('NU')");
  show(3, {u"NU"}, [&] { click(u"cmdOK"); });
  EXPECT_THAT(row(u"NU"), ElementsAre(u"NU||0|0|0|0|0|0|0"));
}

TEST_F(Zahlungsbedingungen, AColumnThatCannotBeWrittenKeepsItsValueAndLeavesTheOthers) {
  show(3, {u"14"}, [&] {
    put(u"tdbnNettoTage", u"15");
    fail(ado::Operation::Field, u"Zahlungsbedingungen", error::ProviderFailure, 1);
    press(key::F9);
  });
  EXPECT_THAT(row(u"14"), ElementsAre(u"14|14 Tage netto.|0|0|0|15|0|0|0"));
}

TEST_F(Zahlungsbedingungen, AnEmptiedNumberIsStoredAsNull) {
  show(3, {u"14"}, [&] {
    click(u"tdbnNettoTage");
    press(key::Delete);
    EXPECT_TRUE(number(u"tdbnNettoTage").isNull());
    click(u"cmdOK");
    EXPECT_EQ(number(u"tdbnNettoTage"), Variant(0.0)) << "and read as 0";
  });
  EXPECT_THAT(row(u"14"), ElementsAre(u"14|sofort rein Netto.|0|0|0|NULL|0|0|0"));
}

TEST_F(Zahlungsbedingungen, ARowOfNullsReadsAsZerosUnderItsStoredText) {
  execute(u"INSERT INTO Zahlungsbedingungen (ZahlBedSchl) VALUES ('NU')");
  show(3, {u"NU"}, [&] {
    for (const StringView field : {u"tdbnSkTage(0)", u"tdbnSkTage(2)", u"tdbnPercent(1)", u"tdbnNettoTage"}) {
      EXPECT_EQ(number(field), Variant(0.0));
    }
    EXPECT_EQ(text(u"txtKeyText"), u"");
  });
}

TEST_F(Zahlungsbedingungen, TheStoredTextIsShownNotARebuiltOne) {
  execute(u"UPDATE Zahlungsbedingungen SET Kurztext='handgeschrieben' WHERE ZahlBedSchl='S1'");
  show(3, {u"S1"}, [&] { EXPECT_EQ(text(u"txtKeyText"), u"handgeschrieben"); });
}

TEST_F(Zahlungsbedingungen, NewAndAKnownKeyOverwriteThatRow) {
  show(3, {u"00"}, [&] {
    click(u"cmdNew");
    type(u"14");
    press(key::F9);
  });
  EXPECT_THAT(row(u"14"), ElementsAre(u"14|sofort rein Netto.|0|0|0|0|0|0|0"));
}

TEST_F(Zahlungsbedingungen, TheKeyOfAKnownRowIsNeverRewritten) {
  show(3, {u"S1"}, [&] {
    click(u"txtKey");
    type(u"s1");
    press(key::F9);
  });
  EXPECT_THAT(rows(u"SELECT ZahlBedSchl FROM Zahlungsbedingungen WHERE ZahlBedSchl='S1'"),
              ElementsAre(u"S1"));
}

TEST_F(Zahlungsbedingungen, AHyphenIsAnOrdinaryKey) {
  show(3, {u""}, [&] {
    enter(u"-");
    press(key::F9);
    EXPECT_EQ(get(u"tdblShow", u"Text"), Variant(u"-"));
  });
  EXPECT_EQ(row(u"-").size(), 1u);
}

TEST_F(Zahlungsbedingungen, DeletesTheMarkedRowWhateverTheKeySays) {
  show(3, {u"14"}, [&] {
    click(u"cmdNew");
    type(u"S1");
    expectDeleteQuestion(MsgBoxResult::Yes);
    desktop.press(KeyStroke::ofCode(key::F9 + 100));  // a key without meaning: the key field keeps the focus
    form().control(u"tdblShow").SetFocus();
    press(key::Delete);
  });
  EXPECT_TRUE(row(u"14").empty());
  EXPECT_EQ(row(u"S1").size(), 1u);
}

TEST_F(Zahlungsbedingungen, AFailedDeleteIsSilent) {
  fail(ado::Operation::Execute, u"Delete From", error::IntegrityViolation);
  show(3, {u"14"}, [&] {
    expectDeleteQuestion(MsgBoxResult::Yes);
    click(u"cmdDelete");
  });
  EXPECT_EQ(row(u"14").size(), 1u);
}

TEST_F(Zahlungsbedingungen, KeysWithSignsBlanksAndForeignLettersAreSafe) {
  show(3, {u""}, [&] {
    for (const StringView key : {u"a'b", u"';-", u"ЖЩЮ", u"ßẞé", u"%_*", u"a b", u"\"x\"", u"''' "}) {
      enter(key);
      press(key::F9);
    }
  });
  EXPECT_THAT(rows(u"SELECT ZahlBedSchl FROM Zahlungsbedingungen WHERE ZahlBedSchl NOT IN ('00','14','S1')"),
              ::testing::UnorderedElementsAre(u"ЖЩЮ", u"ßẞé", u"%_*", u"a b", u"\"x\""));
}

TEST_F(Zahlungsbedingungen, AMissingTableOrExtraColumnsDoNoHarm) {
  execute(u"ALTER TABLE Zahlungsbedingungen ADD COLUMN Zusatz VARCHAR(10)");
  show(3, {u"14"}, [&] {
    put(u"tdbnNettoTage", u"15");
    press(key::F9);
  });
  EXPECT_THAT(row(u"14"), ElementsAre(u"14|15 Tage netto.|0|0|0|15|0|0|0|NULL"));
  execute(u"DROP TABLE Zahlungsbedingungen");
  EXPECT_EQ(show(3, {u"14"},
                 [&] {
                   EXPECT_EQ(text(u"txtKey"), u"14");
                   press(key::F9);
                   press(key::F10);
                 }),
            Variant(u"14"));
}

TEST_F(Zahlungsbedingungen, ANumberBeyondTheMaskSurvivesASave) {
  execute(u"UPDATE Zahlungsbedingungen SET NettoTage=123456 WHERE ZahlBedSchl='14'");
  show(3, {u"14"}, [&] {
    EXPECT_EQ(number(u"tdbnNettoTage"), Variant(123456.0));
    put(u"tdbnSkTage(0)", u"7");
    press(key::F9);
  });
  EXPECT_THAT(rows(u"SELECT SkontoTage1, NettoTage FROM Zahlungsbedingungen"),
              ::testing::Contains(u"7|123456"));
}

}  // namespace
}  // namespace zqn::testing
