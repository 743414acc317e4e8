// SPDX-License-Identifier: MIT
//
// What only the server's cursor does (KeysetTest), and what only the client's does (SnapshotTest).
#include "testing/provider_suite/suite.h"

namespace zqn::ado::suite {

namespace {

constexpr int ManyRows = 10000;

/// Rows k00000 to k09999, inserted in another order.
void fillMany(const Ref<Connection>& connection) {
  constexpr int RowsAtOnce = 500;
  connection->Execute(u"BEGIN");
  for (int i = 0; i < ManyRows;) {
    sql::Text statement = u"INSERT INTO Vertriebsstati VALUES ";
    for (int row = 0; row < RowsAtOnce; ++row, ++i) {
      const int number = static_cast<int>(static_cast<std::int64_t>(i) * 7919 % ManyRows);
      const std::string digits = std::to_string(100000 + number).substr(1);
      statement += (row == 0 ? u"(" : u", (") + sql::value(fromUtf8("k" + digits)) + u", " +
                   sql::value(fromUtf8("Name " + std::to_string(number % 100))) + u", 0, NULL)";
    }
    connection->Execute(statement);
  }
  connection->Execute(u"COMMIT");
}

const sql::Text ManyList =
    u"SELECT Status, Bezeichnung FROM Vertriebsstati WHERE Status>='k' ORDER BY Status";

}  // namespace

TEST_P(KeysetTest, ReadsItsKeysAsTheyAreNeeded) {
  fillMany(connection);
  const auto rs = open(ManyList);
  EXPECT_GT(rs->knownRows(), 0);
  EXPECT_LT(rs->knownRows(), 1000);
  EXPECT_FALSE(rs->rowsComplete());
  const int before = rs->knownRows();
  rs->fetchKeys(500);
  EXPECT_EQ(rs->knownRows(), before + 500);
  while (!rs->rowsComplete()) rs->fetchKeys(3000);
  EXPECT_EQ(rs->knownRows(), ManyRows);
  EXPECT_EQ(rs->rowText(ManyRows - 1, 0), u"k09999");
}

TEST_P(KeysetTest, GoesThroughAllRowsOfALongList) {
  fillMany(connection);
  const auto rs = open(ManyList);
  int count = 0;
  String last;
  for (; !rs->IsEOF(); rs->MoveNext(), ++count) {
    const String now = key(*rs);
    ASSERT_LT(last, now);
    last = now;
  }
  EXPECT_EQ(count, ManyRows);
  EXPECT_EQ(rs->RecordCount(), ManyRows);
}

TEST_P(KeysetTest, CountAndLastRowReadAllKeys) {
  fillMany(connection);
  EXPECT_EQ(open(ManyList)->RecordCount(), ManyRows);
  const auto rs = open(ManyList);
  rs->MoveLast();
  EXPECT_EQ(key(*rs), u"k09999");
  EXPECT_TRUE(rs->rowsComplete());
  EXPECT_EQ(rs->currentRow(), ManyRows - 1);
}

TEST_P(KeysetTest, FindReadsKeysOnlyAsFarAsTheMatch) {
  fillMany(connection);
  const auto rs = open(ManyList);
  rs->Find(u"Status='K05000'");
  EXPECT_EQ(key(*rs), u"k05000");
  EXPECT_EQ(rs->currentRow(), 5000);
  EXPECT_FALSE(rs->rowsComplete());
  rs->MoveFirst();
  rs->Find(u"Status='k09998' AND Bezeichnung='Name 98'");
  EXPECT_EQ(rs->currentRow(), 9998);
  rs->MoveFirst();
  rs->Find(u"Status='k00007'");
  EXPECT_EQ(rs->currentRow(), 7);
  rs->Find(u"Status='k00006'");
  EXPECT_TRUE(rs->IsEOF());
}

TEST_P(KeysetTest, FindMeetsTheNextOfManyMatches) {
  fillMany(connection);
  const auto rs = open(ManyList);
  rs->Find(u"Bezeichnung='Name 42'");
  EXPECT_EQ(rs->currentRow(), 42);
  rs->Find(u"Bezeichnung='Name 42'", 1);
  EXPECT_EQ(rs->currentRow(), 142);
  rs->Find(u"Bezeichnung='Name 42' AND Status>'k09000'");
  EXPECT_EQ(rs->currentRow(), 9042);
  rs->Find(u"Bezeichnung='Name 42'", 1, adSearchBackward);
  EXPECT_EQ(rs->currentRow(), 8942);
}

TEST_P(KeysetTest, RowsAddedByOthersAreUnseenUntilRequery) {
  const auto rs = list();
  context->connect()->Execute(u"INSERT INTO Vertriebsstati VALUES ('15', 'fremd', 0, 0)");
  EXPECT_EQ(rs->RecordCount(), 3);
  EXPECT_EQ(keysFrom(*rs), u"10 20 30");
  rs->MoveFirst();
  rs->Find(u"Status='15'");
  EXPECT_TRUE(rs->IsEOF());
  rs->Requery();
  EXPECT_EQ(keysFrom(*rs), u"10 15 20 30");
}

TEST_P(KeysetTest, RowsAddedWhileKeysAreReadAreUnseenToo) {
  fillMany(connection);
  const auto rs = open(ManyList);
  connection->Execute(u"INSERT INTO Vertriebsstati VALUES ('k09998b', 'neu', 0, 0)");
  context->connect()->Execute(u"DELETE FROM Vertriebsstati WHERE Status='k09997'");
  EXPECT_EQ(rs->RecordCount(), ManyRows);
  EXPECT_EQ(rs->rowText(9998, 0), u"k09998");
  EXPECT_EQ(rs->rowText(9997, 0), u"") << "a hole";
  rs->Requery();
  EXPECT_EQ(rs->RecordCount(), ManyRows);
  EXPECT_EQ(rs->rowText(9998, 0), u"k09998b");
}

TEST_P(KeysetTest, TwoLongListsDoNotDisturbEachOther) {
  fillMany(connection);
  const auto first = open(ManyList);
  connection->Execute(u"DELETE FROM Vertriebsstati WHERE Status='k05000'");
  const auto second = open(ManyList);
  EXPECT_EQ(second->RecordCount(), ManyRows - 1) << "the later one sees what was done before it was opened";
  EXPECT_EQ(first->RecordCount(), ManyRows);
}

TEST_P(KeysetTest, LongListIsNotInTheWayOfWriting) {
  fillMany(connection);
  const auto other = context->connect();
  const auto rs = open(ManyList);
  EXPECT_FALSE(rs->rowsComplete());
  connection->Execute(u"UPDATE Vertriebsstati SET Bezeichnung='x' WHERE Status='k00001'");
  other->Execute(u"UPDATE Vertriebsstati SET Bezeichnung='y' WHERE Status='k00002'");
  connection->Execute(u"UPDATE Vertriebsstati SET Bezeichnung='z' WHERE Status='k00003'");
  EXPECT_EQ(rs->RecordCount(), ManyRows);
}

TEST_P(KeysetTest, SeesUncommittedRowsOfItsOwnConnection) {
  connection->Execute(u"BEGIN");
  connection->Execute(u"INSERT INTO Vertriebsstati VALUES ('15', 'neu', 0, 0)");
  EXPECT_EQ(keysFrom(*list()), u"10 15 20 30");
  connection->Execute(u"ROLLBACK");
  EXPECT_EQ(keysFrom(*list()), u"10 20 30");
}

TEST_P(KeysetTest, ReadsARowAnewWhenItBecomesCurrent) {
  for (const char16_t* statement : {u"SELECT Status, Bezeichnung FROM Vertriebsstati ORDER BY Status",
                                    u"SELECT Status, Bezeichnung FROM Vertriebsstati WHERE Status>='10'"}) {
    const auto rs = open(statement);
    const auto other = context->connect();
    other->Execute(u"UPDATE Vertriebsstati SET Bezeichnung='fremd' WHERE Status='20'");
    rs->Find(u"Status='20'");
    EXPECT_EQ(rs->Fields(1).Value(), Variant(u"fremd"));
    other->Execute(u"UPDATE Vertriebsstati SET Bezeichnung='Angebot' WHERE Status='20'");
    EXPECT_EQ(rs->Fields(1).Value(), Variant(u"fremd")) << "while it is current it stays as it was read";
    rs->MoveFirst();
    rs->Find(u"Status='20'");
    EXPECT_EQ(rs->Fields(1).Value(), Variant(u"Angebot"));
  }
}

TEST_P(KeysetTest, DeletedRowsStayAsHoles) {
  const auto rs = openForWrite(u"SELECT Status, Bezeichnung FROM Vertriebsstati ORDER BY Status");
  context->connect()->Execute(u"DELETE FROM Vertriebsstati WHERE Status='20'");
  EXPECT_EQ(rs->RecordCount(), 3);
  rs->MoveNext();
  EXPECT_FALSE(rs->IsEOF());
  EXPECT_EQ(errorNumberOf([&] { rs->Fields(0).Value(); }), error::NoCurrentRecord);
  EXPECT_EQ(errorNumberOf([&] { rs->Fields(0).Value(u"x"); }), error::NoCurrentRecord);
  EXPECT_EQ(rs->EditMode(), adEditNone);
  EXPECT_EQ(rs->rowValue(1, 0), Null);
  EXPECT_EQ(rs->rowText(1, 0), u"");
  rs->Find(u"Status>'10'");
  EXPECT_EQ(key(*rs), u"30") << "Find passes over a hole";
}

TEST_P(KeysetTest, MarkingARowKeepsWhatTheListHasDrawn) {
  const auto rs = list();
  EXPECT_EQ(rs->rowText(1, 1), u"Angebot");
  connection->Execute(u"UPDATE Vertriebsstati SET Bezeichnung='neu' WHERE Status='20'");
  EXPECT_EQ(rs->rowText(1, 1), u"Angebot") << "drawn rows are kept";
  rs->Requery();
  EXPECT_EQ(rs->rowText(1, 1), u"neu");
}

TEST_P(KeysetTest, RowsThatAreNoTableRowsAreReadAtOnce) {
  fillMany(connection);
  for (const char16_t* statement :
       {u"SELECT DISTINCT Bezeichnung FROM Vertriebsstati WHERE Status>='k' ORDER BY Bezeichnung",
        u"SELECT Bezeichnung, count(*) AS Anzahl FROM Vertriebsstati WHERE Status>='k' GROUP BY Bezeichnung "
        u"ORDER BY 1",
        u"SELECT Bezeichnung FROM Vertriebsstati WHERE Status>='k' UNION SELECT Bezeichnung FROM "
        u"Vertriebsstati WHERE "
        u"Status>='k' ORDER BY Bezeichnung"}) {
    const auto rs = open(statement);
    EXPECT_TRUE(rs->rowsComplete());
    EXPECT_EQ(rs->RecordCount(), 100);
    rs->Find(u"Bezeichnung='name 7'");
    EXPECT_EQ(key(*rs), u"Name 7");
  }
}

TEST_P(KeysetTest, SortedByTheListItself) {
  const auto byAlias = open(
      u"SELECT Gewichtung AS Status, Status AS Schluessel FROM Vertriebsstati WHERE Gewichtung>0 ORDER BY "
      u"Status DESC");
  byAlias->MoveFirst();
  EXPECT_EQ(byAlias->Fields(1).Value(), Variant(u"20"));
  const auto byNumber =
      open(u"SELECT Status, Bezeichnung FROM Vertriebsstati WHERE Status<'30' ORDER BY 2 DESC, 1");
  EXPECT_EQ(keysFrom(*byNumber), u"20 10");
}

// ---- snapshots

TEST_P(SnapshotTest, ShowsTheRowsOfItsOpening) {
  const auto rs = list();
  const auto other = context->connect();
  other->Execute(u"UPDATE Vertriebsstati SET Bezeichnung='fremd' WHERE Status='20'");
  other->Execute(u"DELETE FROM Vertriebsstati WHERE Status='30'");
  other->Execute(u"INSERT INTO Vertriebsstati VALUES ('15', 'neu', 0, 0)");
  EXPECT_EQ(rs->rowText(1, 1), u"Angebot");
  EXPECT_EQ(keysFrom(*rs), u"10 20 30");
  rs->Requery();
  EXPECT_EQ(keysFrom(*rs), u"10 15 20");
}

TEST_P(SnapshotTest, FindSeesWhatTheRecordsetItselfHasWritten) {
  fillMany(connection);
  const auto rs = open(u"SELECT * FROM Vertriebsstati WHERE Status>='k' ORDER BY Status", adLockOptimistic);
  EXPECT_TRUE(rs->rowsComplete());
  rs->Find(u"Status='k07000'");
  EXPECT_EQ(rs->currentRow(), 7000);
  rs->Fields(u"Status").Value(u"z");
  rs->Update();
  rs->MoveFirst();
  rs->Find(u"Status='Z'");
  EXPECT_EQ(rs->currentRow(), 7000);
  rs->AddNew();
  rs->Fields(u"Status").Value(u"zz");
  rs->Update();
  rs->MoveFirst();
  rs->Find(u"Status='zz' AND AutoOverwrite=0");
  EXPECT_EQ(rs->currentRow(), ManyRows);
}

TEST_P(SnapshotTest, FindInALongListMeetsTheNextMatch) {
  fillMany(connection);
  const auto rs = open(ManyList);
  rs->Find(u"Bezeichnung='name 42'", 43);
  EXPECT_EQ(rs->currentRow(), 142);
  rs->Find(u"Bezeichnung='name 42'", 1, adSearchBackward);
  EXPECT_EQ(rs->currentRow(), 42);
  rs->Find(u"Bezeichnung='name 42' AND Status>'k09'");
  EXPECT_EQ(rs->currentRow(), 9042);
}

// ---- a row is read afresh

TEST_P(RecordsetTest, ReadsARowAfreshThatSomebodyElseHasChanged) {
  const auto rs = list();
  EXPECT_EQ(rs->rowText(0, 1), u"Anfrage");
  EXPECT_EQ(rs->rowText(1, 1), u"Angebot");
  context->connect()->Execute(u"UPDATE Vertriebsstati SET Bezeichnung='Neu'");
  EXPECT_TRUE(rs->refreshRow(0));
  EXPECT_TRUE(rs->refreshRow(1));
  EXPECT_EQ(rs->rowText(0, 1), u"Neu");
  EXPECT_EQ(rs->rowText(1, 1), u"Neu");
  EXPECT_EQ(CStr(rs->Fields(1).Value()), u"Neu") << "the current row, too";
  rs->Find(u"Bezeichnung='Neu'", 1);
  EXPECT_EQ(rs->currentRow(), 1);
}

TEST_P(RecordsetTest, ARowThatIsGoneReadsAfreshAsEmpty) {
  const auto rs = list();
  EXPECT_EQ(rs->rowText(1, 1), u"Angebot");
  context->connect()->Execute(u"DELETE FROM Vertriebsstati WHERE Status<>'30'");
  EXPECT_FALSE(rs->refreshRow(1));
  EXPECT_EQ(rs->rowText(1, 0), u"");
  EXPECT_TRUE(rs->rowValue(1, 0).isNull());
  EXPECT_FALSE(rs->refreshRow(0));
  EXPECT_EQ(errorNumberOf([&] { rs->Fields(0).Value(); }), error::NoCurrentRecord);
  EXPECT_TRUE(rs->refreshRow(2));
  EXPECT_EQ(rs->rowText(2, 0), u"30");
  EXPECT_EQ(rs->RecordCount(), 3) << "a hole stays";
}

TEST_P(RecordsetTest, ReadsARowAfreshByWhateverKeyTheStatementNames) {
  connection->Execute(u"CREATE TABLE Texte (Art " + context->textColumn(5) + u" NOT NULL, Nummer " +
                      u"INTEGER NOT NULL, Inhalt " + context->textColumn(30) +
                      u", PRIMARY KEY (Art, Nummer))");
  connection->Execute(u"INSERT INTO Texte VALUES ('A', 1, 'eins'), ('A', 2, 'zwei'), ('B', 1, 'drei')");
  const auto rs = open(u"SELECT Inhalt, Nummer, Art FROM Texte ORDER BY Inhalt");
  EXPECT_EQ(rs->rowText(2, 0), u"zwei");
  context->connect()->Execute(u"UPDATE Texte SET Inhalt='Zwei!' WHERE Art='A' AND Nummer=2");
  EXPECT_TRUE(rs->refreshRow(2));
  EXPECT_EQ(rs->rowText(2, 0), u"Zwei!");
  EXPECT_TRUE(rs->refreshRow(1));
  EXPECT_EQ(rs->rowText(1, 0), u"eins");
}

TEST_P(RecordsetTest, LeavesTheRowThatIsBeingEditedAsItWasRead) {
  const auto rs = openForWrite(u"SELECT * FROM Vertriebsstati ORDER BY Status");
  rs->Fields(u"Bezeichnung").Value(u"Meins");
  context->connect()->Execute(u"UPDATE Vertriebsstati SET Bezeichnung='Ihres' WHERE Status='10'");
  EXPECT_TRUE(rs->refreshRow(0));
  EXPECT_EQ(errorNumberOf([&] { rs->Update(); }), error::RowConflict);
}

TEST_P(RecordsetTest, ReadsAfreshOnlyARowThatIsKnown) {
  const auto rs = list();
  EXPECT_EQ(errorNumberOf([&] { rs->refreshRow(3); }), error::NoCurrentRecord);
  EXPECT_EQ(errorNumberOf([&] { rs->refreshRow(-1); }), error::NoCurrentRecord);
  rs->Close();
  EXPECT_EQ(errorNumberOf([&] { rs->refreshRow(0); }), error::ObjectClosed);
}

TEST_P(SnapshotTest, CannotReadAfreshWhatHasNoKey) {
  const auto rs = open(u"SELECT count(*) AS Anzahl FROM Vertriebsstati");
  context->connect()->Execute(u"DELETE FROM Vertriebsstati");
  EXPECT_TRUE(rs->refreshRow(0));
  EXPECT_EQ(rs->rowText(0, 0), u"3") << "it stays as it was";
}

}  // namespace zqn::ado::suite
