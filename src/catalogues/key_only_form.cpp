// SPDX-License-Identifier: MIT
#include "catalogues/key_only_form.h"

namespace zqn {

void KeyOnlyForm::readFields(ado::Recordset& rs) {
  Schluessel.Text(keyOf(concatenate(rs.Fields(source().key).Value())));
}

void KeyOnlyForm::followTyping() {
  Schluessel.Change = [this] { btnOK.Enabled(hasKey()); };
}

}  // namespace zqn
