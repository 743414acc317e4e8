// SPDX-License-Identifier: MIT
//
// clsZahlungsbedingungen, kind 3: payment terms with up to three discount steps and a net term. The short
// text is not typed: the form builds it from the seven numbers on every change, and it is stored with the
// row.
#pragma once

#include "definitions/table_editor.h"

namespace zqn {

class clsZahlungsbedingungen final : public TableEditor {
 public:
  clsZahlungsbedingungen() : TableEditor({u"Zahlungsbedingungen", u"ZahlBedSchl"}) {}

  void ReadData(ado::Recordset& Recordset) override;

 protected:
  void setUp() override;
  StringView listFields() const override { return u"ZahlbedSchl, Kurztext"; }
  /// Texts and numbers go in as they are: an empty text stays one.
  void writeKey(ResumeNext& step, const Ref<ado::Recordset>& row) override;
  void writeFields(ResumeNext& step, const Ref<ado::Recordset>& row) override;

 private:
  /// A number column and the control that holds it.
  struct NumberField {
    const char16_t* column;
    ControlSlot<TDBNumber> BasisControls::*control;
  };
  static const NumberField numberFields[7];
};

}  // namespace zqn
