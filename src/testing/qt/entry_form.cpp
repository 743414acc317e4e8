// SPDX-License-Identifier: MIT
#include "testing/qt/entry_form.h"

namespace zqn::qt::testing {

namespace {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"txtKey",         TextBox,       u"",             120,  120, 1395,  285},
    {u"cbo(0)",         ComboBox,      u"",             120,  480, 2955,  315},
    {u"cbo(1)",         ComboBox,      u"",            3360,  480, 2955,  315},
    {u"lblSk(0)",       Label,         u"1:",          2340,  990,  165,  255},
    {u"tdbnSkTage(0)",  TDBNumber,     u"",            2520,  960,  525,  285, {.Format = u"###0;;0;0"}},
    {u"lblSkTage(0)",   Label,         u"Tage",        3120,  990,  465,  255},
    {u"tdbnPercent(0)", TDBNumber,     u"",            3660,  960,  585,  285, {.Format = u"##0.00;(##0.00);0;0"}},
    {u"lblPercent(0)",  Label,         u"%",           4350,  990,  165,  255},
    {u"tdbdValidOf",    TDBDate,       u"Gültig von:",  120, 1320, 2355,  285},
    {u"tglDruckAN",     ToggleButton,  u"AN",          4290, 1320,  405,  375},
    {u"txtLangtext",    TextBox,       u"",             120, 1800, 6195,  885, {.MultiLine = true}},
    {u"fra",            Frame,         u"A && B",        120, 2800, 6195, 1125},
    {u"lblFra",         Label,         u"Im Rahmen",    150,  210, 1500,  255, {.Container = u"fra"}},
    {u"txtInner",       TextBox,       u"",             150,  510, 1500,  285, {.Container = u"fra"}},
    {u"cmdCancel",      CommandButton, u"Schließen",   5100, 4770, 1215,  345, {.Cancel = true}},
};
// clang-format on

constexpr FormDesign design{u"frmEntries", u"Eingaben", 6465, 5235, roster};

}  // namespace

EntryForm::EntryForm() : Form(design) {
  for (const StringView entry : {u"Kundenstamm", u"Lieferanten", u"keine"}) {
    cbo.AddItem(entry);
    other.AddItem(entry);
  }
}

}  // namespace zqn::qt::testing
