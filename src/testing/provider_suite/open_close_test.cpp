// SPDX-License-Identifier: MIT
#include "testing/provider_suite/suite.h"

namespace zqn::ado::suite {

TEST(NewRecordset, IsClosedOnTheServerForwardOnlyAndReadOnly) {
  const Recordset rs;
  EXPECT_EQ(rs.State(), adStateClosed);
  EXPECT_EQ(rs.CursorLocation(), adUseServer);
  EXPECT_EQ(rs.CursorType(), adOpenForwardOnly);
  EXPECT_EQ(rs.LockType(), adLockReadOnly);
}

TEST(NewRecordset, RaisesObjectClosedOnEveryUse) {
  Recordset rs;
  const auto raises = [&](auto statement) { return errorNumberOf(statement) == error::ObjectClosed; };
  EXPECT_TRUE(raises([&] { rs.IsEOF(); }));
  EXPECT_TRUE(raises([&] { rs.IsBOF(); }));
  EXPECT_TRUE(raises([&] { rs.RecordCount(); }));
  EXPECT_TRUE(raises([&] { rs.Bookmark(); }));
  EXPECT_TRUE(raises([&] { rs.Bookmark(1.0); }));
  EXPECT_TRUE(raises([&] { rs.EditMode(); }));
  EXPECT_TRUE(raises([&] { rs.MoveFirst(); }));
  EXPECT_TRUE(raises([&] { rs.MoveLast(); }));
  EXPECT_TRUE(raises([&] { rs.MoveNext(); }));
  EXPECT_TRUE(raises([&] { rs.MovePrevious(); }));
  EXPECT_TRUE(raises([&] { rs.Find(u"Status='10'"); }));
  EXPECT_TRUE(raises([&] { rs.AddNew(); }));
  EXPECT_TRUE(raises([&] { rs.Update(); }));
  EXPECT_TRUE(raises([&] { rs.CancelUpdate(); }));
  EXPECT_TRUE(raises([&] { rs.Requery(); }));
  EXPECT_TRUE(raises([&] { rs.Close(); }));
  EXPECT_TRUE(raises([&] { rs.rowValue(0, 0); }));
}

TEST(NewRecordset, HasNoFieldsAndNoRows) {
  Recordset rs;
  EXPECT_EQ(rs.Fields().Count(), 0);
  EXPECT_EQ(errorNumberOf([&] { rs.Fields(u"Status"); }), error::ItemNotFound);
  EXPECT_EQ(rs.knownRows(), 0);
  EXPECT_TRUE(rs.rowsComplete());
  EXPECT_EQ(rs.currentRow(), -1);
}

TEST(NewRecordset, RefusesUnknownCursorsAndLocks) {
  Recordset rs;
  EXPECT_EQ(errorNumberOf([&] { rs.CursorLocation(1); }), error::InvalidArgument);
  EXPECT_EQ(errorNumberOf([&] { rs.CursorType(4); }), error::InvalidArgument);
  EXPECT_EQ(errorNumberOf([&] { rs.LockType(4); }), error::InvalidArgument);
}

TEST(NewRecordset, OpensOnlyOnAConnection) {
  Recordset rs;
  EXPECT_EQ(errorNumberOf([&] { rs.Open(u"SELECT 1", nothing); }), error::InvalidConnection);
  EXPECT_EQ(rs.State(), adStateClosed);
}

TEST_P(RecordsetTest, OpensOnTheFirstRow) {
  const auto rs = list();
  EXPECT_EQ(rs->State(), adStateOpen);
  EXPECT_FALSE(rs->IsEOF());
  EXPECT_FALSE(rs->IsBOF());
  EXPECT_EQ(key(*rs), u"10");
  EXPECT_EQ(rs->CursorType(), GetParam().location == adUseClient ? adOpenStatic : adOpenKeyset);
}

TEST_P(RecordsetTest, WithoutRowsIsAtBothEnds) {
  const auto rs = open(u"SELECT * FROM Vertriebsstati WHERE Status='99'");
  EXPECT_TRUE(rs->IsEOF());
  EXPECT_TRUE(rs->IsBOF());
  EXPECT_EQ(rs->RecordCount(), 0);
}

TEST_P(RecordsetTest, OpenWhileOpenLeavesItAlone) {
  const auto rs = list();
  rs->MoveNext();
  EXPECT_EQ(errorNumberOf([&] { rs->Open(u"SELECT * FROM Vertriebsstati", connection); }), error::ObjectOpen);
  EXPECT_EQ(errorNumberOf([&] { rs->CursorLocation(adUseClient); }), error::ObjectOpen);
  EXPECT_EQ(key(*rs), u"20");
}

TEST_P(RecordsetTest, StaysClosedWhenOpenFailsAndOpensLater) {
  auto rs = Ref<Recordset>::make();
  rs->CursorLocation(GetParam().location);
  EXPECT_EQ(errorNumberOf([&] { rs->Open(u"SELECT * FROM Fehlt", connection, adOpenKeyset); }),
            error::TableNotFound);
  EXPECT_EQ(rs->State(), adStateClosed);
  EXPECT_EQ(errorNumberOf([&] { rs->Open(u"SELECT Fehlt FROM Vertriebsstati ORDER BY Fehlt", connection); }),
            error::CommandText);
  EXPECT_EQ(errorNumberOf([&] { rs->Open(u"SELECT FROM WHERE", connection); }), error::CommandText);
  EXPECT_EQ(rs->State(), adStateClosed);
  rs->Open(u"SELECT * FROM Vertriebsstati", connection);
  EXPECT_EQ(rs->State(), adStateOpen);
}

TEST_P(RecordsetTest, StaysClosedAfterAStatementWithoutRows) {
  Recordset rs;
  rs.Open(u"DELETE FROM Vertriebsstati WHERE Status='10'", connection);
  EXPECT_EQ(rs.State(), adStateClosed);
  EXPECT_EQ(stored(), u"20|Angebot / 30|Null");
}

TEST_P(RecordsetTest, RunsAnInsertThatItIsOpenedWithOnce) {
  Recordset rs;
  rs.Open(u"INSERT INTO Vertriebsstati VALUES ('40', NULL, 0, 0)", connection, adOpenKeyset,
          adLockOptimistic);
  EXPECT_EQ(stored(u"SELECT count(*) FROM Vertriebsstati"), u"4");
}

TEST_P(RecordsetTest, TakesOneStatementOnly) {
  Recordset rs;
  for (const sql::Text& second :
       {sql::Text(u"; DELETE FROM Vertriebsstati"), sql::Text(u";; DELETE FROM Vertriebsstati"),
        sql::Text(u"; /* x */ DELETE FROM Vertriebsstati"),
        sql::Text(u";\n-- x\nDELETE FROM Vertriebsstati;"), sql::Text(u"; ; SELECT 1"), sql::Text(u"; x"),
        sql::Text(String(u"\0; DELETE FROM Vertriebsstati", 30))}) {
    for (const char16_t* first : {u"SELECT 1", u"UPDATE Vertriebsstati SET Gewichtung=7"}) {
      EXPECT_EQ(errorNumberOf([&] { rs.Open(first + second, connection); }), error::CommandText)
          << toUtf8(second.text());
      EXPECT_EQ(errorNumberOf([&] { connection->Execute(first + second); }), error::CommandText)
          << toUtf8(second.text());
    }
  }
  EXPECT_EQ(stored(u"SELECT Status, Gewichtung FROM Vertriebsstati ORDER BY Status"),
            u"10|10 / 20|50,5 / 30|Null");
  EXPECT_EQ(errorNumberOf([&] { connection->Execute(u"UPDATE Vertriebsstati SET Gewichtung=7 ; -- done"); }),
            0);
}

TEST_P(RecordsetTest, ClosedTwiceRaisesAnError) {
  const auto rs = list();
  rs->Close();
  EXPECT_EQ(rs->State(), adStateClosed);
  EXPECT_EQ(errorNumberOf([&] { rs->Close(); }), error::ObjectClosed);
}

TEST_P(RecordsetTest, CannotBeClosedWhileAnEditIsPending) {
  const auto rs = openForWrite(u"SELECT * FROM Vertriebsstati WHERE Status='10'");
  rs->Fields(u"Bezeichnung").Value(u"Neu");
  EXPECT_EQ(errorNumberOf([&] { rs->Close(); }), error::IllegalOperation);
  EXPECT_EQ(rs->State(), adStateOpen);
  EXPECT_EQ(rs->EditMode(), adEditInProgress);
  rs->CancelUpdate();
  rs->Close();
  EXPECT_EQ(stored(), u"10|Anfrage / 20|Angebot / 30|Null");
}

TEST_P(RecordsetTest, ReleasedWithoutCloseDiscardsTheEdit) {
  auto rs = openForWrite(u"SELECT * FROM Vertriebsstati WHERE Status='10'");
  rs->Fields(u"Bezeichnung").Value(u"Neu");
  rs = nothing;
  EXPECT_EQ(stored(), u"10|Anfrage / 20|Angebot / 30|Null");
}

TEST_P(RecordsetTest, ShowsItsSourceAndOpensAnotherOneAfterClose) {
  const auto rs = list();
  EXPECT_EQ(rs->Source(), u"SELECT Status, Bezeichnung FROM Vertriebsstati ORDER BY Status");
  rs->Close();
  rs->Open(u"SELECT Gewichtung FROM Vertriebsstati WHERE Status='20'", connection);
  EXPECT_EQ(rs->Fields().Count(), 1);
}

// ---- Requery

TEST_P(RecordsetTest, RequeryReadsAnewAndStandsOnTheFirstRow) {
  const auto rs = list();
  rs->MoveLast();
  connection->Execute(u"INSERT INTO Vertriebsstati VALUES ('05', 'Neu', 0, 1)");
  rs->Requery();
  EXPECT_EQ(keysFrom(*rs), u"05 10 20 30");
}

TEST_P(RecordsetTest, RequeryOfAnEmptiedTableIsAtBothEnds) {
  const auto rs = list();
  connection->Execute(u"DELETE FROM Vertriebsstati");
  rs->Requery();
  EXPECT_TRUE(rs->IsBOF() && rs->IsEOF());
  EXPECT_EQ(rs->knownRows(), 0);
}

TEST_P(RecordsetTest, RequeryIsRefusedWhileAnEditIsPending) {
  const auto rs = openForWrite(u"SELECT * FROM Vertriebsstati WHERE Status='10'");
  rs->Fields(u"Bezeichnung").Value(u"Neu");
  EXPECT_EQ(errorNumberOf([&] { rs->Requery(); }), error::IllegalOperation);
  EXPECT_EQ(rs->State(), adStateOpen);
}

TEST_P(RecordsetTest, IsClosedWhenRequeryFails) {
  const auto rs = list();
  connection->Execute(u"DROP TABLE Vertriebsstati");
  EXPECT_EQ(errorNumberOf([&] { rs->Requery(); }), error::TableNotFound);
  EXPECT_EQ(rs->State(), adStateClosed);
}

TEST_P(RecordsetTest, RequeryOpensAgainWhatAFailedRequeryHasClosed) {
  const auto rs = list();
  connection->Execute(u"DROP TABLE Vertriebsstati");
  EXPECT_EQ(errorNumberOf([&] { rs->Requery(); }), error::TableNotFound);
  EXPECT_EQ(errorNumberOf([&] { rs->Requery(); }), error::TableNotFound) << "as often as it is tried";
  EXPECT_EQ(rs->State(), adStateClosed);
  EXPECT_EQ(errorNumberOf([&] { rs->MoveFirst(); }), error::ObjectClosed);
  connection->Execute(u"CREATE TABLE Vertriebsstati (Status " + context->textColumn(10) +
                      u" NOT NULL PRIMARY KEY, Bezeichnung " + context->textColumn(30) + u")");
  connection->Execute(u"INSERT INTO Vertriebsstati VALUES ('40', 'Auftrag')");
  rs->Requery();
  EXPECT_EQ(keysFrom(*rs), u"40");
  EXPECT_EQ(connection->openRecordsets(), 1u);
}

TEST_P(RecordsetTest, KeepsItsStatementUntilItIsOpenedAnew) {
  const auto rs = list();
  connection->Execute(u"DROP TABLE Vertriebsstati");
  EXPECT_EQ(errorNumberOf([&] { rs->Requery(); }), error::TableNotFound);
  EXPECT_EQ(errorNumberOf([&] { rs->Close(); }), error::ObjectClosed);
  EXPECT_EQ(errorNumberOf([&] { rs->Open(u"SELECT * FROM Fehlt", connection); }), error::TableNotFound);
  EXPECT_EQ(errorNumberOf([&] { rs->Requery(); }), error::ObjectClosed) << "a failed Open keeps nothing";
}

TEST_P(RecordsetTest, RequeryBehindAClosedConnectionIsRefused) {
  const auto rs = list();
  connection->Execute(u"DROP TABLE Vertriebsstati");
  EXPECT_EQ(errorNumberOf([&] { rs->Requery(); }), error::TableNotFound);
  connection->Close();
  EXPECT_EQ(errorNumberOf([&] { rs->Requery(); }), error::InvalidConnection);
}

TEST_P(RecordsetTest, RequeryMakesOldBookmarksWorthless) {
  const auto rs = list();
  const Variant old = rs->Bookmark();
  rs->Requery();
  EXPECT_EQ(errorNumberOf([&] { rs->Bookmark(old); }), error::InvalidArgument);
  EXPECT_EQ(key(*rs), u"10");
}

// ---- Connection

TEST_P(RecordsetTest, ClosesWithItsConnection) {
  const auto rs = openForWrite(u"SELECT * FROM Vertriebsstati");
  rs->Fields(u"Bezeichnung").Value(u"Neu");
  connection->Close();
  EXPECT_EQ(rs->State(), adStateClosed);
  EXPECT_EQ(errorNumberOf([&] { rs->MoveFirst(); }), error::ObjectClosed);
  EXPECT_EQ(stored(), u"10|Anfrage / 20|Angebot / 30|Null");
  rs->Open(u"SELECT * FROM Vertriebsstati", context->connect(), adOpenKeyset, adLockOptimistic);
  EXPECT_EQ(rs->EditMode(), adEditNone);
}

TEST_P(ConnectionTest, RefusesEverythingOnceClosed) {
  EXPECT_EQ(connection->State(), adStateOpen);
  connection->Close();
  EXPECT_EQ(connection->State(), adStateClosed);
  EXPECT_EQ(errorNumberOf([&] { connection->Close(); }), error::ObjectClosed);
  EXPECT_EQ(errorNumberOf([&] { connection->Execute(u"DELETE FROM Vertriebsstati"); }), error::ObjectClosed);
  EXPECT_EQ(errorNumberOf([&] { open(u"SELECT * FROM Vertriebsstati"); }), error::InvalidConnection);
  Command command;
  command.ActiveConnection(connection);
  command.CommandText(u"DELETE FROM Vertriebsstati");
  EXPECT_EQ(errorNumberOf([&] { command.Execute(); }), error::InvalidConnection);
}

TEST_P(ConnectionTest, ExecuteTellsHowManyRowsItChanged) {
  EXPECT_EQ(connection->Execute(u"UPDATE Vertriebsstati SET Gewichtung=1 WHERE Status>='20'"), 2);
  EXPECT_EQ(connection->Execute(u"DELETE FROM Vertriebsstati WHERE Status='99'"), 0);
  EXPECT_EQ(connection->Execute(u"SELECT * FROM Vertriebsstati"), 0);
}

TEST_P(ConnectionTest, ExecuteRaisesTheDatabasesErrorAndChangesNothing) {
  EXPECT_EQ(errorNumberOf([&] { connection->Execute(u"DELETE FROM Fehlt"); }), error::TableNotFound);
  EXPECT_EQ(errorNumberOf([&] { connection->Execute(u"DELETE Vertriebsstati FROM"); }), error::CommandText);
  EXPECT_EQ(errorNumberOf([&] { connection->Execute(u""); }), error::CommandText);
  EXPECT_EQ(
      errorNumberOf([&] {
        connection->Execute(u"INSERT INTO Vertriebsstati VALUES ('40', 'Auftrag', 0, 0), ('10', NULL, 0, 0)");
      }),
      error::IntegrityViolation);
  EXPECT_EQ(
      errorNumberOf([&] { connection->Execute(u"INSERT INTO Vertriebsstati (Bezeichnung) VALUES ('x')"); }),
      error::IntegrityViolation);
  EXPECT_EQ(stored(), u"10|Anfrage / 20|Angebot / 30|Null");
}

TEST_P(ConnectionTest, ErrorsCarryTheDatabasesWords) {
  try {
    connection->Execute(u"DELETE FROM Fehlt");
    FAIL();
  } catch (const RuntimeError& failure) {
    EXPECT_NE(failure.description().find(u"ehlt"), String::npos);
    EXPECT_FALSE(failure.source().empty());
  }
}

TEST_P(ConnectionTest, CommandRunsAgainAfterAFailure) {
  Command command;
  EXPECT_EQ(errorNumberOf([&] { command.Execute(); }), error::InvalidConnection);
  command.ActiveConnection(connection);
  command.CommandType(adCmdText);
  command.CommandText(u"Delete From Fehlt");
  EXPECT_EQ(errorNumberOf([&] { command.Execute(); }), error::TableNotFound);
  command.CommandText(u"Delete From Vertriebsstati WHERE Status = " + sql::value(u"20"));
  EXPECT_EQ(command.Execute(), 1);
  EXPECT_EQ(stored(), u"10|Anfrage / 30|Null");
}

TEST_P(ConnectionTest, TextsCompareWithoutCase) {
  connection->Execute(u"INSERT INTO Vertriebsstati VALUES ('Äb', 'x', 0, 0)");
  EXPECT_EQ(stored(u"SELECT Status FROM Vertriebsstati WHERE Status='äB'"), u"Äb");
  EXPECT_EQ(stored(u"SELECT Status FROM Vertriebsstati WHERE Status='äB  '"),
            context->ignoresTrailingBlanks() ? u"Äb" : u"");
  EXPECT_EQ(stored(u"SELECT count(*) FROM Vertriebsstati WHERE Status='Ab'"), u"0");
  EXPECT_EQ(
      errorNumberOf([&] { connection->Execute(u"INSERT INTO Vertriebsstati VALUES ('äb', 'x', 0, 0)"); }),
      error::IntegrityViolation);
}

}  // namespace zqn::ado::suite
