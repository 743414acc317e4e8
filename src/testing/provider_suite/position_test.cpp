// SPDX-License-Identifier: MIT
#include "testing/provider_suite/suite.h"

namespace zqn::ado::suite {

namespace {

std::int32_t moveFirst(Recordset& rs) {
  return errorNumberOf([&] { rs.MoveFirst(); });
}
std::int32_t moveLast(Recordset& rs) {
  return errorNumberOf([&] { rs.MoveLast(); });
}
std::int32_t moveNext(Recordset& rs) {
  return errorNumberOf([&] { rs.MoveNext(); });
}
std::int32_t movePrevious(Recordset& rs) {
  return errorNumberOf([&] { rs.MovePrevious(); });
}

}  // namespace

TEST_P(RecordsetTest, MovesFromEndToEnd) {
  const auto rs = list();
  EXPECT_EQ(keysFrom(*rs), u"10 20 30");
  EXPECT_TRUE(rs->IsEOF());
  EXPECT_FALSE(rs->IsBOF());
  rs->MovePrevious();
  EXPECT_EQ(key(*rs), u"30");
  rs->MoveFirst();
  rs->MovePrevious();
  EXPECT_TRUE(rs->IsBOF());
  EXPECT_FALSE(rs->IsEOF());
  rs->MoveNext();
  EXPECT_EQ(key(*rs), u"10");
  rs->MoveLast();
  EXPECT_EQ(key(*rs), u"30");
}

TEST_P(RecordsetTest, AtTheEndOnlyTheWayBackIsOpen) {
  const auto rs = list();
  while (!rs->IsEOF()) rs->MoveNext();
  EXPECT_EQ(moveNext(*rs), error::NoCurrentRecord);
  EXPECT_TRUE(rs->IsEOF());
  EXPECT_EQ(moveFirst(*rs), 0);
}

TEST_P(RecordsetTest, AtTheBeginningOnlyTheWayOnIsOpen) {
  const auto rs = list();
  rs->MovePrevious();
  EXPECT_EQ(movePrevious(*rs), error::NoCurrentRecord);
  EXPECT_TRUE(rs->IsBOF());
  EXPECT_EQ(moveLast(*rs), 0);
}

TEST_P(RecordsetTest, WithoutRowsEveryMoveFails) {
  const auto rs = open(u"SELECT * FROM Vertriebsstati WHERE Status='99'");
  EXPECT_EQ(moveFirst(*rs), error::NoCurrentRecord);
  EXPECT_EQ(moveLast(*rs), error::NoCurrentRecord);
  EXPECT_EQ(moveNext(*rs), error::NoCurrentRecord);
  EXPECT_EQ(movePrevious(*rs), error::NoCurrentRecord);
  EXPECT_EQ(errorNumberOf([&] { rs->Bookmark(); }), error::NoCurrentRecord);
}

TEST_P(RecordsetTest, CountsItsRows) { EXPECT_EQ(list()->RecordCount(), 3); }

TEST_P(RecordsetTest, RowsWithoutAnOrderAreAllThere) {
  for (int i = 0; i < 30; ++i) {
    connection->Execute(u"INSERT INTO Vertriebsstati VALUES (" +
                        sql::value(fromUtf8("x" + std::to_string(i))) + u", 'viele', 0, 0)");
  }
  const auto rs = openForWrite(u"SELECT * FROM Vertriebsstati WHERE Bezeichnung='viele'");
  EXPECT_EQ(rs->RecordCount(), 30);
  int count = 0;
  for (; !rs->IsEOF(); rs->MoveNext()) {
    rs->Fields(u"Gewichtung").Value(++count);
  }
  EXPECT_EQ(stored(u"SELECT count(DISTINCT Gewichtung), sum(Gewichtung) FROM Vertriebsstati WHERE "
                   u"Bezeichnung='viele'"),
            u"30|465");
}

TEST_P(RecordsetTest, BookmarkLeadsBackToItsRow) {
  const auto rs = list();
  rs->MoveNext();
  const Variant second = rs->Bookmark();
  rs->MoveLast();
  rs->Bookmark(second);
  EXPECT_EQ(key(*rs), u"20");
  while (!rs->IsEOF()) rs->MoveNext();
  rs->Bookmark(second);
  EXPECT_FALSE(rs->IsEOF());
  EXPECT_EQ(key(*rs), u"20");
}

TEST_P(RecordsetTest, BookmarkNeedsACurrentRow) {
  const auto rs = list();
  rs->MovePrevious();
  EXPECT_EQ(errorNumberOf([&] { rs->Bookmark(); }), error::NoCurrentRecord);
}

TEST_P(RecordsetTest, RefusesWhatIsNoBookmarkOfItsOwn) {
  const auto rs = list();
  const auto another = list();
  another->MoveNext();
  const Variant foreign = another->Bookmark();
  rs->Bookmark();
  for (const Variant& wrong :
       {Variant(), Variant(Null), Variant(u"2"), Variant(0.0), Variant(1), Variant(1e300), foreign}) {
    EXPECT_EQ(errorNumberOf([&] { rs->Bookmark(wrong); }), error::InvalidArgument)
        << testing::PrintToString(wrong);
  }
  EXPECT_EQ(key(*rs), u"10");
}

TEST_P(RecordsetTest, BookmarkIsWorthlessAfterCloseAndOpen) {
  const auto rs = list();
  const Variant old = rs->Bookmark();
  rs->Close();
  rs->Open(u"SELECT Status FROM Vertriebsstati ORDER BY Status", connection, adOpenKeyset);
  EXPECT_EQ(errorNumberOf([&] { rs->Bookmark(old); }), error::InvalidArgument);
}

TEST_P(KeysetTest, ForwardOnlyCursorHasNoCountNoBookmarksAndNoWayBack) {
  Recordset rs;
  rs.Open(u"SELECT Status FROM Vertriebsstati ORDER BY Status", connection);
  EXPECT_EQ(rs.RecordCount(), -1);
  EXPECT_EQ(errorNumberOf([&] { rs.Bookmark(); }), error::FeatureNotAvailable);
  EXPECT_EQ(movePrevious(rs), error::IllegalOperation);
  EXPECT_EQ(rs.knownRows(), 0);
  EXPECT_EQ(keysFrom(rs), u"10 20 30");
}

// ---- rows for lists

TEST_P(RecordsetTest, ShowsItsRowsWithoutMoving) {
  const auto rs = list();
  rs->MoveNext();
  EXPECT_EQ(rs->knownRows(), 3);
  EXPECT_TRUE(rs->rowsComplete());
  EXPECT_EQ(rs->rowText(0, 1), u"Anfrage");
  EXPECT_EQ(rs->rowText(2, 0), u"30");
  EXPECT_EQ(rs->rowText(2, 1), u"");
  EXPECT_EQ(rs->rowValue(2, 1), Null);
  EXPECT_EQ(rs->currentRow(), 1);
  EXPECT_EQ(key(*rs), u"20");
}

TEST_P(RecordsetTest, KnowsTheRowOfABookmarkAndTheBookmarkOfARow) {
  const auto rs = list();
  const Variant third = rs->bookmarkOf(2);
  EXPECT_EQ(rs->rowOf(third), 2);
  EXPECT_EQ(rs->currentRow(), 0);
  rs->Bookmark(third);
  EXPECT_EQ(rs->currentRow(), 2);
  EXPECT_EQ(rs->Bookmark(), third);
  EXPECT_EQ(errorNumberOf([&] { rs->bookmarkOf(3); }), error::NoCurrentRecord);
  EXPECT_EQ(errorNumberOf([&] { rs->rowOf(Null); }), error::InvalidArgument);
}

TEST_P(RecordsetTest, RefusesRowsAndColumnsThatAreNotThere) {
  const auto rs = list();
  EXPECT_EQ(errorNumberOf([&] { rs->rowValue(3, 0); }), error::NoCurrentRecord);
  EXPECT_EQ(errorNumberOf([&] { rs->rowValue(-1, 0); }), error::NoCurrentRecord);
  EXPECT_EQ(errorNumberOf([&] { rs->rowValue(0, 2); }), error::ItemNotFound);
}

TEST_P(RecordsetTest, ShowsTheStoredRowWhileItIsEdited) {
  const auto rs = openForWrite(u"SELECT * FROM Vertriebsstati ORDER BY Status");
  EXPECT_EQ(rs->rowText(0, 1), u"Anfrage");
  rs->Fields(u"Bezeichnung").Value(u"Neu");
  EXPECT_EQ(rs->rowText(0, 1), u"Anfrage");
  rs->Update();
  EXPECT_EQ(rs->rowText(0, 1), u"Neu");
}

TEST_P(RecordsetTest, ShowsTheRowThatWasAddedAtTheEnd) {
  const auto rs = openForWrite(u"SELECT * FROM Vertriebsstati ORDER BY Status");
  rs->AddNew();
  rs->Fields(u"Status").Value(u"05");
  EXPECT_EQ(rs->knownRows(), 3);
  EXPECT_EQ(rs->currentRow(), -1);
  rs->Update();
  EXPECT_EQ(rs->knownRows(), 4);
  EXPECT_EQ(rs->rowText(3, 0), u"05");
  EXPECT_EQ(rs->currentRow(), 3);
}

}  // namespace zqn::ado::suite
