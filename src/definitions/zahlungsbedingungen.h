// SPDX-License-Identifier: MIT
//
// clsZahlungsbedingungen, kind 3: payment terms with up to three discount steps and a net term. The short
// text is not typed: the form builds it from the seven numbers on every change, and it is stored with the
// row.
#pragma once

#include "definitions/definition_class.h"

namespace zqn {

class clsZahlungsbedingungen final : public DefinitionClass {
 public:
  void Init(const Variant& Key, const Ref<ado::Connection>& Connection) override;
  void ReadData(ado::Recordset& Recordset) override;
  void WriteData() override;
  void DeleteData() override;
  Ref<ado::Recordset> GetRecordsetForShow() override;
  Ref<ado::Recordset> GetRecordsetForReadWrite() override;
  ado::sql::Text FindCriteria() override;

 private:
  /// A number column and the control that holds it.
  struct NumberField {
    const char16_t* column;
    ControlSlot<TDBNumber> BasisControls::*control;
  };
  static const NumberField numberFields[7];
};

}  // namespace zqn
