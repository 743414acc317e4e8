// SPDX-License-Identifier: MIT
#include "catalogues/selection_list_values.h"

namespace zqn {

namespace {

constexpr auto roster = keyOnlyRoster(u"Wert", 255);
constexpr FormDesign design = keyOnlyForm(u"frmSelectionListValues", u"Wertliste", roster);

}  // namespace

frmSelectionListValues::frmSelectionListValues()
    : KeyOnlyForm(design, {u"SelectionListValues", u"ListValue"}) {}

String frmSelectionListValues::CurrentValue() const {
  return Trim(Schluessel.Text()).empty() ? String(u"-") : Schluessel.Text();
}

void frmSelectionListValues::beforeList() {
  const String caption = concatenate(FormCaption);
  if (!Trim(caption).empty()) Caption(caption);
}

// ---- statements

ado::sql::Text frmSelectionListValues::ofThisList(StringView front) const {
  return front + (u" FROM SelectionListValues Where ReferenceType=" + ado::sql::value(ReferenceType)) +
         u" AND FieldID=" + ado::sql::number(FieldID);
}

ado::sql::Text frmSelectionListValues::listStatement() const {
  return ofThisList(u"SELECT ListValue, Case When ListValue='-' Then null Else ListValue End As Wert") +
         u" ORDER BY ListValue";
}

ado::sql::Text frmSelectionListValues::readStatement() const {
  return ofThisList(u"SELECT ListValue") + u" AND Listvalue=" + ado::sql::value(Schluessel.Text());
}

ado::sql::Text frmSelectionListValues::writeStatement() const {
  return ofThisList(u"SELECT *") + u" AND Listvalue=" + ado::sql::value(CurrentValue());
}

ado::sql::Text frmSelectionListValues::deleteStatement() const {
  return ofThisList(u"DELETE") + u" AND Listvalue=" + ado::sql::value(CurrentValue());
}

ado::sql::Text frmSelectionListValues::listCriterion() const {
  return u"ListValue=" + ado::sql::value(CurrentValue());
}

void frmSelectionListValues::writeFields(ResumeNext& step, ado::Recordset& rs) {
  step([&] { rs.Fields(u"ListValue").Value(CurrentValue()); });
  step([&] { rs.Fields(u"ReferenceType").Value(ReferenceType); });
  step([&] { rs.Fields(u"FieldID").Value(FieldID); });
}

}  // namespace zqn
