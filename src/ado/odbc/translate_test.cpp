// SPDX-License-Identifier: MIT
#include "ado/odbc/translate.h"

#include <gtest/gtest.h>

#include "ado/odbc/tables.h"
#include "runtime/locale.h"
#include "testing/runtime.h"

namespace zqn::ado::odbc {

namespace {

// As a server with names in lower case stores it.
const TableInfo Folded{u"vertriebsstati",
                       {{u"status"},
                        {u"bezeichnung"},
                        {u"historie", true},
                        {u"gewichtung"},
                        {u"größe"},
                        {u"nummer", false, true}},
                       {u"status"}};
const TableInfo Plain{u"Vertriebsstati",
                      {{u"Status"}, {u"Bezeichnung"}, {u"Historie"}, {u"Gewichtung"}, {u"Größe"}},
                      {u"Status"}};

Translation translation(StringView statement, StringView product) {
  const TableInfo& table = product == u"PostgreSQL" ? Folded : Plain;
  return translate(statement, dialectOf(product), [&](StringView name) {
    return compareIgnoringCase(name, u"Vertriebsstati") == 0 ? &table : nullptr;
  });
}

String postgres(StringView statement) { return translation(statement, u"PostgreSQL").text; }
String maria(StringView statement) { return translation(statement, u"MariaDB").text; }
String sqlServer(StringView statement) { return translation(statement, u"Microsoft SQL Server").text; }

std::int32_t refusal(StringView statement) {
  return errorNumberOf([&] { postgres(statement); });
}

}  // namespace

TEST(Translation, LeavesWhatEveryServerUnderstands) {
  const String statement =
      u"Select Status, Case When Status='-' Then null Else Status End As wert\nFROM Fehlt /* x */ "
      u"WHERE Größe>5 AND Bezeichnung='a;b -- c'";
  EXPECT_EQ(postgres(statement), statement);
  EXPECT_EQ(sqlServer(statement), statement);
  EXPECT_EQ(translation(statement, u"Something else").text, statement);
}

TEST(Translation, DropsWhatFollowsTheStatement) {
  EXPECT_EQ(postgres(u"  SELECT 1 ; -- done"), u"  SELECT 1");
  EXPECT_EQ(refusal(u"SELECT 1; DELETE FROM T"), error::CommandText);
  EXPECT_EQ(refusal(u"SELECT 1;; x"), error::CommandText);
  EXPECT_EQ(refusal(u"SELECT 'abc"), error::CommandText);
  EXPECT_EQ(refusal(u" -- nothing"), error::CommandText);
  EXPECT_EQ(refusal(StringView(u"SELECT 1\0", 9)), error::CommandText);
}

TEST(Translation, NamesInQuotesAreTheStoredOnes) {
  EXPECT_EQ(postgres(u"SELECT [Status], \"BEZEICHNUNG\" FROM [Vertriebsstati]"),
            u"SELECT \"status\", \"bezeichnung\" FROM \"vertriebsstati\"");
  EXPECT_EQ(postgres(u"CREATE TABLE \"Neu\" (\"Text\" INT)"), u"CREATE TABLE \"Neu\" (\"Text\" INT)");
  EXPECT_EQ(maria(u"SELECT [Status] FROM VERTRIEBSSTATI"), u"SELECT \"Status\" FROM \"Vertriebsstati\"");
  EXPECT_EQ(sqlServer(u"SELECT `a\"b` FROM T"), u"SELECT \"a\"\"b\" FROM T");
}

TEST(Translation, NamesKeepTheirCapitalsWhereTheServerWouldDropThem) {
  const auto spelled = [](StringView statement) {
    return translate(statement, dialectOf(u"PostgreSQL"),
                     [](StringView name) {
                       return compareIgnoringCase(name, u"Vertriebsstati") == 0 ? &Plain : nullptr;
                     })
        .text;
  };
  EXPECT_EQ(
      spelled(u"SELECT status, Bezeichnung AS Text FROM vertriebsstati Where Status<>'-' ORDER BY STATUS"),
      u"SELECT \"Status\", \"Bezeichnung\" AS \"Text\" FROM \"Vertriebsstati\" Where \"Status\"<>'-' ORDER "
      u"BY "
      u"\"Status\"");
  EXPECT_EQ(spelled(u"SELECT v.Status AS Schluessel FROM Vertriebsstati AS v ORDER BY schluessel"),
            u"SELECT v.\"Status\" AS \"Schluessel\" FROM \"Vertriebsstati\" AS v ORDER BY \"Schluessel\"");
  EXPECT_EQ(spelled(u"SELECT Gewichtung AS STATUS, Status AS Nr FROM Vertriebsstati WHERE Status>'' ORDER BY "
                    u"Status, nr"),
            u"SELECT \"Gewichtung\" AS \"STATUS\", \"Status\" AS \"Nr\" FROM \"Vertriebsstati\" WHERE "
            u"\"Status\">'' "
            u"ORDER BY \"STATUS\", \"Nr\"");
  EXPECT_EQ(spelled(u"ALTER TABLE vertriebsstati DROP COLUMN gewichtung"),
            u"ALTER TABLE \"Vertriebsstati\" DROP COLUMN \"Gewichtung\"");
  EXPECT_EQ(spelled(u"CREATE INDEX Neu ON Vertriebsstati (Bezeichnung)"),
            u"CREATE INDEX Neu ON \"Vertriebsstati\" (\"Bezeichnung\")");
  EXPECT_EQ(spelled(u"DROP TABLE Vertriebsstati"), u"DROP TABLE \"Vertriebsstati\"");
  EXPECT_EQ(spelled(u"SELECT Vertriebsstati.Status FROM Vertriebsstati"),
            u"SELECT \"Vertriebsstati\".\"Status\" FROM \"Vertriebsstati\"");
  EXPECT_EQ(maria(u"SELECT VERTRIEBSSTATI.Status FROM VERTRIEBSSTATI"),
            u"SELECT \"Vertriebsstati\".Status FROM \"Vertriebsstati\"");
  EXPECT_EQ(spelled(u"SELECT V.Status FROM Vertriebsstati AS V"),
            u"SELECT \"V\".\"Status\" FROM \"Vertriebsstati\" AS \"V\"");
  EXPECT_EQ(spelled(u"INSERT INTO Vertriebsstati (Status) VALUES (lower('X'))"),
            u"INSERT INTO \"Vertriebsstati\" (\"Status\") VALUES (lower('X'))");
  EXPECT_EQ(spelled(u"SELECT CAST(Gewichtung AS Numeric) FROM Vertriebsstati"),
            u"SELECT CAST(\"Gewichtung\" AS Numeric) FROM \"Vertriebsstati\"");
}

TEST(Translation, YesAndNoAreWhatTheColumnKnows) {
  EXPECT_EQ(postgres(u"SELECT * FROM Vertriebsstati WHERE Historie=-1 AND Historie<>0 AND Gewichtung=-1"),
            u"SELECT * FROM Vertriebsstati WHERE Historie=true AND Historie<>false AND Gewichtung=-1");
  EXPECT_EQ(postgres(u"SELECT * FROM Vertriebsstati WHERE Historie=True AND Gewichtung=True"),
            u"SELECT * FROM Vertriebsstati WHERE Historie=True AND Gewichtung<>0");
  EXPECT_EQ(
      maria(u"SELECT * FROM Vertriebsstati WHERE Historie = True AND Historie <> False OR Historie=false"),
      u"SELECT * FROM \"Vertriebsstati\" WHERE Historie <>0 AND Historie <>0 OR Historie=0");
  EXPECT_EQ(sqlServer(u"UPDATE Vertriebsstati SET Historie=True WHERE Historie<>TRUE"),
            u"UPDATE Vertriebsstati SET Historie=1 WHERE Historie=0");
  EXPECT_EQ(postgres(u"UPDATE Vertriebsstati SET Historie = -1, Gewichtung = 0"),
            u"UPDATE Vertriebsstati SET Historie = true, Gewichtung = 0");
}

TEST(Translation, InsertedNumbersBecomeYesAndNo) {
  EXPECT_EQ(postgres(u"INSERT INTO Vertriebsstati (Status, Historie) VALUES ('1', -1), ('2', 0)"),
            u"INSERT INTO Vertriebsstati (Status, Historie) VALUES ('1', true), ('2', false)");
  EXPECT_EQ(postgres(u"INSERT INTO Vertriebsstati VALUES ('1', 'x', 1, -1, (2))"),
            u"INSERT INTO Vertriebsstati VALUES ('1', 'x', true, -1, (2))");
  EXPECT_EQ(maria(u"INSERT INTO Vertriebsstati VALUES ('1', 'x', -1, 0, 2)"),
            u"INSERT INTO \"Vertriebsstati\" VALUES ('1', 'x', -1, 0, 2)");
  EXPECT_EQ(maria(u"INSERT INTO Fehlt DEFAULT VALUES"), u"INSERT INTO Fehlt () VALUES ()");
}

TEST(Translation, LikeDisregardsCase) {
  EXPECT_EQ(
      postgres(u"SELECT 1 FROM T WHERE a LIKE '%x%' AND b NOT LIKE 'y'"),
      u"SELECT 1 FROM T WHERE a COLLATE \"und-x-icu\" ILIKE '%x%' AND b COLLATE \"und-x-icu\" NOT ILIKE 'y'");
  EXPECT_EQ(
      postgres(u"SELECT 1 FROM Vertriebsstati v WHERE v.Nummer LIKE '1%' OR Nummer NOT LIKE '2%'"),
      u"SELECT 1 FROM Vertriebsstati v WHERE v.Nummer ::text COLLATE \"und-x-icu\" ILIKE '1%' OR Nummer "
      u"::text COLLATE \"und-x-icu\" NOT ILIKE '2%'");
  EXPECT_EQ(maria(u"SELECT 1 FROM T WHERE a LIKE 'x'"), u"SELECT 1 FROM T WHERE a LIKE 'x'");
}

TEST(Translation, LiteralsBeyondAsciiAreNationalWhereThatCounts) {
  EXPECT_EQ(sqlServer(u"INSERT INTO T VALUES ('Größe', 'abc', 'ÿ''ÿ')"),
            u"INSERT INTO T VALUES (N'Größe', 'abc', N'ÿ''ÿ')");
}

TEST(Translation, TellsWhatTheStatementDoes) {
  EXPECT_EQ(sqlServer(u"BEGIN"), u"BEGIN TRANSACTION");
  EXPECT_EQ(translation(u"begin", u"MariaDB").effect, Effect::Begin);
  EXPECT_EQ(translation(u"COMMIT", u"MariaDB").effect, Effect::Commit);
  EXPECT_EQ(translation(u"Rollback", u"PostgreSQL").effect, Effect::Rollback);
  EXPECT_EQ(translation(u"DROP TABLE T", u"PostgreSQL").effect, Effect::Schema);
  EXPECT_EQ(translation(u"DELETE FROM T", u"PostgreSQL").effect, Effect::None);
}

TEST(Translation, KnowsWhatEndsATransactionAndWhatDoesNot) {
  for (const char16_t* statement : {u"ROLLBACK", u"rollback work", u"ABORT", u"ROLLBACK AND NO CHAIN"})
    EXPECT_EQ(translation(statement, u"PostgreSQL").effect, Effect::Rollback) << toUtf8(statement);
  for (const char16_t* statement : {u"COMMIT WORK", u"END", u"PREPARE TRANSACTION 'x'"})
    EXPECT_EQ(translation(statement, u"PostgreSQL").effect, Effect::Commit) << toUtf8(statement);
  for (const char16_t* statement : {u"ROLLBACK TO SAVEPOINT s", u"Rollback To s", u"ROLLBACK WORK TO s",
                                    u"SAVEPOINT s", u"RELEASE SAVEPOINT s", u"COMMIT AND CHAIN",
                                    u"COMMIT PREPARED 'x'", u"ROLLBACK PREPARED 'x'", u"START SLAVE"})
    EXPECT_EQ(translation(statement, u"PostgreSQL").effect, Effect::None) << toUtf8(statement);
}

TEST(Translation, LeavesTheLiteralsOfPostgreSqlAlone) {
  const StringView statement =
      u"SELECT status FROM vertriebsstati WHERE status=E'\\'; x' OR status=$t$a'; b$t$";
  EXPECT_EQ(postgres(statement), statement);
  EXPECT_EQ(refusal(u"SELECT E'\\'"), error::CommandText);
}

TEST(Translation, KeepsANationalLiteralApartFromWhatStandsBeforeIt) {
  EXPECT_EQ(sqlServer(u"SELECT 1 FROM T WHERE a='ä' OR b=:'ä'"), u"SELECT 1 FROM T WHERE a=N'ä' OR b=: N'ä'");
}

TEST(Translation, TakesTheNameOfACollationForNoColumn) {
  const StringView statement =
      u"SELECT status FROM vertriebsstati WHERE CONCAT(\"status\") COLLATE \"Status\"='x'";
  EXPECT_EQ(postgres(statement), statement);
}

}  // namespace zqn::ado::odbc
