// SPDX-License-Identifier: MIT
//
// frmKeywords, kind 35: the keywords of one section. A keyword may stand in several sections; the section is
// the caller's and belongs to the key of a row.
#pragma once

#include "catalogues/key_only_form.h"

namespace zqn {

class frmKeywords final : public KeyOnlyForm {
 public:
  frmKeywords();

  /// In: which section. Not interpreted.
  Variant Section;

 private:
  void beforeList() override;
  ado::sql::Text listStatement() const override;
  ado::sql::Text readStatement() const override {
    return ofKeyword(u"SELECT * FROM Keywords WHERE Keyword=");
  }
  ado::sql::Text writeStatement() const override { return readStatement(); }
  ado::sql::Text deleteStatement() const override {
    return ofKeyword(u"Delete FROM Keywords WHERE Keyword =");
  }
  /// By the name that the keyword has in the list.
  ado::sql::Text listCriterion() const override;
  void writeFields(ResumeNext& step, ado::Recordset& rs) override;
  /// Nowhere to go in a section without keywords; the search fails by itself then.
  void moveToFirst(ado::Recordset& list) override;
  void sendTab(ZQSendKeys& keys) override { keys.SendKeys2(u"{Tab}"); }

  ado::sql::Text ofKeyword(StringView front) const;
};

}  // namespace zqn
