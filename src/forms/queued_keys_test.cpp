// SPDX-License-Identifier: MIT
//
// Keys that a form queues for itself.
#include "forms/command_button.h"
#include "forms/text_box.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"a", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"b", ControlKind::TextBox, u"", 0, 300, 1000, 285},
    {u"c", ControlKind::TextBox, u"", 0, 600, 1000, 285},
};

class QueuedKeys : public FormTest {
 protected:
  SampleForm form{roster};
  TextBox& a = form.Get<TextBox>(u"a");
};

TEST_F(QueuedKeys, EnterAsTabMovesOnAfterTheHandlerHasReturned) {
  form.KeyPress = [&](int& ascii) {
    if (ascii != key::Enter) return;
    desktop.sendKeys(u"{Tab}");
    ascii = 0;
    note("focus:" + focusOf(form));
  };
  show(form, [&] {
    press(key::Enter);
    EXPECT_EQ(happened(), "focus:a");
    EXPECT_EQ(focusOf(form), "a");
    desktop.pressQueuedKeys();
    EXPECT_EQ(focusOf(form), "b");
  });
}

TEST_F(QueuedKeys, ArePressedInTheirOrder) {
  show(form, [&] {
    desktop.sendKeys(u"ab{TAB}c{home}d");
    EXPECT_EQ(a.Text(), u"");
    desktop.pressQueuedKeys();
    EXPECT_EQ(a.Text(), u"ab");
    EXPECT_EQ(form.Get<TextBox>(u"b").Text(), u"dc");
  });
}

TEST_F(QueuedKeys, KnowTheNamesOfKeys) {
  std::string codes;
  form.KeyDown = [&](int& code, int) { codes += std::to_string(code) + " "; };
  show(form, [&] {
    desktop.sendKeys(
        u"{Enter}{Esc}{Backspace}{Delete}{Home}{End}{Left}{Up}{Right}{Down}{PgUp}{PgDn}{F1}{F12}");
    desktop.pressQueuedKeys();
    EXPECT_EQ(codes, "13 27 8 46 36 35 37 38 39 40 33 34 112 123 ");
  });
}

TEST_F(QueuedKeys, ANameThatIsNoKeyIsError5AndQueuesNothing) {
  show(form, [&] {
    for (const char16_t* keys : {u"x{Quatsch}", u"x{F13}", u"x{}", u"x{Tab"}) {
      EXPECT_EQ(errorNumberOf([&] { desktop.sendKeys(keys); }), error::InvalidProcedureCall);
    }
    desktop.pressQueuedKeys();
    EXPECT_EQ(a.Text(), u"");
  });
}

TEST_F(QueuedKeys, WaitWhileAMessageBoxIsOpen) {
  form.Get<TextBox>(u"b").GotFocus = [&] { note("b_GotFocus"); };
  show(form, [&] {
    desktop.sendKeys(u"{Tab}");
    MsgBox(u"Halt", msgbox::OKOnly, u"");
    EXPECT_EQ(happened(), "[Halt]");
    desktop.pressQueuedKeys();
    EXPECT_EQ(happened(), "b_GotFocus");
  });
}

TEST_F(QueuedKeys, ReachTheFormAboveWhenOneOpens) {
  SampleForm inner(roster, u"frmInner");
  show(form, [&] {
    desktop.sendKeys(u"x");
    show(inner, [&] {
      // The loop of the inner form presses them before anybody else acts.
      EXPECT_EQ(inner.Get<TextBox>(u"a").Text(), u"x");
      desktop.sendKeys(u"y");
      inner.UnloadMe();
    });
    desktop.pressQueuedKeys();
    EXPECT_EQ(a.Text(), u"y");
  });
}

TEST_F(QueuedKeys, AreDroppedWhenTheLastFormCloses) {
  show(form, [&] {
    desktop.sendKeys(u"x");
    form.UnloadMe();
  });
  show(form, [&] {
    desktop.pressQueuedKeys();
    EXPECT_EQ(a.Text(), u"");
  });
}

}  // namespace
}  // namespace zqn::testing
