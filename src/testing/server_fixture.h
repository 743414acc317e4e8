// SPDX-License-Identifier: MIT
//
// What the tests of the ODBC provider share that run on a real server: a table Stamm with the rows a and b,
// two connections to it, and a way to end one of them.
#pragma once

#include <algorithm>

#include "ado/recordset.h"
#include "runtime/digits.h"
#include "testing/server_context.h"

namespace zqn::ado::odbc {

class ServerTest : public testing::Test {
 protected:
  ServerTest() {
    connection->Execute(u"CREATE TABLE Stamm (Schluessel " + context.textColumn(10) +
                        u" NOT NULL PRIMARY KEY, Wert " + context.textColumn(30) +
                        u", Zahl DOUBLE PRECISION)");
    connection->Execute(u"INSERT INTO Stamm VALUES ('a', 'eins', 1), ('b', 'zwei', 2)");
    sent.clear();
  }

  Ref<Connection> watched() {
    return openOdbc(context.address(), {.ran = [this](StringView text) { sent.emplace_back(text); }});
  }
  static Ref<Recordset> open(const Ref<Connection>& on, const sql::Text& statement,
                             int location = adUseServer) {
    auto rs = Ref<Recordset>::make();
    rs->CursorLocation(location);
    rs->Open(statement, on, adOpenKeyset, adLockOptimistic);
    return rs;
  }
  String value(const sql::Text& statement) {
    const auto rs = open(other, statement, adUseClient);
    return rs->IsEOF() ? u"EOF" : concatenate(rs->Fields(0).Value());
  }
  /// How often a page of keys was asked for.
  std::ptrdiff_t pages() const {
    return std::ranges::count_if(sent,
                                 [](const String& text) { return text.find(u"OFFSET") != String::npos; });
  }
  /// Rows k100000 to k119999.
  void insertTwentyThousand() {
    for (int i = 0; i < 20; ++i) {
      sql::Text statement = u"INSERT INTO Stamm VALUES ";
      for (int row = 0; row < 1000; ++row)
        statement += (row == 0 ? u"(" : u", (") +
                     sql::value(fromUtf8("k" + std::to_string(100000 + i * 1000 + row))) + u", 'x', 0)";
      connection->Execute(statement);
    }
  }
  /// The server ends the session of `connection`, as an administrator would.
  void drop() {
    if (ServerContext::isPostgreSql()) {
      const String process = CStr(open(connection, u"SELECT pg_backend_pid()")->Fields(0).Value());
      value(u"SELECT pg_terminate_backend(" + sql::number(process) + u")");
    } else {
      const String process = CStr(open(connection, u"SELECT connection_id()")->Fields(0).Value());
      other->Execute(u"KILL " + sql::number(process));
    }
  }

  ServerContext context;
  std::vector<String> sent;
  Ref<Connection> connection = watched();
  Ref<Connection> other = context.connect();
};

/// The dropped connection is told, at the first statement or, where the server was slower, at the second.
inline bool toldOnce(const std::function<void()>& statement) {
  return errorNumberOf(statement) == error::ProviderFailure;
}

}  // namespace zqn::ado::odbc
