// SPDX-License-Identifier: MIT
#include "ado/sqlite/sqlite.h"

#include <gtest/gtest.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

#include "ado/recordset.h"
#include "runtime/convert.h"
#include "testing/runtime.h"
#include "testing/temporary_file.h"

namespace zqn::ado {

namespace {

using Mode = SqliteOptions::Mode;

/// First cell of the first row, as text.
String cell(const Ref<Connection>& connection, const sql::Text& statement) {
  Recordset rs;
  rs.Open(statement, connection);
  return concatenate(rs.Fields(0).Value());
}

Ref<Recordset> open(const Ref<Connection>& connection, const sql::Text& statement,
                    int lock = adLockReadOnly) {
  auto rs = Ref<Recordset>::make();
  rs->Open(statement, connection, adOpenKeyset, lock);
  return rs;
}

/// What opening says: the words of the error, "" when it opens.
std::string refusal(const std::filesystem::path& path, const SqliteOptions& options = {}) {
  try {
    openSqlite(path, options);
    return {};
  } catch (const RuntimeError& failure) {
    return failure.what();
  }
}

class SqliteFile : public testing::Test {
 protected:
  sqlite::TemporaryFile file;
};

constexpr SqliteOptions Impatient{Mode::Create, std::chrono::milliseconds(20)};

}  // namespace

using testing::Test;

// ---- opening

TEST_F(SqliteFile, HasAWriteAheadLogFullSyncAndForeignKeys) {
  const auto connection = openSqlite(file.path());
  EXPECT_EQ(cell(connection, u"PRAGMA journal_mode"), u"wal");
  EXPECT_EQ(cell(connection, u"PRAGMA synchronous"), u"2");
  EXPECT_EQ(cell(connection, u"PRAGMA foreign_keys"), u"1");
}

TEST_F(SqliteFile, FolderIsRefused) {
  EXPECT_NE(refusal(file.folder()).find("ist ein Ordner. Nennen Sie eine Datenbankdatei darin."),
            std::string::npos);
}

TEST_F(SqliteFile, MissingFolderIsNamed) {
  const std::string words = refusal(file.folder() / "fehlt" / "Test.db");
  EXPECT_NE(words.find("Es gibt keinen Ordner"), std::string::npos);
  EXPECT_NE(words.find("fehlt\""), std::string::npos);
}

TEST_F(SqliteFile, MissingFileIsMadeOnlyWhenAllowed) {
  EXPECT_NE(refusal(file.path(), {Mode::Existing}).find("gibt es nicht"), std::string::npos);
  EXPECT_NE(refusal(file.path(), {Mode::ReadOnly}).find("gibt es nicht"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(file.path()));
  EXPECT_EQ(refusal(file.path()), "");
  EXPECT_TRUE(std::filesystem::exists(file.path()));
  EXPECT_EQ(refusal(file.path(), {Mode::Existing}), "");
}

TEST_F(SqliteFile, FileThatIsNoDatabaseIsRefusedAndLeftAlone) {
  const std::string content(5000, 'x');
  std::ofstream(file.path()) << content;
  EXPECT_NE(refusal(file.path()).find("ist keine SQLite-Datenbank"), std::string::npos);
  EXPECT_EQ(std::filesystem::file_size(file.path()), content.size());
}

TEST_F(SqliteFile, FileThatCanOnlyBeReadIsRefusedUnlessOpenedSo) {
  openSqlite(file.path())->Execute(u"CREATE TABLE T (a INTEGER)");
  std::filesystem::permissions(file.path(), std::filesystem::perms(0444));
  std::filesystem::permissions(file.folder(), std::filesystem::perms(0777));
  const uid_t user = geteuid();
  if (user == 0) {
    ASSERT_EQ(seteuid(65534), 0);
  }
  const std::string words = refusal(file.path());
  const std::string readOnly = refusal(file.path(), {Mode::ReadOnly});
  if (user == 0) {
    ASSERT_EQ(seteuid(user), 0);
  }
  EXPECT_TRUE(words.starts_with("-2147217911: ")) << words;
  EXPECT_NE(words.find("lässt sich nur lesen"), std::string::npos) << words;
  EXPECT_NE(words.find("zu schreiben"), std::string::npos) << words;
  EXPECT_EQ(readOnly, "");
}

TEST_F(SqliteFile, OpenedForReadingRefusesEveryWrite) {
  openSqlite(file.path())->Execute(u"CREATE TABLE T (a INTEGER)");
  const auto connection = openSqlite(file.path(), {Mode::ReadOnly});
  EXPECT_EQ(cell(connection, u"SELECT count(*) FROM T"), u"0");
  EXPECT_EQ(errorNumberOf([&] { connection->Execute(u"INSERT INTO T VALUES (1)"); }),
            error::PermissionDenied);
}

TEST_F(SqliteFile, LockedFileIsRefusedAfterTheTimeAllowed) {
  const auto owner = openSqlite(file.path());
  owner->Execute(u"PRAGMA journal_mode=DELETE");
  owner->Execute(u"BEGIN EXCLUSIVE");
  EXPECT_NE(refusal(file.path(), Impatient).find("wird von einem anderen Programm benutzt"),
            std::string::npos);
  owner->Execute(u"COMMIT");
  EXPECT_EQ(refusal(file.path(), Impatient), "");
}

TEST_F(SqliteFile, WorksWithoutAWriteAheadLogToo) {
  const auto owner = openSqlite(file.path());
  owner->Execute(u"CREATE TABLE T (a INTEGER)");
  owner->Execute(u"PRAGMA journal_mode=DELETE");
  owner->Execute(u"BEGIN");
  cell(owner, u"SELECT count(*) FROM T");  // a reader, and the journal cannot be changed

  const auto connection = openSqlite(file.path(), Impatient);
  EXPECT_EQ(cell(connection, u"PRAGMA journal_mode"), u"delete");
  owner->Execute(u"COMMIT");
  for (int i = 0; i < 200; ++i) connection->Execute(u"INSERT INTO T VALUES (1)");
  const auto rs = open(connection, u"SELECT a FROM T ORDER BY a");
  EXPECT_FALSE(rs->rowsComplete());
  EXPECT_EQ(owner->Execute(u"DELETE FROM T"), 200) << "a list that is not read to its end holds no lock";
  EXPECT_EQ(rs->RecordCount(), 200);
}

TEST_F(SqliteFile, NameMayHoldAnyLetter) {
  const auto path = file.folder() / u"Schlüssel ÿ%20?mode=memory#'x.db";
  openSqlite(path)->Execute(u"CREATE TABLE T (a INTEGER)");
  EXPECT_TRUE(std::filesystem::exists(path));
  EXPECT_EQ(refusal(path, {Mode::Existing}), "");
}

TEST(SqliteInMemory, LivesAsLongAsItsConnection) {
  const auto connection = openSqlite(":memory:");
  connection->Execute(u"CREATE TABLE T (a INTEGER)");
  for (int i = 0; i < 100; ++i) connection->Execute(u"INSERT INTO T VALUES (" + sql::number(i) + u")");
  const auto rs = open(connection, u"SELECT a FROM T ORDER BY a DESC");
  EXPECT_EQ(connection->Execute(u"DELETE FROM T WHERE a<50"), 50);
  EXPECT_EQ(rs->RecordCount(), 100);
  EXPECT_EQ(rs->rowText(0, 0), u"99");
  EXPECT_FALSE(std::filesystem::exists(":memory:"));
}

TEST_F(SqliteFile, IsFreeOnceTheConnectionIsClosed) {
  auto connection = openSqlite(file.path());
  connection->Execute(u"CREATE TABLE T (a INTEGER)");
  for (int i = 0; i < 200; ++i) connection->Execute(u"INSERT INTO T VALUES (1)");
  const auto rs = open(connection, u"SELECT a FROM T ORDER BY a");
  EXPECT_FALSE(rs->rowsComplete());
  connection->Close();
  EXPECT_EQ(cell(openSqlite(file.path(), Impatient), u"PRAGMA journal_mode=DELETE"), u"delete")
      << "nobody else has it open";
}

// ---- two connections

TEST_F(SqliteFile, WriteWaitsForALockAndFailsAfterTheTimeAllowed) {
  const auto first = openSqlite(file.path());
  first->Execute(u"CREATE TABLE T (a INTEGER)");
  first->Execute(u"BEGIN IMMEDIATE");
  const auto second = openSqlite(file.path(), Impatient);
  EXPECT_EQ(errorNumberOf([&] { second->Execute(u"INSERT INTO T VALUES (1)"); }), error::ProviderFailure);
  first->Execute(u"COMMIT");
  EXPECT_EQ(second->Execute(u"INSERT INTO T VALUES (1)"), 1);
}

TEST_F(SqliteFile, KilledInTheMiddleKeepsWholeRowsOnly) {
  openSqlite(file.path())->Execute(u"CREATE TABLE T (k INTEGER PRIMARY KEY, a INTEGER, b INTEGER)");
  const pid_t child = fork();
  if (child == 0) {
    const auto connection = openSqlite(file.path());
    const auto rs = open(connection, u"SELECT * FROM T", adLockOptimistic);
    for (int i = 0;; ++i) {
      rs->AddNew();
      rs->Fields(u"a").Value(i);
      rs->Fields(u"b").Value(i);
      rs->Update();
    }
  }
  ASSERT_GT(child, 0);
  const auto connection = openSqlite(file.path());
  while (cell(connection, u"SELECT count(*) FROM T") == u"0") usleep(1000);
  usleep(30000);
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  EXPECT_EQ(cell(connection, u"PRAGMA integrity_check"), u"ok");
  EXPECT_EQ(cell(connection, u"SELECT count(*) FROM T WHERE a IS NOT b OR a IS NULL"), u"0");
  EXPECT_EQ(cell(connection, u"SELECT max(a)+1-count(*) FROM T"), u"0")
      << "no row before the last is missing";
  EXPECT_EQ(connection->Execute(u"INSERT INTO T VALUES (NULL, 1, 1)"), 1);
}

// ---- tables

class SqliteTable : public testing::Test {
 protected:
  void execute(const sql::Text& statement) { connection->Execute(statement); }
  Ref<Connection> connection = openSqlite(":memory:");
};

TEST_F(SqliteTable, DeclaredTypesSayHowAValueReads) {
  execute(
      u"CREATE TABLE T (b BIT, l BOOLEAN, d DATE, t DATETIME, g BIGINT, n NUMERIC(10,2), f FLOAT, i INT, x "
      u"TEXT, c NCHAR(3), "
      u"o)");
  execute(
      u"INSERT INTO T VALUES (1, 0, '2026-03-05', '20260305', 5000000000, 3, 3, 3, 'lang', 'abc', 'offen')");
  const auto rs = open(connection, u"SELECT * FROM T", adLockOptimistic);
  const Variant expected[] = {true, false,           u"2026-03-05", u"20260305", 5e9,     3.0,
                              3.0,  std::int32_t{3}, u"lang",       u"abc",      u"offen"};
  const int types[] = {adBoolean, adBoolean, adDBTimeStamp,  adDBTimeStamp, adBigInt, adNumeric,
                       adDouble,  adInteger, adLongVarWChar, adVarWChar,    adVariant};
  for (int i = 0; i < rs->Fields().Count(); ++i) {
    EXPECT_EQ(rs->Fields(i).Value(), expected[i]) << i;
    EXPECT_EQ(rs->Fields(i).Type(), types[i]) << i;
  }
  EXPECT_EQ(rs->Fields(u"c").DefinedSize(), 3);
  EXPECT_EQ(rs->Fields(u"n").DefinedSize(), 0);
}

TEST_F(SqliteTable, ADeclaredSizeBeyondAnyTextIsNoLimit) {
  execute(
      u"CREATE TABLE Weit (a VARCHAR(99999999999999999999), b VARCHAR(2147483646), c NUMERIC(999999999999))");
  const auto rs = open(connection, u"SELECT * FROM Weit", adLockReadOnly);
  EXPECT_EQ(rs->Fields(u"a").DefinedSize(), 0);
  EXPECT_EQ(rs->Fields(u"a").Type(), adLongVarWChar);
  EXPECT_EQ(rs->Fields(u"b").DefinedSize(), 2147483646);
  EXPECT_EQ(rs->Fields(u"c").Type(), adNumeric);
}

TEST_F(SqliteTable, ValuesAreStoredAsTheirColumnSays) {
  execute(u"CREATE TABLE T (k INTEGER PRIMARY KEY, b BIT, s SMALLINT, d DATE, g BIGINT, o)");
  const auto rs = open(connection, u"SELECT * FROM T", adLockOptimistic);
  rs->AddNew();
  rs->Fields(u"b").Value(true);
  rs->Fields(u"s").Value(true);
  rs->Fields(u"d").Value(dateSerial(2026, 3, 5));
  rs->Fields(u"g").Value(5e9);
  rs->Fields(u"o").Value(u"7");
  rs->Update();
  rs->Fields(u"g").Value(6e9);
  rs->Fields(u"b").Value(false);
  rs->Fields(u"d").Value(Date{dateSerial(2026, 3, 6).days + 0.5});
  rs->Update();
  EXPECT_EQ(cell(connection, u"SELECT b || ' ' || s || ' ' || d || ' ' || g || ' ' || typeof(o) FROM T"),
            u"0 -1 2026-03-06 12:00:00 6000000000 text");
}

TEST_F(SqliteTable, FindInABooleanColumn) {
  execute(u"CREATE TABLE T (k INTEGER PRIMARY KEY, b BIT)");
  execute(u"INSERT INTO T VALUES (1, 0), (2, -1), (3, 1), (4, NULL)");
  const auto rs = open(connection, u"SELECT * FROM T ORDER BY k");
  const auto found = [&](const sql::Text& criterion) {
    rs->MoveFirst();
    rs->Find(criterion);
    return rs->currentRow();
  };
  EXPECT_EQ(found(u"b=True"), 1);
  EXPECT_EQ(found(u"b=1"), 1);
  EXPECT_EQ(found(u"b=-1"), 1);
  EXPECT_EQ(found(u"b=false"), 0);
  EXPECT_EQ(found(u"b='wahr' AND k=3"), 2);
}

TEST_F(SqliteTable, ColumnsAddedSinceAreSeen) {
  execute(u"CREATE TABLE T (k INTEGER PRIMARY KEY)");
  execute(u"INSERT INTO T VALUES (1)");
  for (const int lock : {adLockReadOnly, adLockOptimistic}) {
    EXPECT_EQ(open(connection, u"SELECT * FROM T WHERE k='1'", lock)->Fields().Count(), 1);
  }
  execute(u"ALTER TABLE T ADD COLUMN neu VARCHAR(5) DEFAULT 'x'");
  for (const int lock : {adLockReadOnly, adLockOptimistic}) {
    const auto rs = open(connection, u"SELECT * FROM T WHERE k='1'", lock);
    EXPECT_EQ(rs->Fields().Count(), 2);
    EXPECT_EQ(rs->Fields(u"neu").Value(), Variant(u"x"));
  }
}

TEST_F(SqliteTable, WithoutRowHandlesIsWrittenByItsKey) {
  execute(
      u"CREATE TABLE T (a VARCHAR(5) COLLATE ZQN_TEXT, b INTEGER, c INTEGER, PRIMARY KEY (a, b)) WITHOUT "
      u"ROWID");
  execute(u"INSERT INTO T VALUES ('x', 1, 0), ('x', 2, 0)");
  const auto rs = open(connection, u"SELECT c FROM T WHERE a='X' ORDER BY b", adLockOptimistic);
  rs->MoveLast();
  rs->Fields(u"c").Value(5);
  rs->Update();
  EXPECT_EQ(rs->Fields(u"c").Value(), Variant(std::int32_t{5}));
  EXPECT_EQ(cell(connection, u"SELECT c FROM T WHERE b=2"), u"5");
  EXPECT_EQ(cell(connection, u"SELECT c FROM T WHERE b=1"), u"0");
}

TEST_F(SqliteTable, ViewIsReadOnly) {
  execute(u"CREATE TABLE T (k INTEGER PRIMARY KEY, a INTEGER)");
  execute(u"INSERT INTO T VALUES (1, 2)");
  execute(u"CREATE VIEW V AS SELECT a, k FROM T");
  const auto rs = open(connection, u"SELECT * FROM V ORDER BY k", adLockOptimistic);
  EXPECT_EQ(rs->rowText(0, 0), u"2");
  EXPECT_EQ(errorNumberOf([&] { rs->Fields(u"a").Value(3); }), error::FeatureNotAvailable);
}

TEST_F(SqliteTable, ColumnMayBeNamedLikeTheRowHandle) {
  execute(u"CREATE TABLE T (rowid VARCHAR(5), oid INTEGER, \"a\"\"b\" INTEGER)");
  execute(u"INSERT INTO T VALUES ('x', 5, 1), ('y', 5, 1)");
  const auto rs = open(connection, u"SELECT * FROM T ORDER BY rowid DESC", adLockOptimistic);
  EXPECT_EQ(rs->Fields(u"rowid").Value(), Variant(u"y"));
  rs->Fields(u"a\"b").Value(7);
  rs->Update();
  EXPECT_EQ(cell(connection, u"SELECT \"a\"\"b\" FROM T WHERE rowid='y'"), u"7");
  EXPECT_EQ(cell(connection, u"SELECT \"a\"\"b\" FROM T WHERE rowid='x'"), u"1");
}

TEST_F(SqliteTable, StatementMayHoldCommentsQuotesAndParentheses) {
  execute(u"CREATE TABLE T (k VARCHAR(5) COLLATE ZQN_TEXT PRIMARY KEY, [from] VARCHAR(9))");
  execute(u"INSERT INTO T VALUES ('a', 'x'), ('b', 'FROM')");
  for (const char16_t* statement :
       {u"SELECT k, [from] -- FROM nowhere\n FROM T WHERE k<>'-' ORDER BY k",
        u"select k, \"from\" from T as t order by t.k;",
        u"SELECT k, (SELECT 'FROM') AS f FROM T /* ORDER BY */ ORDER BY k -- end",
        u"SELECT k, ' FROM ' AS f FROM T WHERE (k IN (SELECT k FROM T)) ORDER BY (k)",
        u"SELECT T.* FROM T ORDER BY k LIMIT 5"}) {
    const auto rs = open(connection, statement);
    EXPECT_EQ(rs->RecordCount(), 2) << toUtf8(statement);
    rs->MoveFirst();
    rs->Find(u"k='B'");
    EXPECT_EQ(rs->currentRow(), 1) << toUtf8(statement);
  }
}

TEST_F(SqliteTable, UnknownColumnInDoubleQuotesIsNoText) {
  execute(u"CREATE TABLE T (k INTEGER PRIMARY KEY)");
  EXPECT_EQ(errorNumberOf([&] { open(connection, u"SELECT \"fehlt\" FROM T ORDER BY k"); }),
            error::CommandText);
  EXPECT_EQ(errorNumberOf([&] { connection->Execute(u"DELETE FROM T WHERE \"fehlt\"='fehlt'"); }),
            error::CommandText);
}

TEST_F(SqliteFile, TemporaryTableHidesTheTableOfTheFile) {
  const auto connection = openSqlite(file.path());
  connection->Execute(u"CREATE TABLE T (a INTEGER)");
  connection->Execute(u"CREATE TEMP TABLE T (a INTEGER)");
  connection->Execute(u"INSERT INTO temp.T VALUES (1), (2)");
  EXPECT_EQ(open(connection, u"SELECT a FROM T ORDER BY a DESC")->rowText(0, 0), u"2");
}

TEST_F(SqliteTable, TriggerMayHoldSeveralStatements) {
  execute(u"CREATE TABLE T (a INTEGER)");
  execute(
      u"CREATE TRIGGER G AFTER INSERT ON T WHEN 'x'='x' BEGIN DELETE FROM T WHERE a='5'; INSERT INTO T "
      u"VALUES (9); END");
  execute(u"INSERT INTO T VALUES (1)");
  EXPECT_EQ(cell(connection, u"SELECT sum(a) FROM T"), u"10");
}

TEST_F(SqliteTable, TextIsComparedByTheNamedCollationInIndexAndOrder) {
  execute(u"CREATE TABLE T (a VARCHAR(9) COLLATE ZQN_TEXT)");
  execute(u"INSERT INTO T VALUES ('b'), ('Ä'), ('a'), ('B '), ('Z')");
  EXPECT_EQ(cell(connection, u"SELECT group_concat(a, '|') FROM (SELECT a FROM T ORDER BY a, rowid)"),
            u"a|Ä|b|B |Z");
  EXPECT_EQ(cell(connection, u"SELECT count(DISTINCT a) FROM T"), u"4");
}

}  // namespace zqn::ado
