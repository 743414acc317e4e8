// SPDX-License-Identifier: MIT
//
// Who sees a key, in which order, and what is left of it.
#include "forms/command_button.h"
#include "forms/keys.h"
#include "forms/tdb_list.h"
#include "forms/text_box.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"a", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"b", ControlKind::TextBox, u"", 0, 300, 1000, 285},
    {u"List", ControlKind::TDBList, u"", 0, 600, 1000, 1000},
};

class KeyOrder : public FormTest {
 protected:
  KeyOrder() { watchKeys(form); }

  SampleForm form{roster};
  TextBox& a = form.Get<TextBox>(u"a");
  TDBList& list = form.Get<TDBList>(u"List");
};

TEST_F(KeyOrder, ATypedCharacterPassesTheFormTheControlAndThenChangesTheText) {
  watchChange(a);
  show(form, [&] {
    type(u"x");
    EXPECT_EQ(
        happened(),
        "Form_KeyDown:88 a_KeyDown:88 Form_KeyPress:120 a_KeyPress:120 a_Change Form_KeyUp:88 a_KeyUp:88");
    EXPECT_EQ(a.Text(), u"x");
  });
}

TEST_F(KeyOrder, AKeyThatNobodyHasTheFocusForGoesToWhomTheFormGivesIt) {
  for (const auto& each : form.controls()) each->Enabled(false);
  form.KeyDown = [this](int&, int) {
    a.Enabled(true);
    a.SetFocus();
  };
  show(form, [&] {
    EXPECT_EQ(focusOf(form), "");
    type(u"x");
    EXPECT_EQ(a.Text(), u"x");
    EXPECT_EQ(happened(), "a_KeyDown:88 Form_KeyPress:120 a_KeyPress:120 Form_KeyUp:88 a_KeyUp:88");
  });
}

TEST_F(KeyOrder, WithoutKeyPreviewTheControlAloneSeesTheKey) {
  form.KeyPreview(false);
  show(form, [&] {
    type(u"x");
    EXPECT_EQ(happened(), "a_KeyDown:88 a_KeyPress:120 a_KeyUp:88");
  });
}

TEST_F(KeyOrder, KeysThatTypeNothingGiveNoKeyPress) {
  show(form, [&] {
    press(key::F9);
    EXPECT_EQ(happened(), "Form_KeyDown:120 a_KeyDown:120 Form_KeyUp:120 a_KeyUp:120");
    press(key::Left);
    EXPECT_EQ(happened(), "Form_KeyDown:37 a_KeyDown:37 Form_KeyUp:37 a_KeyUp:37");
    press(key::Delete);
    EXPECT_EQ(happened(), "Form_KeyDown:46 a_KeyDown:46 Form_KeyUp:46 a_KeyUp:46");
  });
}

TEST_F(KeyOrder, EnterBackspaceAndEscapeGiveKeyPressToo) {
  show(form, [&] {
    press(key::Enter);
    EXPECT_EQ(happened(),
              "Form_KeyDown:13 a_KeyDown:13 Form_KeyPress:13 a_KeyPress:13 Form_KeyUp:13 a_KeyUp:13");
    press(key::Backspace);
    EXPECT_EQ(happened(), "Form_KeyDown:8 a_KeyDown:8 Form_KeyPress:8 a_KeyPress:8 Form_KeyUp:8 a_KeyUp:8");
    press(key::Escape);
    EXPECT_EQ(happened(),
              "Form_KeyDown:27 a_KeyDown:27 Form_KeyPress:27 a_KeyPress:27 Form_KeyUp:27 a_KeyUp:27");
  });
}

TEST_F(KeyOrder, EveryTypedCharacterHasAKeyCode) {
  EXPECT_EQ(KeyStroke::ofCharacter(u'a').code, 65);
  EXPECT_EQ(KeyStroke::ofCharacter(u'7').code, 55);
  EXPECT_EQ(KeyStroke::ofCharacter(u'&').code, 54);
  EXPECT_EQ(KeyStroke::ofCharacter(u',').code, 188);
  EXPECT_EQ(KeyStroke::ofCharacter(u'-').code, 189);
  EXPECT_EQ(KeyStroke::ofCharacter(u'.').code, 190);
  EXPECT_EQ(KeyStroke::ofCharacter(u'\'').code, 191);
  EXPECT_EQ(KeyStroke::ofCharacter(u'ß').code, 219);
  EXPECT_EQ(KeyStroke::ofCharacter(u'Ä').code, KeyStroke::ofCharacter(u'ä').code);
  EXPECT_EQ(KeyStroke::ofCharacter(u'ÿ').code, 231);
  EXPECT_EQ(KeyStroke::ofCharacter(u' ').code, key::Space);
}

TEST_F(KeyOrder, CtrlWithALetterTypesAControlCharacter) {
  show(form, [&] {
    pressCtrl(u'l');
    EXPECT_EQ(happened(),
              "Form_KeyDown:76 a_KeyDown:76 Form_KeyPress:12 a_KeyPress:12 Form_KeyUp:76 a_KeyUp:76");
    EXPECT_EQ(a.Text(), u"");
  });
}

TEST_F(KeyOrder, TheShiftBitsComeWithTheKey) {
  int held = -1;
  form.KeyDown = [&](int&, int shift) { held = shift; };
  show(form, [&] {
    press(key::F9, shift::Shift | shift::Alt);
    EXPECT_EQ(held, 5);
    pressCtrl(u'l');
    EXPECT_EQ(held, 2);
  });
}

// ---- handlers take a key away

TEST_F(KeyOrder, KeyCodeZeroInTheFormHidesKeyDownFromTheControlButNotKeyPress) {
  form.KeyDown = [](int& code, int) { code = 0; };
  show(form, [&] {
    type(u"x");
    EXPECT_EQ(happened(), "Form_KeyPress:120 a_KeyPress:120 Form_KeyUp:88 a_KeyUp:88");
    EXPECT_EQ(a.Text(), u"x");
  });
}

TEST_F(KeyOrder, KeyCodeZeroTakesAwayWhatArrowsAndDeleteDo) {
  a.Text(u"abc");
  for (const bool inForm : {true, false}) {
    const auto zero = [](int& code, int) { code = 0; };
    form.KeyDown = inForm ? std::function<void(int&, int)>(zero) : nullptr;
    a.KeyDown = inForm ? nullptr : std::function<void(int&, int)>(zero);
    show(form, [&] {
      press(key::Right);
      press(key::Delete);
      EXPECT_EQ(a.SelStart(), 0);
      EXPECT_EQ(a.Text(), u"abc");
    });
  }
}

TEST_F(KeyOrder, KeyCodeZeroDoesNotStopBackspaceAndCopying) {
  form.KeyDown = [](int& code, int) { code = 0; };
  a.Text(u"abc");
  show(form, [&] {
    a.SelStart(3);
    press(key::Backspace);
    EXPECT_EQ(a.Text(), u"ab");
    pressCtrl(u'a');
    pressCtrl(u'c');
    EXPECT_EQ(desktop.clipboardText(), u"ab");
  });
}

TEST_F(KeyOrder, KeyAsciiZeroInTheFormHidesTheCharacterFromTheControl) {
  form.KeyPress = [](int& ascii) { ascii = 0; };
  show(form, [&] {
    type(u"x");
    EXPECT_EQ(happened(), "Form_KeyDown:88 a_KeyDown:88 Form_KeyUp:88 a_KeyUp:88");
    EXPECT_EQ(a.Text(), u"");
  });
}

TEST_F(KeyOrder, KeyAsciiZeroInTheControlDropsTheCharacter) {
  a.KeyPress = [](int& ascii) { ascii = 0; };
  a.Text(u"abc");
  show(form, [&] {
    type(u"x");
    press(key::Backspace);
    pressCtrl(u'a');
    EXPECT_EQ(a.Text(), u"abc");
    EXPECT_EQ(a.SelLength(), 0);
  });
}

TEST_F(KeyOrder, AnotherCharacterPutInItsPlaceIsTyped) {
  form.KeyPress = [](int& ascii) { ascii = ascii == 'x' ? u'Ü' : ascii; };
  show(form, [&] {
    type(u"x");
    EXPECT_EQ(happened(), "Form_KeyDown:88 a_KeyDown:88 a_KeyPress:220 Form_KeyUp:88 a_KeyUp:88");
    EXPECT_EQ(a.Text(), u"Ü");
  });
}

TEST_F(KeyOrder, ACharacterInThePlaceOfBackspaceIsTypedAndTheOtherWayRound) {
  form.KeyPress = [](int& ascii) { ascii = ascii == 8 ? 'y' : 8; };
  a.Text(u"abc");
  show(form, [&] {
    a.SelStart(3);
    press(key::Backspace);
    EXPECT_EQ(a.Text(), u"abcy");
    type(u"x");
    EXPECT_EQ(a.Text(), u"abc");
  });
}

TEST_F(KeyOrder, AnotherKeyCodePutInItsPlaceIsPressed) {
  form.KeyDown = [](int& code, int) { code = code == key::F9 ? key::End : code; };
  a.Text(u"abc");
  show(form, [&] {
    press(key::F9);
    EXPECT_EQ(happened(), "a_KeyDown:35 Form_KeyUp:120 a_KeyUp:120");
    EXPECT_EQ(a.SelStart(), 3);
  });
}

// ---- the key's way when the focus or the form goes

TEST_F(KeyOrder, AKeyWhoseHandlerMovesTheFocusHasNoOtherEffect) {
  form.KeyDown = [&](int&, int) { form.control(u"b").SetFocus(); };
  show(form, [&] {
    type(u"x");
    EXPECT_EQ(a.Text(), u"");
    EXPECT_EQ(form.Get<TextBox>(u"b").Text(), u"");
    EXPECT_EQ(happened(), "a_KeyDown:88 Form_KeyPress:120 a_KeyPress:120 Form_KeyUp:88 b_KeyUp:88");
  });
}

TEST_F(KeyOrder, AKeyThatClosesTheFormEndsThere) {
  form.KeyDown = [&](int& code, int) {
    if (code == key::F10) form.UnloadMe();
  };
  show(form, [&] {
    press(key::F10);
    EXPECT_EQ(happened(), "");
    EXPECT_FALSE(form.Visible());
  });
}

TEST_F(KeyOrder, AMessageBoxInKeyDownLetsKeyPressFollow) {
  form.KeyDown = [&](int&, int) { MsgBox(u"Halt", msgbox::OKOnly, u""); };
  show(form, [&] {
    type(u"x");
    EXPECT_EQ(happened(), "[Halt] a_KeyDown:88 Form_KeyPress:120 a_KeyPress:120");
    EXPECT_EQ(a.Text(), u"x");
  });
}

TEST_F(KeyOrder, AFormThatAKeyOpensReceivesItsRelease) {
  SampleForm inner(roster, u"frmInner");
  inner.KeyUp = [&](int code, int) { note("inner_KeyUp:" + std::to_string(code)); };
  form.KeyDown = [&](int& code, int) {
    if (code == key::F9) show(inner);
  };
  show(form, [&] {
    press(key::F9);
    EXPECT_EQ(happened(), "inner_KeyUp:120 a_KeyDown:120");
  });
}

TEST_F(KeyOrder, AListThatKeepsEnterSeesItAloneUntilTheRelease) {
  list.keepsEnter(true);
  show(form, [&] {
    list.SetFocus();
    press(key::Enter);
    EXPECT_EQ(happened(), "List_KeyDown:13 List_KeyPress:13 Form_KeyUp:13 List_KeyUp:13");
    type(u"x");
    EXPECT_EQ(
        happened(),
        "Form_KeyDown:88 List_KeyDown:88 Form_KeyPress:120 List_KeyPress:120 Form_KeyUp:88 List_KeyUp:88");
  });
}

TEST_F(KeyOrder, OtherListsLeaveEnterToTheFormFirst) {
  form.KeyPress = [&](int& ascii) { ascii = 0; };
  show(form, [&] {
    list.SetFocus();
    press(key::Enter);
    EXPECT_EQ(happened(), "Form_KeyDown:13 List_KeyDown:13 Form_KeyUp:13 List_KeyUp:13");
  });
}

TEST_F(KeyOrder, WithoutAFocusTheFormAloneSeesTheKey) {
  for (const auto& each : form.controls()) each->Enabled(false);
  show(form, [&] {
    EXPECT_EQ(form.ActiveControl(), nullptr);
    type(u"x");
    EXPECT_EQ(happened(), "Form_KeyDown:88 Form_KeyPress:120 Form_KeyUp:88");
  });
}

}  // namespace
}  // namespace zqn::testing
