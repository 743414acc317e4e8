// SPDX-License-Identifier: MIT
//
// Properties and controls by their names, as scripts reach them.
#include "forms/check_box.h"
#include "forms/command_button.h"
#include "forms/label.h"
#include "forms/names.h"
#include "forms/text_box.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {
    {u"Schluessel",
     ControlKind::TextBox,
     u"10",
     120,
     2880,
     1455,
     285,
     {.MaxLength = 3, .ToolTipText = u"Der Schlüssel"}},
    {u"Label1(0)", ControlKind::Label, u"Status", 120, 2640, 855, 255},
    {u"Label1(7)", ControlKind::Label, u"Text", 1680, 2640, 855, 255},
    {u"btnOK", ControlKind::CommandButton, u"&OK", 120, 3000, 855, 255, {.Default = true}},
    {u"AutoOverwrite", ControlKind::CheckBox, u"überschreibend", 120, 3300, 855, 255},
};

Variant whole(std::int32_t number) { return number; }

class Properties : public FormTest {
 protected:
  std::int32_t readFails(StringView control, StringView property) {
    return errorNumberOf([&] { form.findControl(control)->Property(property); });
  }
  std::int32_t assignFails(StringView control, StringView property, const Variant& value) {
    return errorNumberOf([&] { form.findControl(control)->Property(property, value); });
  }

  SampleForm form{roster};
  TextBox& key = form.Get<TextBox>(u"Schluessel");
};

using ControlNames = Properties;

TEST_F(Properties, AreFoundWithoutRegardToCase) {
  EXPECT_EQ(key.Property(u"Text"), Variant(u"10"));
  EXPECT_EQ(key.Property(u"TEXT"), Variant(u"10"));
  EXPECT_EQ(key.Property(u"maxlength"), whole(3));
}

TEST_F(Properties, EveryControlTellsItsPlaceAndState) {
  EXPECT_EQ(key.Property(u"Left"), whole(120));
  EXPECT_EQ(key.Property(u"Top"), whole(2880));
  EXPECT_EQ(key.Property(u"Width"), whole(1455));
  EXPECT_EQ(key.Property(u"Height"), whole(285));
  EXPECT_EQ(key.Property(u"Visible"), Variant(true));
  EXPECT_EQ(key.Property(u"Enabled"), Variant(true));
  EXPECT_EQ(key.Property(u"TabStop"), Variant(true));
  EXPECT_EQ(key.Property(u"TabIndex"), whole(0));
  EXPECT_EQ(key.Property(u"CausesValidation"), Variant(true));
  EXPECT_EQ(key.Property(u"ToolTipText"), Variant(u"Der Schlüssel"));
  EXPECT_EQ(key.Property(u"BackColor"), Variant(2147483653.0));
  EXPECT_EQ(form.control(u"btnOK").Property(u"Default"), Variant(true));
  EXPECT_EQ(form.control(u"btnOK").Property(u"Cancel"), Variant(false));
}

TEST_F(Properties, AColourIsTheSameInEveryKindOfNumber) {
  key.Property(u"BackColor", -2147483643);
  EXPECT_EQ(key.BackColor(), 0x80000005);
  key.Property(u"BackColor", 2147483656.0);
  EXPECT_EQ(key.BackColor(), 0x80000008);
  key.Property(u"ForeColor", u"255");
  EXPECT_EQ(key.ForeColor(), 255u);
  for (const double beyond : {4294967296.0, -2147483649.0, 1e300})
    EXPECT_EQ(errorNumberOf([&] { key.Property(u"BackColor", beyond); }), error::Overflow);
  EXPECT_EQ(key.BackColor(), 0x80000008);
}

TEST_F(Properties, AreAssignedWithTheEventsOfTheAssignment) {
  watchChange(key);
  watchClicks(form);
  key.Property(u"Text", u"1234");
  EXPECT_EQ(key.Text(), u"123");
  form.findControl(u"AutoOverwrite")->Property(u"Value", whole(1));
  form.findControl(u"Label1(0)")->Property(u"Caption", u"Kennung");
  EXPECT_EQ(form.findControl(u"Label1(0)")->content(), u"Kennung");
  EXPECT_EQ(happened(), "Schluessel_Change AutoOverwrite_Click");
  key.Property(u"Left", whole(240));
  key.Property(u"CausesValidation", false);
  EXPECT_FALSE(key.CausesValidation());
  key.Property(u"Enabled", false);
  EXPECT_EQ(key.Left(), 240);
  EXPECT_FALSE(key.Enabled());
}

TEST_F(Properties, OneThatAControlLacksIsError438) {
  EXPECT_EQ(readFails(u"Schluessel", u"Caption"), error::NoSuchMember);
  EXPECT_EQ(readFails(u"Label1(0)", u"Text"), error::NoSuchMember);
  EXPECT_EQ(readFails(u"btnOK", u"SelStart"), error::NoSuchMember);
  EXPECT_EQ(readFails(u"btnOK", u""), error::NoSuchMember);
  EXPECT_EQ(assignFails(u"btnOK", u"Text", u"x"), error::NoSuchMember);
}

TEST_F(Properties, OneThatIsReadOnlyIsError383ToAssign) {
  EXPECT_EQ(assignFails(u"Schluessel", u"Name", u"x"), error::PropertyIsReadOnly);
  EXPECT_EQ(assignFails(u"Schluessel", u"TabIndex", whole(1)), error::PropertyIsReadOnly);
  EXPECT_EQ(assignFails(u"btnOK", u"Default", false), error::PropertyIsReadOnly);
  EXPECT_EQ(assignFails(u"Label1(0)", u"Index", whole(1)), error::PropertyIsReadOnly);
}

TEST_F(Properties, AValueThatDoesNotFitIsTheErrorOfItsConversion) {
  EXPECT_EQ(assignFails(u"Schluessel", u"Text", Null), error::InvalidUseOfNull);
  EXPECT_EQ(assignFails(u"Schluessel", u"Left", u"links"), error::TypeMismatch);
  EXPECT_EQ(assignFails(u"Schluessel", u"SelStart", whole(-1)), error::InvalidPropertyValue);
  EXPECT_EQ(assignFails(u"AutoOverwrite", u"Value", true), error::InvalidPropertyValue);
  EXPECT_EQ(assignFails(u"Label1(0)", u"Caption", Null), error::InvalidUseOfNull);
}

TEST_F(Properties, OfTheFormTellWhoHasTheFocus) {
  EXPECT_EQ(form.Property(u"Caption"), Variant(u"Muster"));
  EXPECT_EQ(form.Property(u"Name"), Variant(u"frmSample"));
  EXPECT_EQ(form.Property(u"width"), whole(6090));
  EXPECT_EQ(form.Property(u"ScaleHeight"), whole(4500));
  EXPECT_EQ(form.Property(u"ActiveControl"), Variant(Null));
  show(form, [&] {
    EXPECT_EQ(form.Property(u"Visible"), Variant(true));
    EXPECT_EQ(form.Property(u"ActiveControl"), Variant(u"Schluessel"));
  });
  EXPECT_EQ(errorNumberOf([&] { form.Property(u"Schluessel"); }), error::NoSuchMember);
}

// ---- names

TEST_F(ControlNames, AreComparedWithoutRegardToCase) {
  EXPECT_EQ(&form.control(u"SCHLUESSEL"), &key);
  EXPECT_EQ(form.findControl(u"schluessel"), &key);
  EXPECT_TRUE(sameName(u"größe", u"GRÖßE"));
  EXPECT_FALSE(sameName(u"a", u"ab"));
}

TEST_F(ControlNames, AnElementOfAnArrayIsFoundByItsIndex) {
  EXPECT_EQ(form.control(u"Label1", 7).content(), u"Text");
  EXPECT_EQ(form.findControl(u"label1(0)")->content(), u"Status");
  EXPECT_EQ(form.control(u"Label1", 7).fullName(), u"Label1(7)");
  EXPECT_EQ(form.control(u"Label1", 7).Property(u"Name"), Variant(u"Label1"));
  EXPECT_EQ(form.control(u"Label1", 7).Property(u"Index"), whole(7));
}

TEST_F(ControlNames, AnUnknownIndexOrNameIsError340) {
  EXPECT_EQ(errorNumberOf([&] { form.control(u"Label1", 1); }), error::NoSuchControl);
  EXPECT_EQ(errorNumberOf([&] { form.control(u"Label1"); }), error::NoSuchControl);
  EXPECT_EQ(errorNumberOf([&] { form.control(u"Schluessel", 0); }), error::NoSuchControl);
  EXPECT_EQ(errorNumberOf([&] { form.control(u"Kurztext"); }), error::NoSuchControl);
  EXPECT_EQ(form.findControl(u"Label1(1)"), nullptr);
  EXPECT_EQ(form.findControl(u"Label1"), nullptr);
}

TEST_F(ControlNames, OnlyAWellFormedIndexIsOne) {
  for (const char16_t* text : {u"a()", u"a(x)", u"a(-1)", u"a(1", u"a(12345)", u"a(1)b", u"a"}) {
    EXPECT_EQ(splitName(text).name, text);
    EXPECT_EQ(splitName(text).index, -1);
  }
  EXPECT_EQ(splitName(u"tdbnSkTage(12)").name, u"tdbnSkTage");
  EXPECT_EQ(splitName(u"tdbnSkTage(12)").index, 12);
}

}  // namespace
}  // namespace zqn::testing
