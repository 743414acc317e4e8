// SPDX-License-Identifier: MIT
#include <limits>

#include "testing/provider_suite/suite.h"

namespace zqn::ado::suite {

namespace {

std::int32_t find(Recordset& rs, const sql::Text& criterion) {
  return errorNumberOf([&] { rs.Find(criterion); });
}

/// The key that a search from the top leads to, "EOF" for none.
String found(Recordset& rs, const sql::Text& criterion) {
  rs.MoveFirst();
  rs.Find(criterion);
  return rs.IsEOF() ? String(u"EOF") : key(rs);
}

}  // namespace

TEST_P(RecordsetTest, FindMakesTheMatchCurrent) {
  const auto rs = list();
  rs->Find(u"Status=" + sql::value(u"20"));
  EXPECT_EQ(key(*rs), u"20");
  rs->Find(u"status = '20'");
  EXPECT_EQ(key(*rs), u"20") << "the current row itself counts";
}

TEST_P(RecordsetTest, FindWithoutMatchLeavesTheRecordsetAtItsEnd) {
  const auto rs = list();
  const Variant first = rs->Bookmark();
  EXPECT_EQ(find(*rs, u"Status='99'"), 0);
  EXPECT_TRUE(rs->IsEOF());
  EXPECT_EQ(find(*rs, u"Status='10'"), error::NoCurrentRecord);
  EXPECT_EQ(errorNumberOf([&] { rs->Bookmark(); }), error::NoCurrentRecord);
  rs->Bookmark(first);
  EXPECT_EQ(find(*rs, u"Status='30'"), 0);
  EXPECT_EQ(key(*rs), u"30");
}

TEST_P(RecordsetTest, FindSeesNoRowAboveTheCurrentOne) {
  const auto rs = list();
  rs->MoveNext();
  rs->Find(u"Status='10'");
  EXPECT_TRUE(rs->IsEOF());
}

TEST_P(RecordsetTest, FindBackwardSeesNoRowBelow) {
  const auto rs = list();
  rs->MoveNext();
  rs->Find(u"Status='30'", 0, adSearchBackward);
  EXPECT_TRUE(rs->IsBOF());
  EXPECT_FALSE(rs->IsEOF());
  rs->MoveLast();
  rs->Find(u"Status<'30'", 0, adSearchBackward);
  EXPECT_EQ(key(*rs), u"20");
}

TEST_P(RecordsetTest, FindSkipsRowsAndStartsAtABookmark) {
  const auto rs = list();
  rs->Find(u"Status<>'-'", 1);
  EXPECT_EQ(key(*rs), u"20");
  rs->Find(u"Status<>'-'", 5);
  EXPECT_TRUE(rs->IsEOF());
  rs->Find(u"Status='20'", 0, adSearchForward, rs->bookmarkOf(0));
  EXPECT_EQ(key(*rs), u"20");
  EXPECT_EQ(errorNumberOf([&] { rs->Find(u"Status='20'", 0, adSearchForward, Variant(u"x")); }),
            error::InvalidArgument);
  EXPECT_EQ(key(*rs), u"20");
  EXPECT_EQ(errorNumberOf([&] { rs->Find(u"Status='20'", 0, 2); }), error::InvalidArgument);
}

TEST_P(RecordsetTest, FindInAnEmptyRecordsetRaisesNoCurrentRow) {
  const auto rs = open(u"SELECT * FROM Vertriebsstati WHERE Status='99'");
  EXPECT_EQ(find(*rs, u"Status='10'"), error::NoCurrentRecord);
}

TEST_P(RecordsetTest, FindComparesTextsAsTheDatabaseDoes) {
  connection->Execute(
      u"INSERT INTO Vertriebsstati VALUES ('äb', 'x', 0, 0), ('  ', 'blanks', 0, 0), ('', 'empty', 0, 0)");
  const auto rs = list();
  // Rows in memory are compared here, rows on a server there.
  const bool blanksAreOne = GetParam().location == adUseClient || context->ignoresTrailingBlanks();
  EXPECT_EQ(found(*rs, u"Status='ÄB'"), u"äb");
  EXPECT_EQ(found(*rs, u"Status='ÄB '"), blanksAreOne ? u"äb" : u"EOF");
  EXPECT_EQ(found(*rs, u"Status='ab'"), u"EOF") << "accents count";
  EXPECT_EQ(found(*rs, u"Bezeichnung='ANGEBOT  '"), blanksAreOne ? u"20" : u"EOF");
  EXPECT_EQ(found(*rs, u"Status=' '"), blanksAreOne ? u"  " : u"EOF") << "blanks are one blank";
  EXPECT_EQ(found(*rs, u"Status='  '"), u"  ");
  rs->MoveFirst();
  rs->Find(u"Status=''");
  EXPECT_EQ(rs->Fields(1).Value(), Variant(u"empty"));
}

TEST_P(RecordsetTest, FindTakesABareLiteralAsText) {
  connection->Execute(
      u"INSERT INTO Vertriebsstati VALUES ('001', 'eins', 0, 0), ('1', 'zwei', 0, 0), ('a b', 'drei', 0, 0)");
  const auto rs = list();
  EXPECT_EQ(found(*rs, u"Status=" + sql::bare(u"1")), u"1");
  EXPECT_EQ(found(*rs, u"Status=001"), u"001");
  EXPECT_EQ(found(*rs, u"Status= A B  AND Bezeichnung='drei'"), u"a b")
      << "up to the next AND, blanks around it off";
  EXPECT_EQ(found(*rs, u"Status=x OR 1=1"), u"EOF");
}

TEST_P(RecordsetTest, FindJoinsComparisonsByAnd) {
  const auto rs = open(u"SELECT * FROM Vertriebsstati ORDER BY Status");
  EXPECT_EQ(found(*rs, u"Status>='10' and Bezeichnung='Angebot'"), u"20");
  EXPECT_EQ(found(*rs, u"Status='10' AND Bezeichnung='Angebot'"), u"EOF");
  EXPECT_EQ(found(*rs, u"AutoOverwrite=-1  AND  Gewichtung=50.5 AND Status='20'"), u"20");
}

TEST_P(RecordsetTest, FindKnowsAllOperators) {
  const auto rs = open(u"SELECT * FROM Vertriebsstati ORDER BY Status");
  EXPECT_EQ(found(*rs, u"Gewichtung<>10"), u"20");
  EXPECT_EQ(found(*rs, u"Gewichtung>10"), u"20");
  EXPECT_EQ(found(*rs, u"Gewichtung<=10"), u"10");
  EXPECT_EQ(found(*rs, u"Status>#10#"), u"20");
  EXPECT_EQ(found(*rs, u"Bezeichnung LIKE 'ang*'"), u"20");
  EXPECT_EQ(found(*rs, u"Bezeichnung like '%BOT%'"), u"20");
  EXPECT_EQ(found(*rs, u"[Bezeichnung] = 'Angebot'"), u"20");
}

TEST_P(RecordsetTest, NullFitsNoComparison) {
  const auto rs = list();
  EXPECT_EQ(found(*rs, u"Bezeichnung=''"), u"EOF");
  EXPECT_EQ(found(*rs, u"Bezeichnung<>'Anfrage'"), u"20");
  rs->MoveLast();
  rs->Find(u"Bezeichnung<>'x'");
  EXPECT_TRUE(rs->IsEOF());
}

TEST_P(RecordsetTest, FindConvertsTheLiteralToANumberColumn) {
  const auto rs = open(u"SELECT * FROM Vertriebsstati ORDER BY Status");
  EXPECT_EQ(found(*rs, u"Gewichtung='50.5'"), u"20");
  rs->MoveFirst();
  EXPECT_EQ(find(*rs, u"Gewichtung='abc'"), error::ProviderTypeMismatch);
  EXPECT_TRUE(rs->IsEOF());
}

TEST_P(RecordsetTest, FindInAnUnknownColumnStaysWhereItIs) {
  const auto rs = list();
  rs->MoveNext();
  EXPECT_EQ(find(*rs, u"Fehlt='10'"), error::ItemNotFound);
  EXPECT_EQ(find(*rs, u"rowid=1"), error::ItemNotFound) << "no hidden column";
  EXPECT_EQ(key(*rs), u"20");
}

TEST_P(RecordsetTest, UnreadableCriterionLeavesNoCurrentRow) {
  const auto rs = list();
  for (const sql::Text& criterion :
       {sql::Text(u"Status='1'0'"), sql::Text(u"Status='10"), u"Status=" + sql::value(u"1'0"),
        u"Status=" + sql::bare(u"'"), sql::Text(u"Status="), sql::Text(u"Status=   "),
        sql::Text(u"Status= AND Bezeichnung='x'"), sql::Text(u""), sql::Text(u"Status"), sql::Text(u"='10'"),
        sql::Text(u"Status~'10'"), sql::Text(u"Status='10' OR Status='20'"), sql::Text(u"Status='10' AND "),
        sql::Text(u"Status LIKE '*0'"), sql::Text(u"Status LIKE '1*0'")}) {
    rs->MoveFirst();
    EXPECT_EQ(find(*rs, criterion), error::InvalidArgument) << toUtf8(criterion.text());
    EXPECT_TRUE(rs->IsEOF());
    EXPECT_EQ(rs->currentRow(), -1);
  }
}

TEST_P(RecordsetTest, DoubledApostropheInsideALiteralIsOne) {
  connection->Execute(u"INSERT INTO Vertriebsstati VALUES ('1''0', 'x', 0, 0)");
  const auto rs = list();
  EXPECT_EQ(found(*rs, u"Status='1''0'"), u"1'0");
}

TEST_P(RecordsetTest, FindMeetsTheFirstOfSeveralMatchesFromTheCurrentRowOn) {
  for (int i = 0; i < 200; ++i) {
    const String status = fromUtf8("x" + std::to_string(1000 + i));
    connection->Execute(u"INSERT INTO Vertriebsstati VALUES (" + sql::value(status) +
                        (i % 50 == 7 ? u", 'viele', 0, 0)" : u", NULL, 0, 0)"));
  }
  const auto rs = list();
  const auto walk = [&](int direction) {
    String keys;
    for (;;) {
      rs->Find(u"Bezeichnung='Viele'", keys.empty() ? 0 : 1, direction);
      if (rs->IsEOF() || rs->IsBOF()) return keys;
      keys += key(*rs) + u" ";
    }
  };
  EXPECT_EQ(walk(adSearchForward), u"x1007 x1057 x1107 x1157 ");
  rs->MoveLast();
  EXPECT_EQ(walk(adSearchBackward), u"x1157 x1107 x1057 x1007 ");
}

TEST_P(RecordsetTest, FindUpdatesThePendingEditFirst) {
  const auto rs = openForWrite(u"SELECT * FROM Vertriebsstati ORDER BY Status");
  rs->Fields(u"Bezeichnung").Value(u"Neu");
  rs->Find(u"Status='20'");
  EXPECT_EQ(stored(), u"10|Neu / 20|Angebot / 30|Null");
  EXPECT_EQ(key(*rs), u"20");
}

TEST_P(RecordsetTest, FindInAColumnThatTheStatementComputes) {
  const auto rs = open(
      u"SELECT Status, Case When Status='20' Then null Else Bezeichnung End As Wert FROM Vertriebsstati "
      u"ORDER BY Status");
  EXPECT_EQ(found(*rs, u"Wert='Anfrage'"), u"10");
  EXPECT_EQ(found(*rs, u"Wert='Angebot'"), u"EOF");
}

TEST_P(RecordsetTest, FindInAColumnUnderAnotherName) {
  const auto rs =
      open(u"SELECT Bezeichnung AS Schlagwort FROM Vertriebsstati WHERE Status<>'-' ORDER BY Bezeichnung");
  EXPECT_EQ(found(*rs, u"Schlagwort='angebot'"), u"Angebot");
  EXPECT_EQ(find(*rs, u"Bezeichnung='angebot'"), error::ItemNotFound);
}

TEST_P(RecordsetTest, FindDoesNotMeetRowsThatTheStatementLeavesOut) {
  connection->Execute(u"INSERT INTO Vertriebsstati VALUES ('-', 'reserviert', 0, 0)");
  const auto rs = open(u"SELECT Status FROM Vertriebsstati WHERE Status<>'-' ORDER BY Status");
  EXPECT_EQ(found(*rs, u"Status='-'"), u"EOF");
  EXPECT_EQ(rs->RecordCount(), 3);
}

TEST_P(RecordsetTest, FindBeyondAnyRowMeetsNone) {
  const auto rs = list();
  rs->MoveNext();
  rs->Find(u"Status='10'", std::numeric_limits<int>::max());
  EXPECT_TRUE(rs->IsEOF());
  rs->MoveLast();
  rs->Find(u"Status='10'", std::numeric_limits<int>::max(), adSearchBackward);
  EXPECT_TRUE(rs->IsBOF());
  EXPECT_EQ(find(*rs, u"Status='10'"), error::NoCurrentRecord);
}

}  // namespace zqn::ado::suite
