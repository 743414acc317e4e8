// SPDX-License-Identifier: MIT
//
// The price lists where something is missing or fails: the customer information, a statement, the session.
#include "sales/price_lists/preislisten.h"
#include "testing/auskunft.h"
#include "testing/preislisten.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;

// ---- the customer information

TEST_F(Preislisten, TheCustomerInformationGivesTheNumber) {
  OfferedAuskunft auskunft;
  auskunft.result = 1;
  auskunft.items[u"Kundennummer"] = u"10001";
  show(16, {u"A"}, [&] {
    click(u"btnKundenauskunft");
    EXPECT_EQ(text(u"txtKundennummer"), u"10001");
    EXPECT_EQ(text(u"txtKunBez"), u"Werft Nordhafen");
    EXPECT_EQ(focus(), u"txtKundennummer");
    EXPECT_TRUE(option(2));
  });
  EXPECT_THAT(auskunft.asked, ElementsAre(u"AUSK_Kundenauskunft|Kundenauskunft|Take Über&nehmen 0 0111"));
}

TEST_F(Preislisten, F4AsksTooAndAnUnknownAnswerIsRefused) {
  OfferedAuskunft auskunft;
  auskunft.result = 1;
  auskunft.items[u"Kundennummer"] = u"88";
  show(16, {u"A"}, [&] {
    form().control(u"txtKundennummer").SetFocus();
    expectUnknownCustomer(u"88");
    press(key::F4);
    EXPECT_EQ(text(u"txtKundennummer"), u"");
  });
}

TEST_F(Preislisten, NothingTakenMissingOrFailingChangesNothing) {
  show(16, {u"B"}, [&] {
    click(u"btnKundenauskunft");
    EXPECT_EQ(text(u"txtKundennummer"), u"10001") << "missing";
    OfferedAuskunft auskunft;
    click(u"btnKundenauskunft");
    EXPECT_EQ(text(u"txtKundennummer"), u"10001") << "nothing taken";
    auskunft.fails = error::ProviderFailure;
    click(u"btnKundenauskunft");
    EXPECT_EQ(text(u"txtKundennummer"), u"10001") << "failing";
  });
}

TEST_F(Preislisten, EachStepOfTheInformationStandsByItself) {
  OfferedAuskunft auskunft;
  auskunft.result = 1;
  auskunft.fails = error::ProviderFailure;
  show(16, {u"A"}, [&] {
    expectUnknownCustomer(u"4711");
    form().control(u"txtKundennummer").SetFocus();
    type(u"4711");
    // It took a row over but does not say which: the number that stands there is checked at once.
    press(key::F4);
    EXPECT_EQ(text(u"txtKundennummer"), u"");
    auskunft.items[u"Kundennummer"] = u"10002";
    press(key::F4);
    EXPECT_EQ(text(u"txtKundennummer"), u"10002") << "Show has failed, and there is a row all the same";
    EXPECT_EQ(text(u"txtKunBez"), u"Krause");
  });
}

TEST_F(Preislisten, TheInformationIsAskedByF4AloneAndHasTheSession) {
  OfferedAuskunft auskunft;
  show(16, {u"A"}, [&] {
    form().control(u"txtKundennummer").SetFocus();
    for (const int held : {shift::Shift, shift::Ctrl, shift::Alt}) press(key::F4, held);
    EXPECT_TRUE(auskunft.asked.empty());
    press(key::F4);
    EXPECT_EQ(auskunft.asked.size(), 1u);
    EXPECT_EQ(auskunft.session.get(), session.get());
  });
}

// ---- reading

TEST_F(Preislisten, ARecordThatCannotBeOpenedShowsClearedFields) {
  show(16, {u"A"}, [&] {
    fail(ado::Operation::Open, u"WHERE Preisliste ='B'", error::ProviderFailure);
    select(1);
    EXPECT_EQ(text(u"Schluessel"), u"B");
    EXPECT_EQ(text(u"Langtext"), u"");
    EXPECT_EQ(value(u"chkGlobalePreisliste"), Variant(std::int32_t{0}));
    EXPECT_TRUE(enabled(u"btnOK"));
  });
}

TEST_F(Preislisten, AFieldThatCannotBeReadIsPassedOver) {
  show(16, {u"A"}, [&] {
    // Its key.
    fail(ado::Operation::Field, u"WHERE Preisliste ='B'", error::ProviderFailure);
    select(1);
    EXPECT_EQ(text(u"Langtext"), u"Beides");
    EXPECT_EQ(text(u"txtKunBez"), u"Werft Nordhafen");
  });
}

TEST_F(Preislisten, NothingOfTheFormerListStaysWhereNoFieldCanBeRead) {
  show(16, {u"B"}, [&] {
    fail(ado::Operation::Field, u"WHERE Preisliste ='K'", error::ProviderFailure, 7);
    select(3);
    EXPECT_TRUE(value(u"cboPreisliste").isNull());
    EXPECT_EQ(text(u"txtKundennummer"), u"");
    EXPECT_EQ(text(u"txtKunBez"), u"");
  });
}

TEST_F(Preislisten, AFlagThatCannotBeReadCountsAsThePromotion) {
  execute(u"UPDATE Preislistenkopf SET GlobalePreisliste='x' WHERE Preisliste='A'");
  show(16, {u"A"}, [&] {
    EXPECT_EQ(value(u"chkGlobalePreisliste"), Variant(std::int32_t{1}));
    EXPECT_EQ(text(u"txtDatumVon"), u"01.03.2026");
  });
}

TEST_F(Preislisten, ACustomerWhoCannotBeLookedForIsUnknown) {
  show(16, {u"A"}, [&] {
    form().control(u"txtKundennummer").SetFocus();
    type(u"10002");
    fail(ado::Operation::Open, u"from Kundenstamm", error::ProviderFailure);
    expectUnknownCustomer(u"10002");
    press(key::Tab);
    EXPECT_EQ(focus(), u"txtKundennummer");
  });
}

TEST_F(Preislisten, AListThatCannotBeFilledShowsTheRecordAllTheSame) {
  fail(ado::Operation::Open, u"ORDER BY Preisliste", error::ProviderFailure);
  show(16, {u"A"}, [&] {
    EXPECT_TRUE(listRows().empty());
    EXPECT_EQ(text(u"Langtext"), u"Aktion");
  });
  // A key that is no text cannot be assigned.
  show(16, {Variant(std::make_shared<Object>())}, [&] { EXPECT_EQ(text(u"Schluessel"), u""); });
}

// ---- saving

TEST_F(Preislisten, ANewListIsInEuroUnlessTheSystemSaysOtherwise) {
  session->SaveSetting(u"Allgemein", u"Landeswährung", u"CHF", Missing, zqnSaveAsUserSetting);
  show(16, {u""}, [&] {
    enter(u"N1");
    click(u"btnOK");
  });
  EXPECT_EQ(row(u"N1"), u"NULL|Falsch|NULL|99999999999999|NULL|NULL|EUR") << "the user's own is not asked";
  frmPreislisten withoutSession;
  withoutSession.Connection = connection;
  during([&] { withoutSession.ShowData(); },
         [&] {
           enter(u"N2");
           click(u"btnOK");
         });
  EXPECT_EQ(row(u"N2"), u"NULL|Falsch|NULL|99999999999999|NULL|NULL|NULL") << "nobody knows it";
}

TEST_F(Preislisten, TheSystemRowIsSavedAndTheSearchForItIsAnError) {
  show(16, {u"A"}, [&] {
    enter(u"-");
    type(u"Umbenannt");
    expectError(u"btnOK_Click", error::NoCurrentRecord);
    form().control(u"txtKunBez").Enabled(true);
    click(u"btnOK");
    EXPECT_FALSE(enabled(u"txtKunBez")) << "writing sets what can be entered";
    EXPECT_EQ(listRows().size(), 4u);
  });
  EXPECT_EQ(row(u"-"), u"Umbenannt|Falsch|NULL|99999999999999|NULL|NULL|NULL");
}

TEST_F(Preislisten, ANewListThatCannotBeInsertedIsNotFoundAfterwards) {
  fail(ado::Operation::AddNew, u"Preislistenkopf", error::ProviderFailure);
  show(16, {u"A"}, [&] {
    enter(u"N1");
    expectError(u"btnOK_Click", error::NoCurrentRecord);
    click(u"btnOK");
  });
  EXPECT_EQ(rows(u"SELECT COUNT(*) FROM Preislistenkopf"), std::vector<String>{u"5"});
}

TEST_F(Preislisten, AKeyWithAnApostropheIsNotSaved) {
  show(16, {u"A"}, [&] {
    enter(u"x'");
    expectError(u"btnOK_Click", error::InvalidArgument);
    click(u"btnOK");
    EXPECT_TRUE(form().Visible());
  });
  EXPECT_EQ(rows(u"SELECT COUNT(*) FROM Preislistenkopf"), std::vector<String>{u"5"});
}

TEST_F(Preislisten, RightsCountBeforeWhatWasEnteredAndDatesBeforeCustomers) {
  const auto enterNonsense = [&] {
    form().control(u"txtDatumVon").SetFocus();
    type(u"01.06.2027");
    click(u"optGueltigFuer(1)");
  };
  show(16, {u"A"}, [&] {
    enterNonsense();
    expectBox(u"Bis-Datum kann nicht kleiner als das Von-Datum sein. ", u"Ungültige Eingabe",
              msgbox::Exclamation);
    click(u"btnOK");
  });
  session->SaveSetting(u"ZQNComDlg", u"AdminsOnly", u"1", Missing, zqnSaveAsGlobalSetting);
  show(16, {u"A"}, [&] {
    enterNonsense();
    expectBox(u"Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu speichern.",
              u"TALVEX Software", msgbox::Information);
    click(u"btnOK");
    form().Get<TextBox>(u"Schluessel").Text(u" ");
    press(key::F9);
  });
}

TEST_F(Preislisten, AChangeOfADateSetsWhatCanBeEntered) {
  for (const StringView date : {u"txtDatumVon", u"txtDatumBis"}) {
    show(16, {u"A"}, [&] {
      form().control(u"txtKunBez").Enabled(false);
      form().control(date).SetFocus();
      type(u"01.05.2026");
      EXPECT_TRUE(enabled(u"txtKunBez")) << toUtf8(date);
    });
  }
}

TEST_F(Preislisten, AListIsReadWrittenAndDeletedByTheseStatements) {
  show(16, {u"H"}, [&] {
    EXPECT_THAT(statements(),
                ElementsAre(u"SELECT Preisliste, Langtext as Bezeichnung FROM Preislistenkopf Where "
                            u"Preisliste<>'-' ORDER BY Preisliste",
                            u"SELECT * FROM Preislistenkopf WHERE Preisliste ='H'",
                            u"SELECT * FROM Preislistenkopf WHERE Preisliste ='H'"));
    click(u"btnOK");
    EXPECT_EQ(statements().at(0), u"SELECT * FROM Preislistenkopf WHERE Preisliste='H'");
    expectDeleteQuestion(u"H", MsgBoxResult::Yes);
    click(u"btnDelete");
    std::vector<String> all = statements();
    all.resize(2);
    EXPECT_THAT(all, ElementsAre(u"Delete FROM Staffelpreise WHERE Preisliste ='H'",
                                 u"Delete FROM Preislistenkopf WHERE Preisliste ='H'"));
  });
}

// ---- picking

TEST_F(Preislisten, TheFormItselfTellsOfAPickWithMultiselect) {
  std::vector<Variant> told;
  frmPreislisten lists;
  lists.Connection = connection;
  lists.Multiselect = true;
  lists.DblClick = [&](const Variant& key) { told.push_back(key); };
  during([&] { lists.ShowData(); },
         [&] {
           doubleClick(2);
           press(key::F9);
         });
  EXPECT_THAT(told, ElementsAre(Variant(u"H"), Variant(u"H")));
}

}  // namespace
}  // namespace zqn::testing
