// SPDX-License-Identifier: MIT
//
// The connection is cut at every single message of a dialog's work, those of connecting and of learning the
// tables included. Whatever fails then: nothing half learnt stays, so the next save writes, or says why not,
// and the one after it writes.
#include "ado/odbc/connection_string.h"
#include "runtime/resume_next.h"
#include "testing/cutting_proxy.h"
#include "testing/server_fixture.h"

namespace zqn::ado::odbc {

namespace {

class ServerCut : public ServerTest {
 protected:
  ServerCut() {
    const String port = connectionValue(context.address(), u"Port");
    proxy = std::make_unique<CuttingProxy>(
        static_cast<std::uint16_t>(CLng(port)),
        ServerContext::isPostgreSql() ? CuttingProxy::Protocol::PostgreSql : CuttingProxy::Protocol::MariaDb);
    std::vector<ConnectionPair> pairs = connectionPairs(context.address());
    for (ConnectionPair& pair : pairs)
      if (pair.key == u"Port") pair.value = digits(proxy->port());
    address = connectionString(pairs);
  }

  /// What a catalogue form does, statement by statement: shows its list, reads a row, saves it, adds one,
  /// deletes it, reads the list anew.
  static void work(const Ref<Connection>& on) {
    Recordset list;
    ResumeNext step;
    step([&] { list.Open(u"SELECT Schluessel, Wert FROM Stamm ORDER BY Schluessel", on, adOpenKeyset); });
    step([&] { list.rowText(1, 1); });
    step([&] { list.Find(u"Schluessel='b'"); });
    for (const char16_t* key : {u"a", u"c"}) {
      Recordset row;
      step([&] {
        row.Open(u"SELECT * FROM Stamm WHERE Schluessel=" + sql::value(key), on, adOpenKeyset,
                 adLockOptimistic);
      });
      step([&] {
        if (row.IsEOF()) row.AddNew();
      });
      step([&] { row.Fields(u"Schluessel").Value(key); });
      step([&] { row.Fields(u"Wert").Value(u"während der Arbeit"); });
      step([&] { row.Update(); });
      step([&] { row.CancelUpdate(); });
      step([&] { row.Close(); });
    }
    step([&] { on->Execute(u"DELETE FROM Stamm WHERE Schluessel=" + sql::value(u"c")); });
    step([&] { list.Requery(); });
    step([&] { list.rowText(0, 1); });
  }

  /// Saves one row as a form does; the failure's number, 0 for none.
  static std::int32_t save(const Ref<Connection>& on, const String& text) {
    return errorNumberOf([&] {
      Recordset row;
      row.Open(u"SELECT * FROM Stamm WHERE Schluessel='a'", on, adOpenKeyset, adLockOptimistic);
      if (row.IsEOF()) row.AddNew();
      EXPECT_EQ(row.Fields().Count(), 3);
      row.Fields(u"Schluessel").Value(u"a");
      row.Fields(u"Wert").Value(text);
      row.Update();
    });
  }

  /// Connects through the proxy; a cut on the way is told, and the next attempt gets through.
  Ref<Connection> throughProxy() const {
    Ref<Connection> on;
    const auto attempt = [&] { return errorNumberOf([&] { on = openOdbc(address); }); };
    if (const std::int32_t number = attempt(); number != 0) {
      EXPECT_EQ(number, error::ProviderFailure);
      EXPECT_EQ(attempt(), 0);
    }
    return on;
  }

  std::unique_ptr<CuttingProxy> proxy;
  String address;
};

}  // namespace

TEST_F(ServerCut, AfterACutAtAnyMessageTheNextSaveWritesOrSaysWhyNot) {
  proxy->cutAt(0);
  work(throughProxy());
  const int messages = proxy->messages();
  ASSERT_GT(messages, 50);
  int toldOnce = 0;
  for (int message = 1; message <= messages; ++message) {
    proxy->cutAt(message);
    const Ref<Connection> on = throughProxy();
    work(on);
    proxy->cutAt(0);
    const String first = u"Stand " + digits(message);
    if (save(on, first) == 0) {
      ASSERT_EQ(value(u"SELECT Wert FROM Stamm WHERE Schluessel='a'"), first)
          << "cut at message " << message << " of " << messages << ": saved, and nothing is written";
    } else {
      ++toldOnce;
    }
    const String second = first + u"!";
    ASSERT_EQ(save(on, second), 0) << "cut at message " << message << " of " << messages;
    ASSERT_EQ(value(u"SELECT Wert FROM Stamm WHERE Schluessel='a'"), second)
        << "cut at message " << message << " of " << messages;
    Recordset list;
    list.Open(u"SELECT Schluessel, Wert FROM Stamm WHERE Schluessel<>'c' ORDER BY Schluessel", on,
              adOpenKeyset);
    ASSERT_EQ(list.rowText(0, 1), second);
    ASSERT_EQ(list.RecordCount(), 2);
    ASSERT_EQ(list.Fields().Count(), 2);
  }
  RecordProperty("messages", messages);
  RecordProperty("savesToldAsFailed", toldOnce);
  std::cout << messages << " messages, each cut once; " << toldOnce << " next saves said why not\n";
}

TEST_F(ServerCut, AfterACutAtAnyMessageOfASaveItIsWrittenOnceOrNotAtAll) {
  const Ref<Connection> on = throughProxy();
  const auto insert = [&](const String& key) {
    return errorNumberOf([&] {
      Recordset row;
      row.Open(u"SELECT * FROM Stamm WHERE Schluessel=" + sql::value(key), on, adOpenKeyset,
               adLockOptimistic);
      if (row.IsEOF()) row.AddNew();
      row.Fields(u"Schluessel").Value(key);
      row.Fields(u"Wert").Value(u"neu");
      row.Update();
    });
  };
  ASSERT_EQ(insert(u"x0"), 0);
  proxy->cutAt(0);
  ASSERT_EQ(insert(u"x1"), 0);
  const int messages = proxy->messages();
  for (int message = 1; message <= messages; ++message) {
    const String key = u"y" + digits(message);
    proxy->cutAt(message);
    const std::int32_t number = insert(key);
    proxy->cutAt(0);
    const String rows = value(u"SELECT count(*) FROM Stamm WHERE Schluessel=" + sql::value(key));
    if (number == 0) {
      EXPECT_EQ(rows, u"1") << "cut at message " << message;
    } else {
      // The answer may be what was lost: then the row is there, once, and trying again finds it.
      EXPECT_EQ(insert(key), 0) << "cut at message " << message;
      EXPECT_EQ(value(u"SELECT count(*) FROM Stamm WHERE Schluessel=" + sql::value(key)), u"1");
    }
  }
}

}  // namespace zqn::ado::odbc
