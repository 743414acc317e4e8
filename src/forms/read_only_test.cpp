// SPDX-License-Identifier: MIT
//
// A field that can be read and not edited.
#include "forms/text_box.h"
#include "testing/forms.h"

namespace zqn::testing {
namespace {

constexpr ControlDesign roster[] = {{u"Name", ControlKind::TextBox, u"", 0, 0, 1000, 285, {.Locked = true}}};

class ReadOnlyText : public FormTest {
 protected:
  ReadOnlyText() {
    name.Text(u"Werft");
    watchChange(name);
  }
  SampleForm form{roster};
  TextBox& name = form.Get<TextBox>(u"Name");
};

TEST_F(ReadOnlyText, IsNotEditedByKeysNorByPasting) {
  show(form, [&] {
    type(u"abc");
    press(key::Delete);
    press(key::Backspace);
    desktop.copyToClipboard(u"Dock");
    pressCtrl(u'V');
    name.userEdited(u"Hafen", 0, 0);
    EXPECT_EQ(name.Text(), u"Werft");
    EXPECT_EQ(happened(), "");
  });
}

TEST_F(ReadOnlyText, CanBeMarkedAndCopied) {
  show(form, [&] {
    pressCtrl(u'A');
    pressCtrl(u'X');
    EXPECT_EQ(desktop.clipboardText(), u"Werft");
    EXPECT_EQ(name.Text(), u"Werft");
  });
}

TEST_F(ReadOnlyText, IsAssignedByCodeAsEver) {
  name.Text(u"Hafen");
  EXPECT_EQ(name.Text(), u"Hafen");
  EXPECT_EQ(happened(), "Name_Change");
  EXPECT_EQ(name.Property(u"Locked"), Variant(true));
}

}  // namespace
}  // namespace zqn::testing
