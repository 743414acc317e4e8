// SPDX-License-Identifier: MIT
//
// What a database server adds to the rules of recordsets: drops, locks, types, long texts, what is sent.
#include "runtime/digits.h"
#include "runtime/locale.h"
#include "testing/server_fixture.h"

namespace zqn::ado::odbc {

namespace {

class Server : public ServerTest {};

const sql::Text RowA = u"SELECT * FROM Stamm WHERE Schluessel='a'";

}  // namespace

// ---- drops

TEST_F(Server, DropIsToldOnceAndTheNextStatementConnectsAgain) {
  drop();
  EXPECT_TRUE(toldOnce([&] { connection->Execute(u"UPDATE Stamm SET Zahl=Zahl+1"); }));
  EXPECT_EQ(value(u"SELECT Zahl FROM Stamm WHERE Schluessel='a'"), u"1") << "nothing was sent again";
  EXPECT_EQ(connection->Execute(u"UPDATE Stamm SET Zahl=Zahl+1"), 2);
  EXPECT_EQ(value(u"SELECT Zahl FROM Stamm WHERE Schluessel='a'"), u"2");
}

TEST_F(Server, StatementWithAValueRunsAgainAfterADrop) {
  const sql::Text statement = u"DELETE FROM Stamm WHERE Schluessel=" + sql::value(u"b");
  drop();
  EXPECT_TRUE(toldOnce([&] { connection->Execute(statement); }));
  EXPECT_EQ(value(u"SELECT count(*) FROM Stamm"), u"2");
  EXPECT_EQ(connection->Execute(statement), 1);
}

TEST_F(Server, OpenRecordsetGoesOnAfterADrop) {
  const auto rs = open(connection, u"SELECT * FROM Stamm ORDER BY Schluessel");
  drop();
  EXPECT_TRUE(toldOnce([&] { rs->MoveNext(), rs->Fields(1).Value(); }));
  rs->MoveFirst();
  rs->MoveNext();
  EXPECT_EQ(rs->Fields(1).Value(), Variant(u"zwei"));
  rs->Fields(1).Value(u"neu");
  rs->Update();
  EXPECT_EQ(value(u"SELECT Wert FROM Stamm WHERE Schluessel='b'"), u"neu");
}

TEST_F(Server, EditStaysPendingOverADropAndIsWrittenOnce) {
  const auto rs = open(connection, u"SELECT * FROM Stamm WHERE Schluessel='c'");
  rs->AddNew();
  rs->Fields(0).Value(u"c");
  drop();
  EXPECT_TRUE(toldOnce([&] { rs->Update(); }));
  EXPECT_EQ(value(u"SELECT count(*) FROM Stamm"), u"2");
  EXPECT_EQ(rs->EditMode(), adEditAdd);
  rs->Update();
  EXPECT_EQ(value(u"SELECT count(*) FROM Stamm"), u"3");
}

TEST_F(Server, NoHalfOfATransactionIsWritten) {
  connection->Execute(u"BEGIN");
  connection->Execute(u"UPDATE Stamm SET Zahl=7 WHERE Schluessel='a'");
  drop();
  EXPECT_TRUE(toldOnce([&] { connection->Execute(u"UPDATE Stamm SET Zahl=8 WHERE Schluessel='b'"); }));
  EXPECT_TRUE(toldOnce([&] { connection->Execute(u"UPDATE Stamm SET Zahl=9 WHERE Schluessel='b'"); }))
      << "nor its second half";
  EXPECT_TRUE(toldOnce([&] { connection->Execute(u"COMMIT"); }));
  EXPECT_EQ(value(u"SELECT sum(Zahl) FROM Stamm"), u"3");
  EXPECT_EQ(connection->Execute(u"UPDATE Stamm SET Zahl=7 WHERE Schluessel='a'"), 1);
}

TEST_F(Server, LookingUpATableDoesNotHideThatATransactionIsLost) {
  other->Execute(u"CREATE TABLE Neben (Nummer INTEGER NOT NULL PRIMARY KEY, Zahl INTEGER)");
  other->Execute(u"INSERT INTO Neben VALUES (1, 1)");
  connection = watched();
  connection->Execute(u"BEGIN");
  connection->Execute(u"UPDATE Stamm SET Zahl=7 WHERE Schluessel='a'");
  drop();
  EXPECT_TRUE(toldOnce([&] { connection->Execute(u"UPDATE Stamm SET Zahl=8 WHERE Schluessel='b'"); }));
  EXPECT_TRUE(toldOnce([&] { connection->Execute(u"UPDATE Neben SET Zahl=9 WHERE Nummer=1"); }));
  EXPECT_EQ(value(u"SELECT Zahl FROM Neben"), u"1");
  EXPECT_TRUE(toldOnce([&] { connection->Execute(u"COMMIT"); }));
}

TEST_F(Server, RollbackEndsATransactionThatADropHasEnded) {
  connection->Execute(u"BEGIN");
  drop();
  EXPECT_TRUE(toldOnce([&] { connection->Execute(u"UPDATE Stamm SET Zahl=8"); }));
  EXPECT_EQ(connection->Execute(u"ROLLBACK"), 0);
  EXPECT_EQ(connection->Execute(u"UPDATE Stamm SET Zahl=8"), 2);
}

TEST_F(Server, ServerThatIsNotThereIsToldInItsDriversWords) {
  std::vector<ConnectionPair> pairs = connectionPairs(context.address());
  for (ConnectionPair& pair : pairs)
    if (compareIgnoringCase(pair.key, u"Port") == 0) pair.value = u"1";
  try {
    openOdbc(connectionString(pairs));
    FAIL();
  } catch (const RuntimeError& failure) {
    EXPECT_EQ(failure.number(), error::ProviderFailure);
    EXPECT_FALSE(failure.description().empty());
    EXPECT_FALSE(failure.description().starts_with(u"["));
  }
}

TEST_F(Server, WrongPasswordIsRefused) {
  std::vector<ConnectionPair> pairs = connectionPairs(context.address());
  for (ConnectionPair& pair : pairs)
    if (compareIgnoringCase(pair.key, u"PWD") == 0) pair.value = u"falsch";
  EXPECT_EQ(errorNumberOf([&] { openOdbc(connectionString(pairs)); }), error::ProviderFailure);
}

// ---- tables that come and go

TEST_F(Server, TableThatWasMissingIsKnownWhenItIsThere) {
  const sql::Text row = u"SELECT * FROM Spaeter WHERE Schluessel='a'";
  EXPECT_EQ(errorNumberOf([&] { open(connection, row); }), error::TableNotFound);
  other->Execute(u"ALTER TABLE Stamm RENAME TO Spaeter");
  const auto rs = open(connection, row);
  rs->Fields(1).Value(u"neu");
  rs->Update();
  EXPECT_EQ(value(u"SELECT Wert FROM Spaeter WHERE Schluessel='a'"), u"neu");
}

// ---- conflicts and locks

TEST_F(Server, ChangeOfCaseAloneIsAConflict) {
  const auto rs = open(connection, RowA);
  rs->Fields(u"Wert").Value(u"neu");
  other->Execute(u"UPDATE Stamm SET Wert='EINS' WHERE Schluessel='a'");
  EXPECT_EQ(errorNumberOf([&] { rs->Update(); }), error::RowConflict);
}

TEST_F(Server, NumbersThatWereReadAreFoundToTheLastDigit) {
  const auto rs = open(connection, RowA);
  rs->Fields(u"Zahl").Value(0.1 + 0.2);
  rs->Update();
  rs->Fields(u"Zahl").Value(1e300);
  rs->Update();
  rs->Fields(u"Zahl").Value(-5e-324);
  rs->Update();
  rs->Fields(u"Zahl").Value(3.0);
  rs->Update();
  EXPECT_EQ(value(u"SELECT Zahl FROM Stamm WHERE Schluessel='a'"), u"3");
}

TEST_F(Server, SameValuesAgainAreNoConflict) {
  const auto rs = open(connection, RowA);
  rs->Fields(u"Wert").Value(u"eins");
  rs->Update();
  EXPECT_EQ(connection->Execute(u"UPDATE Stamm SET Wert='eins' WHERE Schluessel='a'"), 1);
}

TEST_F(Server, NoLockIsWaitedForLongerThanFiveSeconds) {
  if (ServerContext::isPostgreSql()) {
    EXPECT_EQ(value(u"SHOW lock_timeout"), u"5s");
  } else {
    EXPECT_EQ(value(u"SELECT CONCAT(@@innodb_lock_wait_timeout, ' ', @@lock_wait_timeout)"), u"5 5")
        << "on a row, and on a table that somebody alters";
  }
}

TEST_F(Server, LockThatStaysEndsInAnErrorNotInAHang) {
  connection->Execute(ServerContext::isPostgreSql() ? u"SET lock_timeout='200ms'"
                                                    : u"SET SESSION innodb_lock_wait_timeout=1");
  other->Execute(u"BEGIN");
  other->Execute(u"UPDATE Stamm SET Zahl=5 WHERE Schluessel='a'");
  EXPECT_NE(errorNumberOf([&] { connection->Execute(u"UPDATE Stamm SET Zahl=6 WHERE Schluessel='a'"); }), 0);
  other->Execute(u"COMMIT");
  EXPECT_EQ(connection->Execute(u"UPDATE Stamm SET Zahl=6 WHERE Schluessel='a'"), 1);
}

// ---- values

TEST_F(Server, LongTextsComeBackWhole) {
  connection->Execute(u"CREATE TABLE Lang (Schluessel INTEGER PRIMARY KEY, Langtext " +
                      sql::Text(ServerContext::isPostgreSql() ? u"TEXT" : u"LONGTEXT") + u", Ende INTEGER)");
  String text;
  for (int i = 0; i < 30000; ++i) text += i % 1000 == 0 ? u"\r\n😀" : u"äb€";
  for (const int location : {adUseServer, adUseClient}) {
    const auto rs =
        open(connection, u"SELECT * FROM Lang WHERE Schluessel=" + sql::number(location), location);
    rs->AddNew();
    rs->Fields(u"Schluessel").Value(location);
    rs->Fields(u"Langtext").Value(text);
    rs->Fields(u"Ende").Value(7);
    rs->Update();
    rs->Requery();
    EXPECT_EQ(rs->Fields(u"Langtext").Type(), adLongVarWChar);
    EXPECT_TRUE(rs->Fields(u"Langtext").Value() == Variant(text));
    EXPECT_EQ(rs->Fields(u"Ende").Value(), Variant(std::int32_t{7}));
    rs->Fields(u"Langtext").Value(Null);
    rs->Update();
    EXPECT_EQ(rs->Fields(u"Langtext").Value(), Null);
  }
}

TEST_F(Server, TextThatIsTooLongIsRefusedWhole) {
  const sql::Text tooLong = u"INSERT INTO Stamm VALUES ('c', 'x', 1), ('12345678901', 'x', 1)";
  EXPECT_EQ(errorNumberOf([&] { connection->Execute(tooLong); }), error::ProviderDataOverflow);
  EXPECT_EQ(value(u"SELECT count(*) FROM Stamm"), u"2") << "no half of it";
}

TEST_F(Server, YesAndNoAsTheDialogsWriteThem) {
  connection->Execute(u"CREATE TABLE Merkmale (Nr INTEGER PRIMARY KEY, Historie " +
                      sql::Text(ServerContext::isPostgreSql() ? u"BOOLEAN" : u"TINYINT") + u")");
  connection->Execute(u"INSERT INTO Merkmale VALUES (1, -1), (2, 0), (3, 1), (4, NULL)");
  const auto count = [&](const char16_t* condition) {
    return value(u"SELECT count(*) FROM Merkmale WHERE " + sql::Text(condition));
  };
  EXPECT_EQ(count(u"Historie=True"), u"2");
  EXPECT_EQ(count(u"Historie<>0"), u"2");
  EXPECT_EQ(count(u"Historie=0"), u"1");
  EXPECT_EQ(count(u"Historie=False"), u"1");
  const auto rs = open(connection, u"SELECT * FROM Merkmale ORDER BY Nr");
  EXPECT_EQ(rs->Fields(u"Historie").Type(), adBoolean);
  EXPECT_EQ(rs->Fields(u"Historie").Value(), Variant(true));
  rs->Fields(u"Historie").Value(false);
  rs->Update();
  rs->MoveNext();
  EXPECT_EQ(rs->Fields(u"Historie").Value(), Variant(false));
  rs->Fields(u"Historie").Value(-1);
  rs->Update();
  EXPECT_EQ(count(u"Historie<>0 AND Nr=2"), u"1");
  EXPECT_EQ(count(u"Historie=0 AND Nr=1"), u"1");
}

TEST_F(Server, LikeDisregardsCase) {
  EXPECT_EQ(value(u"SELECT count(*) FROM Stamm WHERE Wert LIKE 'EIN%'"), u"1");
  EXPECT_EQ(value(u"SELECT count(*) FROM Stamm WHERE Wert NOT LIKE '%WEI'"), u"1");
  EXPECT_EQ(value(u"SELECT count(*) FROM Stamm s WHERE s.Zahl LIKE '1%'"), u"1") << "a number by its digits";
}

TEST_F(Server, ColumnsAddedSinceAreSeen) {
  EXPECT_EQ(open(connection, RowA)->Fields().Count(), 3);
  other->Execute(u"ALTER TABLE Stamm ADD COLUMN Neu INTEGER DEFAULT 5");
  EXPECT_EQ(open(connection, u"SELECT * FROM Stamm WHERE Schluessel='b'")->Fields().Count(), 4);
  EXPECT_EQ(open(connection, RowA)->Fields(u"Neu").Value(), Variant(std::int32_t{5}));
}

TEST_F(Server, NumberColumnTakesNoText) {
  EXPECT_NE(errorNumberOf([&] { connection->Execute(u"INSERT INTO Stamm VALUES ('c', 'x', 'abc')"); }), 0);
  EXPECT_EQ(value(u"SELECT count(*) FROM Stamm"), u"2");
}

// ---- what is sent

TEST_F(Server, StatementsThatDifferInTheirKeysAreSentOnce) {
  open(connection, RowA);
  sent.clear();
  for (const char16_t* key : {u"a", u"b", u"c"})
    open(connection, u"SELECT * FROM Stamm WHERE Schluessel=" + sql::value(key));
  EXPECT_TRUE(sent.empty()) << "prepared once: " << toUtf8(sent.front());
}

TEST_F(Server, RowsOfAListAreReadByAStatementThatIsPreparedOnce) {
  const auto rs = open(connection, u"SELECT * FROM Stamm ORDER BY Schluessel");
  rs->MoveNext();
  rs->Fields(0).Value();
  sent.clear();
  for (int i = 0; i < 5; ++i) {
    rs->MoveFirst();
    rs->Fields(0).Value();
    rs->MoveNext();
    rs->Fields(0).Value();
  }
  EXPECT_TRUE(sent.empty()) << toUtf8(sent.front());
}

TEST_F(Server, LongListIsReadInPages) {
  insertTwentyThousand();
  sent.clear();
  const auto rs = open(connection, u"SELECT Schluessel, Wert FROM Stamm ORDER BY Wert, Zahl");
  EXPECT_EQ(pages(), 2) << "a look whether it is long, and its first page";
  rs->Find(u"Schluessel='k100500'");
  EXPECT_FALSE(rs->rowsComplete());
  EXPECT_EQ(rs->RecordCount(), 20002);
  EXPECT_EQ(pages(), 4);
  EXPECT_EQ(other->Execute(u"DELETE FROM Stamm WHERE Wert='x'"), 20000) << "no lock is left";
  EXPECT_EQ(rs->RecordCount(), 20002);
}

TEST_F(Server, LongListIsReadAtOnceWhereTheServerHasNoSecondConnection) {
  insertTwentyThousand();
  const sql::Text database = u"ALTER DATABASE " + connectionValue(context.address(), u"Database");
  // MariaDB limits the connections of a user, which only an administrator may do: it reads in pages here.
  if (ServerContext::isPostgreSql()) connection->Execute(database + u" CONNECTION LIMIT 2");
  sent.clear();
  const auto rs = open(connection, u"SELECT Schluessel, Wert FROM Stamm ORDER BY Schluessel");
  EXPECT_FALSE(rs->IsEOF());
  EXPECT_EQ(rs->RecordCount(), 20002);
  EXPECT_EQ(rs->rowText(20001, 0), u"k119999");
  EXPECT_EQ(pages(), ServerContext::isPostgreSql() ? 1 : 4) << "one look whether it is long";
  if (ServerContext::isPostgreSql()) connection->Execute(database + u" CONNECTION LIMIT -1");
}

TEST_F(Server, TellsEachRunWithItsParameters) {
  std::vector<String> runs;
  const auto on = openOdbc(context.address(), {.runs = [&](StringView text, std::span<const Value> values) {
                             runs.push_back(String(text.substr(0, 6)) + u" " + digits(values.size()));
                           }});
  for (int time = 0; time < 2; ++time) {
    const auto rs = open(on, RowA);
    rs->Fields(u"Zahl").Value(5.0 + time);
    runs.clear();
    rs->Update();
    ASSERT_FALSE(runs.empty());
    EXPECT_EQ(runs.front(), u"UPDATE 4") << "the value, the key twice, and the value that was read";
  }
}

}  // namespace zqn::ado::odbc
