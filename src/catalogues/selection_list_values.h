// SPDX-License-Identifier: MIT
//
// frmSelectionListValues, kind 28: the values that one selection field of one kind of object may take. The
// empty value is one of them: stored as "-", an empty line in the list, an empty key for the caller. Nobody
// is asked for rights.
#pragma once

#include "catalogues/key_only_form.h"

namespace zqn {

class frmSelectionListValues final : public KeyOnlyForm {
 public:
  frmSelectionListValues();

  /// In: which list, a text and a number. A FieldID that is not a number makes every statement invalid.
  Variant ReferenceType;
  Variant FieldID;
  /// In: the form's caption; blank keeps "Wertliste".
  Variant FormCaption;

 private:
  /// What is stored and searched for: the text of the key, "-" when it is empty or blank.
  String CurrentValue() const;

  ResumeNext::Mode errorMode(Procedure) const override { return ResumeNext::Mode::PassOver; }
  void beforeList() override;
  void setUpColumns() override { TDBList1.Columns(0).Visible(false); }
  String keyOf(const String& listText) const override { return listText == u"-" ? String() : listText; }
  /// The empty value, too, can be saved and deleted.
  bool hasKey() const override { return true; }
  bool asksForRights() const override { return false; }

  ado::sql::Text listStatement() const override;
  /// Reads by the raw text: an empty one finds nothing.
  ado::sql::Text readStatement() const override;
  ado::sql::Text writeStatement() const override;
  ado::sql::Text deleteStatement() const override;
  ado::sql::Text listCriterion() const override;
  void writeFields(ResumeNext& step, ado::Recordset& rs) override;

  ado::sql::Text ofThisList(StringView front) const;
};

}  // namespace zqn
