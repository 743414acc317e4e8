// SPDX-License-Identifier: MIT
#include "definitions/definition_class.h"

namespace zqn {

void DefinitionClass::ShowData(const Ref<ado::Recordset>& Recordset) {
  m_objBasis.ShowData(Recordset);
  BasisControls& c = controls();
  c.tdblShow().Columns(0).Caption(c.lblKey().Caption());
  c.tdblShow().Columns(1).Caption(c.lblKeyText().Caption());
}

void DefinitionClass::show(std::initializer_list<Control*> controls) {
  for (Control* control : controls) control->Visible(true);
}

void DefinitionClass::placeButtons(int top) {
  BasisControls& c = controls();
  for (CommandButton* button : {&c.cmdOK(), &c.cmdCancel(), &c.cmdNew(), &c.cmdDelete()}) button->Top(top);
  c.frmDialog().Height(c.cmdOK().Top() + c.cmdOK().Height() + 600);
}

}  // namespace zqn
