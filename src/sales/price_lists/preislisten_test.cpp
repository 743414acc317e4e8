// SPDX-License-Identifier: MIT
//
// The heads of the price lists: validity, for whom they hold, the customer behind a number.
#include "sales/price_lists/preislisten.h"

#include "testing/preislisten.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;

// ---- opening and reading

TEST_F(Preislisten, AreListedWithoutTheSystemRow) {
  show(16, {u"H"}, [&] {
    EXPECT_THAT(listRows(), ElementsAre(u"A|Aktion", u"B|Beides", u"H|Handwerk", u"K|"));
    EXPECT_EQ(text(u"Schluessel"), u"H");
    EXPECT_EQ(text(u"Langtext"), u"Handwerk");
  });
}

TEST_F(Preislisten, AnUnknownKeyShowsClearedFieldsThatCanBeSaved) {
  show(16, {u"NEU"}, [&] {
    EXPECT_EQ(text(u"Schluessel"), u"NEU");
    EXPECT_EQ(text(u"Langtext"), u"");
    EXPECT_TRUE(enabled(u"btnOK"));
    EXPECT_TRUE(enabled(u"btnDelete"));
    EXPECT_EQ(get(u"TDBList1", u"Row"), Variant(std::int32_t{0}));
    EXPECT_FALSE(enabled(u"txtDatumVon"));
  });
}

TEST_F(Preislisten, APromotionShowsItsDatesAndIsEnabled) {
  show(16, {u"A"}, [&] {
    EXPECT_EQ(value(u"chkGlobalePreisliste"), Variant(std::int32_t{1}));
    EXPECT_EQ(text(u"txtDatumVon"), u"01.03.2026");
    EXPECT_EQ(value(u"txtDatumBis"), Variant(u"20260531000000"));
    EXPECT_TRUE(option(0));
    for (const StringView each : {u"txtDatumVon", u"txtDatumBis", u"optGueltigFuer(1)", u"cboPreisliste",
                                  u"txtKundennummer", u"btnKundenauskunft", u"txtKunBez"})
      EXPECT_TRUE(enabled(each)) << toUtf8(each);
    EXPECT_EQ(get(u"cboPreisliste", u"TabStop"), Variant(false));
    EXPECT_EQ(get(u"txtKundennummer", u"TabStop"), Variant(false));
  });
}

TEST_F(Preislisten, TheSentinelsReadAsOpenAndTheCustomerWins) {
  show(16, {u"B"}, [&] {
    EXPECT_TRUE(value(u"txtDatumVon").isNull());
    EXPECT_TRUE(value(u"txtDatumBis").isNull());
    EXPECT_TRUE(option(2));
    EXPECT_EQ(value(u"cboPreisliste"), Variant(u"A"));
    EXPECT_EQ(text(u"txtKunBez"), u"Werft Nordhafen");
    EXPECT_EQ(get(u"txtKundennummer", u"TabStop"), Variant(true));
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"B"), u"Beides|Wahr|NULL|99999999999999|NULL|10001|EUR") << "the list of customers is gone";
}

TEST_F(Preislisten, AnEndThatWasNeverEnteredReadsAsOpen) {
  show(16, {u"K"}, [&] {
    EXPECT_TRUE(value(u"txtDatumVon").isNull());
    EXPECT_TRUE(value(u"txtDatumBis").isNull());
    EXPECT_TRUE(option(1));
    EXPECT_EQ(get(u"cboPreisliste", u"TabStop"), Variant(true));
  });
}

TEST_F(Preislisten, WithoutThePromotionDatesAndCustomersAreIgnoredAndThenOverwritten) {
  show(16, {u"H"}, [&] {
    EXPECT_EQ(value(u"chkGlobalePreisliste"), Variant(std::int32_t{0}));
    EXPECT_TRUE(value(u"txtDatumVon").isNull());
    EXPECT_EQ(text(u"txtKundennummer"), u"");
    EXPECT_TRUE(option(0));
    for (const StringView each : {u"txtDatumVon", u"txtDatumBis", u"optGueltigFuer(0)", u"cboPreisliste",
                                  u"txtKundennummer", u"btnKundenauskunft", u"txtKunBez"})
      EXPECT_FALSE(enabled(each)) << toUtf8(each);
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"H"), u"Handwerk|Falsch|NULL|99999999999999|NULL|NULL|CHF") << "the currency stays";
}

TEST_F(Preislisten, TheFieldOfTheCustomerLooksDisabledWithoutThePromotion) {
  show(16, {u"A"}, [&] {
    EXPECT_EQ(get(u"txtKundennummer", u"BackColor"), get(u"Langtext", u"BackColor"));
    click(u"chkGlobalePreisliste");
    EXPECT_EQ(get(u"txtKundennummer", u"BackColor"), Variant(double{colour::ButtonFace}));
    EXPECT_EQ(text(u"txtDatumVon"), u"01.03.2026") << "values stay in the controls";
  });
}

TEST_F(Preislisten, NeuForgetsTheCustomerOfTheFormerList) {
  show(16, {u"B"}, [&] {
    press(key::F6);
    EXPECT_EQ(text(u"txtKundennummer"), u"");
    EXPECT_EQ(text(u"txtKunBez"), u"");
    EXPECT_TRUE(value(u"cboPreisliste").isNull());
    EXPECT_TRUE(option(0));
  });
}

TEST_F(Preislisten, NeuKeepsTheDatesOfTheFormerList) {
  show(16, {u"A"}, [&] {
    click(u"btnNew");
    EXPECT_EQ(focus(), u"Schluessel");
    EXPECT_EQ(text(u"Langtext"), u"");
    EXPECT_EQ(value(u"txtDatumVon"), Variant(u"20260301000000"));
    EXPECT_FALSE(enabled(u"txtDatumVon"));
    EXPECT_FALSE(enabled(u"btnOK"));
    select(2);
    EXPECT_TRUE(value(u"txtDatumVon").isNull()) << "a list without the promotion has none";
    EXPECT_TRUE(value(u"txtDatumBis").isNull());
  });
}

// ---- picking

TEST_F(Preislisten, ADoubleClickAndF9InTheListPick) {
  EXPECT_EQ(show(16, {u"A"}, [&] { doubleClick(2); }), Variant(u"H"));
  EXPECT_EQ(show(16, {u"A"},
                 [&] {
                   select(1);
                   press(key::F9);
                 }),
            Variant(u"B"));
  EXPECT_EQ(param.at(0), Variant(u"B"));
}

TEST_F(Preislisten, EnterInTheListMovesOn) {
  EXPECT_EQ(show(16, {u"A"},
                 [&] {
                   select(1);
                   press(key::Enter);
                   EXPECT_EQ(focus(), u"Schluessel");
                 }),
            Variant(u"A"));
}

TEST_F(Preislisten, ClosingGivesBackTheKeyThatCameIn) {
  EXPECT_EQ(show(16, {u"A"},
                 [&] {
                   select(3);
                   EXPECT_EQ(text(u"Schluessel"), u"K");
                   click(u"btnCancel");
                 }),
            Variant(u"A"));
}

TEST_F(Preislisten, WithMultiselectTheHostHearsNothing) {
  dialog.Multiselect(true);
  dialog.DblClick = [](const Variant&) { ADD_FAILURE() << "the host was told"; };
  EXPECT_EQ(show(16, {u"A"},
                 [&] {
                   doubleClick(2);
                   EXPECT_TRUE(form().Visible());
                 }),
            Variant(u"H"));
}

// ---- saving

TEST_F(Preislisten, ANewListTakesTheCurrencyOfTheCountry) {
  session->SaveSetting(u"Allgemein", u"Landeswährung", u"DKK", Missing, zqnSaveAsGlobalSetting);
  show(16, {u""}, [&] {
    enter(u"N1");
    type(u"  Neue Liste ");
    click(u"btnOK");
    EXPECT_EQ(focus(), u"TDBList1");
    EXPECT_EQ(get(u"TDBList1", u"Text"), Variant(u"N1"));
  });
  EXPECT_EQ(row(u"N1"), u"Neue Liste|Falsch|NULL|99999999999999|NULL|NULL|DKK");
}

TEST_F(Preislisten, DatesAreStoredInFourteenDigits) {
  show(16, {u"A"}, [&] {
    form().control(u"txtDatumVon").SetFocus();
    type(u"01.04.2026");
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"A"), u"Aktion|Wahr|20260401000000|20260531000000|NULL|NULL|EUR");
}

TEST_F(Preislisten, AStartAfterTheEndIsRefusedAndSoIsAStartWithoutAnEnd) {
  show(16, {u"A"}, [&] {
    for (const StringView start : {u"01.06.2026", u"01.03.2026"}) {
      form().control(u"txtDatumVon").SetFocus();
      type(start);
      expectBox(u"Bis-Datum kann nicht kleiner als das Von-Datum sein. ", u"Ungültige Eingabe",
                msgbox::Exclamation);
      if (start == u"01.03.2026") {
        form().control(u"txtDatumBis").SetFocus();
        press(key::F3);
      }
      click(u"btnOK");
      EXPECT_EQ(focus(), u"txtDatumBis");
    }
  });
  EXPECT_EQ(row(u"A"), u"Aktion|Wahr|20260301000000|20260531000000|NULL|NULL|EUR");
}

TEST_F(Preislisten, AMissingListOrCustomerIsAskedFor) {
  show(16, {u"A"}, [&] {
    click(u"optGueltigFuer(1)");
    expectBox(u"Bitte geben Sie eine Preisliste an.", u"Fehlende Eingabe", msgbox::Exclamation);
    click(u"btnOK");
    EXPECT_EQ(focus(), u"cboPreisliste");
    click(u"optGueltigFuer(2)");
    expectBox(u"Bitte geben Sie eine Kundennummer an.", u"Fehlende Eingabe", msgbox::Exclamation);
    click(u"btnOK");
    EXPECT_EQ(focus(), u"txtKundennummer");
    click(u"chkGlobalePreisliste");
    expectBox(u"Bitte geben Sie eine Kundennummer an.", u"Fehlende Eingabe", msgbox::Exclamation);
    click(u"btnOK");
    EXPECT_EQ(focus(), u"btnOK") << "a disabled field does not take the focus, and no error says so";
  });
}

TEST_F(Preislisten, TheOptionCountsWhenThePromotionIsTakenBack) {
  show(16, {u"B"}, [&] {
    click(u"chkGlobalePreisliste");
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"B"), u"Beides|Falsch|NULL|99999999999999|NULL|10001|EUR");
  show(16, {u"K"}, [&] {
    click(u"chkGlobalePreisliste");
    EXPECT_TRUE(option(1));
    EXPECT_FALSE(enabled(u"optGueltigFuer(1)"));
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"K"), u"NULL|Falsch|NULL|99999999999999|H|NULL|EUR");
}

TEST_F(Preislisten, AnEndWithoutAStartIsStored) {
  show(16, {u"A"}, [&] {
    form().control(u"txtDatumVon").SetFocus();
    press(key::F3);
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"A"), u"Aktion|Wahr|NULL|20260531000000|NULL|NULL|EUR");
}

TEST_F(Preislisten, AnEndOnTheDayOfTheStartIsAllowed) {
  show(16, {u"A"}, [&] {
    form().control(u"txtDatumVon").SetFocus();
    type(u"31.05.2026");
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"A"), u"Aktion|Wahr|20260531000000|20260531000000|NULL|NULL|EUR");
}

TEST_F(Preislisten, ABlankKeyIsNotSaved) {
  show(16, {u""}, [&] {
    form().control(u"Schluessel").SetFocus();
    type(u"  ");
    EXPECT_FALSE(enabled(u"btnOK"));
    EXPECT_FALSE(enabled(u"btnDelete"));
    press(key::F9);
  });
  EXPECT_EQ(rows(u"SELECT COUNT(*) FROM Preislistenkopf"), std::vector<String>{u"5"});
}

TEST_F(Preislisten, WithoutTheRightNothingIsSavedOrDeleted) {
  session->SaveSetting(u"ZQNComDlg", u"AdminsOnly", u"1", Missing, zqnSaveAsGlobalSetting);
  expectBox(u"Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu speichern.",
            u"TALVEX Software", msgbox::Information);
  expectBox(u"Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu löschen.",
            u"TALVEX Software", msgbox::Information);
  show(16, {u"A"}, [&] {
    click(u"btnOK");
    click(u"btnDelete");
  });
}

TEST_F(Preislisten, AFailedSaveIsPassedOver) {
  fail(ado::Operation::Update, u"Preislistenkopf", error::ProviderFailure);
  show(16, {u"A"}, [&] {
    form().control(u"Langtext").SetFocus();
    type(u"Anders");
    click(u"btnOK");
    EXPECT_EQ(focus(), u"TDBList1");
  });
  EXPECT_EQ(row(u"A"), u"Aktion|Wahr|20260301000000|20260531000000|NULL|NULL|EUR");
}

// ---- for whom

TEST_F(Preislisten, ChoosingAListOrEnteringACustomerChoosesTheOption) {
  show(16, {u"A"}, [&] {
    form().Get<zqCombo>(u"cboPreisliste").userOpened();
    form().Get<zqCombo>(u"cboPreisliste").userChose(1);
    EXPECT_TRUE(option(1));
    form().control(u"txtKundennummer").SetFocus();
    EXPECT_TRUE(option(2));
  });
}

TEST_F(Preislisten, AKnownCustomerIsNamed) {
  show(16, {u"A"}, [&] {
    form().control(u"txtKundennummer").SetFocus();
    type(u"10002");
    press(key::Tab);
    EXPECT_EQ(text(u"txtKunBez"), u"Krause");
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"A"), u"Aktion|Wahr|20260301000000|20260531000000|NULL|10002|EUR");
}

TEST_F(Preislisten, AnUnknownCustomerSwallowsTheClickAndTheFocusReturns) {
  show(16, {u"B"}, [&] {
    form().control(u"txtKundennummer").SetFocus();
    type(u"77");
    expectUnknownCustomer(u"77");
    click(u"btnOK");
    EXPECT_EQ(focus(), u"txtKundennummer");
    EXPECT_EQ(text(u"txtKundennummer"), u"");
    EXPECT_EQ(text(u"txtKunBez"), u"Werft Nordhafen") << "the old name stays";
  });
  EXPECT_EQ(row(u"B"), u"Beides|Wahr|00000000000000|99991231999999|A|10001|EUR") << "nothing was saved";
}

TEST_F(Preislisten, ANumberWithAnApostropheBelongsToNobody) {
  show(16, {u"A"}, [&] {
    form().control(u"txtKundennummer").SetFocus();
    type(u"1'1");
    expectUnknownCustomer(u"1'1");
    press(key::Tab);
    EXPECT_EQ(text(u"txtKundennummer"), u"");
  });
}

// ---- deleting

TEST_F(Preislisten, DeletingTakesThePriceLinesWithIt) {
  show(16, {u"A"}, [&] {
    expectDeleteQuestion(u"A", MsgBoxResult::No);
    click(u"btnDelete");
    expectDeleteQuestion(u"A", MsgBoxResult::Yes);
    click(u"btnDelete");
    EXPECT_THAT(listRows(), ElementsAre(u"B|Beides", u"H|Handwerk", u"K|"));
    EXPECT_EQ(text(u"Schluessel"), u"B");
    EXPECT_EQ(focus(), u"TDBList1");
  });
  EXPECT_EQ(rows(u"SELECT Preisliste FROM Staffelpreise"), std::vector<String>{u"H"});
}

TEST_F(Preislisten, AFailingSecondStatementLeavesTheHeadWithoutItsLines) {
  fail(ado::Operation::Execute, u"Delete FROM Preislistenkopf", error::ProviderFailure);
  show(16, {u"A"}, [&] {
    expectDeleteQuestion(u"A", MsgBoxResult::Yes);
    expectError(u"btnDelete_Click", error::ProviderFailure);
    click(u"btnDelete");
    EXPECT_TRUE(form().Visible());
  });
  EXPECT_EQ(rows(u"SELECT COUNT(*) FROM Staffelpreise WHERE Preisliste='A'"), std::vector<String>{u"0"});
  EXPECT_EQ(rows(u"SELECT COUNT(*) FROM Preislistenkopf WHERE Preisliste='A'"), std::vector<String>{u"1"});
}

TEST_F(Preislisten, DeletingTheLastOneLeavesTheEmptyForm) {
  execute(u"DELETE FROM Preislistenkopf WHERE Preisliste NOT IN ('-', 'A')");
  show(16, {u"A"}, [&] {
    expectDeleteQuestion(u"A", MsgBoxResult::Yes);
    click(u"btnDelete");
    EXPECT_EQ(text(u"Schluessel"), u"");
    EXPECT_EQ(text(u"Langtext"), u"");
    EXPECT_EQ(focus(), u"Schluessel");
  });
}

TEST_F(Preislisten, AKeyWithAnApostropheReachesNoStatement) {
  show(16, {u"A"}, [&] {
    form().control(u"Schluessel").SetFocus();
    type(u"x'");
    press(key::Tab);
    expectDeleteQuestion(u"x'", MsgBoxResult::Yes);
    expectError(u"btnDelete_Click", error::CommandText);
    click(u"btnDelete");
  });
  EXPECT_EQ(rows(u"SELECT COUNT(*) FROM Staffelpreise"), std::vector<String>{u"3"});
}

}  // namespace
}  // namespace zqn::testing
