// SPDX-License-Identifier: MIT
//
// frmPreislisten, kind 16: the heads of the price lists, and the rule for whom a promotional one holds: for
// all customers, for those of another price list, or for one. Deleting a head deletes its price lines first;
// the two are not a transaction.
//
// An open start is stored as Null, an open end as "99999999999999", which is not the value that reading tests
// against: both are as the host expects them.
#pragma once

#include "catalogues/catalogue_form.h"
#include "contract/session.h"
#include "forms/check_box.h"
#include "forms/date_input.h"
#include "forms/option_button.h"
#include "forms/zq_combo.h"

namespace zqn {

class frmPreislisten final : public CatalogueForm {
 public:
  frmPreislisten();

  /// For the currency of a new price list and the customer information; may be Nothing.
  Ref<zqn::Session> Session;

 private:
  /// For whom a price list holds.
  enum Validity { AllCustomers, CustomersOfList, OneCustomer };

  ado::sql::Text listStatement() const override;
  ResumeNext::Mode errorMode(Procedure procedure) const override {
    return procedure == Procedure::ShowData ? ResumeNext::Mode::PassOver : ResumeNext::Mode::Raise;
  }
  void beforeList() override;
  bool maySave() override;
  String deleteQuestion() const override;
  void ClearFields() override;
  void ReadRecord() override;
  void readFields(ado::Recordset& rs) override;
  void WriteRecord() override;
  void writeFields(ResumeNext& step, ado::Recordset& rs) override;
  void DeleteRecord() override;

  void readPromotion(ado::Recordset& rs);
  void UpdateEnabled();
  /// Shows the customer's name. False when the number in the field belongs to none.
  bool CheckCustomer(StringView number);
  /// Says what is missing and leads there.
  bool refuse(StringView text, StringView title, Control& where);

  void txtKundennummer_GotFocus();
  void txtKundennummer_LostFocus();
  void btnKundenauskunft_Click();

  OptionButton& optGueltigFuer(int index) const { return Get<OptionButton>(u"optGueltigFuer", index); }
  /// The option that is chosen, -1 for none.
  int validity() const;

  TextBox& Langtext = Get<TextBox>(u"Langtext");
  CheckBox& chkGlobalePreisliste = Get<CheckBox>(u"chkGlobalePreisliste");
  DateInput& txtDatumVon = Get<DateInput>(u"txtDatumVon");
  DateInput& txtDatumBis = Get<DateInput>(u"txtDatumBis");
  zqCombo& cboPreisliste = Get<zqCombo>(u"cboPreisliste");
  TextBox& txtKundennummer = Get<TextBox>(u"txtKundennummer");
  TextBox& txtKunBez = Get<TextBox>(u"txtKunBez");
  CommandButton& btnKundenauskunft = Get<CommandButton>(u"btnKundenauskunft");
};

}  // namespace zqn
