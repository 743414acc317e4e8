// SPDX-License-Identifier: MIT
//
// The payment type records on the generic form, kinds 1 and 2.
#include "testing/text_blocks.h"

namespace zqn::testing {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;

class PaymentTypes : public TextBlocks {
 protected:
  PaymentTypes() {
    for (const StringView table : {u"Zahlungsarten", u"ZahlungsartenEK"}) {
      execute(u"CREATE TABLE " + String(table) +
              u" (Zahlungsart VARCHAR(15) COLLATE ZQN_TEXT NOT NULL PRIMARY KEY, Kurztext VARCHAR(30), "
              u"ZahlungsartFibu "
              u"VARCHAR(10));INSERT INTO " +
              String(table) + u" VALUES ('BAR', 'Barzahlung', '-');INSERT INTO " + String(table) +
              u" VALUES ('LAS', 'Lastschrift', 'E');INSERT INTO " + String(table) +
              u" VALUES ('UEB', NULL, NULL)");
    }
    block(u"ZAA", u"BAR", u"Betrag erhalten.", u"---R----");
    block(u"EZA", u"BAR", u"Zahlung bar.", u"------E-");
  }
  std::vector<String> head(StringView table = u"Zahlungsarten") {
    return rows(u"SELECT * FROM " + String(table) + u" ORDER BY 1");
  }
  Variant showGeneric(std::int32_t kind, VariantArray handedIn, const std::function<void()>& acts) {
    return show(kind, std::move(handedIn), acts, Through::GenericForm);
  }
};

// ---- sales

TEST_F(PaymentTypes, ShowTheFieldsOfTheSalesSide) {
  showGeneric(1, {u"LAS"}, [&] {
    EXPECT_EQ(form().Name(), u"frmDialog");
    EXPECT_EQ(form().Caption(), u"Zahlungsarten bearbeiten");
    EXPECT_EQ(form().Height(), 4840 + 345 + 600);
    EXPECT_THAT(shownControls(),
                ElementsAre(u"tdblShow", u"lblKey", u"txtKey", u"lblKeyText", u"txtKeyText", u"lblZusatz",
                            u"txtZusatz", u"lblLangtext", u"txtLangtext", u"lblWoDrucken", u"tglDruckAN",
                            u"tglDruckAB", u"tglDruckLS", u"tglDruckRG", u"tglDruckGS", u"chk1", u"cmdOK",
                            u"cmdCancel", u"cmdNew", u"cmdDelete"));
    EXPECT_EQ(get(u"lblZusatz", u"Caption"), Variant(u"")) << "the box stands without a label";
    EXPECT_EQ(get(u"chk1", u"Caption"), Variant(u"ohne FiBu-Übergabe (z.B. Barverkauf)"));
    const Control& box = form().control(u"chk1");
    EXPECT_THAT((std::vector{box.Left(), box.Top(), box.Width()}), ElementsAre(120, 3570 + 713 + 160, 6195));
    EXPECT_EQ(form().control(u"txtLangtext").Height(), 713);
    EXPECT_EQ(form().control(u"txtKeyText").Width(), 3975);
    EXPECT_EQ(form().control(u"lblWoDrucken").Left(), 3045);
    EXPECT_EQ(get(u"txtKey", u"MaxLength"), Variant(std::int32_t{15}));
    EXPECT_EQ(get(u"txtKeyText", u"MaxLength"), Variant(std::int32_t{30}));
    EXPECT_EQ(get(u"txtZusatz", u"MaxLength"), Variant(std::int32_t{3}));
    EXPECT_EQ(text(u"txtZusatz"), u"E");
  });
  EXPECT_THAT(
      statements(ado::Operation::Open),
      ElementsAre(u"SELECT * FROM Zahlungsarten ORDER BY Zahlungsart",
                  u"SELECT * FROM Zahlungsarten WHERE Zahlungsart = 'LAS'", blockQuery(u"ZAA", u"LAS"),
                  u"SELECT * FROM Zahlungsarten WHERE Zahlungsart = 'LAS'", blockQuery(u"ZAA", u"LAS")));
}

TEST_F(PaymentTypes, AHyphenAsCodeTicksTheBoxAndSwitchesTheCodeOff) {
  showGeneric(1, {u"BAR"}, [&] {
    EXPECT_EQ(get(u"chk1", u"Value"), Variant(std::int32_t{1}));
    EXPECT_EQ(text(u"txtZusatz"), u"");
    EXPECT_FALSE(enabled(u"txtZusatz"));
    EXPECT_EQ(get(u"txtZusatz", u"BackColor"), get(u"chk1", u"BackColor"));
    mark(1);
    EXPECT_EQ(get(u"chk1", u"Value"), Variant(std::int32_t{0}));
    EXPECT_TRUE(enabled(u"txtZusatz"));
    EXPECT_EQ(get(u"txtZusatz", u"BackColor"), get(u"txtLangtext", u"BackColor"));
    EXPECT_NE(get(u"txtZusatz", u"BackColor"), get(u"chk1", u"BackColor"));
    mark(2);
    EXPECT_EQ(get(u"chk1", u"Value"), Variant(std::int32_t{0})) << "Null is no hyphen";
    EXPECT_TRUE(enabled(u"txtZusatz"));
  });
}

TEST_F(PaymentTypes, TheCodeTakesItsColoursFromItsNeighbours) {
  showGeneric(1, {u"LAS"}, [&] {
    form().control(u"chk1").BackColor(0x00112233);
    form().control(u"txtLangtext").BackColor(0x00445566);
    const Control& code = form().control(u"txtZusatz");
    click(u"chk1");
    EXPECT_EQ(code.BackColor(), 0x00112233u);
    click(u"chk1");
    EXPECT_EQ(code.BackColor(), 0x00445566u);
    mark(0);
    EXPECT_EQ(code.BackColor(), 0x00112233u) << "a record without transfer";
    mark(1);
    EXPECT_EQ(code.BackColor(), 0x00445566u) << "and one with";
  });
}

TEST_F(PaymentTypes, TheKeyOfAKnownRecordIsNeverRewritten) {
  showGeneric(1, {u"BAR"}, [&] {
    put(u"txtKey", u"bar");
    press(key::F9);
  });
  EXPECT_THAT(head(), Contains(u"BAR|Barzahlung|-"));
  EXPECT_THAT(blocks(), Contains(u"ZAA|BAR|000|ÿÿÿ|Barzahlung|Betrag erhalten.|---R-|Arial|10|---L"));
}

TEST_F(PaymentTypes, ATypedHyphenReadsBackWithTheBoxTicked) {
  showGeneric(1, {u"LAS"}, [&] {
    put(u"txtZusatz", u"-");
    click(u"cmdOK");
    EXPECT_EQ(get(u"chk1", u"Value"), Variant(std::int32_t{1}));
    EXPECT_EQ(text(u"txtZusatz"), u"");
    EXPECT_FALSE(enabled(u"txtZusatz"));
  });
  EXPECT_THAT(head(), Contains(u"LAS|Lastschrift|-"));
}

TEST_F(PaymentTypes, WhileTheBoxIsTickedTheCodeIsNotStoredButStaysInItsField) {
  showGeneric(1, {u"LAS"}, [&] {
    click(u"chk1");
    EXPECT_FALSE(enabled(u"txtZusatz"));
    EXPECT_EQ(text(u"txtZusatz"), u"E");
    click(u"chk1");
    EXPECT_TRUE(enabled(u"txtZusatz"));
    EXPECT_EQ(text(u"txtZusatz"), u"E");
    click(u"chk1");
    click(u"cmdOK");
  });
  EXPECT_THAT(head(), Contains(u"LAS|Lastschrift|-"));
}

TEST_F(PaymentTypes, NewAfterATickedRecordStartsUnticked) {
  showGeneric(1, {u"BAR"}, [&] {
    EXPECT_EQ(pressed(), u"RG ");
    enter(u"NEU");
    EXPECT_EQ(get(u"chk1", u"Value"), Variant(std::int32_t{0}));
    EXPECT_TRUE(enabled(u"txtZusatz"));
    EXPECT_EQ(pressed(), u"AN AB LS RG ");
    type(u"Neu");
    put(u"txtZusatz", u"ABCD");
    put(u"txtLangtext", u"Lang");
    press(key::F9);
  });
  EXPECT_THAT(head(), Contains(u"NEU|Neu|ABC"));
  EXPECT_THAT(blocks(), Contains(u"ZAA|NEU|000|ÿÿÿ|Neu|Lang|NBLR-|Arial|10|---L"));
}

TEST_F(PaymentTypes, EmptyFieldsAreStoredAsNull) {
  showGeneric(1, {u"LAS"}, [&] {
    for (const StringView field : {u"txtKeyText", u"txtZusatz"}) {
      click(field);
      press(key::Delete);
    }
    click(u"cmdOK");
  });
  EXPECT_THAT(head(), Contains(u"LAS|NULL|NULL"));
  EXPECT_THAT(blocks(), Contains(u"ZAA|LAS|000|ÿÿÿ|NULL|NULL|NBLR-|Arial|10|---L"));
}

TEST_F(PaymentTypes, ALongTextOfSeveralLinesIsKeptAsTyped) {
  showGeneric(1, {u"BAR"}, [&] {
    block(u"ZAA", u"UEB", u"Erste Zeile\r\nZweite Zeile", u"N");
    mark(2);
    EXPECT_EQ(text(u"txtLangtext"), u"Erste Zeile\r\nZweite Zeile");
    click(u"cmdOK");
  });
  EXPECT_THAT(blocks(), Contains(u"ZAA|UEB|000|ÿÿÿ|NULL|Erste Zeile\r\nZweite Zeile|N----|Arial|10|---L"));
}

TEST_F(PaymentTypes, DeletingTakesTheBlockOfTheSameKindOnly) {
  showGeneric(1, {u"BAR"}, [&] {
    operations.clear();
    deleteMarked();
    EXPECT_THAT(statements(ado::Operation::Execute),
                ElementsAre(u"Delete From Zahlungsarten WHERE Zahlungsart = 'BAR'",
                            u"DELETE FROM Textbausteine WHERE Textart = 'ZAA' AND TextNummer ='BAR' AND "
                            u"ZusatztextNummer ='000' AND SprachKZ ='ÿÿÿ'"));
  });
  EXPECT_THAT(keysOfBlocks(), ElementsAre(u"EZA|BAR|ÿÿÿ"));
  EXPECT_EQ(head(u"ZahlungsartenEK").size(), 3u);
}

TEST_F(PaymentTypes, AHeadRowThatCannotBeDeletedKeepsItsBlock) {
  fail(ado::Operation::Execute, u"Delete From Zahlungsarten", error::IntegrityViolation);
  showGeneric(1, {u"BAR"}, [&] { deleteMarked(); });
  EXPECT_EQ(keysOfBlocks().size(), 2u);
}

TEST_F(PaymentTypes, AMissingColumnLeavesTheFieldsBehindItAsTheyWere) {
  execute(u"ALTER TABLE Zahlungsarten DROP COLUMN ZahlungsartFibu");
  showGeneric(1, {u"BAR"}, [&] {
    EXPECT_EQ(text(u"txtKeyText"), u"Barzahlung");
    EXPECT_EQ(text(u"txtLangtext"), u"") << "reading ends at the missing column";
  });
}

TEST_F(PaymentTypes, AnyOperationMayFail) {
  failEachOperation([&] { showGeneric(1, {u"BAR"}, [&] { workThrough(u"NEU"); }); });
}

// ---- purchase

TEST_F(PaymentTypes, ShowTheFieldsOfThePurchaseSide) {
  showGeneric(2, {u"BAR"}, [&] {
    EXPECT_EQ(form().Caption(), u"Zahlungsarten bearbeiten");
    EXPECT_EQ(form().Height(), 4440 + 345 + 600);
    EXPECT_THAT(shownControls(),
                ElementsAre(u"tdblShow", u"lblKey", u"txtKey", u"lblKeyText", u"txtKeyText", u"lblZusatz",
                            u"txtZusatz", u"lblLangtext", u"txtLangtext", u"lblWoDrucken", u"tglDruckAF",
                            u"tglDruckBS", u"tglDruckLM", u"cmdOK", u"cmdCancel", u"cmdNew", u"cmdDelete"));
    EXPECT_EQ(form().control(u"lblWoDrucken").Left(), 3855);
    EXPECT_EQ(form().control(u"txtLangtext").Height(), 713);
    EXPECT_EQ(form().control(u"txtKeyText").Width(), 3975);
    EXPECT_EQ(pressed(), u"BS ");
  });
}

TEST_F(PaymentTypes, OnThePurchaseSideAHyphenIsACodeAsAnyOther) {
  showGeneric(2, {u"BAR"}, [&] {
    EXPECT_EQ(text(u"txtZusatz"), u"-");
    EXPECT_TRUE(enabled(u"txtZusatz"));
    EXPECT_EQ(text(u"txtLangtext"), u"Zahlung bar.");
    click(u"cmdOK");
  });
  EXPECT_THAT(head(u"ZahlungsartenEK"), Contains(u"BAR|Barzahlung|-"));
  EXPECT_THAT(blocks(), Contains(u"EZA|BAR|000|ÿÿÿ|Barzahlung|Zahlung bar.|-E-|Arial|10|---L"));
}

TEST_F(PaymentTypes, ThePurchaseSideDeletesItsOwnBlock) {
  showGeneric(2, {u"BAR"}, [&] {
    operations.clear();
    deleteMarked();
    EXPECT_THAT(statements(ado::Operation::Execute),
                ElementsAre(u"Delete From ZahlungsartenEK WHERE Zahlungsart = 'BAR'",
                            u"DELETE FROM Textbausteine WHERE Textart = 'EZA' AND TextNummer ='BAR' AND "
                            u"ZusatztextNummer ='000' AND SprachKZ ='ÿÿÿ'"));
  });
  EXPECT_THAT(keysOfBlocks(), ElementsAre(u"ZAA|BAR|ÿÿÿ"));
}

TEST_F(PaymentTypes, MultiselectAndRightsAreThoseOfTheKind) {
  session->SaveSetting(u"ZQNComDlg", u"AdminsOnly", u"1", Missing, zqnSaveAsGlobalSetting);
  expectBox(u"Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu speichern.",
            u"TALVEX Software", msgbox::Information);
  std::vector<Variant> heard;
  dialog.Multiselect(true);
  dialog.DblClick = [&](const Variant& result) { heard.push_back(result); };
  EXPECT_EQ(showGeneric(2, {u"BAR"},
                        [&] {
                          click(u"cmdOK");
                          doubleClick(1, u"tdblShow");
                        }),
            Variant(u"LAS"));
  EXPECT_THAT(heard, ElementsAre(Variant(u"LAS")));
}

}  // namespace
}  // namespace zqn::testing
