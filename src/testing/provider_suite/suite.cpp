// SPDX-License-Identifier: MIT
#include "testing/provider_suite/suite.h"

namespace zqn::ado::suite {

void PrintTo(const Setting& setting, std::ostream* out) {
  *out << (setting.location == adUseServer ? "server" : "client");
}

std::string nameOf(const testing::TestParamInfo<Setting>& info) {
  return info.param.location == adUseServer ? "Server" : "Client";
}

std::vector<Setting> anywhere(const MakeContext& context) {
  return {{context, adUseServer}, {context, adUseClient}};
}

std::vector<Setting> onServer(const MakeContext& context) { return {{context, adUseServer}}; }

std::vector<Setting> onClient(const MakeContext& context) { return {{context, adUseClient}}; }

Fixture::Fixture() : context(GetParam().context()), connection(context->connect()) {
  connection->Execute(u"CREATE TABLE Vertriebsstati (Status " + context->textColumn(10) +
                      u" NOT NULL PRIMARY KEY, Bezeichnung " + context->textColumn(30) +
                      u", AutoOverwrite SMALLINT NOT NULL DEFAULT 0, Gewichtung DOUBLE PRECISION)");
  for (const char16_t* row :
       {u"'10', 'Anfrage', 0, 10", u"'20', 'Angebot', -1, 50.5", u"'30', NULL, 0, NULL"}) {
    connection->Execute(u"INSERT INTO Vertriebsstati VALUES (" + sql::Text(row) + u")");
  }
}

Ref<Recordset> Fixture::open(const Ref<Connection>& on, const sql::Text& statement, int lock) {
  auto rs = Ref<Recordset>::make();
  rs->CursorLocation(GetParam().location);
  rs->Open(statement, on, adOpenKeyset, lock);
  return rs;
}

String Fixture::stored(const sql::Text& statement) {
  Recordset rs;
  rs.CursorLocation(adUseClient);
  rs.Open(statement, context->connect());
  String text;
  for (; !rs.IsEOF(); rs.MoveNext()) {
    if (!text.empty()) text += u" / ";
    for (int i = 0; i < rs.Fields().Count(); ++i) {
      const Variant value = rs.Fields(i).Value();
      text += (i == 0 ? u"" : u"|") + (value.isNull() ? String(u"Null") : CStr(value));
    }
  }
  return text;
}

String key(Recordset& rs) { return CStr(rs.Fields(0).Value()); }

String keysFrom(Recordset& rs) {
  String keys;
  for (; !rs.IsEOF(); rs.MoveNext()) keys += (keys.empty() ? u"" : u" ") + key(rs);
  return keys;
}

}  // namespace zqn::ado::suite
