// SPDX-License-Identifier: MIT
#include "definitions/shipping_types.h"

#include "frontend/basics/bas_basis.h"
#include "runtime/convert.h"

namespace zqn {

namespace {

constexpr StringView caption = u"Versandarten bearbeiten";

/// A drop-down without entries shows none.
void choose(ComboBox& combo, const Variant& stored) {
  const String text = CStr(basBasis::NullToValue(stored, u""));
  combo.ListIndex(combo.ListCount() == 0 ? -1 : basGeneral::FindListIndex(combo, text, 0));
}

}  // namespace

void clsVersandarten::Init(const Variant& Key, const Ref<ado::Connection>& Connection) {
  TextBlockEditor::Init(Key, Connection);
  FillLayoutCombos();
}

void clsVersandarten::setUp() {
  BasisControls& c = controls();
  showRecord(caption);
  show({&c.lblCbo1(), &c.lblCbo2(), &c.cbo1(), &c.cbo2()});
  c.lblCbo1().Caption(u"Layout Frachtbrief");
  c.lblCbo2().Caption(u"Layout Versandetiketten");
}

void clsVersandarten::FillLayoutCombos() {
  const auto fill = [](StringView condition, ComboBox& combo) {
    const Ref<ado::Recordset> forms =
        basGeneral::GetRecordset(u"Versandformulare", u"*", condition, u"Layout ASC", ado::adLockReadOnly);
    FillLayoutCombo(combo, *forms);
    forms->Close();
  };
  fill(u"Typ ='F' OR TYP ='-'", controls().cbo1());
  fill(u"Typ ='E' OR TYP ='-'", controls().cbo2());
}

void clsVersandarten::FillLayoutCombo(ComboBox& Combo, ado::Recordset& Recordset) {
  const auto isHyphen = [&] { return equals(Recordset.Fields(u"Layout").Value(), u"-"); };
  Combo.Clear();
  Recordset.MoveFirst();
  for (; !Recordset.IsEOF(); Recordset.MoveNext()) {
    if (!isHyphen().value_or(false)) continue;
    Combo.AddItem(u"");
    break;
  }
  Recordset.MoveFirst();
  for (; !Recordset.IsEOF(); Recordset.MoveNext()) {
    if (isHyphen().value_or(true)) continue;
    Combo.AddItem(CStr(basBasis::NullToValue(Recordset.Fields(u"Langtext").Value(), u"")));
  }
}

void clsVersandarten::readFields(ado::Recordset& row) {
  TextBlockEditor::readFields(row);
  choose(controls().cbo1(), row.Fields(u"LayoutFrachtbrief").Value());
  choose(controls().cbo2(), row.Fields(u"LayoutEtiketten").Value());
}

void clsVersandarten::writeFields(ResumeNext& step, const Ref<ado::Recordset>& row) {
  TextBlockEditor::writeFields(step, row);
  const BasisControls& c = controls();
  writeText(step, row, u"LayoutFrachtbrief", c.cbo1().List(c.cbo1().ListIndex()));
  writeText(step, row, u"LayoutEtiketten", c.cbo2().List(c.cbo2().ListIndex()));
}

void clsVersandartenEK::setUp() {
  showRecord(caption);
  placeButtons(4080);
}

}  // namespace zqn
