// SPDX-License-Identifier: MIT
#include "definitions/coded_catalogues.h"

namespace zqn {

void CodedCatalogue::setUp() {
  BasisControls& c = controls();
  showKeyAndText();
  placeButtons(3360);
  c.txtKey().MaxLength(values_.keyLength);
  c.txtKeyText().MaxLength(values_.textLength);
  c.frmDialog().Caption(values_.caption);
  c.lblKey().Caption(values_.keyCaption);
  c.lblKeyText().Caption(values_.textCaption);
}

void CodedCatalogue::ReadData(ado::Recordset& Recordset) {
  readText(Recordset, table().keyColumn, controls().txtKey());
  readText(Recordset, values_.textColumn, controls().txtKeyText());
}

void CodedCatalogue::writeFields(ResumeNext& step, const Ref<ado::Recordset>& row) {
  writeText(step, row, values_.textColumn, controls().txtKeyText().Text());
}

}  // namespace zqn
