// SPDX-License-Identifier: MIT
//
// A frame and what stands in it.
#include "forms/frame.h"

#include "forms/command_button.h"
#include "forms/label.h"
#include "forms/text_box.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

// clang-format off
constexpr ControlDesign roster[] = {
    {u"a",      ControlKind::TextBox,       u"",            120,  120, 1000, 285, {.Container = u"fra"}},
    {u"inner",  ControlKind::TextBox,       u"",            120,  120, 1000, 285, {.Container = u"box"}},
    {u"b",      ControlKind::TextBox,       u"",            120, 4000, 1000, 285},
    {u"fra",    ControlKind::Frame,         u"Vorschau",    120, 2640, 6195, 1725},
    {u"box",    ControlKind::Frame,         u"",            120,  600, 3000, 900, {.Container = u"fra"}},
    {u"lblFra", ControlKind::Label,         u"Ihr Text",    150,  210, 5925, 1395, {.Container = u"FRA"}},
};
// clang-format on

class FrameTest : public FormTest {
 protected:
  FrameTest() { watchFocus(form); }

  SampleForm form{roster};
  Frame& fra = form.Get<Frame>(u"fra");
  TextBox& a = form.Get<TextBox>(u"a");
  TextBox& inner = form.Get<TextBox>(u"inner");
  Label& lblFra = form.Get<Label>(u"lblFra");
};

TEST_F(FrameTest, HoldsTheControlsThatNameIt) {
  EXPECT_EQ(a.container(), &fra);
  EXPECT_EQ(lblFra.container(), &fra) << "names do not know case";
  EXPECT_EQ(inner.container()->container(), &fra);
  EXPECT_EQ(form.control(u"b").container(), nullptr);
  EXPECT_EQ(fra.Property(u"Caption"), Variant(u"Vorschau"));
}

TEST_F(FrameTest, HiddenItHidesWhatStandsInIt) {
  fra.Visible(false);
  EXPECT_FALSE(lblFra.isShown());
  EXPECT_FALSE(inner.isShown());
  EXPECT_TRUE(lblFra.Visible()) << "its own property stays";
  fra.Visible(true);
  EXPECT_TRUE(inner.isShown());
}

TEST_F(FrameTest, NeverTakesTheFocus) {
  show(form, [&] {
    click(fra);
    EXPECT_EQ(focusOf(form), "a");
    EXPECT_EQ(errorNumberOf([&] { fra.SetFocus(); }), error::InvalidProcedureCall);
    happened();
  });
}

TEST_F(FrameTest, DisabledItGivesTheFocusOn) {
  show(form, [&] {
    happened();
    fra.Enabled(false);
    EXPECT_EQ(happened(), "a_LostFocus b_GotFocus");
    EXPECT_EQ(errorNumberOf([&] { inner.SetFocus(); }), error::InvalidProcedureCall);
    press(key::Tab);
    EXPECT_EQ(focusOf(form), "b") << "nothing else can be reached";
    click(a);
    EXPECT_EQ(focusOf(form), "b");
  });
}

TEST_F(FrameTest, HiddenItGivesTheFocusOnFromTheDepth) {
  show(form, [&] {
    inner.SetFocus();
    happened();
    fra.Visible(false);
    EXPECT_EQ(happened(), "inner_LostFocus b_GotFocus");
  });
}

}  // namespace
}  // namespace zqn::testing
