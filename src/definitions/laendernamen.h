// SPDX-License-Identifier: MIT
//
// clsLaendernamen, kind 24: names of countries under keys in capitals. The table has the ISO code in second
// place, which the list keeps out of sight.
#pragma once

#include "definitions/coded_catalogues.h"

namespace zqn {

class clsLaendernamen final : public CodedCatalogue {
 public:
  clsLaendernamen() : CodedCatalogue(valuesOf(codedCatalogues, u"clsLaendernamen")) {}

  using CodedCatalogue::Key;
  /// The key in capitals; Null stays Null.
  Variant Key() const override;
  /// Captions the first and the third column; the second has no width, and nobody can drag it open.
  void ShowData(const Ref<ado::Recordset>& Recordset) override;

 protected:
  /// A new key goes in in capitals; it is looked up as it was typed.
  void writeKey(ResumeNext& step, const Ref<ado::Recordset>& row) override;
};

}  // namespace zqn
