// SPDX-License-Identifier: MIT
//
// The choice among the options of a container: by code, by mouse, by keys and by the way of the focus.
#include "forms/option_button.h"

#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"a", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"opt(0)", ControlKind::OptionButton, u"&Alle", 0, 300, 1000, 285, {.Value = true}},
    {u"opt(1)", ControlKind::OptionButton, u"&Einige", 0, 600, 1000, 285},
    {u"opt(2)", ControlKind::OptionButton, u"Keine", 0, 900, 1000, 285},
    {u"fra", ControlKind::Frame, u"Anderes", 0, 1200, 2000, 900},
    {u"ja", ControlKind::OptionButton, u"Ja", 0, 0, 1000, 285, {.Container = u"fra"}},
    {u"nein", ControlKind::OptionButton, u"Nein", 0, 300, 1000, 285, {.Container = u"fra"}},
    {u"b", ControlKind::TextBox, u"", 0, 2100, 1000, 285},
};

class Options : public FormTest {
 protected:
  Options() {
    for (const int i : {0, 1, 2})
      option(i).Click = [this, i] { note("opt(" + std::to_string(i) + ")_Click"); };
    for (OptionButton* each : {&ja, &nein})
      each->Click = [this, each] { note(toUtf8(each->Name()) + "_Click"); };
  }
  OptionButton& option(int index) { return form.Get<OptionButton>(u"opt", index); }
  /// Full names of the options that are chosen.
  std::string chosen() {
    std::string names;
    for (OptionButton* each : {&option(0), &option(1), &option(2), &ja, &nein}) {
      if (each->Value()) names += (names.empty() ? "" : " ") + toUtf8(each->fullName());
    }
    return names;
  }

  SampleForm form{roster};
  OptionButton& ja = form.Get<OptionButton>(u"ja");
  OptionButton& nein = form.Get<OptionButton>(u"nein");
};

TEST_F(Options, ChoosingOneRaisesClickForItAloneAndLeavesOtherContainersAlone) {
  EXPECT_EQ(chosen(), "opt(0)");
  ja.Value(true);
  option(2).Value(true);
  EXPECT_EQ(chosen(), "opt(2) ja");
  EXPECT_EQ(happened(), "ja_Click opt(2)_Click");
  option(2).Value(true);
  EXPECT_EQ(happened(), "");
}

TEST_F(Options, AGroupMayBeLeftWithoutAChoice) {
  option(0).Value(false);
  EXPECT_EQ(chosen(), "");
  EXPECT_EQ(happened(), "");
}

TEST_F(Options, TheOthersAreFalseBeforeClick) {
  option(1).Click = [this] { note(chosen()); };
  option(1).Value(true);
  EXPECT_EQ(happened(), "opt(1)");
}

TEST_F(Options, ChoosingMakesATabStop) {
  option(2).TabStop(false);
  option(2).Value(true);
  EXPECT_TRUE(option(2).TabStop());
}

TEST_F(Options, AClickChoosesWhenItIsReleased) {
  show(form, [&] {
    ASSERT_TRUE(form.mousePressed(option(1)));
    EXPECT_EQ(chosen(), "opt(0)");
    EXPECT_EQ(focusOf(form), "opt(1)");
    form.mouseReleased(option(1));
    EXPECT_EQ(chosen(), "opt(1)");
    EXPECT_EQ(happened(), "opt(1)_Click");
    click(option(1));
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(Options, TabComesByTheChosenOneOfEachGroup) {
  nein.Value(true);
  happened();
  show(form, [&] {
    press(key::Tab);
    EXPECT_EQ(focusOf(form), "opt(0)");
    press(key::Tab);
    EXPECT_EQ(focusOf(form), "nein");
    press(key::Tab);
    EXPECT_EQ(focusOf(form), "b");
    EXPECT_EQ(happened(), "");
    press(key::Tab, shift::Shift);
    EXPECT_EQ(focusOf(form), "nein");
  });
}

TEST_F(Options, TheFocusChoosesInAGroupWithoutAChoice) {
  option(0).Value(false);
  watchFocus(form);
  show(form, [&] {
    happened();
    press(key::Tab);
    EXPECT_EQ(chosen(), "opt(0)");
    EXPECT_EQ(happened(), "a_LostFocus opt_GotFocus opt(0)_Click");
    option(2).SetFocus();
    EXPECT_EQ(chosen(), "opt(2)");
    happened();
  });
}

TEST_F(Options, ArrowsMoveFocusAndChoiceAroundAndPassWhatIsDisabled) {
  watchFocus(form);
  show(form, [&] {
    option(0).SetFocus();
    happened();
    press(key::Down);
    EXPECT_EQ(happened(), "opt_LostFocus opt_GotFocus opt(1)_Click");
    option(2).Enabled(false);
    press(key::Right);
    EXPECT_EQ(chosen(), "opt(0)") << "around, past the disabled one";
    press(key::Up);
    EXPECT_EQ(chosen(), "opt(1)");
    press(key::Left);
    EXPECT_EQ(chosen(), "opt(0)");
    happened();
  });
}

TEST_F(Options, SpaceChooses) {
  show(form, [&] {
    option(0).SetFocus();
    option(0).Value(false);
    press(key::Space);
    EXPECT_EQ(chosen(), "opt(0)");
    EXPECT_EQ(happened(), "opt(0)_Click");
  });
}

TEST_F(Options, TheAccessKeyLeadsThereAndChooses) {
  show(form, [&] {
    desktop.press(KeyStroke::ofCharacter(u'e', shift::Alt));
    EXPECT_EQ(chosen(), "opt(1)");
    EXPECT_EQ(focusOf(form), "opt(1)");
    option(0).Enabled(false);
    desktop.press(KeyStroke::ofCharacter(u'a', shift::Alt));
    EXPECT_EQ(chosen(), "opt(1)");
    EXPECT_EQ(happened(), "opt(1)_Click");
  });
}

TEST_F(Options, AreReachedByName) {
  option(1).Property(u"Value", Variant(true));
  EXPECT_EQ(option(1).Property(u"value"), Variant(true));
  EXPECT_EQ(option(0).Property(u"Value"), Variant(false));
  EXPECT_EQ(option(1).Property(u"Caption"), Variant(u"&Einige"));
  EXPECT_EQ(happened(), "opt(1)_Click");
}

}  // namespace
}  // namespace zqn::testing
