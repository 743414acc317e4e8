// SPDX-License-Identifier: MIT
//
// The generic form as a clerk works with it, on the payment terms; and what a definition class may do to it.
#include "dialog/frm_dialog.h"

#include "dialog/frm_dialog_roster.h"
#include "runtime/convert.h"
#include "testing/payment_terms.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GenericForm : public PaymentTerms {};

// ---- design

TEST(GenericFormDesign, HoldsAllFieldsInvisibleInTheirTabOrder) {
  frmDialog form;
  ASSERT_EQ(form.controls().size(), 50u);
  EXPECT_EQ(form.ScaleWidth(), 6465);
  EXPECT_EQ(form.ScaleHeight(), 5235);
  EXPECT_EQ(form.Caption(), u"Form1");
  for (const auto& control : form.controls()) EXPECT_EQ(control->Visible(), control->Name() == u"lblFra");
  EXPECT_EQ(form.control(u"lblFra").container(), &form.control(u"fra"));
  EXPECT_FALSE(form.control(u"lblFra").isShown());
  EXPECT_TRUE(form.Get<CommandButton>(u"cmdCancel").Cancel());
  for (const auto& control : form.controls()) {
    EXPECT_EQ(control->TabStop(), control->kind() != ControlKind::ToggleButton) << toUtf8(control->Name());
  }
}

TEST(GenericFormDesign, PurchaseTogglesRepeatTheTipsOfTheSalesGroup) {
  frmDialog form;
  for (const auto& [purchase, sales] :
       {std::pair{u"tglDruckAF", u"tglDruckLS"}, std::pair{u"tglDruckBS", u"tglDruckRG"},
        std::pair{u"tglDruckLM", u"tglDruckGS"}}) {
    EXPECT_EQ(form.control(purchase).ToolTipText(), form.control(sales).ToolTipText());
    EXPECT_EQ(form.control(purchase).Left(), form.control(sales).Left());
  }
  EXPECT_EQ(form.control(u"tglDruckAN").ToolTipText(), u"Text wird auf Angebot gedruckt");
}

TEST(GenericFormDesign, WithoutACatalogueInitFailsAtOnce) {
  for (const std::int32_t kind : {-1, 0, 16, 21, 28, 38}) {
    frmDialog form;
    EXPECT_EQ(errorNumberOf([&] { form.Init(nothing, u"", kind); }), error::ObjectNotSet) << kind;
    EXPECT_EQ(errorNumberOf([&] { return form.Key(); }), error::ObjectNotSet);
  }
}

// ---- opening

TEST_F(GenericForm, OpensOnTheListRowOfTheKey) {
  show(3, {u"14"}, [&] {
    EXPECT_EQ(get(u"tdblShow", u"Row"), Variant(std::int32_t{1}));
    EXPECT_EQ(number(u"tdbnNettoTage"), Variant(14.0));
    EXPECT_EQ(focus(), u"tdbnSkTage(0)") << "with the key text disabled, the first number takes the focus";
    EXPECT_TRUE(enabled(u"cmdOK"));
    EXPECT_TRUE(enabled(u"cmdDelete"));
  });
}

TEST_F(GenericForm, AKeyThatIsNotInTheListGetsTheFocusAndCannotBeDeleted) {
  show(3, {u"X9"}, [&] {
    EXPECT_EQ(text(u"txtKey"), u"X9");
    EXPECT_EQ(focus(), u"txtKey");
    EXPECT_FALSE(enabled(u"cmdDelete"));
    EXPECT_TRUE(enabled(u"cmdOK"));
    EXPECT_EQ(number(u"tdbnSkTage(0)"), Variant(0.0));
  });
}

TEST_F(GenericForm, TheKeyIsComparedWithTheListWithoutRegardToCase) {
  show(3, {u"s1"}, [&] {
    EXPECT_EQ(text(u"txtKey"), u"S1") << "the key takes its stored form";
    EXPECT_TRUE(enabled(u"cmdDelete"));
  });
}

TEST_F(GenericForm, AnEmptyCatalogueDisablesTheListAndDelete) {
  execute(u"DELETE FROM Zahlungsbedingungen");
  show(3, {u""}, [&] {
    EXPECT_FALSE(enabled(u"tdblShow"));
    EXPECT_FALSE(enabled(u"cmdDelete"));
    EXPECT_FALSE(enabled(u"cmdOK"));
    EXPECT_EQ(focus(), u"tdbnSkTage(0)") << "the empty key equals the empty list";
  });
}

TEST_F(GenericForm, AListThatFailsToOpenLeavesTheFormUp) {
  fail(ado::Operation::Open, u"ORDER BY", error::ProviderFailure);
  show(3, {u"14"}, [&] {
    EXPECT_THAT(listRows(u"tdblShow"), IsEmpty());
    EXPECT_EQ(text(u"txtKey"), u"14");
  });
}

// ---- what Show returns

TEST_F(GenericForm, ClosingReturnsTheKeyThatCameInAsText) {
  EXPECT_EQ(show(3, {u"14"}, [&] { click(u"cmdCancel"); }), Variant(u"14"));
  EXPECT_EQ(show(3, {std::int32_t{14}}, [&] { press(key::F10); }), Variant(u"14"));
  EXPECT_EQ(param.at(0), Variant(u"14"));
}

TEST_F(GenericForm, ANullKeyOpensTheEmptyKeyAndReturnsEmpty) {
  EXPECT_TRUE(show(3, {Null}, [&] { EXPECT_EQ(text(u"txtKey"), u""); }).isEmpty());
  EXPECT_TRUE(param.at(0).isNull());
}

TEST_F(GenericForm, WithoutAFirstElementTheFormStandsEmpty) {
  EXPECT_TRUE(show(3, {}, [&] { EXPECT_EQ(form().Caption(), u"Form1"); }).isEmpty());
}

TEST_F(GenericForm, ASaveFixesTheKeyThatIsReturned) {
  EXPECT_EQ(show(3, {u"14"},
                 [&] {
                   enter(u"N1");
                   press(key::F9);
                   press(key::Escape);
                 }),
            Variant(u"N1"));
  EXPECT_EQ(param.at(0), Variant(u"N1"));
}

TEST_F(GenericForm, APickClosesOrReports) {
  EXPECT_EQ(show(3, {u"14"}, [&] { doubleClick(0, u"tdblShow"); }), Variant(u"00"));
  std::vector<Variant> heard;
  dialog.Multiselect(true);
  dialog.DblClick = [&](const Variant& result) { heard.push_back(result); };
  EXPECT_EQ(show(3, {u"14"},
                 [&] {
                   doubleClick(0, u"tdblShow");
                   doubleClick(2, u"tdblShow");
                   EXPECT_TRUE(form().Visible());
                 }),
            Variant(u"S1"));
  EXPECT_THAT(heard, ElementsAre(Variant(u"00"), Variant(u"S1")));
  EXPECT_EQ(dialog.Result(), Variant(u"S1"));
}

TEST_F(GenericForm, EnterOnTheListPicksAndElsewhereMovesOn) {
  EXPECT_EQ(show(3, {u"14"},
                 [&] {
                   click(u"txtKey");
                   press(key::Enter);
                   EXPECT_EQ(focus(), u"tdbnSkTage(0)");
                   select(2, u"tdblShow");
                   press(key::Enter);
                 }),
            Variant(u"S1"));
}

TEST_F(GenericForm, F9OnTheListPicksAndElsewhereSaves) {
  EXPECT_EQ(show(3, {u"14"},
                 [&] {
                   click(u"txtKey");
                   press(key::F9);
                   EXPECT_EQ(focus(), u"tdblShow");
                   press(key::Home);
                   press(key::F9);
                 }),
            Variant(u"00"));
}

// ---- the key field

TEST_F(GenericForm, TypingAKeyDoesNothingUntilTheFieldIsLeft) {
  show(3, {u"14"}, [&] {
    click(u"txtKey");
    type(u"S1");
    EXPECT_EQ(number(u"tdbnNettoTage"), Variant(14.0));
    press(key::Tab);
    EXPECT_EQ(number(u"tdbnNettoTage"), Variant(30.0));
    EXPECT_EQ(get(u"tdblShow", u"Row"), Variant(std::int32_t{2}));
  });
}

TEST_F(GenericForm, LeavingAnUnknownKeyBlanksTheFields) {
  show(3, {u"S1"}, [&] {
    click(u"txtKey");
    type(u"zz");
    press(key::Tab);
    EXPECT_EQ(text(u"txtKey"), u"zz");
    EXPECT_EQ(number(u"tdbnPercent(0)"), Variant(0.0));
    EXPECT_EQ(text(u"txtKeyText"), u"sofort rein Netto.");
    EXPECT_TRUE(enabled(u"cmdOK"));
  });
}

TEST_F(GenericForm, AKeyOfSpacesIsNeverSaved) {
  show(3, {u"14"}, [&] {
    enter(u"  ");
    EXPECT_FALSE(enabled(u"cmdOK"));
    press(key::F9);
  });
  EXPECT_EQ(rows(u"SELECT * FROM Zahlungsbedingungen").size(), 3u);
}

// ---- saving and deleting

TEST_F(GenericForm, SavingTheFirstRowOfAnEmptyCatalogueEnablesListAndDelete) {
  execute(u"DELETE FROM Zahlungsbedingungen");
  show(3, {u""}, [&] {
    enter(u"A1");
    press(key::F9);
    EXPECT_TRUE(enabled(u"tdblShow"));
    EXPECT_TRUE(enabled(u"cmdDelete"));
    EXPECT_EQ(listRows(u"tdblShow").size(), 1u);
  });
}

TEST_F(GenericForm, WithoutTheRightSavingAndDeletingOnlySaySo) {
  session->SaveSetting(u"ZQNComDlg", u"AdminsOnly", u"1", Missing, zqnSaveAsGlobalSetting);
  expectBox(u"Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu speichern.",
            u"TALVEX Software", msgbox::Information);
  expectBox(u"Sie besitzen nicht die erforderlichen Rechte um diesen Datensatz zu löschen.",
            u"TALVEX Software", msgbox::Information);
  show(3, {u"14"}, [&] {
    click(u"tdbnNettoTage");
    type(u"99");
    click(u"cmdOK");
    EXPECT_EQ(number(u"tdbnNettoTage"), Variant(99.0)) << "the fields stay as they are";
    click(u"cmdDelete");
  });
  EXPECT_THAT(rows(u"SELECT NettoTage FROM Zahlungsbedingungen WHERE ZahlBedSchl='14'"), ElementsAre(u"14"));
}

TEST_F(GenericForm, DeletingShowsTheFirstRowAfterwards) {
  show(3, {u"S1"}, [&] {
    expectDeleteQuestion(MsgBoxResult::No);
    click(u"cmdDelete");
    EXPECT_EQ(listRows(u"tdblShow").size(), 3u);
    expectDeleteQuestion(MsgBoxResult::Yes);
    click(u"cmdDelete");
    EXPECT_THAT(listRows(u"tdblShow"), ElementsAre(u"00|sofort rein Netto.", u"14|14 Tage netto."));
    EXPECT_EQ(text(u"txtKey"), u"00");
    EXPECT_EQ(focus(), u"tdblShow");
  });
}

TEST_F(GenericForm, DeletingTheLastRowBlanksTheKeyAndDisablesTheList) {
  execute(u"DELETE FROM Zahlungsbedingungen WHERE ZahlBedSchl<>'14'");
  show(3, {u"14"}, [&] {
    expectDeleteQuestion(MsgBoxResult::Yes);
    click(u"cmdDelete");
    EXPECT_EQ(text(u"txtKey"), u"");
    EXPECT_FALSE(enabled(u"tdblShow"));
    EXPECT_FALSE(enabled(u"cmdDelete"));
    EXPECT_EQ(focus(), u"txtKey");
  });
}

TEST_F(GenericForm, DeleteAndCtrlLOnTheListDelete) {
  show(3, {u"14"}, [&] {
    select(0, u"tdblShow");
    expectDeleteQuestion(MsgBoxResult::Yes);
    press(key::Delete);
    expectDeleteQuestion(MsgBoxResult::Yes);
    press(key::Delete, shift::Shift);
    desktop.press(KeyStroke::ofCharacter(u'l'));
    expectDeleteQuestion(MsgBoxResult::Yes);
    desktop.press(KeyStroke::ofCharacter(u'l', shift::Ctrl));
    EXPECT_FALSE(enabled(u"tdblShow"));
  });
  EXPECT_THAT(rows(u"SELECT * FROM Zahlungsbedingungen"), IsEmpty());
}

TEST_F(GenericForm, DeleteInAFieldEditsTheField) {
  show(3, {u"14"}, [&] {
    click(u"txtKey");
    press(key::Delete);
    EXPECT_EQ(text(u"txtKey"), u"");
  });
}

TEST_F(GenericForm, AFailingWriteIsNotReportedAndTheFlowGoesOn) {
  fail(ado::Operation::Update, u"Zahlungsbedingungen", error::IntegrityViolation);
  EXPECT_EQ(show(3, {u"14"},
                 [&] {
                   enter(u"N1");
                   press(key::F9);
                   EXPECT_EQ(focus(), u"tdblShow");
                 }),
            Variant(u"N1"));
  EXPECT_EQ(rows(u"SELECT * FROM Zahlungsbedingungen").size(), 3u);
}

TEST_F(GenericForm, NewLeavesTheListWhereItIsAndWritesNothing) {
  show(3, {u"S1"}, [&] {
    click(u"cmdNew");
    EXPECT_EQ(text(u"txtKey"), u"");
    EXPECT_EQ(focus(), u"txtKey");
    EXPECT_FALSE(enabled(u"cmdOK"));
    EXPECT_TRUE(enabled(u"cmdDelete")) << "it stays as it was";
    EXPECT_EQ(get(u"tdblShow", u"Row"), Variant(std::int32_t{2}));
  });
  EXPECT_EQ(rows(u"SELECT * FROM Zahlungsbedingungen").size(), 3u);
}

TEST_F(GenericForm, ClosingAfterEditingSavesNothingAndAsksNothing) {
  show(3, {u"14"}, [&] {
    click(u"tdbnNettoTage");
    type(u"55");
    press(key::Escape);
  });
  EXPECT_THAT(rows(u"SELECT NettoTage FROM Zahlungsbedingungen WHERE ZahlBedSchl='14'"), ElementsAre(u"14"));
}

TEST_F(GenericForm, AHiddenButtonSwitchesItsKeyOff) {
  show(3, {u"14"}, [&] {
    for (const StringView button : {u"cmdNew", u"cmdOK", u"cmdCancel", u"cmdDelete"}) {
      form().control(button).Visible(false);
    }
    click(u"txtKey");
    press(key::F6);
    EXPECT_EQ(text(u"txtKey"), u"14");
    press(key::F9);
    EXPECT_EQ(focus(), u"txtKey");
    press(key::F10);
    EXPECT_TRUE(form().Visible());
    select(0, u"tdblShow");
    press(key::Delete);
    press(key::Escape);
  });
}

TEST_F(GenericForm, TheMarkedRowIsPaintedByTheFocus) {
  show(3, {u"14"}, [&] {
    select(0, u"tdblShow");
    EXPECT_EQ(CDbl(get(u"tdblShow", u"HighlightRowStyle.BackColor")), 1.0 * colour::Highlight);
    EXPECT_EQ(CDbl(get(u"tdblShow", u"HighlightRowStyle.ForeColor")), 1.0 * colour::WindowBackground);
    press(key::Tab);
    EXPECT_EQ(CDbl(get(u"tdblShow", u"HighlightRowStyle.BackColor")), 1.0 * colour::ButtonFace);
    EXPECT_EQ(CDbl(get(u"tdblShow", u"HighlightRowStyle.ForeColor")), 1.0 * colour::WindowText);
  });
}

TEST_F(GenericForm, APickInTheListCostsOneSingleRowQuery) {
  show(3, {u"00"}, [&] {
    select(0, u"tdblShow");
    operations.clear();
    press(key::Down);
    EXPECT_EQ(std::ranges::count(operations, ado::Operation::Open, &std::pair<ado::Operation, String>::first),
              1);
    EXPECT_EQ(
        std::ranges::count(operations, ado::Operation::Requery, &std::pair<ado::Operation, String>::first),
        0);
  });
}

TEST_F(GenericForm, AQueryThatFailsShowsEmptyFieldsUnderTheNewKey) {
  show(3, {u"S1"}, [&] {
    fail(ado::Operation::Open, u"ZahlBedSchl = '14'", error::ProviderFailure);
    select(1, u"tdblShow");
    EXPECT_EQ(text(u"txtKey"), u"14");
    EXPECT_EQ(number(u"tdbnNettoTage"), Variant(0.0));
  });
}

TEST_F(GenericForm, OpenedAndClosedTwoHundredTimesLeavesNothingOpen) {
  for (int i = 0; i < 200; ++i) show(3, {u"14"});
  EXPECT_EQ(connection->openRecordsets(), 0u);
}

}  // namespace
}  // namespace zqn::testing
