// SPDX-License-Identifier: MIT
//
// A toggle button, by code and by a person.
#include "forms/toggle_button.h"

#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"txtKey", ControlKind::TextBox, u"", 0, 0, 1000, 285},
    {u"tglDruckAN",
     ControlKind::ToggleButton,
     u"AN",
     4290,
     3210,
     405,
     375,
     {.TabStop = false, .ToolTipText = u"Text wird auf Angebot gedruckt"}},
    {u"tglDruckAB", ControlKind::ToggleButton, u"AB", 4695, 3210, 405, 375},
};

class ToggleButtonTest : public FormTest {
 protected:
  ToggleButtonTest() {
    watchClicks(form);
    tgl.Change = [this] { note("Change:" + std::to_string(tgl.Value())); };
  }

  SampleForm form{roster};
  ToggleButton& tgl = form.Get<ToggleButton>(u"tglDruckAN");
};

TEST_F(ToggleButtonTest, AnotherValueRaisesClickAndChangeAndTheSameOneNothing) {
  EXPECT_FALSE(tgl.Value());
  tgl.Value(true);
  EXPECT_EQ(happened(), "tglDruckAN_Click Change:1");
  tgl.Value(true);
  EXPECT_EQ(happened(), "");
  tgl.Value(false);
  EXPECT_EQ(happened(), "tglDruckAN_Click Change:0");
}

TEST_F(ToggleButtonTest, ByNameAnyNumberIsAValueAndNullIsNot) {
  EXPECT_EQ(tgl.Property(u"Value"), Variant(false));
  tgl.Control::Property(u"Value", Variant(std::int32_t{5}));
  EXPECT_EQ(tgl.Property(u"Value"), Variant(true));
  tgl.Control::Property(u"Value", Variant(u"Falsch"));
  EXPECT_EQ(tgl.Property(u"Value"), Variant(false));
  happened();
  EXPECT_EQ(errorNumberOf([&] { tgl.Control::Property(u"Value", Variant(Null)); }), error::InvalidUseOfNull);
  EXPECT_EQ(errorNumberOf([&] { tgl.Control::Property(u"Value", Variant(u"an")); }), error::TypeMismatch);
  EXPECT_EQ(tgl.Property(u"Caption"), Variant(u"AN"));
  EXPECT_EQ(happened(), "");
}

TEST_F(ToggleButtonTest, APersonSwitchesItByClickAndSpace) {
  show(form, [&] {
    click(tgl);
    EXPECT_TRUE(tgl.Value());
    EXPECT_EQ(focusOf(form), "tglDruckAN");
    press(key::Space);
    EXPECT_FALSE(tgl.Value());
    EXPECT_EQ(happened(), "tglDruckAN_Click Change:1 tglDruckAN_Click Change:0");
  });
}

TEST_F(ToggleButtonTest, OtherKeysLeaveIt) {
  show(form, [&] {
    tgl.SetFocus();
    press(key::Enter);
    press(key::F4);
    press(key::Down);
    type(u"a");
    press(key::Space, shift::Ctrl);
    EXPECT_FALSE(tgl.Value());
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(ToggleButtonTest, OutOfTheTabSequenceItIsReachedByClickAlone) {
  show(form, [&] {
    press(key::Tab);
    EXPECT_EQ(focusOf(form), "tglDruckAB");
    press(key::Tab);
    EXPECT_EQ(focusOf(form), "txtKey");
  });
}

TEST_F(ToggleButtonTest, ADisabledOneDoesNotSwitch) {
  tgl.Enabled(false);
  show(form, [&] {
    click(tgl);
    EXPECT_FALSE(tgl.Value());
    EXPECT_EQ(happened(), "");
  });
}

}  // namespace
}  // namespace zqn::testing
