// SPDX-License-Identifier: MIT
#include "definitions/group_catalogues.h"

#include "runtime/convert.h"

namespace zqn {

void GroupCatalogue::setUp() {
  BasisControls& c = controls();
  showKeyAndText();
  c.lblLangtext().Width(c.txtLangtext().Width());
  show({&c.lblLangtext(), &c.txtLangtext()});
  placeButtons(4060);
  c.txtKey().MaxLength(15);
  c.txtKeyText().MaxLength(50);
  c.txtLangtext().MaxLength(50);
  c.frmDialog().Caption(values_.caption);
  c.lblKey().Caption(values_.keyCaption);
  c.lblKeyText().Caption(u"Kurztext");
  c.lblLangtext().Caption(u"Bezeichnung");
}

void GroupCatalogue::ReadData(ado::Recordset& Recordset) {
  BasisControls& c = controls();
  readText(Recordset, table().keyColumn, c.txtKey());
  readText(Recordset, u"Kurztext", c.txtKeyText());
  readText(Recordset, u"Langtext", c.txtLangtext());
  if (c.txtKeyText().Text().empty()) c.txtKeyText().Text(c.txtLangtext().Text());
}

void GroupCatalogue::writeFields(ResumeNext& step, const Ref<ado::Recordset>& row) {
  BasisControls& c = controls();
  writeText(step, row, u"Langtext", c.txtLangtext().Text());
  writeText(step, row, u"Kurztext", c.txtKeyText().Text());
  if (step.test([&] { return Trim(concatenate(row->Fields(u"Langtext").Value())).empty(); })) {
    step([&] { row->Fields(u"Langtext").Value(row->Fields(u"Kurztext").Value()); });
  }
}

void GroupCatalogue::ShowData(const Ref<ado::Recordset>& Recordset) {
  m_objBasis.ShowData(Recordset);
  BasisControls& c = controls();
  TDBList& list = c.tdblShow();
  // Fifteen capitals, and "Verkaufsgruppe Shop" above them.
  list.Columns(0).Width(1800);
  list.Columns(0).Caption(c.lblKey().Caption());
  list.Columns(1).Caption(c.lblLangtext().Caption());
  list.Columns(2).Caption(c.lblKeyText().Caption());
  list.Columns(2).Visible(false);
}

}  // namespace zqn
