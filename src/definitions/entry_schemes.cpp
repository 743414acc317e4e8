// SPDX-License-Identifier: MIT
#include "definitions/entry_schemes.h"

#include "frontend/basics/bas_basis.h"
#include "runtime/convert.h"

namespace zqn {

void EntrySchemes::setUp() {
  BasisControls& c = controls();
  show({&c.tdblShow(), &c.cmdCancel(), &c.cmdOK(), &c.lblKey(), &c.fra()});
  // The height follows from where the button was designed; only then does it move beside the list.
  endFormBelowButtons();
  c.lblKey().Top(120);
  c.tdblShow().Top(360);
  c.tdblShow().Width(4845);
  c.fra().Top(2850);
  c.cmdOK().Top(330);
  c.cmdOK().Left(5100);
  c.cmdCancel().Top(780);
  c.cmdCancel().Left(5100);
  c.frmDialog().Caption(u"Erfassungsschema");
  c.lblKey().Caption(u"Erfassungsschema:");
  c.fra().Caption(u"Beschreibung");
  c.tdblShow().ColumnHeaders(false);
}

void EntrySchemes::ReadData(ado::Recordset& Recordset) {
  readText(Recordset, table().keyColumn, controls().txtKey());
  controls().lblFra().Caption(CStr(basBasis::NullToValue(Recordset.Fields(u"Beschreibung").Value(), u"")));
}

void EntrySchemes::ShowData(const Ref<ado::Recordset>& Recordset) {
  m_objBasis.ShowData(Recordset);
  controls().tdblShow().Columns(0).Visible(false);
}

}  // namespace zqn
