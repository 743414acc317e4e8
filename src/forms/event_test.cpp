// SPDX-License-Identifier: MIT
//
// Errors that leave an event procedure.
#include <new>

#include "forms/check_box.h"
#include "forms/command_button.h"
#include "forms/text_box.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"a", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"chk", ControlKind::CheckBox, u"", 0, 300, 1000, 285},
    {u"btn(0)", ControlKind::CommandButton, u"", 0, 600, 1000, 285},
};

class EventErrors : public FormTest {
 protected:
  SampleForm form{roster};
  TextBox& a = form.Get<TextBox>(u"a");
  CheckBox& chk = form.Get<CheckBox>(u"chk");
  CommandButton& btn = form.Get<CommandButton>(u"btn", 0);
};

TEST_F(EventErrors, GoToTheDesktopWithTheProceduresNameAndTheFormStaysOpen) {
  btn.Click = [] { throw RuntimeError(error::CommandText, u"Syntaxfehler"); };
  show(form, [&] {
    click(btn);
    EXPECT_EQ(happened(), "!btn_Click:-2147217900");
    EXPECT_TRUE(form.Visible());
  });
}

TEST_F(EventErrors, NeverReachTheStatementThatRaisedTheEvent) {
  a.Change = [] { throw RuntimeError(error::TypeMismatch); };
  chk.Click = [] { throw RuntimeError(error::InvalidUseOfNull); };
  EXPECT_NO_THROW(a.Text(u"10"));
  EXPECT_NO_THROW(chk.Value(1));
  EXPECT_EQ(a.Text(), u"10");
  EXPECT_EQ(chk.Value(), 1);
  EXPECT_EQ(happened(), "!a_Change:13 !chk_Click:94");
}

TEST_F(EventErrors, OfTheFormBearTheNameForm) {
  form.KeyDown = [](int&, int) { throw RuntimeError(error::ObjectNotSet); };
  form.Unload = [](int&) { throw RuntimeError(error::Overflow); };
  show(form, [&] { press(key::F9); });
  EXPECT_EQ(happened(), "!Form_KeyDown:91 !Form_Unload:6");
  EXPECT_FALSE(form.Visible());
}

TEST_F(EventErrors, LeaveWhatTheHandlerAnsweredSoFar) {
  form.KeyPress = [](int& ascii) {
    ascii = 0;
    throw RuntimeError(error::TypeMismatch);
  };
  show(form, [&] {
    type(u"x");
    EXPECT_EQ(happened(), "!Form_KeyPress:13");
    EXPECT_EQ(a.Text(), u"");
  });
}

TEST_F(EventErrors, OfTheProgramItselfAreNotCaught) {
  a.Change = [] { throw std::bad_alloc(); };
  EXPECT_THROW(a.Text(u"10"), std::bad_alloc);
  form.Load = [] { throw std::logic_error("a broken invariant"); };
  EXPECT_THROW(form.Show(), std::logic_error);
}

TEST_F(EventErrors, AnEventWithoutHandlerDoesNothing) {
  EXPECT_FALSE(btn.Click.hasHandler());
  btn.clicked();
  btn.Click = [&] { note("Click"); };
  EXPECT_TRUE(btn.Click.hasHandler());
  btn.clicked();
  EXPECT_EQ(happened(), "Click");
}

TEST_F(EventErrors, AHandlerThatReplacesItselfGoesOnToItsEnd) {
  auto state = std::make_shared<int>(0);
  const std::weak_ptr<int> watch = state;
  btn.Click = [this, watch, state = std::move(state)] {
    Control& button = btn;
    const auto stillThere = watch;
    button.Click = [this] { note("second"); };
    note(stillThere.expired() ? "destroyed" : "first");
  };
  btn.clicked();
  btn.clicked();
  EXPECT_EQ(happened(), "first second");
  EXPECT_TRUE(watch.expired());
}

TEST_F(EventErrors, AHandlerMayTakeItselfOff) {
  btn.Click = [this] {
    Control& button = btn;
    button.Click = nullptr;
    note("once");
  };
  btn.clicked();
  btn.clicked();
  EXPECT_EQ(happened(), "once");
  EXPECT_FALSE(btn.Click.hasHandler());
}

TEST_F(EventErrors, AnEmptyFunctionIsNoHandler) {
  btn.Click = [&] { note("Click"); };
  btn.Click = std::function<void()>();
  EXPECT_FALSE(btn.Click.hasHandler());
  btn.clicked();
  btn.Click = std::function<void()>([&] { note("Function"); });
  btn.clicked();
  EXPECT_EQ(happened(), "Function");
}

// ---- without a listener the person is told

class ErrorBox : public ::testing::Test, private DesktopListener {
 protected:
  ErrorBox() { desktop_.addListener(this); }
  ~ErrorBox() override { desktop_.removeListener(this); }

  std::vector<MessageBox> boxes;

 private:
  void messageBoxOpened(const MessageBox& box) override { boxes.push_back(box); }

  headless::HeadlessDesktop desktop_;
  Desktop::Scope scope_{desktop_};
};

TEST_F(ErrorBox, TellsThePersonNumberAndWords) {
  SampleForm form(roster);
  form.Load = [] { throw RuntimeError(error::TypeMismatch); };
  form.Show();
  ASSERT_EQ(boxes.size(), 1u);
  EXPECT_EQ(boxes[0].text, u"Laufzeitfehler '13':\n\n" + error::description(error::TypeMismatch));
  EXPECT_NE(error::description(error::TypeMismatch), u"");
  EXPECT_EQ(boxes[0].style, msgbox::Critical);
  EXPECT_EQ(boxes[0].title, u"TALVEX Software");
}

}  // namespace
}  // namespace zqn::testing
