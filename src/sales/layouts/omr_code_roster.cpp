// SPDX-License-Identifier: MIT
#include "sales/layouts/omr_code_roster.h"

namespace zqn {

namespace {

using enum ControlKind;

// clang-format off
constexpr ControlDesign roster[] = {
    {u"lstBelegarten", ListBox, u"", 390, 510, 4485, 2205},
    {u"cboLayout", ComboBox, u"", 390, 3330, 4485, 315},
    {u"chkOption(0)", CheckBox, u"Zusatzoption 1", 390, 3780, 2295, 285},
    {u"cboOption(0)", ComboBox, u"", 2760, 3750, 2115, 315},
    {u"chkOption(1)", CheckBox, u"Zusatzoption 2", 390, 4140, 2295, 285},
    {u"cboOption(1)", ComboBox, u"", 2760, 4110, 2115, 315},
    {u"chkOption(2)", CheckBox, u"Zusatzoption 3", 390, 4500, 2295, 285},
    {u"cboOption(2)", ComboBox, u"", 2760, 4470, 2115, 315},
    {u"chkOption(3)", CheckBox, u"Zusatzoption 4", 390, 4860, 2295, 285},
    {u"cboOption(3)", ComboBox, u"", 2760, 4830, 2115, 315},
    {u"chkOption(4)", CheckBox, u"Zusatzoption 5", 390, 5220, 2295, 285},
    {u"cboOption(4)", ComboBox, u"", 2760, 5190, 2115, 315},
    {u"btnCancel", CommandButton, u"Abbrechen", 5280, 690, 1245, 330},
    {u"btnOK", CommandButton, u"OK", 5280, 270, 1245, 330},
    {u"btnSave", CommandButton, u"Übernehmen", 5280, 1140, 1245, 330},
    {u"btnSelectAll", CommandButton, u"Alle Auswählen", 5280, 2400, 1245, 330},
    {u"Frame1", Frame, u"Belegarten", 270, 240, 4755, 2625, {.Overlaps = true}},
    {u"Frame2", Frame, u"OMR/OME-Zuweisung", 270, 3060, 4755, 2625, {.Overlaps = true}},
    {u"Timer1", Timer, u"", 0, 0, 0, 0, {.Interval = 10}},
    {u"Shape1(0)", Shape, u"", 6000, 3510, 435, 30},
    {u"Shape1(1)", Shape, u"", 6000, 3660, 435, 30},
    {u"Shape1(2)", Shape, u"", 6000, 3810, 435, 30},
    {u"Shape1(3)", Shape, u"", 6000, 3960, 435, 30},
    {u"Shape1(4)", Shape, u"", 6000, 4110, 435, 30},
    {u"Shape1(5)", Shape, u"", 6000, 4260, 435, 30},
    {u"Shape1(6)", Shape, u"", 6000, 4410, 435, 30},
    {u"Shape1(7)", Shape, u"", 6000, 4560, 435, 30},
    {u"Shape1(8)", Shape, u"", 6000, 4710, 435, 30},
    {u"Shape1(9)", Shape, u"", 6000, 4860, 435, 30},
    {u"Shape1(10)", Shape, u"", 6000, 5010, 435, 30},
    {u"Shape1(11)", Shape, u"", 6000, 5160, 435, 30},
    {u"Shape1(12)", Shape, u"", 6000, 5310, 435, 30},
    {u"Shape1(13)", Shape, u"", 6000, 5460, 435, 30},
};
// clang-format on

constexpr FormDesign design{u"frmOMRCode", u"OMR/OME-Einstellungen", 6780, 5940, roster};

}  // namespace

const FormDesign& omrCodeDesign() noexcept { return design; }

}  // namespace zqn
