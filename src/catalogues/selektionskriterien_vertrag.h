// SPDX-License-Identifier: MIT
//
// frmSelektionskriterienVertrag, kind 26: the words by which contracts are selected. No key is reserved: "-"
// is a word like any other.
#pragma once

#include "catalogues/key_only_form.h"

namespace zqn {

class frmSelektionskriterienVertrag final : public KeyOnlyForm {
 public:
  frmSelektionskriterienVertrag();

 private:
  ado::sql::Text listStatement() const override;
  void writeFields(ResumeNext& step, ado::Recordset& rs) override;
};

}  // namespace zqn
