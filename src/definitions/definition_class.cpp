// SPDX-License-Identifier: MIT
#include "definitions/definition_class.h"

#include "frontend/basics/bas_basis.h"
#include "frontend/basics/bas_general.h"

namespace zqn {

using ado::sql::Text;
using ado::sql::value;

void DefinitionClass::Init(const Variant& Key, const Ref<ado::Connection>& Connection) {
  basBasis::SetConnection(Connection);
  setUp();
  m_objBasis.Init(Key, Connection);
}

void DefinitionClass::ShowData(const Ref<ado::Recordset>& Recordset) {
  m_objBasis.ShowData(Recordset);
  BasisControls& c = controls();
  c.tdblShow().Columns(0).Caption(c.lblKey().Caption());
  c.tdblShow().Columns(1).Caption(c.lblKeyText().Caption());
}

Ref<ado::Recordset> DefinitionClass::GetRecordsetForShow() {
  return basGeneral::GetRecordset(table_.name, listFields(), listCondition(), table_.keyColumn,
                                  ado::adLockReadOnly);
}

Ref<ado::Recordset> DefinitionClass::GetRecordsetForReadWrite() {
  return basGeneral::GetRecordset(table_.name, u"*", rowCondition(), u"", ado::adLockOptimistic);
}

Text DefinitionClass::FindCriteria() {
  return Text(table_.keyColumn) + u"=" + value(controls().txtKey().Text());
}

Text DefinitionClass::listCondition() const {
  return table_.reservesHyphen ? Text(table_.keyColumn) + u"<>'-'" : Text();
}

Text DefinitionClass::rowCondition() const {
  return Text(table_.keyColumn) + u" = " + value(m_objBasis.controls().txtKey().Text());
}

void DefinitionClass::readText(const ado::Recordset& row, StringView column, TextBox& box) {
  box.Text(basBasis::NullToValue(row.Fields(column).Value(), u""));
}

void DefinitionClass::show(std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->Visible(true);
}

void DefinitionClass::showKeyAndText() {
  BasisControls& c = controls();
  show({&c.tdblShow(), &c.cmdCancel(), &c.cmdOK(), &c.cmdNew(), &c.cmdDelete(), &c.lblKey(), &c.lblKeyText(),
        &c.txtKey(), &c.txtKeyText()});
}

void DefinitionClass::placeButtons(int top) {
  BasisControls& c = controls();
  for (CommandButton* button : {&c.cmdOK(), &c.cmdCancel(), &c.cmdNew(), &c.cmdDelete()}) button->Top(top);
  endFormBelowButtons();
}

void DefinitionClass::endFormBelowButtons() {
  BasisControls& c = controls();
  c.frmDialog().Height(c.cmdOK().Top() + c.cmdOK().Height() + 600);
}

}  // namespace zqn
