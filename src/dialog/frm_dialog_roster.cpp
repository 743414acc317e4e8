// SPDX-License-Identifier: MIT
#include "dialog/frm_dialog_roster.h"

namespace zqn {

namespace {

using enum ControlKind;

// Everything but the label in the frame is invisible until a definition class shows it.
constexpr OtherDesign hidden{.Visible = false};
constexpr OtherDesign severalLines{.MultiLine = true, .Visible = false};
constexpr OtherDesign days{.Alignment = Alignment::Right, .Format = u"###0;;0;0", .Visible = false};
constexpr OtherDesign percent{
    .Alignment = Alignment::Right, .Format = u"##0.00;(##0.00);0;0", .Visible = false};

// clang-format off
constexpr ControlDesign roster[] = {
    {u"tdblShow",      TDBList,       u"",              120,  120, 6195, 2415, hidden},
    {u"lblKey",        Label,         u"",              120, 2640, 1395,  255, hidden},
    {u"txtKey",        TextBox,       u"",              120, 2880, 1395,  285, hidden},
    {u"lblKeyText",    Label,         u"",             1620, 2640,   45,  195, hidden},
    {u"txtKeyText",    TextBox,       u"",             1620, 2880, 4695,  285, hidden},
    {u"lblZusatz",     Label,         u"",             5700, 2640,  615,  255, hidden},
    {u"txtZusatz",     TextBox,       u"",             5700, 2880,  615,  285, hidden},
    {u"lblLangtext",   Label,         u"Langtext",      120, 3330,  855,  255, hidden},
    {u"txtLangtext",   TextBox,       u"",              120, 3570, 6195,  285, severalLines},
    {u"lblWoDrucken",  Label,         u"Wo Drucken?",  3045, 3330, 1065,  240, hidden},
    {u"tglDruckAN",    ToggleButton,  u"AN",           4290, 3210,  405,  375, {.Visible = false, .TabStop = false, .ToolTipText = u"Text wird auf Angebot gedruckt"}},
    {u"tglDruckAB",    ToggleButton,  u"AB",           4695, 3210,  405,  375, {.Visible = false, .TabStop = false, .ToolTipText = u"Text wird auf Auftragsbestätigung gedruckt"}},
    {u"tglDruckLS",    ToggleButton,  u"LS",           5100, 3210,  405,  375, {.Visible = false, .TabStop = false, .ToolTipText = u"Text wird auf Lieferschein gedruckt"}},
    {u"tglDruckRG",    ToggleButton,  u"RG",           5505, 3210,  405,  375, {.Visible = false, .TabStop = false, .ToolTipText = u"Text wird auf Rechnung gedruckt"}},
    {u"tglDruckGS",    ToggleButton,  u"GS",           5910, 3210,  405,  375, {.Visible = false, .TabStop = false, .ToolTipText = u"Text wird auf Gutschrift gedruckt"}},
    {u"tglDruckAF",    ToggleButton,  u"AF",           5100, 3210,  405,  375, {.Visible = false, .TabStop = false, .ToolTipText = u"Text wird auf Lieferschein gedruckt"}},
    {u"tglDruckBS",    ToggleButton,  u"BS",           5505, 3210,  405,  375, {.Visible = false, .TabStop = false, .ToolTipText = u"Text wird auf Rechnung gedruckt"}},
    {u"tglDruckLM",    ToggleButton,  u"LM",           5910, 3210,  405,  375, {.Visible = false, .TabStop = false, .ToolTipText = u"Text wird auf Gutschrift gedruckt"}},
    {u"lblCbo(0)",     Label,         u"",              120, 3990, 1395,  255, hidden},
    {u"cbo(0)",        ComboBox,      u"",              120, 4230, 2955,  315, hidden},
    {u"lblCbo(1)",     Label,         u"",             3390, 3990, 1875,  255, hidden},
    {u"cbo(1)",        ComboBox,      u"",             3360, 4230, 2955,  315, hidden},
    {u"chk1",          CheckBox,      u"",             1620, 3330, 1455,  255, hidden},
    {u"tdbdValidOf",   TDBDate,       u"Gültig von:",  3240, 3300, 1755,  285, hidden},
    {u"tdbdValidTo",   TDBDate,       u"bis:",         5100, 3300, 1215,  285, hidden},
    {u"lblSkonto",     Label,         u"Skonto",       1710, 2910,  555,  255, hidden},
    {u"lblSk(0)",      Label,         u"1:",           2340, 2910,  165,  255, hidden},
    {u"tdbnSkTage(0)", TDBNumber,     u"",             2520, 2880,  525,  285, days},
    {u"lblSkTage(0)",  Label,         u"Tage",         3120, 2910,  465,  255, hidden},
    {u"lblPercent(0)", Label,         u"%",            4350, 2910,  165,  255, hidden},
    {u"tdbnPercent(0)", TDBNumber,     u"",             3660, 2880,  585,  285, percent},
    {u"lblSk(1)",      Label,         u"2:",           2340, 3240,  165,  255, hidden},
    {u"tdbnSkTage(1)", TDBNumber,     u"",             2520, 3210,  525,  285, days},
    {u"lblSkTage(1)",  Label,         u"Tage",         3120, 3240,  465,  255, hidden},
    {u"lblPercent(1)", Label,         u"%",            4350, 3240,  165,  255, hidden},
    {u"tdbnPercent(1)", TDBNumber,     u"",             3660, 3210,  585,  285, percent},
    {u"lblSk(2)",      Label,         u"3:",           2340, 3570,  165,  255, hidden},
    {u"tdbnSkTage(2)", TDBNumber,     u"",             2520, 3540,  525,  285, days},
    {u"lblSkTage(2)",  Label,         u"Tage",         3120, 3570,  465,  255, hidden},
    {u"lblPercent(2)", Label,         u"%",            4350, 3570,  165,  255, hidden},
    {u"tdbnPercent(2)", TDBNumber,     u"",             3660, 3540,  585,  285, percent},
    {u"lblNetto",      Label,         u"Netto:",       4740, 2910,  435,  255, hidden},
    {u"tdbnNettoTage", TDBNumber,     u"",             5250, 2880,  525,  285, days},
    {u"lblNettoTage",  Label,         u"Tage",         5850, 2910,  465,  255, hidden},
    {u"cmdOK",         CommandButton, u"Speichern",    3780, 4770, 1215,  345, hidden},
    {u"cmdCancel",     CommandButton, u"Schließen",    5100, 4770, 1215,  345, {.Cancel = true, .Visible = false}},
    {u"cmdNew",        CommandButton, u"Neu",           120, 4770, 1215,  345, hidden},
    {u"cmdDelete",     CommandButton, u"Löschen",      1440, 4770, 1215,  345, hidden},
    {u"fra",           Frame,         u"",              120, 2640, 6195, 1725, hidden},
    {u"lblFra",        Label,         u"",              150,  210, 5925, 1395, {.Container = u"fra"}},
};
// clang-format on

}  // namespace

const FormDesign frmDialogDesign{u"frmDialog", u"Form1", 6465, 5235, roster};

}  // namespace zqn
