// SPDX-License-Identifier: MIT
#include "definitions/buchungskreise.h"

#include "runtime/convert.h"

namespace zqn {

using ado::sql::Text;

void clsBuchungskreise::Init(const Variant& Key, const Ref<ado::Connection>& Connection) {
  m_strHerkunft = concatenate(Key);
  CodedCatalogue::Init(Key.isNull() ? Variant(Null) : Variant(u""), Connection);
}

void clsBuchungskreise::ShowData(const Ref<ado::Recordset>& Recordset) {
  CodedCatalogue::ShowData(Recordset);
  TDBList& list = controls().tdblShow();
  list.Columns(1).Visible(false);
  list.Splits(0).Columns(1).AllowSizing(false);
}

Text clsBuchungskreise::FindCriteria() {
  return Text(table().keyColumn) + u"=" + ado::sql::bare(controls().txtKey().Text()) + ofThisOrigin();
}

Text clsBuchungskreise::listCondition() const { return CodedCatalogue::listCondition() + ofThisOrigin(); }

Text clsBuchungskreise::rowCondition() const { return CodedCatalogue::rowCondition() + ofThisOrigin(); }

Text clsBuchungskreise::deleteStatement() {
  return u"Delete From " + Text(table().name) + u" WHERE " + table().keyColumn + u"=" +
         ado::sql::value(markedKey()) + ofThisOrigin();
}

void clsBuchungskreise::writeKey(ResumeNext& step, const Ref<ado::Recordset>& row) {
  CodedCatalogue::writeKey(step, row);
  step([&] { row->Fields(u"Herkunft").Value(m_strHerkunft); });
}

}  // namespace zqn
