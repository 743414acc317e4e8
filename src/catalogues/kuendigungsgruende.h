// SPDX-License-Identifier: MIT
//
// frmKuendigungsgruende, kinds 32 and 33: the reasons for losing a customer or a contract. Each reason says
// where it is offered; all are maintained in both kinds, but a reason is taken over only where it is offered.
#pragma once

#include "catalogues/catalogue_form.h"
#include "forms/combo_box.h"

namespace zqn {

class frmKuendigungsgruende final : public CatalogueForm {
 public:
  frmKuendigungsgruende();

  /// In: 1 reasons for customers, 2 for contracts.
  Variant GrundArt;

 private:
  void beforeList() override;
  void setUpColumns() override { TDBList1.Columns(0).Caption(u"Schlüssel"); }
  ado::sql::Text listStatement() const override;
  void ClearFields() override;
  void readFields(ado::Recordset& rs) override;
  void writeFields(ResumeNext& step, ado::Recordset& rs) override;
  bool mayBeTaken() override { return CheckAnzeigetyp(); }

  /// The reason that is shown is offered for this kind; says so if not.
  bool CheckAnzeigetyp();

  TextBox& Text = Get<TextBox>(u"Text");
  ComboBox& Anzeigetyp = Get<ComboBox>(u"Anzeigetyp");
};

}  // namespace zqn
