// SPDX-License-Identifier: MIT
//
// frmVertriebsstati, kind 21: the sales statuses, each with its progress in percent. The row "-" is reserved:
// it is not listed, but typing its key opens it.
#pragma once

#include "catalogues/catalogue_form.h"
#include "forms/check_box.h"

namespace zqn {

class frmVertriebsstati final : public CatalogueForm {
 public:
  frmVertriebsstati();

 private:
  ado::sql::Text listStatement() const override;
  void ClearFields() override;
  void readFields(ado::Recordset& rs) override;
  void writeFields(ResumeNext& step, ado::Recordset& rs) override;

  /// Makes a whole number from 0 to 100 of what was typed, without a message.
  void Gewichtung_LostFocus();

  TextBox& Kurztext = Get<TextBox>(u"Kurztext");
  TextBox& Gewichtung = Get<TextBox>(u"Gewichtung");
  CheckBox& AutoOverwrite = Get<CheckBox>(u"AutoOverwrite");
};

}  // namespace zqn
