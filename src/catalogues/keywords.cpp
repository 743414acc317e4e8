// SPDX-License-Identifier: MIT
#include "catalogues/keywords.h"

namespace zqn {

namespace {

constexpr auto roster = keyOnlyRoster(u"Schlagwort:", 30);
constexpr FormDesign design = keyOnlyForm(u"frmKeywords", u"Schlagworte", roster);

}  // namespace

frmKeywords::frmKeywords() : KeyOnlyForm(design, {u"Keywords", u"Keyword"}) { followTyping(); }

void frmKeywords::beforeList() { Caption(u"Schlagworte " + concatenate(Section)); }

ado::sql::Text frmKeywords::listStatement() const {
  return u"SELECT Keyword AS Schlagwort FROM Keywords WHERE Section=" + ado::sql::value(Section) +
         u" ORDER BY Keyword";
}

ado::sql::Text frmKeywords::ofKeyword(StringView front) const {
  return front + ado::sql::value(Schluessel.Text()) + u" AND Section=" + ado::sql::value(Section);
}

ado::sql::Text frmKeywords::listCriterion() const {
  return u"Schlagwort=" + ado::sql::value(Schluessel.Text());
}

void frmKeywords::writeFields(ResumeNext& step, ado::Recordset& rs) {
  step([&] { rs.Fields(u"Keyword").Value(Schluessel.Text()); });
  step([&] { rs.Fields(u"Section").Value(Section); });
}

void frmKeywords::moveToFirst(ado::Recordset& list) {
  if (list.RecordCount() > 0) list.MoveFirst();
}

}  // namespace zqn
