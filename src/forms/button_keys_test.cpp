// SPDX-License-Identifier: MIT
//
// Buttons that keys press: the one with the focus, the Default and the Cancel button.
#include "forms/command_button.h"
#include "forms/label.h"
#include "forms/tdb_list.h"
#include "forms/text_box.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"a", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"btnOK", ControlKind::CommandButton, u"OK", 0, 300, 1000, 285, {.Default = true}},
    {u"btnCancel", ControlKind::CommandButton, u"Abbrechen", 0, 600, 1000, 285, {.Cancel = true}},
    {u"btnNew", ControlKind::CommandButton, u"Neu", 0, 900, 1000, 285},
    {u"List", ControlKind::TDBList, u"", 0, 1200, 1000, 1000},
};

class ButtonKeys : public FormTest {
 protected:
  ButtonKeys() {
    watchKeys(form);
    watchFocus(form);
    watchValidate(form);
    watchClicks(form);
  }
  /// What a press of the key leads to while the control has the focus.
  std::string pressed(int code, StringView focus, int shift = 0) {
    form.control(focus).SetFocus();
    happened();
    press(code, shift);
    return happened();
  }

  SampleForm form{roster};
};

TEST_F(ButtonKeys, EnterClicksTheButtonThatHasTheFocusAndTypesNothing) {
  show(form,
       [&] { EXPECT_EQ(pressed(key::Enter, u"btnNew"), "btnNew_Click Form_KeyUp:13 btnNew_KeyUp:13"); });
}

TEST_F(ButtonKeys, SpaceClicksTheButtonThatHasTheFocus) {
  show(form, [&] {
    EXPECT_EQ(pressed(key::Space, u"btnNew"),
              "Form_KeyDown:32 btnNew_KeyDown:32 Form_KeyPress:32 btnNew_KeyPress:32 btnNew_Click "
              "Form_KeyUp:32 btnNew_KeyUp:32");
  });
}

TEST_F(ButtonKeys, EnterElsewhereClicksTheDefaultButtonAndTheFocusStays) {
  show(form, [&] {
    EXPECT_EQ(pressed(key::Enter, u"a"), "btnOK_Click Form_KeyUp:13 a_KeyUp:13");
    EXPECT_EQ(focusOf(form), "a");
    EXPECT_EQ(pressed(key::Enter, u"List"), "btnOK_Click Form_KeyUp:13 List_KeyUp:13");
  });
}

TEST_F(ButtonKeys, EscapeClicksTheCancelButtonFromAnywhereAndTheFocusStays) {
  show(form, [&] {
    EXPECT_EQ(pressed(key::Escape, u"a"), "btnCancel_Click Form_KeyUp:27 a_KeyUp:27");
    EXPECT_EQ(pressed(key::Escape, u"btnNew"), "btnCancel_Click Form_KeyUp:27 btnNew_KeyUp:27");
    EXPECT_EQ(focusOf(form), "btnNew");
  });
}

TEST_F(ButtonKeys, ADisabledButtonLeavesTheKeyAsAnOrdinaryOne) {
  form.control(u"btnOK").Enabled(false);
  form.control(u"btnCancel").Enabled(false);
  show(form, [&] {
    EXPECT_EQ(pressed(key::Enter, u"a"),
              "Form_KeyDown:13 a_KeyDown:13 Form_KeyPress:13 a_KeyPress:13 Form_KeyUp:13 a_KeyUp:13");
    EXPECT_EQ(pressed(key::Escape, u"a"),
              "Form_KeyDown:27 a_KeyDown:27 Form_KeyPress:27 a_KeyPress:27 Form_KeyUp:27 a_KeyUp:27");
  });
}

TEST_F(ButtonKeys, AnInvisibleButtonLeavesTheKeyAsAnOrdinaryOne) {
  form.control(u"btnOK").Visible(false);
  form.control(u"btnCancel").Visible(false);
  show(form, [&] {
    EXPECT_EQ(pressed(key::Enter, u"a"),
              "Form_KeyDown:13 a_KeyDown:13 Form_KeyPress:13 a_KeyPress:13 Form_KeyUp:13 a_KeyUp:13");
    EXPECT_EQ(pressed(key::Escape, u"a"),
              "Form_KeyDown:27 a_KeyDown:27 Form_KeyPress:27 a_KeyPress:27 Form_KeyUp:27 a_KeyUp:27");
  });
}

TEST_F(ButtonKeys, AListThatKeepsEnterComesBeforeTheDefaultButton) {
  form.Get<TDBList>(u"List").keepsEnter(true);
  show(form, [&] {
    EXPECT_EQ(pressed(key::Enter, u"List"), "List_KeyDown:13 List_KeyPress:13 Form_KeyUp:13 List_KeyUp:13");
    EXPECT_EQ(pressed(key::Escape, u"List"), "btnCancel_Click Form_KeyUp:27 List_KeyUp:27");
  });
}

TEST_F(ButtonKeys, WithAShiftKeyEnterAndEscapePressNoButton) {
  show(form, [&] {
    EXPECT_EQ(pressed(key::Enter, u"a", shift::Alt), "Form_KeyDown:13 a_KeyDown:13 Form_KeyUp:13 a_KeyUp:13");
    EXPECT_EQ(pressed(key::Escape, u"a", shift::Ctrl),
              "Form_KeyDown:27 a_KeyDown:27 Form_KeyUp:27 a_KeyUp:27");
  });
}

TEST_F(ButtonKeys, ADefaultButtonThatClosesTheFormEndsTheKeyThere) {
  form.control(u"btnOK").Click = [&] { form.UnloadMe(); };
  show(form, [&] {
    EXPECT_EQ(pressed(key::Enter, u"a"), "");
    EXPECT_FALSE(form.Visible());
  });
}

TEST_F(ButtonKeys, AClickOnALabelReachesTheLabelAndLeavesTheFocus) {
  static constexpr ControlDesign withLabel[] = {
      {u"a", ControlKind::TextBox, u"", 0, 0, 1000, 285},
      {u"Label1", ControlKind::Label, u"Schlüssel", 0, 300, 1000, 285},
  };
  SampleForm labelled(withLabel);
  watchClicks(labelled);
  watchFocus(labelled);
  show(labelled, [&] {
    EXPECT_EQ(happened(), "a_GotFocus");
    click(labelled.control(u"Label1"));
    EXPECT_EQ(happened(), "Label1_Click");
  });
}

}  // namespace
}  // namespace zqn::testing
