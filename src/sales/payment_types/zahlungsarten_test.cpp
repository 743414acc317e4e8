// SPDX-License-Identifier: MIT
//
// The payment types of both sides with their text blocks.
#include "sales/payment_types/zahlungsarten.h"

#include "testing/zahlungsarten.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;

// ---- reading

TEST_F(Zahlungsarten, AreListedForEachSide) {
  show(1, {u"LAS"}, [&] {
    EXPECT_EQ(form().Caption(), u"Zahlungsarten");
    EXPECT_THAT(listRows(), ElementsAre(u"BAR|Barzahlung", u"LAS|Lastschrift", u"UEB|Überweisung"));
  });
  show(2, {u""}, [&] { EXPECT_THAT(listRows(), ElementsAre(u"SCH|Scheck")); });
}

TEST_F(Zahlungsarten, ARowShowsItsTextBlockAndItsMarks) {
  show(1, {u"LAS"}, [&] {
    EXPECT_EQ(text(u"txtKurztext"), u"Lastschrift");
    EXPECT_EQ(text(u"ZahlungsartFibu"), u"E");
    EXPECT_EQ(text(u"txtLangtext"), u"Wir buchen ab.");
    EXPECT_EQ(toggles(), "AN LS RG");
    EXPECT_EQ(number(u"chkDefaultZahlungsbedSchl"), 1);
    EXPECT_EQ(terms(), Variant(u"14"));
    EXPECT_EQ(get(u"DefaultZahlungsbedSchl", u"EntryEnabled"), Variant(true));
    EXPECT_EQ(number(u"chkOhneFibu"), 0);
    EXPECT_EQ(number(u"chkOhneDruckSkonto"), 0);
  });
}

TEST_F(Zahlungsarten, ThePurchaseSideShowsItsOwnToggles) {
  show(2, {u"SCH"},
       [&] { EXPECT_EQ(toggles(), "(AN) AF BS") << "a mark of the other side ticks a hidden toggle"; });
  show(1, {u"LAS"}, [&] {
    for (const StringView hidden : {u"tglDruckAF", u"tglDruckBS", u"tglDruckLM"})
      EXPECT_FALSE(form().control(hidden).Visible());
  });
}

TEST_F(Zahlungsarten, BereichInSmallLettersIsThePurchaseSide) {
  frmZahlungsarten purchase;
  purchase.Connection = connection;
  purchase.Bereich = u"ek";
  purchase.SelectedKey = u"SCH";
  desktop.whenIdle([&] {
    EXPECT_EQ(text(u"txtKurztext"), u"Scheck");
    EXPECT_TRUE(form().control(u"tglDruckLM").Visible());
    form().closeBox();
  });
  purchase.ShowData();
}

TEST_F(Zahlungsarten, AnUnknownKeyIsPrintedEverywhereButOnCreditNotes) {
  show(1, {u"NEU"}, [&] {
    EXPECT_EQ(text(u"Schluessel"), u"NEU");
    EXPECT_EQ(toggles(), "AN AB LS RG (AF) (BS) (LM)");
  });
  show(2, {u"NEU"}, [&] { EXPECT_EQ(toggles(), "(AN) (AB) (LS) (RG) AF BS LM"); });
}

TEST_F(Zahlungsarten, AnUnknownKeyEmptiesAllFields) {
  show(1, {u"LAS"}, [&] {
    click(u"chkOhneDruckSkonto");
    click(u"chkOhneFibu");
    form().control(u"Schluessel").SetFocus();
    type(u"NEU");
    press(key::Tab);
    for (const StringView field : {u"txtKurztext", u"ZahlungsartFibu", u"txtLangtext"})
      EXPECT_EQ(text(field), u"") << toUtf8(field);
    for (const StringView box : {u"chkDefaultZahlungsbedSchl", u"chkOhneDruckSkonto", u"chkOhneFibu"})
      EXPECT_EQ(number(box), 0) << toUtf8(box);
    EXPECT_TRUE(terms().isNull());
    EXPECT_EQ(get(u"DefaultZahlungsbedSchl", u"EntryEnabled"), Variant(false));
    EXPECT_TRUE(enabled(u"ZahlungsartFibu"));
    EXPECT_EQ(text(u"Schluessel"), u"NEU");
  });
}

TEST_F(Zahlungsarten, TheTickOfTransferComesFromTheCodeAndFromNothingElse) {
  execute(u"UPDATE Zahlungsarten SET OhneFibu=1 WHERE Zahlungsart='LAS'");
  show(1, {u"LAS"}, [&] {
    EXPECT_EQ(number(u"chkOhneFibu"), 0);
    EXPECT_EQ(text(u"ZahlungsartFibu"), u"E");
  });
}

TEST_F(Zahlungsarten, BlanksAroundTheHyphenAndBlankTermsDoNotCount) {
  execute(
      u"UPDATE Zahlungsarten SET ZahlungsartFibu=' - ', DefaultZahlungsbedSchl='  ', OhneDruckSkonto=1 WHERE "
      u"Zahlungsart='LAS'");
  show(1, {u"LAS"}, [&] {
    EXPECT_EQ(number(u"chkOhneFibu"), 1);
    EXPECT_EQ(text(u"ZahlungsartFibu"), u"");
    EXPECT_EQ(number(u"chkDefaultZahlungsbedSchl"), 0);
    EXPECT_TRUE(terms().isNull());
    EXPECT_EQ(number(u"chkOhneDruckSkonto"), 1) << "every number but 0";
  });
}

TEST_F(Zahlungsarten, TheAccountingCodeOffersOneEntry) {
  show(1, {u"LAS"}, [&] {
    EXPECT_EQ(get(u"ZahlungsartFibu", u"ListCount"), Variant(std::int32_t{1}));
    EXPECT_EQ(get(u"ZahlungsartFibu", u"List(0)"), Variant(u"E"));
  });
}

TEST_F(Zahlungsarten, TheTermsOfferTheKeysOfTheirCatalogue) {
  show(1, {u"LAS"}, [&] {
    auto& combo = form().Get<zqCombo>(u"DefaultZahlungsbedSchl");
    combo.readEntries();
    ASSERT_EQ(combo.ListCount(), 1);
    EXPECT_EQ(combo.keyOf(0), u"14");
  });
}

TEST_F(Zahlungsarten, TickingTheTermsOpensTheirCombo) {
  show(1, {u"UEB"}, [&] {
    form().Get<zqCombo>(u"DefaultZahlungsbedSchl").readEntries();
    EXPECT_FALSE(form().control(u"DefaultZahlungsbedSchl").isUsable());
    click(u"chkDefaultZahlungsbedSchl");
    EXPECT_TRUE(form().control(u"DefaultZahlungsbedSchl").isUsable());
    form().control(u"DefaultZahlungsbedSchl").SetFocus();
    type(u"14");
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"Zahlungsarten", u"UEB"), u"Überweisung|0|NULL|14|0");
}

TEST_F(Zahlungsarten, AFieldThatGetsTheFocusIsSelected) {
  show(1, {u"LAS"}, [&] {
    form().control(u"txtKurztext").SetFocus();
    EXPECT_EQ(get(u"txtKurztext", u"SelLength"), Variant(std::int32_t{11}));
    form().control(u"Schluessel").SetFocus();
    EXPECT_EQ(get(u"Schluessel", u"SelLength"), Variant(std::int32_t{3}));
  });
}

TEST_F(Zahlungsarten, ARecordThatCannotBeReadLeavesTheFieldsAndTheButtonsFollowTheKey) {
  show(1, {u""}, [&] {
    EXPECT_FALSE(enabled(u"btnOK"));
    fail(ado::Operation::Open, u"WHERE Zahlungsart ='UEB'", error::ProviderFailure);
    form().control(u"Schluessel").SetFocus();
    type(u"UEB");
    press(key::Tab);
    EXPECT_EQ(text(u"txtKurztext"), u"");
    EXPECT_TRUE(enabled(u"btnOK"));
    EXPECT_TRUE(enabled(u"btnDelete"));
    fail(ado::Operation::Open, u"WHERE Zahlungsart ='BAR'", error::ProviderFailure);
    expectError(u"TDBList1_RowColChange", error::ProviderFailure);
    select(0);
  });
}

TEST_F(Zahlungsarten, ATextBlockThatCannotBeReadCountsAsNone) {
  fail(ado::Operation::Open, u"FROM Textbausteine", error::ProviderFailure, 2);
  show(1, {u"LAS"}, [&] {
    EXPECT_EQ(text(u"txtKurztext"), u"Lastschrift");
    EXPECT_EQ(text(u"txtLangtext"), u"");
    EXPECT_EQ(toggles(), "");
  });
}

TEST_F(Zahlungsarten, ARowWithoutATextBlockShowsNoMarks) {
  show(1, {u"UEB"}, [&] {
    EXPECT_EQ(toggles(), "");
    EXPECT_EQ(text(u"txtLangtext"), u"");
  });
}

TEST_F(Zahlungsarten, ABlockWithoutALongTextStillGivesItsMarks) {
  show(1, {u"BAR"}, [&] {
    EXPECT_EQ(toggles(), "RG");
    EXPECT_EQ(text(u"txtLangtext"), u"");
  });
}

TEST_F(Zahlungsarten, AHyphenIsTheTickWithoutTransferAndNullIsNot) {
  show(1, {u"BAR"}, [&] {
    EXPECT_EQ(number(u"chkOhneFibu"), 1);
    EXPECT_EQ(text(u"ZahlungsartFibu"), u"");
    EXPECT_FALSE(enabled(u"ZahlungsartFibu"));
    EXPECT_EQ(number(u"chkOhneDruckSkonto"), 1);
    select(2);
    EXPECT_EQ(number(u"chkOhneFibu"), 0);
    EXPECT_EQ(text(u"ZahlungsartFibu"), u"");
    EXPECT_TRUE(enabled(u"ZahlungsartFibu"));
    EXPECT_EQ(number(u"chkOhneDruckSkonto"), 0) << "Null is 0";
  });
}

// ---- writing

TEST_F(Zahlungsarten, ANewOneIsStoredWithItsTextBlock) {
  show(1, {u""}, [&] {
    enter(u"neu");
    type(u"  Neue Art ");
    form().control(u"txtLangtext").SetFocus();
    type(u"Zahlbar sofort.");
    click(u"tglDruckGS");
    press(key::F9);
    EXPECT_EQ(focus(), u"TDBList1");
  });
  EXPECT_EQ(row(u"Zahlungsarten", u"neu"), u"Neue Art|0|NULL|NULL|0");
  EXPECT_THAT(blocks(u"neu"), ElementsAre(u"ZAA|000|ÿÿÿ|  Neue Art |Zahlbar sofort.|NBLRG---|Arial|10|---L"));
}

TEST_F(Zahlungsarten, AKeyIsStoredAsItWasTypedAndAnEmptyTextAsAText) {
  show(2, {u""}, [&] {
    enter(u" q");
    click(u"btnOK");
  });
  EXPECT_EQ(rows(u"SELECT '[' || Zahlungsart || ']', Kurztext FROM ZahlungsartenEK WHERE Zahlungsart=' q'"),
            std::vector<String>{u"[ q]|NULL"});
  EXPECT_THAT(blocks(u" q"), ElementsAre(u"EZA|000|ÿÿÿ|||-----AEM|Arial|10|---L"));
}

TEST_F(Zahlungsarten, RowAndTextAreWrittenOneAfterTheOther) {
  for (const auto& [kind, name, table, textKind] :
       {std::tuple{1, u"LAS", u"Zahlungsarten", u"ZAA"}, {2, u"SCH", u"ZahlungsartenEK", u"EZA"}}) {
    show(kind, {name}, [&, key = String(name), from = String(table), block = String(textKind)] {
      const String rest =
          block + u"' AND TextNummer ='" + key + u"' AND ZusatztextNummer ='000' AND SprachKZ ='ÿÿÿ'";
      statements();
      click(u"btnOK");
      std::vector<String> all = statements();
      all.resize(2);
      EXPECT_THAT(all, ElementsAre(u"SELECT * FROM " + from + u" WHERE Zahlungsart ='" + key + u"'",
                                   u"Select * From Textbausteine Where Textart ='" + rest));
      expectDeleteQuestion();
      click(u"btnDelete");
      all = statements();
      all.resize(3);
      EXPECT_THAT(all, ElementsAre(u"DELETE FROM " + from + u" WHERE Zahlungsart ='" + key + u"'",
                                   u"DELETE FROM Textbausteine Where Textart ='" + rest,
                                   u"SELECT Zahlungsart, Kurztext FROM " + from +
                                       u" Where Zahlungsart<>'-' ORDER BY Zahlungsart"));
    });
  }
}

TEST_F(Zahlungsarten, ThePurchaseSideStoresItsOwnMarks) {
  show(2, {u"SCH"}, [&] {
    click(u"tglDruckLM");
    click(u"btnOK");
  });
  EXPECT_THAT(blocks(u"SCH"), ElementsAre(u"EZA|000|ÿÿÿ|Scheck|Per Scheck.|-----AEM|Arial|10|---L"));
  EXPECT_EQ(row(u"ZahlungsartenEK", u"SCH"), u"Scheck|0|S|NULL|0");
}

TEST_F(Zahlungsarten, TheFontOfABlockIsAlwaysTheSame) {
  show(1, {u"LAS"}, [&] { click(u"btnOK"); });
  EXPECT_THAT(blocks(u"LAS"), ElementsAre(u"ZAA|000|E|Debit|We debit.|N-------|Arial|10|---L",
                                          u"ZAA|000|ÿÿÿ|Lastschrift|Wir buchen ab.|N-LR----|Arial|10|---L"));
}

TEST_F(Zahlungsarten, WithoutTransferAHyphenIsStored) {
  show(1, {u"LAS"}, [&] {
    click(u"chkOhneFibu");
    EXPECT_FALSE(enabled(u"ZahlungsartFibu"));
    click(u"chkOhneDruckSkonto");
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"Zahlungsarten", u"LAS"), u"Lastschrift|1|-|14|-1");
}

TEST_F(Zahlungsarten, UntickedTermsAreStoredAsNull) {
  show(1, {u"LAS"}, [&] {
    click(u"chkDefaultZahlungsbedSchl");
    EXPECT_EQ(terms(), Variant(u"14"));
    EXPECT_EQ(get(u"DefaultZahlungsbedSchl", u"EntryEnabled"), Variant(false));
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"Zahlungsarten", u"LAS"), u"Lastschrift|0|E|NULL|0");
}

TEST_F(Zahlungsarten, TheAccountingCodeIsFreeText) {
  show(1, {u"UEB"}, [&] {
    form().control(u"ZahlungsartFibu").SetFocus();
    type(u"XY");
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"Zahlungsarten", u"UEB"), u"Überweisung|0|XY|NULL|0");
}

TEST_F(Zahlungsarten, ARowThatCannotBeSavedIsPassedOverAndItsTextIsWritten) {
  fail(ado::Operation::Update, u"FROM Zahlungsarten", error::ProviderFailure);
  show(1, {u"UEB"}, [&] {
    form().control(u"txtKurztext").SetFocus();
    type(u"Anders");
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"Zahlungsarten", u"UEB"), u"Überweisung|0|NULL|NULL|NULL");
  EXPECT_EQ(blocks(u"UEB").size(), 1u);
}

// ---- deleting and picking

TEST_F(Zahlungsarten, DeletingLeavesTextsOfOtherLanguagesAndFurtherTexts) {
  execute(
      u"INSERT INTO Textbausteine VALUES ('ZAA', 'LAS', '001', 'ÿÿÿ', 'Zweiter', 'Mehr.', '', 'Arial', 10, "
      u"'---L')");
  show(1, {u"LAS"}, [&] {
    expectDeleteQuestion();
    click(u"btnDelete");
    EXPECT_THAT(listRows(), ElementsAre(u"BAR|Barzahlung", u"UEB|Überweisung"));
  });
  EXPECT_THAT(blocks(u"LAS"), ElementsAre(u"ZAA|000|E|Debit|We debit.|N-------|Arial|10|---L",
                                          u"ZAA|001|ÿÿÿ|Zweiter|Mehr.||Arial|10|---L"));
}

TEST_F(Zahlungsarten, AFailingSecondStatementLeavesTheTextAndIsShown) {
  fail(ado::Operation::Execute, u"DELETE FROM Textbausteine", error::ProviderFailure);
  show(1, {u"LAS"}, [&] {
    expectDeleteQuestion();
    expectError(u"btnDelete_Click", error::ProviderFailure);
    click(u"btnDelete");
  });
  EXPECT_EQ(row(u"Zahlungsarten", u"LAS"), u"(fehlt)");
  EXPECT_EQ(blocks(u"LAS").size(), 2u);
}

TEST_F(Zahlungsarten, ADoubleClickPicksAndMultiselectStaysQuiet) {
  EXPECT_EQ(show(1, {u"LAS"}, [&] { doubleClick(0); }), Variant(u"BAR"));
  dialog.Multiselect(true);
  dialog.DblClick = [](const Variant&) { ADD_FAILURE() << "the host was told"; };
  EXPECT_EQ(show(1, {u"LAS"},
                 [&] {
                   doubleClick(0);
                   EXPECT_TRUE(form().Visible());
                 }),
            Variant(u"BAR"));
}

TEST_F(Zahlungsarten, TheFormItselfTellsOfAPickWithMultiselect) {
  std::vector<Variant> told;
  frmZahlungsarten sales;
  sales.Connection = connection;
  sales.Multiselect = true;
  sales.DblClick = [&](const Variant& key) { told.push_back(key); };
  during([&] { sales.ShowData(); },
         [&] {
           doubleClick(2);
           press(key::F9);
         });
  EXPECT_THAT(told, ElementsAre(Variant(u"UEB"), Variant(u"UEB")));
}

TEST_F(Zahlungsarten, EnterMovesOnAndF9PicksInTheList) {
  EXPECT_EQ(show(1, {u"BAR"},
                 [&] {
                   select(1);
                   press(key::Enter);
                   EXPECT_EQ(focus(), u"Schluessel");
                   press(key::F6);
                   EXPECT_EQ(text(u"Schluessel"), u"");
                   select(2);
                   press(key::F9);
                 }),
            Variant(u"UEB"));
}

TEST_F(Zahlungsarten, AFailureWhileFillingIsPassedOver) {
  fail(ado::Operation::Open, u"ORDER BY Zahlungsart", error::ProviderFailure);
  show(1, {u"LAS"}, [&] {
    EXPECT_TRUE(form().Visible());
    EXPECT_EQ(text(u"txtKurztext"), u"Lastschrift");
  });
  // A key that is no text cannot be assigned.
  show(1, {Variant(std::make_shared<Object>())}, [&] {
    EXPECT_TRUE(form().Visible());
    EXPECT_EQ(text(u"Schluessel"), u"");
    EXPECT_FALSE(form().control(u"tglDruckAF").Visible());
  });
}

TEST_F(Zahlungsarten, WithoutTheRightNothingIsSaved) {
  session->SaveSetting(u"ZQNComDlg", u"AdminsOnly", u"1", Missing, zqnSaveAsGlobalSetting);
  expectBox(u"Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu speichern.",
            u"TALVEX Software", msgbox::Information);
  expectBox(u"Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu löschen.",
            u"TALVEX Software", msgbox::Information);
  show(2, {u"SCH"}, [&] {
    click(u"btnOK");
    click(u"btnDelete");
  });
  EXPECT_EQ(row(u"ZahlungsartenEK", u"SCH"), u"Scheck|0|S|NULL|0");
}

}  // namespace
}  // namespace zqn::testing
