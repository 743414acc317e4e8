// SPDX-License-Identifier: MIT
#include "desktop/headless/headless_desktop.h"

#include <stdexcept>

#include "forms/check_box.h"
#include "forms/text_box.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"a", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"chk", ControlKind::CheckBox, u"", 0, 300, 1000, 285},
};

/// Nobody is there unless a test says otherwise.
class HeadlessDesktopTest : public ::testing::Test {
 protected:
  headless::HeadlessDesktop desktop;
  Desktop::Scope scope{desktop};
  SampleForm form{roster};
  TextBox& a = form.Get<TextBox>(u"a");
};

using NobodyThere = HeadlessDesktopTest;
using SomebodyThere = HeadlessDesktopTest;

// ---- nobody there

TEST_F(NobodyThere, AFormIsClosedByItsCloseBox) {
  int mode = -1;
  form.QueryUnload = [&](int&, int how) { mode = how; };
  form.Show();
  EXPECT_EQ(mode, 0);
  EXPECT_EQ(desktop.activeForm(), nullptr);
}

TEST_F(NobodyThere, AFormThatRefusesItsCloseBoxIsADefect) {
  form.QueryUnload = [](int& cancel, int) { cancel = 1; };
  EXPECT_THROW(form.Show(), std::logic_error);
}

TEST_F(NobodyThere, AFormThatRefusesItsCloseBoxIsLeftByItsCancelButton) {
  constexpr ControlDesign buttons[] = {
      {u"OKButton", ControlKind::CommandButton, u"OK", 0, 0, 1000, 285},
      {u"CancelButton", ControlKind::CommandButton, u"Abbrechen", 0, 300, 1000, 285},
  };
  SampleForm asking(buttons);
  bool refuses = true;
  asking.Unload = [&](int& cancel) { cancel = refuses ? 1 : 0; };
  asking.control(u"CancelButton").Click = [&] {
    refuses = false;
    asking.UnloadMe();
  };
  asking.Show();
  EXPECT_FALSE(asking.Visible());
  EXPECT_FALSE(refuses);
}

TEST_F(NobodyThere, AMessageBoxGetsItsDefaultAnswer) {
  EXPECT_EQ(MsgBox(u"?", msgbox::YesNo, u""), MsgBoxResult::Yes);
  EXPECT_EQ(MsgBox(u"?", msgbox::YesNo | msgbox::DefaultButton2, u""), MsgBoxResult::No);
  EXPECT_EQ(MsgBox(u"?", msgbox::YesNoCancel | msgbox::DefaultButton3, u""), MsgBoxResult::Cancel);
  EXPECT_EQ(MsgBox(u"?", msgbox::YesNo | msgbox::DefaultButton3, u""), MsgBoxResult::Yes);
  EXPECT_EQ(desktop.openMessageBox(), nullptr);
}

TEST_F(NobodyThere, QueuedKeysArePressedBeforeTheFormCloses) {
  form.Activate = [&] { desktop.sendKeys(u"ab"); };
  form.Show();
  EXPECT_EQ(a.Text(), u"ab");
}

// ---- somebody there

TEST_F(SomebodyThere, DoEventsPressesWhatIsQueuedAndLeavesTheRestToTheLoop) {
  int acted = 0;
  desktop.whenIdle([&] {
    ++acted;
    form.UnloadMe();
  });
  form.Activate = [&] {
    a.SetFocus();
    desktop.sendKeys(u"ab");
    desktop.doEvents();
    EXPECT_EQ(a.Text(), u"ab");
    EXPECT_EQ(acted, 0);
  };
  form.Show();
  EXPECT_EQ(acted, 1);
}

TEST_F(SomebodyThere, ActsOnceTheQueueIsEmpty) {
  std::string order;
  a.Change = [&] { order += "typed "; };
  form.Activate = [&] { desktop.sendKeys(u"ab"); };
  desktop.whenIdle([&] {
    order += "idle ";
    form.closeBox();
  });
  form.Show();
  EXPECT_EQ(order, "typed typed idle ");
}

TEST_F(SomebodyThere, ActsOnTheFormOnTop) {
  SampleForm inner(roster, u"frmInner");
  int step = 0;
  desktop.whenIdle([&] {
    switch (++step) {
      case 1:
        EXPECT_EQ(desktop.activeForm(), &form);
        desktop.press(KeyStroke::ofCharacter(u'x'));
        inner.Show();
        break;
      case 2:
        EXPECT_EQ(desktop.activeForm(), &inner);
        desktop.press(KeyStroke::ofCharacter(u'y'));
        desktop.click(form.control(u"chk"));
        inner.closeBox();
        break;
      default:
        form.closeBox();
    }
  });
  form.Show();
  EXPECT_EQ(step, 3);
  EXPECT_EQ(a.Text(), u"x");
  EXPECT_EQ(inner.Get<TextBox>(u"a").Text(), u"y");
  EXPECT_EQ(form.Get<CheckBox>(u"chk").Value(), 0);
}

TEST_F(SomebodyThere, CannotActWhereNoFormIsOpen) {
  desktop.press(KeyStroke::ofCharacter(u'x'));
  desktop.click(form.control(u"chk"));
  EXPECT_EQ(a.Text(), u"");
  EXPECT_EQ(form.Get<CheckBox>(u"chk").Value(), 0);
  EXPECT_FALSE(desktop.answer(MsgBoxResult::OK));
}

TEST_F(SomebodyThere, AnswersABoxOnlyWithAButtonThatItHas) {
  desktop.whenIdle([&] {
    ASSERT_NE(desktop.openMessageBox(), nullptr);
    EXPECT_EQ(desktop.openMessageBox()->title, u"Abfrage");
    EXPECT_FALSE(desktop.answer(MsgBoxResult::OK));
    EXPECT_TRUE(desktop.answer(MsgBoxResult::No));
  });
  EXPECT_EQ(MsgBox(u"Datensatz löschen?", msgbox::YesNo, u"Abfrage"), MsgBoxResult::No);
  EXPECT_FALSE(desktop.answer(MsgBoxResult::No));
}

TEST_F(SomebodyThere, AnswersABoxThatOpensOverAnotherFirst) {
  int step = 0;
  MsgBoxResult inner{};
  desktop.whenIdle([&] {
    if (++step == 1) {
      inner = MsgBox(u"innen", msgbox::YesNo, u"");
      EXPECT_EQ(desktop.openMessageBox()->text, u"außen");
      desktop.answer(MsgBoxResult::Cancel);
    } else {
      EXPECT_EQ(desktop.openMessageBox()->text, u"innen");
      desktop.answer(MsgBoxResult::No);
    }
  });
  EXPECT_EQ(MsgBox(u"außen", msgbox::OKCancel, u""), MsgBoxResult::Cancel);
  EXPECT_EQ(inner, MsgBoxResult::No);
  EXPECT_EQ(desktop.messageBoxCount(), 2);
}

TEST_F(SomebodyThere, WhoGivesUpAtABoxLeavesNoBoxBehind) {
  desktop.whenIdle([] { throw std::runtime_error("the script cannot go on"); });
  EXPECT_THROW(MsgBox(u"?", msgbox::OKOnly, u""), std::runtime_error);
  EXPECT_EQ(desktop.openMessageBox(), nullptr);
}

// ---- who hears of it

class Log : public DesktopListener {
 public:
  explicit Log(Desktop& desktop) : desktop_(desktop) { desktop_.addListener(this); }
  ~Log() override { desktop_.removeListener(this); }
  std::string lines;

 private:
  void formShown(Form& form) override { lines += "shown:" + toUtf8(form.Name()) + " "; }
  void formClosed(Form& form) override { lines += "closed:" + toUtf8(form.Name()) + " "; }
  void messageBoxOpened(const MessageBox& box) override { lines += "box:" + toUtf8(box.text) + " "; }

  Desktop& desktop_;
};

using Listeners = HeadlessDesktopTest;

TEST_F(Listeners, HearOfFormsAndBoxesInTheirOrder) {
  SampleForm inner(roster, u"frmInner");
  form.control(u"chk").Click = [&] { inner.Show(); };
  inner.Unload = [](int&) { MsgBox(u"Ende", msgbox::OKOnly, u""); };
  bool clicked = false;
  desktop.whenIdle([&] {
    if (desktop.openMessageBox() != nullptr) {
      desktop.answer(MsgBoxResult::OK);
    } else if (!std::exchange(clicked, true)) {
      desktop.click(form.control(u"chk"));
    } else {
      desktop.activeForm()->closeBox();
    }
  });
  const Log log(desktop);
  form.Show();
  EXPECT_EQ(log.lines, "shown:frmSample shown:frmInner box:Ende closed:frmInner closed:frmSample ");
}

TEST_F(Listeners, HearNothingMoreOnceTheyAreRemoved) {
  Log log(desktop);
  form.Show();
  EXPECT_EQ(log.lines, "shown:frmSample closed:frmSample ");
  desktop.removeListener(&log);
  form.Show();
  EXPECT_EQ(log.lines, "shown:frmSample closed:frmSample ");
}

TEST_F(Listeners, AFormThatUnloadsInActivateIsClosedWithoutHavingBeenShown) {
  form.Activate = [&] { form.UnloadMe(); };
  const Log log(desktop);
  form.Show();
  EXPECT_EQ(log.lines, "closed:frmSample ");
}

}  // namespace
}  // namespace zqn::testing
