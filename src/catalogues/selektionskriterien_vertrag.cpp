// SPDX-License-Identifier: MIT
#include "catalogues/selektionskriterien_vertrag.h"

namespace zqn {

namespace {

constexpr auto roster = keyOnlyRoster(u"Kriterium", 30);
constexpr FormDesign design =
    keyOnlyForm(u"frmSelektionskriterienVertrag", u"Selektionskriterien bearbeiten", roster);

}  // namespace

frmSelektionskriterienVertrag::frmSelektionskriterienVertrag()
    : KeyOnlyForm(design, {u"SelektionskriterienVertrag", u"Kriterium"}) {
  followTyping();
}

ado::sql::Text frmSelektionskriterienVertrag::listStatement() const {
  return u"SELECT Kriterium FROM SelektionskriterienVertrag ORDER BY Kriterium";
}

void frmSelektionskriterienVertrag::writeFields(ResumeNext& step, ado::Recordset& rs) {
  step([&] { rs.Fields(u"Kriterium").Value(Schluessel.Text()); });
}

}  // namespace zqn
