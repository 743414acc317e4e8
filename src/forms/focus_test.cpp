// SPDX-License-Identifier: MIT
//
// Where the focus goes, and which events tell of it.
#include "forms/command_button.h"
#include "forms/label.h"
#include "forms/text_box.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"Label1", ControlKind::Label, u"Schlüssel", 0, 0, 1000, 285},
    {u"a", ControlKind::TextBox, u"", 0, 300, 1000, 285},
    {u"b", ControlKind::TextBox, u"", 0, 600, 1000, 285},
    {u"c", ControlKind::TextBox, u"", 0, 900, 1000, 285},
    {u"btn", ControlKind::CommandButton, u"OK", 0, 1200, 1000, 285},
};

class FocusTest : public FormTest {
 protected:
  FocusTest() {
    watchFocus(form);
    watchValidate(form);
    watchClicks(form);
  }
  void ask() { MsgBox(u"?", msgbox::OKOnly, u""); }

  SampleForm form{roster};
  TextBox& a = form.Get<TextBox>(u"a");
  TextBox& b = form.Get<TextBox>(u"b");
  TextBox& c = form.Get<TextBox>(u"c");
  CommandButton& btn = form.Get<CommandButton>(u"btn");
};

using FirstFocus = FocusTest;
using TabOrder = FocusTest;
using Click = FocusTest;
using ValidateEvent = FocusTest;
using LostFocusEvent = FocusTest;
using SetFocusCall = FocusTest;
using UnusableControl = FocusTest;

// ---- the first focus

TEST_F(FirstFocus, GoesToTheFirstControlInTheTabOrderThatCanTakeIt) {
  a.Enabled(false);
  b.Visible(false);
  c.TabStop(false);
  show(form, [&] { EXPECT_EQ(happened(), "c_GotFocus"); });
}

TEST_F(FirstFocus, GoesWhereActivatePutIt) {
  form.Activate = [&] { c.SetFocus(); };
  show(form, [&] { EXPECT_EQ(happened(), "c_GotFocus"); });
}

TEST_F(FirstFocus, GoesNowhereWhenNoControlCanTakeIt) {
  for (const auto& each : form.controls()) each->Enabled(false);
  show(form, [&] {
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(form.ActiveControl(), nullptr);
    EXPECT_EQ(errorNumberOf([&] { form.requireActiveControl(); }), error::ObjectNotSet);
  });
}

// ---- Tab

TEST_F(TabOrder, TabValidatesThenLeavesThenArrivesAndShowsNobodyTheKey) {
  watchKeys(form);
  show(form, [&] {
    happened();
    press(key::Tab);
    EXPECT_EQ(happened(), "a_Validate a_LostFocus b_GotFocus");
  });
}

TEST_F(TabOrder, TabLeadsRoundForwardsAndBackwards) {
  show(form, [&] {
    std::string way;
    for (int i = 0; i < 4; ++i) press(key::Tab), way += focusOf(form) + " ";
    for (int i = 0; i < 4; ++i) press(key::Tab, shift::Shift), way += focusOf(form) + " ";
    EXPECT_EQ(way, "b c btn a btn c b a ");
  });
}

TEST_F(TabOrder, SkipsDisabledInvisibleAndNonTabStopControls) {
  b.Enabled(false);
  show(form, [&] {
    press(key::Tab);
    EXPECT_EQ(focusOf(form), "c");
    b.Enabled(true);
    c.Visible(false);
    EXPECT_EQ(focusOf(form), "btn");
    press(key::Tab, shift::Shift);
    EXPECT_EQ(focusOf(form), "b");
    btn.TabStop(false);
    press(key::Tab);
    EXPECT_EQ(focusOf(form), "a");
    press(key::Tab, shift::Shift);
    EXPECT_EQ(focusOf(form), "b");
  });
}

TEST_F(TabOrder, WithNowhereToGoTabIsAnOrdinaryKeyOfTheControl) {
  b.Enabled(false);
  c.Visible(false);
  btn.TabStop(false);
  watchKeys(form);
  show(form, [&] {
    happened();
    press(key::Tab);
    EXPECT_EQ(happened(), "Form_KeyDown:9 a_KeyDown:9 Form_KeyPress:9 a_KeyPress:9 Form_KeyUp:9 a_KeyUp:9");
    EXPECT_EQ(a.Text(), u"");
  });
}

TEST_F(TabOrder, WithCtrlTabIsAnOrdinaryKey) {
  watchKeys(form);
  show(form, [&] {
    happened();
    press(key::Tab, shift::Ctrl);
    EXPECT_EQ(happened(), "Form_KeyDown:9 a_KeyDown:9 Form_KeyUp:9 a_KeyUp:9");
  });
}

TEST_F(TabOrder, WithoutAFocusTabLeadsToTheFirstAndShiftTabToTheLast) {
  a.Enabled(false);
  b.Enabled(false);
  c.Enabled(false);
  btn.Enabled(false);
  show(form, [&] {
    b.Enabled(true);
    c.Enabled(true);
    EXPECT_EQ(focusOf(form), "");
    press(key::Tab);
    EXPECT_EQ(happened(), "b_GotFocus");
    b.Enabled(false);
    c.Enabled(false);
    EXPECT_EQ(happened(), "b_LostFocus c_GotFocus c_LostFocus");
    b.Enabled(true);
    c.Enabled(true);
    press(key::Tab, shift::Shift);
    EXPECT_EQ(happened(), "c_GotFocus");
  });
}

// ---- a click

TEST_F(Click, OnAButtonValidatesMovesTheFocusAndClicks) {
  show(form, [&] {
    happened();
    click(btn);
    EXPECT_EQ(happened(), "a_Validate a_LostFocus btn_GotFocus btn_Click");
    click(btn);
    EXPECT_EQ(happened(), "btn_Click");
  });
}

TEST_F(Click, OnWhatIsDisabledOrInvisibleDoesNothing) {
  btn.Enabled(false);
  c.Visible(false);
  show(form, [&] {
    happened();
    click(btn);
    click(c);
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(focusOf(form), "a");
  });
}

TEST_F(Click, HasNoEffectWhenTheLeavingControlDisablesTheButton) {
  a.LostFocus = [&] { btn.Enabled(false); };
  show(form, [&] {
    happened();
    click(btn);
    EXPECT_EQ(happened(), "a_Validate a_GotFocus");
    EXPECT_EQ(focusOf(form), "a");
  });
}

TEST_F(Click, HasNoEffectWhenTheLeavingControlClosesTheForm) {
  a.LostFocus = [&] { form.UnloadMe(); };
  show(form, [&] {
    click(btn);
    EXPECT_EQ(happened(), "a_GotFocus a_Validate");
  });
}

// ---- Validate

TEST_F(ValidateEvent, RefusingKeepsTheFocusAndEndsTabAndClick) {
  a.Validate = [&](bool& cancel) { cancel = true; };
  show(form, [&] {
    happened();
    press(key::Tab);
    click(b);
    click(btn);
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(focusOf(form), "a");
  });
}

TEST_F(ValidateEvent, DoesNotRunForATargetThatCausesNone) {
  btn.CausesValidation(false);
  show(form, [&] {
    happened();
    click(btn);
    EXPECT_EQ(happened(), "a_LostFocus btn_GotFocus btn_Click");
  });
}

TEST_F(ValidateEvent, ThatMovesTheFocusItselfEndsTheMoveThere) {
  a.Validate = [&](bool&) { c.SetFocus(); };
  show(form, [&] {
    happened();
    click(btn);
    EXPECT_EQ(happened(), "a_LostFocus c_GotFocus");
    EXPECT_EQ(focusOf(form), "c");
  });
}

TEST_F(ValidateEvent, ThatMovesTheFocusToTheTargetLetsTheClickThrough) {
  a.Validate = [&](bool&) { btn.SetFocus(); };
  show(form, [&] {
    happened();
    click(btn);
    EXPECT_EQ(happened(), "a_LostFocus btn_GotFocus btn_Click");
  });
}

TEST_F(ValidateEvent, ThatDisablesTheTargetKeepsTheFocus) {
  a.Validate = [&](bool&) { b.Enabled(false); };
  show(form, [&] {
    happened();
    press(key::Tab);
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(focusOf(form), "a");
  });
}

TEST_F(ValidateEvent, WithAMessageBoxSwallowsTheClickAndTheFocusMovesOn) {
  a.Validate = [&](bool&) { ask(); };
  show(form, [&] {
    happened();
    click(btn);
    EXPECT_EQ(happened(), "[?] a_LostFocus btn_GotFocus");
    EXPECT_EQ(focusOf(form), "btn");
  });
}

TEST_F(ValidateEvent, WithAMessageBoxThatRefusesKeepsTheFocus) {
  a.Validate = [&](bool& cancel) {
    ask();
    cancel = true;
  };
  show(form, [&] {
    happened();
    click(btn);
    EXPECT_EQ(happened(), "[?]");
    EXPECT_EQ(focusOf(form), "a");
  });
}

TEST_F(ValidateEvent, WithAMessageBoxLetsTabMoveOn) {
  a.Validate = [&](bool&) { ask(); };
  show(form, [&] {
    happened();
    press(key::Tab);
    EXPECT_EQ(happened(), "[?] a_LostFocus b_GotFocus");
  });
}

TEST_F(ValidateEvent, ThatFailsIsToldLikeAMessageBoxAndSwallowsTheClick) {
  a.Validate = [&](bool&) { throw RuntimeError(error::TypeMismatch); };
  show(form, [&] {
    happened();
    click(btn);
    EXPECT_EQ(happened(), "!a_Validate:13 a_LostFocus btn_GotFocus");
  });
}

TEST_F(ValidateEvent, DoesNotRunWhenTheFormCloses) {
  show(form, [&] {
    happened();
    form.closeBox();
    EXPECT_EQ(happened(), "");
  });
}

// ---- LostFocus

TEST_F(LostFocusEvent, SeesTheNewControlAsTheActiveOne) {
  std::string active;
  a.LostFocus = [&] { active = focusOf(form); };
  b.GotFocus = [&] { active += " " + focusOf(form); };
  show(form, [&] {
    press(key::Tab);
    EXPECT_EQ(active, "b b");
  });
}

TEST_F(LostFocusEvent, WithAMessageBoxSwallowsTheClickAndTheFocusMovesOn) {
  a.LostFocus = [&] { ask(); };
  show(form, [&] {
    happened();
    click(btn);
    EXPECT_EQ(happened(), "a_Validate [?] btn_GotFocus");
    EXPECT_EQ(focusOf(form), "btn");
  });
}

TEST_F(LostFocusEvent, WithAMessageBoxThatPutsTheFocusBackStays) {
  a.LostFocus = [&] {
    ask();
    a.SetFocus();
  };
  show(form, [&] {
    happened();
    click(btn);
    EXPECT_EQ(happened(), "a_Validate [?] a_GotFocus");
    EXPECT_EQ(focusOf(form), "a");
  });
}

TEST_F(LostFocusEvent, ThatPutsTheFocusElsewherePassesTheTargetOver) {
  a.LostFocus = [&] { c.SetFocus(); };
  show(form, [&] {
    happened();
    press(key::Tab);
    EXPECT_EQ(happened(), "a_Validate c_GotFocus");
    press(key::Tab);
    EXPECT_EQ(happened(), "c_Validate c_LostFocus btn_GotFocus");
  });
}

// ---- SetFocus

TEST_F(SetFocusCall, LeavesAndArrivesWithoutValidate) {
  show(form, [&] {
    happened();
    c.SetFocus();
    EXPECT_EQ(happened(), "a_LostFocus c_GotFocus");
    c.SetFocus();
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(SetFocusCall, InGotFocusRunsInsideTheOuterMove) {
  b.GotFocus = [&] {
    note("b_GotFocus");
    c.SetFocus();
    note("b_end");
  };
  show(form, [&] {
    happened();
    b.SetFocus();
    EXPECT_EQ(happened(), "a_LostFocus b_GotFocus b_LostFocus c_GotFocus b_end");
    EXPECT_EQ(focusOf(form), "c");
  });
}

TEST_F(SetFocusCall, InActivateTwiceLeavesTheFirst) {
  form.Activate = [&] {
    btn.SetFocus();
    c.SetFocus();
  };
  show(form, [&] { EXPECT_EQ(happened(), "btn_GotFocus btn_LostFocus c_GotFocus"); });
}

TEST_F(SetFocusCall, IsError5OnWhatIsDisabledInvisibleOrALabel) {
  b.Enabled(false);
  c.Visible(false);
  show(form, [&] {
    for (const char16_t* name : {u"b", u"c", u"Label1"}) {
      EXPECT_EQ(errorNumberOf([&] { form.control(name).SetFocus(); }), error::InvalidProcedureCall);
    }
    EXPECT_EQ(focusOf(form), "a");
    EXPECT_EQ(happened(), "a_GotFocus");
  });
}

TEST_F(SetFocusCall, IsError5BeforeTheFormIsShownAndAfterIt) {
  EXPECT_EQ(errorNumberOf([&] { a.SetFocus(); }), error::InvalidProcedureCall);
  form.Load = [&] { a.SetFocus(); };
  show(form);
  EXPECT_EQ(happened(), "!Form_Load:5 a_GotFocus");
  EXPECT_EQ(errorNumberOf([&] { a.SetFocus(); }), error::InvalidProcedureCall);
}

TEST_F(SetFocusCall, IsError5InsideWhatCannotBeUsed) {
  static constexpr ControlDesign framed[] = {
      {u"Frame", ControlKind::Frame, u"", 0, 0, 3000, 3000},
      {u"inside", ControlKind::TextBox, u"", 0, 300, 1000, 285, {.Container = u"Frame"}},
      {u"outside", ControlKind::TextBox, u"", 0, 3300, 1000, 285},
  };
  SampleForm other(framed);
  Control& inside = other.control(u"inside");
  show(other, [&] {
    EXPECT_EQ(focusOf(other), "inside");
    other.control(u"Frame").Visible(false);
    EXPECT_EQ(focusOf(other), "outside");
    EXPECT_FALSE(inside.isShown());
    EXPECT_EQ(errorNumberOf([&] { inside.SetFocus(); }), error::InvalidProcedureCall);
    other.control(u"Frame").Visible(true);
    other.control(u"Frame").Enabled(false);
    EXPECT_TRUE(inside.isShown());
    EXPECT_EQ(errorNumberOf([&] { inside.SetFocus(); }), error::InvalidProcedureCall);
  });
}

// ---- the control with the focus becomes unusable

TEST_F(UnusableControl, DisablingItMovesTheFocusToTheNextOne) {
  show(form, [&] {
    happened();
    a.Enabled(false);
    EXPECT_EQ(happened(), "a_LostFocus b_GotFocus");
  });
}

TEST_F(UnusableControl, HidingItMovesTheFocusToTheNextOneThatTabReaches) {
  c.TabStop(false);
  show(form, [&] {
    b.SetFocus();
    happened();
    b.Visible(false);
    EXPECT_EQ(happened(), "b_LostFocus btn_GotFocus");
  });
}

TEST_F(UnusableControl, TheLastOneLeavesTheFocusToTheForm) {
  b.Enabled(false);
  c.Enabled(false);
  btn.Enabled(false);
  show(form, [&] {
    happened();
    a.Enabled(false);
    EXPECT_EQ(happened(), "a_LostFocus");
    EXPECT_EQ(form.ActiveControl(), nullptr);
  });
}

TEST_F(UnusableControl, DisablingAnotherOneLeavesTheFocus) {
  show(form, [&] {
    happened();
    b.Enabled(false);
    c.Visible(false);
    EXPECT_EQ(happened(), "");
    EXPECT_EQ(focusOf(form), "a");
  });
}

TEST_F(UnusableControl, AScreenReaderCannotMoveTheFocusThere) {
  b.Enabled(false);
  show(form, [&] {
    happened();
    form.focusMovedTo(b);
    EXPECT_EQ(happened(), "");
    form.focusMovedTo(c);
    EXPECT_EQ(happened(), "a_Validate a_LostFocus c_GotFocus");
  });
}

}  // namespace
}  // namespace zqn::testing
