// SPDX-License-Identifier: MIT
#include "definitions/laendernamen.h"

#include "runtime/convert.h"

namespace zqn {

Variant clsLaendernamen::Key() const {
  const Variant key = CodedCatalogue::Key();
  if (key.isNull()) return Null;
  return UCase(CStr(key));
}

void clsLaendernamen::ShowData(const Ref<ado::Recordset>& Recordset) {
  m_objBasis.ShowData(Recordset);
  BasisControls& c = controls();
  TDBList& list = c.tdblShow();
  list.Columns(0).Caption(c.lblKey().Caption());
  list.Columns(1).Visible(false);
  list.Columns(1).Width(0);
  list.Columns(1).AllowSizing(false);
  list.Columns(2).Caption(c.lblKeyText().Caption());
}

void clsLaendernamen::writeKey(ResumeNext& step, const Ref<ado::Recordset>& row) {
  writeText(step, row, table().keyColumn, UCase(controls().txtKey().Text()));
}

}  // namespace zqn
