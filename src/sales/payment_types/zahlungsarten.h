// SPDX-License-Identifier: MIT
//
// frmZahlungsarten, kinds 1 and 2: the payment types of the sales or of the purchase side, each with a text
// block: the wording printed on documents and the documents that it is printed on.
//
// Row and text block are two writes and no transaction: a payment type that cannot be saved is passed over,
// and its text block is written all the same.
#pragma once

#include "catalogues/catalogue_form.h"
#include "forms/check_box.h"
#include "forms/combo_box.h"
#include "forms/toggle_button.h"
#include "forms/zq_combo.h"
#include "frontend/basics/bas_general.h"

namespace zqn {

class frmZahlungsarten final : public CatalogueForm {
 public:
  frmZahlungsarten();

  /// "EK" in any case is the purchase side, everything else the sales side. Set before ShowData.
  String Bereich;

 private:
  /// What tells the two sides apart.
  struct Side;
  const Side& side() const;

  ado::sql::Text listStatement() const override;
  ado::sql::Text readStatement() const override;
  ado::sql::Text writeStatement() const override { return readStatement(); }
  ado::sql::Text deleteStatement() const override;
  ResumeNext::Mode errorMode(Procedure procedure) const override {
    return procedure == Procedure::ShowData ? ResumeNext::Mode::PassOver : ResumeNext::Mode::Raise;
  }
  void beforeList() override;
  void beforeShow() override;
  void ClearFields() override;
  void readFields(ado::Recordset& rs) override;
  void writeFields(ResumeNext& step, ado::Recordset& rs) override;
  void WriteRecord() override;
  void DeleteRecord() override;

  ado::sql::Text textBlock(StringView front) const;
  void readTextBlock();
  void writeTextBlock();
  void setToggles(const basGeneral::PrintMarks& marks);
  basGeneral::PrintMarks marks() const;

  TextBox& txtKurztext = Get<TextBox>(u"txtKurztext");
  TextBox& txtLangtext = Get<TextBox>(u"txtLangtext");
  ComboBox& ZahlungsartFibu = Get<ComboBox>(u"ZahlungsartFibu");
  CheckBox& chkDefaultZahlungsbedSchl = Get<CheckBox>(u"chkDefaultZahlungsbedSchl");
  zqCombo& DefaultZahlungsbedSchl = Get<zqCombo>(u"DefaultZahlungsbedSchl");
  CheckBox& chkOhneDruckSkonto = Get<CheckBox>(u"chkOhneDruckSkonto");
  CheckBox& chkOhneFibu = Get<CheckBox>(u"chkOhneFibu");
};

}  // namespace zqn
