// SPDX-License-Identifier: MIT
#include "testing/provider_suite/suite.h"

namespace zqn::ado::suite {

namespace {

const sql::Text RowTen = u"SELECT * FROM Vertriebsstati WHERE Status='10'";
const sql::Text NoRow = u"SELECT * FROM Vertriebsstati WHERE Status='40'";
const sql::Text AllRows = u"SELECT * FROM Vertriebsstati ORDER BY Status";

std::int32_t update(Recordset& rs) {
  return errorNumberOf([&] { rs.Update(); });
}

}  // namespace

TEST_P(RecordsetTest, UpdateWritesWhatWasAssigned) {
  const auto rs = openForWrite(RowTen);
  rs->Fields(u"Bezeichnung").Value(u"Neu");
  rs->Fields(u"AutoOverwrite").Value(1);
  rs->Update();
  EXPECT_EQ(rs->EditMode(), adEditNone);
  EXPECT_EQ(stored(u"SELECT * FROM Vertriebsstati WHERE Status='10'"), u"10|Neu|1|10");
  EXPECT_EQ(rs->Fields(u"Bezeichnung").Value(), Variant(u"Neu"));
  rs->Fields(u"Bezeichnung").Value(u"Neuer");
  rs->Update();
  EXPECT_EQ(stored(), u"10|Neuer / 20|Angebot / 30|Null");
}

TEST_P(RecordsetTest, UpdateWithoutEditDoesNothing) {
  const auto rs = openForWrite(RowTen);
  EXPECT_EQ(update(*rs), 0);
  rs->MoveNext();
  EXPECT_EQ(update(*rs), error::NoCurrentRecord);
}

TEST_P(RecordsetTest, UpdatedRowStaysCurrentEvenWhenItNoLongerFits) {
  const auto rs = openForWrite(RowTen);
  rs->Fields(u"Status").Value(u"15");
  rs->Update();
  EXPECT_FALSE(rs->IsEOF());
  EXPECT_EQ(key(*rs), u"15");
  EXPECT_EQ(stored(), u"15|Anfrage / 20|Angebot / 30|Null");
  rs->Fields(u"Bezeichnung").Value(u"Neu");
  rs->Update();
  EXPECT_EQ(stored(), u"15|Neu / 20|Angebot / 30|Null");
}

TEST_P(RecordsetTest, KeyIsWrittenInTheCaseThatWasAssigned) {
  connection->Execute(u"INSERT INTO Vertriebsstati VALUES ('ab', 'x', 0, 0)");
  const auto rs = openForWrite(u"SELECT * FROM Vertriebsstati WHERE Status='AB'");
  ASSERT_FALSE(rs->IsEOF());
  rs->Fields(u"Status").Value(u"AB");
  rs->Update();
  EXPECT_EQ(stored(u"SELECT Status FROM Vertriebsstati WHERE Status='ab'"), u"AB");
}

TEST_P(RecordsetTest, MoveUpdatesThePendingEdit) {
  const auto rs = openForWrite(AllRows);
  rs->Fields(u"Bezeichnung").Value(u"Neu");
  rs->MoveNext();
  EXPECT_EQ(stored(), u"10|Neu / 20|Angebot / 30|Null");
  EXPECT_EQ(key(*rs), u"20");
  rs->Fields(u"Bezeichnung").Value(u"Auch neu");
  rs->Bookmark(rs->bookmarkOf(0));
  EXPECT_EQ(stored(), u"10|Neu / 20|Auch neu / 30|Null");
}

// ---- adding

TEST_P(RecordsetTest, AddNewInsertsAtUpdate) {
  const auto rs = openForWrite(NoRow);
  ASSERT_TRUE(rs->IsEOF());
  rs->AddNew();
  EXPECT_FALSE(rs->IsEOF());
  EXPECT_FALSE(rs->IsBOF());
  EXPECT_EQ(rs->EditMode(), adEditAdd);
  EXPECT_EQ(rs->Fields(u"Bezeichnung").Value(), Null);
  rs->Fields(u"Status").Value(u"40");
  rs->Fields(u"Gewichtung").Value(75);
  EXPECT_EQ(stored(), u"10|Anfrage / 20|Angebot / 30|Null");
  rs->Update();
  EXPECT_EQ(rs->EditMode(), adEditNone);
  EXPECT_EQ(stored(u"SELECT * FROM Vertriebsstati WHERE Status='40'"), u"40|Null|0|75");
}

TEST_P(RecordsetTest, AddedRowIsCurrentAndReadableWithItsDefaults) {
  const auto rs = openForWrite(NoRow);
  rs->AddNew();
  rs->Fields(u"Status").Value(u"40");
  rs->Update();
  EXPECT_EQ(key(*rs), u"40");
  EXPECT_EQ(rs->Fields(u"AutoOverwrite").Value(), Variant(std::int32_t{0})) << "the database's default";
  rs->Fields(u"AutoOverwrite").Value(1);
  EXPECT_EQ(update(*rs), 0);
  EXPECT_EQ(stored(u"SELECT AutoOverwrite FROM Vertriebsstati WHERE Status='40'"), u"1");
  rs->MoveNext();
  EXPECT_TRUE(rs->IsEOF());
}

TEST_P(RecordsetTest, AddNewTwiceUpdatesTheFirstRow) {
  const auto rs = openForWrite(NoRow);
  rs->AddNew();
  rs->Fields(u"Status").Value(u"40");
  rs->AddNew();
  rs->Fields(u"Status").Value(u"50");
  rs->Update();
  EXPECT_EQ(stored(), u"10|Anfrage / 20|Angebot / 30|Null / 40|Null / 50|Null");
  EXPECT_EQ(rs->RecordCount(), 2);
}

TEST_P(RecordsetTest, AddNewCanBeTakenBack) {
  const auto empty = openForWrite(NoRow);
  empty->AddNew();
  empty->Fields(u"Status").Value(u"40");
  empty->CancelUpdate();
  EXPECT_TRUE(empty->IsEOF() && empty->IsBOF());
  EXPECT_EQ(empty->EditMode(), adEditNone);
  empty->Close();

  const auto rs = openForWrite(AllRows);
  rs->MoveNext();
  rs->AddNew();
  EXPECT_EQ(rs->RecordCount(), 4);
  rs->CancelUpdate();
  EXPECT_EQ(key(*rs), u"20");
  EXPECT_EQ(rs->RecordCount(), 3);
  EXPECT_EQ(stored(), u"10|Anfrage / 20|Angebot / 30|Null");
}

TEST_P(RecordsetTest, EditCanBeTakenBack) {
  const auto rs = openForWrite(RowTen);
  rs->CancelUpdate();
  rs->Fields(u"Bezeichnung").Value(u"Neu");
  rs->CancelUpdate();
  EXPECT_EQ(rs->EditMode(), adEditNone);
  EXPECT_EQ(rs->Fields(u"Bezeichnung").Value(), Variant(u"Anfrage"));
  rs->Close();
}

TEST_P(RecordsetTest, AddedKeyOfTheDatabaseIsKnownAfterUpdate) {
  connection->Execute(u"CREATE TABLE Zaehler (Nummer " + context->countedKey() + u", Wert INTEGER)");
  const auto rs = openForWrite(u"SELECT * FROM Zaehler");
  for (int value = 1; value <= 2; ++value) {
    rs->AddNew();
    rs->Fields(u"Wert").Value(value);
    rs->Update();
    EXPECT_EQ(rs->Fields(u"Nummer").Value(), Variant(std::int32_t{value}));
  }
  rs->Fields(u"Wert").Value(20);
  EXPECT_EQ(update(*rs), 0);
  EXPECT_EQ(stored(u"SELECT * FROM Zaehler ORDER BY Nummer"), u"1|1 / 2|20");
}

// ---- failures

TEST_P(RecordsetTest, FailedInsertLeavesTheEditPending) {
  const auto rs = openForWrite(NoRow);
  rs->AddNew();
  rs->Fields(u"Status").Value(u"10");
  EXPECT_EQ(update(*rs), error::IntegrityViolation) << "a key that is there";
  EXPECT_EQ(rs->EditMode(), adEditAdd);
  EXPECT_EQ(key(*rs), u"10");
  EXPECT_EQ(errorNumberOf([&] { rs->Close(); }), error::IllegalOperation);
  EXPECT_EQ(errorNumberOf([&] { rs->MoveFirst(); }), error::IntegrityViolation) << "it tries again";
  rs->Fields(u"Status").Value(u"40");
  EXPECT_EQ(update(*rs), 0);
  EXPECT_EQ(stored(), u"10|Anfrage / 20|Angebot / 30|Null / 40|Null");
}

TEST_P(RecordsetTest, NullWhereNoneMayBeIsTheDatabasesErrorAtUpdate) {
  const auto rs = openForWrite(RowTen);
  EXPECT_EQ(errorNumberOf([&] { rs->Fields(u"AutoOverwrite").Value(Null); }), 0);
  EXPECT_EQ(update(*rs), error::IntegrityViolation);
  EXPECT_EQ(rs->EditMode(), adEditInProgress);
  rs->CancelUpdate();
  rs->AddNew();
  EXPECT_EQ(update(*rs), error::IntegrityViolation) << "a row without its key";
}

TEST_P(RecordsetTest, FailedUpdateDuringAMoveKeepsThePosition) {
  const auto rs = openForWrite(AllRows);
  rs->Fields(u"Status").Value(u"20");
  EXPECT_EQ(errorNumberOf([&] { rs->MoveLast(); }), error::IntegrityViolation);
  EXPECT_EQ(rs->currentRow(), 0);
  EXPECT_EQ(rs->EditMode(), adEditInProgress);
  EXPECT_EQ(errorNumberOf([&] { rs->Find(u"Status='30'"); }), error::IntegrityViolation);
  EXPECT_EQ(errorNumberOf([&] { rs->AddNew(); }), error::IntegrityViolation);
  EXPECT_EQ(errorNumberOf([&] { rs->Bookmark(rs->bookmarkOf(2)); }), error::IntegrityViolation);
  EXPECT_EQ(rs->currentRow(), 0);
  EXPECT_EQ(rs->EditMode(), adEditInProgress);
  EXPECT_EQ(stored(), u"10|Anfrage / 20|Angebot / 30|Null");
}

// ---- two users

TEST_P(RecordsetTest, ChangeOfTheSameColumnByAnotherIsAConflict) {
  const auto other = context->connect();
  const auto rs = openForWrite(RowTen);
  rs->Fields(u"Bezeichnung").Value(u"Meins");
  other->Execute(u"UPDATE Vertriebsstati SET Bezeichnung='Deins' WHERE Status='10'");
  EXPECT_EQ(update(*rs), error::RowConflict);
  EXPECT_EQ(rs->EditMode(), adEditInProgress);
  EXPECT_EQ(rs->Fields(u"Bezeichnung").Value(), Variant(u"Meins"));
  EXPECT_EQ(stored(), u"10|Deins / 20|Angebot / 30|Null");
}

TEST_P(RecordsetTest, ChangeOfAnotherColumnByAnotherSurvives) {
  const auto other = context->connect();
  const auto rs = openForWrite(RowTen);
  rs->Fields(u"Bezeichnung").Value(u"Meins");
  other->Execute(u"UPDATE Vertriebsstati SET Gewichtung=99 WHERE Status='10'");
  EXPECT_EQ(update(*rs), 0);
  EXPECT_EQ(stored(u"SELECT * FROM Vertriebsstati WHERE Status='10'"), u"10|Meins|0|99");
}

TEST_P(RecordsetTest, DeletedRowIsAConflict) {
  const auto other = context->connect();
  const auto rs = openForWrite(RowTen);
  rs->Fields(u"Bezeichnung").Value(u"Meins");
  other->Execute(u"DELETE FROM Vertriebsstati WHERE Status='10'");
  EXPECT_EQ(update(*rs), error::RowConflict);
  EXPECT_EQ(stored(), u"20|Angebot / 30|Null");
}

TEST_P(RecordsetTest, ConflictIsToldByTheLetterAndSeesNull) {
  const auto other = context->connect();
  const auto rs = openForWrite(AllRows);
  rs->Fields(u"Bezeichnung").Value(u"Meins");
  other->Execute(u"UPDATE Vertriebsstati SET Bezeichnung='ANFRAGE ' WHERE Status='10'");
  EXPECT_EQ(update(*rs), error::RowConflict) << "the collation does not count";
  rs->CancelUpdate();
  rs->MoveLast();
  rs->Fields(u"Bezeichnung").Value(u"Meins");
  EXPECT_EQ(update(*rs), 0) << "Null as it was read";
  rs->Fields(u"Gewichtung").Value(1);
  other->Execute(u"UPDATE Vertriebsstati SET Gewichtung=0 WHERE Status='30'");
  EXPECT_EQ(update(*rs), error::RowConflict) << "no longer Null";
}

TEST_P(RecordsetTest, AssigningTheOldValueCountsAsAssigned) {
  const auto other = context->connect();
  const auto rs = openForWrite(RowTen);
  rs->Fields(u"Bezeichnung").Value(u"Anfrage");
  other->Execute(u"UPDATE Vertriebsstati SET Bezeichnung='Deins' WHERE Status='10'");
  EXPECT_EQ(update(*rs), error::RowConflict);
}

TEST_P(RecordsetTest, UpdateOfAColumnWithoutTheKeyInTheListFindsItsRow) {
  const auto rs = openForWrite(u"Select Bezeichnung from Vertriebsstati Where Status='20'");
  EXPECT_EQ(rs->Fields().Count(), 1);
  rs->Fields(u"Bezeichnung").Value(Null);
  rs->Update();
  EXPECT_EQ(stored(), u"10|Anfrage / 20|Null / 30|Null");
}

TEST_P(RecordsetTest, AnotherRowUnderTheSameKeyIsAConflictWhereTheKeyWasRead) {
  const auto other = context->connect();
  const auto rs = openForWrite(u"Select Gewichtung from Vertriebsstati Where Status='30'");
  rs->Fields(u"Gewichtung").Value(5);
  other->Execute(u"DELETE FROM Vertriebsstati WHERE Status='30'");
  other->Execute(u"INSERT INTO Vertriebsstati VALUES ('31', NULL, 0, NULL)");
  EXPECT_EQ(update(*rs), error::RowConflict);
}

// ---- the table's shape

TEST_P(RecordsetTest, KeyOfSeveralColumns) {
  connection->Execute(u"CREATE TABLE Textbausteine (Textart " + context->textColumn(3) +
                      u" NOT NULL, TextNummer " + context->textColumn(10) + u" NOT NULL, Langtext " +
                      context->textColumn(200) + u", PRIMARY KEY (Textart, TextNummer))");
  connection->Execute(
      u"INSERT INTO Textbausteine VALUES ('ZAA', '1', 'a'), ('ZAA', '2', 'b'), ('EZA', '1', 'c')");
  const auto rs = openForWrite(u"SELECT * FROM Textbausteine WHERE Textart='ZAA' AND TextNummer='1'");
  rs->Fields(u"Langtext").Value(u"neu");
  rs->Update();
  EXPECT_EQ(stored(u"SELECT Langtext FROM Textbausteine ORDER BY Langtext"), u"b / c / neu");
}

TEST_P(RecordsetTest, TableWithoutPrimaryKeyIsWritableWhereRowsCanBeFoundAgain) {
  connection->Execute(u"CREATE TABLE Ohne (a INTEGER, b INTEGER)");
  connection->Execute(u"INSERT INTO Ohne VALUES (1, 1), (1, 1)");
  const auto rs = openForWrite(u"SELECT * FROM Ohne");
  if (!context->updatesWithoutKey()) {
    EXPECT_EQ(errorNumberOf([&] { rs->Fields(u"b").Value(2); }), error::FeatureNotAvailable);
    EXPECT_EQ(rs->RecordCount(), 2);
    return;
  }
  rs->Fields(u"b").Value(2);
  rs->Update();
  EXPECT_EQ(stored(u"SELECT * FROM Ohne ORDER BY b"), u"1|1 / 1|2");
}

TEST_P(RecordsetTest, ColumnsNamedLikeKeywords) {
  connection->Execute(u"CREATE TABLE Kuendigungsgruende (GrundVerlorenSchl " + context->textColumn(5) +
                      u" NOT NULL PRIMARY KEY, \"Text\" " + context->textColumn(50) +
                      u", \"Group\" INTEGER)");
  const auto rs = openForWrite(u"SELECT * FROM Kuendigungsgruende");
  rs->AddNew();
  rs->Fields(u"GrundVerlorenSchl").Value(u"1");
  rs->Fields(u"Text").Value(u"zu teuer");
  rs->Fields(u"Group").Value(1);
  rs->Update();
  rs->Fields(u"Group").Value(2);
  rs->Update();
  EXPECT_EQ(stored(u"SELECT * FROM Kuendigungsgruende"), u"1|zu teuer|2");
}

}  // namespace zqn::ado::suite
