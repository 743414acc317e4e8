// SPDX-License-Identifier: MIT
//
// clsBuchungskreise, kind 27: the booking ranges of one origin. The key that the dialog is opened with is not
// that of a row but the origin ("VK"), and every statement is restricted to it.
#pragma once

#include "definitions/coded_catalogues.h"

namespace zqn {

class clsBuchungskreise final : public CodedCatalogue {
 public:
  clsBuchungskreise() : CodedCatalogue(valuesOf(codedCatalogues, u"clsBuchungskreise")) {}

  /// Takes `Key` as the origin and goes on without a key. Null is the empty origin, and stays the key until
  /// one is picked or saved. Error 13 for an object.
  void Init(const Variant& Key, const Ref<ado::Connection>& Connection) override;
  /// The second column gets the caption and is hidden: the third shows under its own name.
  void ShowData(const Ref<ado::Recordset>& Recordset) override;
  /// The one criterion with a bare key.
  ado::sql::Text FindCriteria() override;

 protected:
  ado::sql::Text listCondition() const override;
  ado::sql::Text rowCondition() const override;
  ado::sql::Text deleteStatement() override;
  /// The origin of a row is written with its key, and never again.
  void writeKey(ResumeNext& step, const Ref<ado::Recordset>& row) override;

 private:
  ado::sql::Text ofThisOrigin() const { return u" AND Herkunft=" + ado::sql::value(m_strHerkunft); }

  String m_strHerkunft;
};

}  // namespace zqn
