// SPDX-License-Identifier: MIT
//
// The generic form as a clerk works with it, on the payment terms.
#include "dialog/frm_dialog.h"

#include "runtime/convert.h"
#include "testing/payment_terms.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

class GenericForm : public PaymentTerms {};

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

TEST_F(GenericForm, ARowWithABlankKeyIsNeitherShownNorPicked) {
  execute(u"INSERT INTO Zahlungsbedingungen (ZahlBedSchl) VALUES (' ')");
  EXPECT_EQ(show(3, {u"X9"},
                 [&] {
                   TextBox& typed = form().Get<TextBox>(u"txtKey");
                   form().control(u"tdblShow").SetFocus();
                   typed.Text(u"");
                   EXPECT_TRUE(enabled(u"cmdOK")) << "by the program: nobody has left the field";
                   mark(0);
                   EXPECT_EQ(get(u"tdblShow", u"Text"), Variant(u" "));
                   EXPECT_EQ(typed.Text(), u"");
                   EXPECT_FALSE(enabled(u"cmdDelete"));
                   EXPECT_FALSE(enabled(u"cmdOK"));
                   typed.Text(u"X9");
                   doubleClick(0, u"tdblShow");
                   EXPECT_TRUE(form().Visible());
                   EXPECT_EQ(typed.Text(), u"X9");
                   EXPECT_FALSE(enabled(u"cmdDelete"));
                 }),
            Variant(u"X9"));
}

// ---- the fields

TEST_F(GenericForm, DaysTakeFourDigitsAndPercentagesThreeAndTwo) {
  show(3, {u"00"}, [&] {
    for (const StringView days : {u"tdbnSkTage(0)", u"tdbnSkTage(1)", u"tdbnSkTage(2)", u"tdbnNettoTage"}) {
      put(days, u"12345");
      EXPECT_EQ(number(days), Variant(1234.0)) << toUtf8(days);
      EXPECT_EQ(text(days), u"1234") << toUtf8(days);
    }
    put(u"tdbnSkTage(0)", u"1,5");
    EXPECT_EQ(text(u"tdbnSkTage(0)"), u"15");
    for (const StringView percent : {u"tdbnPercent(0)", u"tdbnPercent(1)", u"tdbnPercent(2)"}) {
      put(percent, u"1234,567");
      EXPECT_EQ(number(percent), Variant(123.56)) << toUtf8(percent);
      EXPECT_EQ(text(percent), u"123,56") << toUtf8(percent);
    }
  });
}

TEST_F(GenericForm, TheDatesCanBeEnteredWhileTheCheckBoxIsOn) {
  show(3, {u"14"}, [&] {
    auto& generic = dynamic_cast<frmDialog&>(form());
    auto& box = generic.Get<CheckBox>(u"chk1");
    const auto expectDates = [&](bool open) {
      for (const StringView date : {u"tdbdValidOf", u"tdbdValidTo"}) {
        EXPECT_EQ(enabled(date), open) << toUtf8(date) << " at " << box.Value();
        EXPECT_EQ(CDbl(get(date, u"BackColor")), open ? 1.0 * 0x80000005 : 1.0 * 0x8000000F)
            << toUtf8(date) << " at " << box.Value();
      }
    };
    for (const int value : {1, 0, 1, 2}) {
      box.Value(value);
      expectDates(value == 1);
    }
    for (const StringView date : {u"tdbdValidOf", u"tdbdValidTo"}) form().control(date).Enabled(true);
    generic.chk1_Click();
    expectDates(false);
  });
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

TEST_F(GenericForm, CtrlShiftLOnTheListDoesNothing) {
  show(3, {u"14"}, [&] {
    select(0, u"tdblShow");
    desktop.press(KeyStroke::ofCharacter(u'L', shift::Ctrl | shift::Shift));
    EXPECT_EQ(listRows(u"tdblShow").size(), 3u);
  });
}

TEST_F(GenericForm, DeleteOnTheListAsksThoughItsButtonIsDisabled) {
  show(3, {u"X9"}, [&] {
    form().control(u"tdblShow").SetFocus();
    EXPECT_FALSE(enabled(u"cmdDelete"));
    expectDeleteQuestion(MsgBoxResult::Yes);
    press(key::Delete);
    EXPECT_EQ(listRows(u"tdblShow").size(), 2u);
  });
}

TEST_F(GenericForm, FunctionKeysWithAShiftKeyDoNothing) {
  show(3, {u"14"}, [&] {
    click(u"txtKey");
    operations.clear();
    for (const int held : {shift::Shift, shift::Ctrl, shift::Alt, shift::Ctrl | shift::Shift}) {
      for (const int code : {key::F6, key::F9, key::F10}) press(code, held);
      EXPECT_EQ(text(u"txtKey"), u"14") << held;
      EXPECT_EQ(focus(), u"txtKey") << held;
      EXPECT_TRUE(form().Visible()) << held;
    }
    EXPECT_THAT(operations, IsEmpty());
    select(0, u"tdblShow");
    press(key::F9, shift::Shift);
    EXPECT_TRUE(form().Visible());
  });
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
                   EXPECT_TRUE(form().Notice().starts_with(u"Fehler -2147217873: "))
                       << toUtf8(form().Notice());
                   press(key::Down);
                   EXPECT_EQ(form().Notice(), u"");
                 }),
            Variant(u"N1"));
  EXPECT_THAT(passedOver, ::testing::ElementsAre("WriteData:-2147217873", "WriteData:3219"));
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
