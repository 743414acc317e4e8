// SPDX-License-Identifier: MIT
//
// Values of a check box, by code and by a person.
#include "forms/check_box.h"

#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {{u"chk", ControlKind::CheckBox, u"überschreibend", 0, 0, 1000, 285}};

class CheckBoxTest : public FormTest {
 protected:
  CheckBoxTest() { watchClicks(form); }

  SampleForm form{roster};
  CheckBox& chk = form.Get<CheckBox>(u"chk");
};

TEST_F(CheckBoxTest, AssigningAnotherValueRaisesClickAndTheSameOneDoesNot) {
  EXPECT_EQ(chk.Value(), 0);
  chk.Value(0);
  EXPECT_EQ(happened(), "");
  chk.Value(1);
  EXPECT_EQ(happened(), "chk_Click");
  chk.Value(2);
  EXPECT_EQ(happened(), "chk_Click");
  chk.Value(2);
  EXPECT_EQ(happened(), "");
}

TEST_F(CheckBoxTest, OtherValuesAreError380AndTrueIsOneOfThem) {
  chk.Value(1);
  happened();
  EXPECT_EQ(errorNumberOf([&] { chk.Value(3); }), error::InvalidPropertyValue);
  EXPECT_EQ(errorNumberOf([&] { chk.Value(-1); }), error::InvalidPropertyValue);
  EXPECT_EQ(errorNumberOf([&] { chk.Value(Variant(true)); }), error::InvalidPropertyValue);
  EXPECT_EQ(chk.Value(), 1);
  EXPECT_EQ(happened(), "");
}

TEST_F(CheckBoxTest, AFieldsValueIsConvertedFirst) {
  chk.Value(Variant(u"1"));
  EXPECT_EQ(chk.Value(), 1);
  chk.Value(Variant(false));
  EXPECT_EQ(chk.Value(), 0);
  EXPECT_EQ(errorNumberOf([&] { chk.Value(Variant(Null)); }), error::InvalidUseOfNull);
  EXPECT_EQ(errorNumberOf([&] { chk.Value(Variant(u"ja")); }), error::TypeMismatch);
}

TEST_F(CheckBoxTest, APersonSwitchesByClickAndSpaceAndNeverReachesGrey) {
  show(form, [&] {
    click(chk);
    EXPECT_EQ(chk.Value(), 1);
    press(key::Space);
    EXPECT_EQ(chk.Value(), 0);
    EXPECT_EQ(happened(), "chk_Click chk_Click");
    chk.Value(2);
    click(chk);
    EXPECT_EQ(chk.Value(), 0);
    chk.Value(2);
    press(key::Space);
    EXPECT_EQ(chk.Value(), 0);
  });
  happened();
}

TEST_F(CheckBoxTest, EnterLeavesItAsItIs) {
  show(form, [&] {
    press(key::Enter);
    type(u"x");
    EXPECT_EQ(chk.Value(), 0);
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(CheckBoxTest, ADisabledOneDoesNotSwitch) {
  chk.Enabled(false);
  show(form, [&] {
    click(chk);
    press(key::Space);
    EXPECT_EQ(chk.Value(), 0);
  });
}

}  // namespace
}  // namespace zqn::testing
