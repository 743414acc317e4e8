// SPDX-License-Identifier: MIT
//
// frmCRMKategorien, kind 25: the categories of CRM tasks, and what is to be set when a task of a category is
// finished. The check boxes Status and Herkunft have no column: they say whether a key is set, and follow
// every record that is shown. The row "-" is reserved.
#pragma once

#include "catalogues/catalogue_form.h"
#include "forms/check_box.h"
#include "forms/zq_combo.h"

namespace zqn {

class frmCRMKategorien final : public CatalogueForm {
 public:
  frmCRMKategorien();

 private:
  /// Only now: the first record has set its keys on drop-downs that know no texts yet.
  void beforeShow() override;
  ado::sql::Text listStatement() const override;
  void ClearFields() override;
  void readFields(ado::Recordset& rs) override;
  void writeFields(ResumeNext& step, ado::Recordset& rs) override;

  /// A category of the help desk always keeps a history.
  void HelpDesk_Click();
  void Historie_Click();

  TextBox& Kurztext = Get<TextBox>(u"Kurztext");
  CheckBox& Historie = Get<CheckBox>(u"Historie");
  CheckBox& HelpDesk = Get<CheckBox>(u"HelpDesk");
  CheckBox& Status = Get<CheckBox>(u"Status");
  zqCombo& VertriebsStatus = Get<zqCombo>(u"VertriebsStatus");
  CheckBox& Herkunft = Get<CheckBox>(u"Herkunft");
  zqCombo& Adressherkunft = Get<zqCombo>(u"Adressherkunft");
  CheckBox& AktLetzterKontakt = Get<CheckBox>(u"AktLetzterKontakt");
  CheckBox& AktLetzterBesuch = Get<CheckBox>(u"AktLetzterBesuch");
};

}  // namespace zqn
