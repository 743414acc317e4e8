// SPDX-License-Identifier: MIT
#include "dialog/cls_basis_dialog.h"

namespace zqn {

void BasisDialog::Init(const Variant& Key, const Ref<ado::Connection>& Connection) {
  key_ = Key;
  connection_ = Connection;
}

namespace {

/// Blanks those of a kind of control that are visible.
template <class C, class Blank>
void blankVisible(std::initializer_list<const ControlSlot<C>*> slots, Blank&& blank) {
  for (const ControlSlot<C>* slot : slots) {
    if ((*slot)().Visible()) blank((*slot)());
  }
}

}  // namespace

void BasisDialog::InitData() {
  const BasisControls& c = controls_;
  blankVisible({&c.txtKeyText, &c.txtZusatz, &c.txtLangtext}, [](TextBox& box) { box.Text(u""); });
  blankVisible({&c.tdbnSkTage1, &c.tdbnSkTage2, &c.tdbnSkTage3, &c.tdbnPercent1, &c.tdbnPercent2,
                &c.tdbnPercent3, &c.tdbnNettoTage},
               [](TDBNumber& number) { number.Value(0.0); });
  blankVisible({&c.cbo1, &c.cbo2}, [](ComboBox& combo) { combo.ListIndex(-1); });
  blankVisible({&c.tglDruckAN, &c.tglDruckBS, &c.tglDruckAB, &c.tglDruckAF, &c.tglDruckGS, &c.tglDruckLM,
                &c.tglDruckLS, &c.tglDruckRG},
               [](ToggleButton& toggle) { toggle.Value(false); });
  blankVisible({&c.tdbdValidOf, &c.tdbdValidTo}, [](TDBDate& date) { date.Value(Null); });
  blankVisible({&c.chk1}, [](CheckBox& box) { box.Value(0); });
}

void BasisDialog::ShowData(const Ref<ado::Recordset>& Recordset) {
  controls_.tdblShow().DataSource(Recordset);
}

}  // namespace zqn
