// SPDX-License-Identifier: MIT
//
// Buttons of message boxes: which there are, which is the default, what Esc means.
#include "forms/message_box.h"

#include "testing/forms.h"

namespace zqn::testing {
namespace {

using ::testing::ElementsAre;

MessageBox box(int style) { return {u"Datensatz löschen?", u"Abfrage", style}; }

TEST(MessageBoxButtons, StandInTheirOrderWhateverTheIcon) {
  for (const int icon : {0, msgbox::Critical, msgbox::Question, msgbox::Exclamation, msgbox::Information}) {
    EXPECT_THAT(box(msgbox::OKOnly | icon).buttons(), ElementsAre(MsgBoxResult::OK));
    EXPECT_THAT(box(msgbox::OKCancel | icon).buttons(), ElementsAre(MsgBoxResult::OK, MsgBoxResult::Cancel));
    EXPECT_THAT(box(msgbox::YesNoCancel | icon).buttons(),
                ElementsAre(MsgBoxResult::Yes, MsgBoxResult::No, MsgBoxResult::Cancel));
    EXPECT_THAT(box(msgbox::YesNo | icon).buttons(), ElementsAre(MsgBoxResult::Yes, MsgBoxResult::No));
  }
}

TEST(MessageBoxDefault, IsTheFirstButtonUnlessTheStyleSaysOtherwise) {
  EXPECT_EQ(box(msgbox::YesNo | msgbox::Question).defaultButton(), 1);
  EXPECT_EQ(box(msgbox::YesNo | msgbox::DefaultButton2).defaultButton(), 2);
  EXPECT_EQ(box(msgbox::YesNoCancel | msgbox::DefaultButton3).defaultButton(), 3);
}

TEST(MessageBoxDefault, IsTheFirstButtonWhenTheStyleAsksForOneThatIsNotThere) {
  EXPECT_EQ(box(msgbox::YesNo | msgbox::DefaultButton3).defaultButton(), 1);
  EXPECT_EQ(box(msgbox::OKOnly | msgbox::DefaultButton2).defaultButton(), 1);
}

TEST(MessageBoxEscape, IsCancelAndOkWhereOkStandsAlone) {
  EXPECT_EQ(box(msgbox::OKCancel).escapeResult(), MsgBoxResult::Cancel);
  EXPECT_EQ(box(msgbox::YesNoCancel).escapeResult(), MsgBoxResult::Cancel);
  EXPECT_EQ(box(msgbox::OKOnly).escapeResult(), MsgBoxResult::OK);
}

TEST(MessageBoxEscape, MeansNothingForYesAndNo) {
  EXPECT_EQ(box(msgbox::YesNo | msgbox::Question).escapeResult(), std::nullopt);
}

TEST(MessageBoxResults, AreThePlatformsNumbers) {
  EXPECT_EQ(static_cast<int>(MsgBoxResult::OK), 1);
  EXPECT_EQ(static_cast<int>(MsgBoxResult::Cancel), 2);
  EXPECT_EQ(static_cast<int>(MsgBoxResult::Yes), 6);
  EXPECT_EQ(static_cast<int>(MsgBoxResult::No), 7);
}

using MessageBoxCall = FormTest;

TEST_F(MessageBoxCall, ReturnsWhatThePersonAnswers) {
  answers = {MsgBoxResult::No, MsgBoxResult::Cancel, MsgBoxResult::Yes};
  EXPECT_EQ(MsgBox(u"1", msgbox::YesNo, u""), MsgBoxResult::No);
  EXPECT_EQ(MsgBox(u"2", msgbox::OKCancel, u""), MsgBoxResult::Cancel);
  EXPECT_EQ(MsgBox(u"3", msgbox::YesNoCancel | msgbox::DefaultButton3, u""), MsgBoxResult::Yes);
  EXPECT_EQ(happened(), "[1] [2] [3]");
}

TEST_F(MessageBoxCall, KeepsThePersonFromTheFormBehindIt) {
  static constexpr ControlDesign roster[] = {{u"a", ControlKind::TextBox, u"", 0, 0, 1000, 285},
                                             {u"b", ControlKind::TextBox, u"", 0, 0, 1000, 285}};
  SampleForm form(roster);
  watchKeys(form);
  show(form, [&] {
    desktop.whenIdle([&] {
      type(u"x");
      click(form.control(u"b"));
      EXPECT_TRUE(desktop.answer(MsgBoxResult::OK));
    });
    MsgBox(u"Halt", msgbox::OKOnly, u"");
    EXPECT_EQ(happened(), "[Halt]");
    EXPECT_EQ(focusOf(form), "a");
    form.UnloadMe();
  });
}

}  // namespace
}  // namespace zqn::testing
