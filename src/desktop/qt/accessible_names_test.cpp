// SPDX-License-Identifier: MIT
//
// Names of lists and drop-downs: what a person reads beside them.
#include "desktop/qt/accessible_names.h"

#include <gtest/gtest.h>

#include "forms/form.h"

namespace zqn::qt {

namespace {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"TDBList1",   TDBList,   u"",              120,  120, 5000, 1200},
    {u"Label3",     Label,     u"Bei Aufgaben",  900, 1450, 3285,  255},
    {u"Status",     CheckBox,  u"&Status auf",  1020, 1780, 1095,  255},
    {u"cboStatus",  zqCombo,   u"",             2280, 1735, 3135,  315},
    {u"Label4",     Label,     u"setzen.",      5490, 1780,  735,  255},
    {u"lblFibu",    Label,     u"Fibu",          120, 2200,  900,  255},
    {u"cboFibu",    ComboBox,  u"",             1080, 2170,  900,  315},
    {u"fra",        Frame,     u"Belegarten",      0, 2600, 5000, 1200, {.Overlaps = true}},
    {u"lst",        ListBox,   u"",              120, 2900, 4700,  800},
    {u"cboAlone",   ComboBox,  u"",              120, 4700,  900,  315, {.ToolTipText = u"Seiten"}},
};
// clang-format on
constexpr FormDesign design{u"frmNames", u"Kategorien", 6300, 5200, roster};

std::string nameOf(const Form& form, StringView control) {
  return accessibleNameOf(form.control(control)).toStdString();
}

TEST(AccessibleNames, OfDropDownsAreTheWordsInFrontOfThemBoxesToTickIncluded) {
  const Form form{design};
  EXPECT_EQ(nameOf(form, u"cboStatus"), "Status auf");
  EXPECT_EQ(nameOf(form, u"cboFibu"), "Fibu");
  EXPECT_EQ(nameOf(form, u"cboAlone"), "Seiten");
}

TEST(AccessibleNames, OfListsAreTheHeadingAroundThemOrTheForms) {
  const Form form{design};
  EXPECT_EQ(nameOf(form, u"lst"), "Belegarten");
  EXPECT_EQ(nameOf(form, u"TDBList1"), "Kategorien");
}

}  // namespace

}  // namespace zqn::qt
