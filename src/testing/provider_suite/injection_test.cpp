// SPDX-License-Identifier: MIT
//
// Keys that a person might type to break out of a statement. Each one is either refused or is nothing but a
// key.
#include "testing/provider_suite/suite.h"

namespace zqn::ado::suite {

namespace {

const String Keys[] = {
    u"'",
    u"''",
    u"'''",
    u"' OR '1'='1",
    u"' OR 1=1--",
    u"' OR 1=1 #",
    u"' OR 1=1/*",
    u"') OR ('1'='1",
    u"x' OR Status<>'",
    u"'; DELETE FROM Vertriebsstati; --",
    u"'; DROP TABLE Vertriebsstati; --",
    u"'; UPDATE Vertriebsstati SET Bezeichnung='x'; --",
    u"'; INSERT INTO Vertriebsstati VALUES ('99','x',0,0); --",
    u"'; COMMIT; BEGIN; --",
    u"'; ATTACH DATABASE 'x.db' AS x; --",
    u"'; PRAGMA writable_schema=1; --",
    u"'; VACUUM; --",
    u"' UNION SELECT '99','x',0,0 --",
    u"' UNION ALL SELECT * FROM Vertriebsstati --",
    u"' AND (SELECT count(*) FROM Vertriebsstati)>0 AND ''='",
    u"' AND 1=randomblob(1000000000) --",
    u"\\' OR 1=1 --",
    u"\\",
    u"\\\\' OR 1=1 --",
    u"10' --",
    u"10'/*",
    u"10';--",
    u"10'\n--",
    u"'\r\nDELETE FROM Vertriebsstati\r\n--",
    u"\"",
    u"\" OR \"1\"=\"1",
    u"\"; DELETE FROM Vertriebsstati; --",
    u"`",
    u"[",
    u"]",
    u"]; DELETE FROM Vertriebsstati; --",
    u";",
    u"; DELETE FROM Vertriebsstati",
    u"--",
    u"-- DELETE",
    u"/*",
    u"*/",
    u"/* x */ OR 1=1",
    u"?",
    u"?1",
    u":name",
    u"@name",
    u"$1",
    u"1 OR 1=1",
    u"1; DELETE FROM Vertriebsstati",
    u"Status",
    u"NULL",
    u"NULL OR TRUE",
    u"%",
    u"_",
    u"*",
    u"%27 OR 1=1",
    u"&#39; OR 1=1",
    u"0x27",
    u"char(39)",
    u"X'27'",
    u"||",
    u"'||'x",
    u"' || (SELECT Bezeichnung FROM Vertriebsstati) || '",
    String(u"\0", 1),
    String(u"10\0' OR 1=1", 12),
    u"\u2019 OR 1=1 --",
    u"\uFF07 OR 1=1 --",
    u"\u02BC OR 1=1 --",
    u"´ OR 1=1 --",
    u"\xD800",
    u"\u200B'",
    u"EXEC xp_cmdshell('dir')",
    u"{fn now()}",
    u"' ESCAPE '",
    u"' COLLATE BINARY --",
    u"x' AND Bezeichnung='",
};

static_assert(std::size(Keys) >= 50);

const String Untouched = u"10|Anfrage|0|10 / 20|Angebot|-1|50,5 / 30|Null|0|Null";
const sql::Text Everything = u"SELECT * FROM Vertriebsstati ORDER BY Status";

bool breaksOut(const String& key) { return key.find_first_of(StringView(u"'\0", 2)) != String::npos; }

}  // namespace

TEST_P(RecordsetTest, OpenRefusesTheKeyOrLooksForIt) {
  for (const String& key : Keys) {
    Recordset rs;
    rs.CursorLocation(GetParam().location);
    const auto number = errorNumberOf([&] {
      rs.Open(u"SELECT * FROM Vertriebsstati WHERE Status =" + sql::value(key), connection, adOpenKeyset,
              adLockOptimistic);
    });
    EXPECT_EQ(number, breaksOut(key) ? error::CommandText : 0) << toUtf8(key);
    if (number == 0) {
      EXPECT_TRUE(rs.IsEOF()) << toUtf8(key);
    } else {
      EXPECT_EQ(rs.State(), adStateClosed);
    }
  }
  EXPECT_EQ(stored(Everything), Untouched);
}

TEST_P(RecordsetTest, ExecuteRefusesTheKeyOrDeletesNothing) {
  for (const String& key : Keys) {
    std::int64_t deleted = 0;
    const auto number = errorNumberOf([&] {
      deleted = connection->Execute(u"DELETE FROM Vertriebsstati WHERE Status =" + sql::value(key));
    });
    EXPECT_EQ(number, breaksOut(key) ? error::CommandText : 0) << toUtf8(key);
    EXPECT_EQ(deleted, 0);
  }
  EXPECT_EQ(stored(Everything), Untouched);
}

TEST_P(RecordsetTest, SavedKeyIsFoundAgainToTheLetter) {
  for (const String& key : Keys) {
    const bool plain = !breaksOut(key) && key.size() <= 10 && key != u"\xD800";
    if (!plain) continue;
    auto rs = openForWrite(u"SELECT * FROM Vertriebsstati WHERE Status=" + sql::value(key));
    if (rs->IsEOF()) rs->AddNew();
    rs->Fields(u"Status").Value(key);
    rs->Update();
    rs->Close();
    rs = open(u"SELECT Status FROM Vertriebsstati WHERE Status=" + sql::value(key));
    EXPECT_EQ(rs->Fields(0).Value(), Variant(key));
    EXPECT_EQ(connection->Execute(u"DELETE FROM Vertriebsstati WHERE Status=" + sql::value(key)), 1)
        << toUtf8(key);
  }
  EXPECT_EQ(stored(Everything), Untouched);
}

TEST_P(RecordsetTest, FindRefusesTheKeyOrLooksForIt) {
  const auto rs = list();
  for (const String& key : Keys) {
    rs->MoveFirst();
    EXPECT_EQ(errorNumberOf([&] { rs->Find(u"Status=" + sql::value(key)); }),
              breaksOut(key) ? error::InvalidArgument : 0)
        << toUtf8(key);
    EXPECT_TRUE(rs->IsEOF()) << toUtf8(key);
    rs->MoveFirst();
    const auto bare = errorNumberOf([&] { rs->Find(u"Status=" + sql::bare(key)); });
    EXPECT_TRUE(bare == 0 || bare == error::InvalidArgument || bare == error::ItemNotFound) << toUtf8(key);
  }
  EXPECT_EQ(stored(Everything), Untouched);
}

TEST_P(RecordsetTest, NumberSlotTakesNumbersOnly) {
  connection->Execute(u"CREATE TABLE SelectionListValues (FieldID INTEGER, ListValue " +
                      context->textColumn(50) + u")");
  connection->Execute(u"INSERT INTO SelectionListValues VALUES (7, 'a'), (-7, 'b')");
  const auto count = [&](const Variant& number) {
    const auto rs = open(u"SELECT ListValue FROM SelectionListValues Where FieldID=" + sql::number(number) +
                         u" ORDER BY ListValue");
    return rs->RecordCount();
  };
  for (const Variant& number :
       {Variant(7), Variant(7.0), Variant(u"7"), Variant(u" 7 "), Variant(u"+7"), Variant(u" - 7")}) {
    EXPECT_EQ(count(number), 1) << testing::PrintToString(number);
  }
  for (const String& key : Keys) {
    EXPECT_EQ(errorNumberOf([&] { count(key); }), error::CommandText) << toUtf8(key);
  }
  for (const Variant& wrong :
       {Variant(), Variant(Null), Variant(u""), Variant(u" "), Variant(u"-"), Variant(u"1,5"),
        Variant(u"0x7"), Variant(u"7 OR 1=1"), Variant(u"1e3"), Variant(u"--7")}) {
    EXPECT_EQ(errorNumberOf([&] { count(wrong); }), error::CommandText) << testing::PrintToString(wrong);
  }
}

TEST_P(RecordsetTest, BareLiteralNeverEntersAStatement) {
  EXPECT_EQ(errorNumberOf([&] {
              connection->Execute(u"DELETE FROM Vertriebsstati WHERE Status=" + sql::bare(u"1 OR 1=1"));
            }),
            error::CommandText);
  EXPECT_EQ(errorNumberOf([&] { open(u"SELECT * FROM Vertriebsstati WHERE Status=" + sql::bare(u"10")); }),
            error::CommandText);
  EXPECT_EQ(stored(Everything), Untouched);
}

TEST_P(RecordsetTest, ParametersOfTheStatementsOwnAreRefused) {
  EXPECT_NE(errorNumberOf([&] { open(u"SELECT * FROM Vertriebsstati WHERE Status=?"); }), 0);
  EXPECT_NE(errorNumberOf([&] { connection->Execute(u"DELETE FROM Vertriebsstati WHERE Status<>:x"); }), 0);
  EXPECT_EQ(stored(Everything), Untouched);
}

}  // namespace zqn::ado::suite
