// SPDX-License-Identifier: MIT
#include "ado/sql.h"

#include <gtest/gtest.h>

#include "ado/sql_tokens.h"
#include "testing/runtime.h"

namespace zqn::ado::sql {

// ---- texts

TEST(SqlText, ValueStandsInApostrophes) {
  const Text text = u"SELECT * FROM T WHERE K=" + value(u"10") + u" AND L=" + value(Variant(Null));
  EXPECT_EQ(text.text(), u"SELECT * FROM T WHERE K='10' AND L=''");
  EXPECT_TRUE(text.valid());
}

TEST(SqlText, OneBrokenValueBreaksTheWholeText) {
  const Text broken = value(u"1'0");
  EXPECT_FALSE(broken.valid());
  EXPECT_FALSE((u"a" + broken).valid());
  EXPECT_FALSE((broken + u"a" + value(u"10")).valid());
  EXPECT_EQ((u"K=" + broken).text(), u"K='1'0'");
  EXPECT_FALSE(value(StringView(u"a\0b", 3)).valid());
}

TEST(SqlText, ValueTakesTheTextOfAnyVariant) {
  EXPECT_EQ(value(Variant(12)).text(), u"'12'");
  EXPECT_EQ(value(Variant(1.5)).text(), u"'1,5'");
  EXPECT_EQ(value(Variant()).text(), u"''");
  EXPECT_FALSE(value(Variant(u"'")).valid());
  EXPECT_EQ(errorNumberOf([] { value(Variant(Missing)); }), error::TypeMismatch);
}

TEST(SqlText, NumberIsWrittenAsItStandsAndWithAPoint) {
  EXPECT_EQ(number(Variant(u" -7 ")).text(), u" -7 ");
  EXPECT_EQ(number(Variant(1.5)).text(), u"1.5");
  EXPECT_EQ(number(Variant(true)).text(), u"-1");
  EXPECT_TRUE(number(Variant(u"1.5")).valid());
  EXPECT_FALSE(number(Variant(u".")).valid());
  EXPECT_FALSE(number(Variant(Date{1})).valid());
}

TEST(SqlText, BareMakesACriterionOnly) {
  const Text text = u"K=" + bare(u"1") + u" AND L=" + value(u"x");
  EXPECT_EQ(text.text(), u"K=1 AND L='x'");
  EXPECT_TRUE(text.valid() && text.criterionOnly());
  EXPECT_FALSE(bare(u"'").valid());
}

// ---- shapes

TEST(SqlShape, TakesOutTheLiteralsOfConditions) {
  const Shape shape(u"SELECT * FROM T WHERE K='10' AND L <> 'a''b' AND M>='x'");
  EXPECT_EQ(shape.text, u"SELECT * FROM T WHERE K=? AND L <> ? AND M>=?");
  EXPECT_EQ(shape.literals, (std::vector<String>{u"10", u"a'b", u"x"}));
  EXPECT_TRUE(shape.recurs);
}

TEST(SqlShape, LeavesOtherTextsAlone) {
  for (const char16_t* statement :
       {u"SELECT 'a', Case When K='-' Then null End FROM T",
        u"SELECT * FROM T WHERE K IN ('a', 'b') AND L LIKE 'x'",
        u"SELECT * FROM T WHERE K=\"a\" AND [b='c']=1 -- K='x'",
        u"CREATE VIEW V AS SELECT * FROM T WHERE K='1'", u"INSERT INTO T VALUES ('a')",
        u"SELECT * FROM T WHERE K='1' AND L=?", u"SELECT * FROM T WHERE K='1' AND L='open"}) {
    const Shape shape(statement);
    EXPECT_EQ(shape.text, statement);
    EXPECT_TRUE(shape.literals.empty());
  }
}

TEST(SqlShape, KnowsAnOrderOfItsOwn) {
  EXPECT_TRUE(Shape(u"SELECT * FROM T ORDER BY K").ordered);
  EXPECT_FALSE(Shape(u"SELECT * FROM (SELECT * FROM T ORDER BY K)").ordered);
  EXPECT_FALSE(Shape(u"SELECT * FROM T WHERE K='ORDER BY'").ordered);
}

TEST(SqlTokens, KnowTheLiteralsOfPostgreSql) {
  Scanner scanner(u"E'\\'; ''' e'x' $$it's; $$ $tag$a $$ 'b$tag$ $1 $name Ende");
  std::vector<String> seen;
  for (Token token = scanner.next(); token.kind != Token::Kind::End; token = scanner.next())
    seen.push_back((token.kind == Token::Kind::Literal     ? u"L:"
                    : token.kind == Token::Kind::Parameter ? u"P:"
                                                           : u"W:") +
                   String(token.text));
  EXPECT_EQ(seen, (std::vector<String>{u"L:E'\\'; '''", u"L:e'x'", u"L:$$it's; $$", u"L:$tag$a $$ 'b$tag$",
                                       u"P:$1", u"P:$name", u"W:Ende"}));
  EXPECT_EQ(Scanner(u"E'\\'").next().kind, Token::Kind::Unclosed);
  EXPECT_EQ(Scanner(u"$a$ without an end").next().kind, Token::Kind::Parameter);
}

TEST(SqlShape, LeavesTheLiteralsOfPostgreSqlInTheirPlaces) {
  for (const char16_t* statement :
       {u"SELECT * FROM T WHERE K=E'\\'' AND L=E'x'", u"SELECT * FROM T WHERE K=$$it's$$"}) {
    const Shape shape(statement);
    EXPECT_EQ(shape.text, statement);
    EXPECT_TRUE(shape.literals.empty());
  }
}

TEST(SqlTokens, TellTheTableOfAnInsert) {
  EXPECT_EQ(insertedTable(u"INSERT INTO \"Die Tabelle\" (a) VALUES (?)"), u"Die Tabelle");
  EXPECT_EQ(insertedTable(u"insert into T DEFAULT VALUES"), u"T");
  EXPECT_EQ(insertedTable(u"SELECT 1"), u"");
  EXPECT_EQ(insertedTable(u"INSERT INTO"), u"");
}

// ---- plain selects

TEST(PlainSelect, HasListTableAndRest) {
  const auto select =
      plainSelect(u"Select K, (SELECT max FROM U) m From [Die Tabelle] AS t Where K<>'-' ORDER BY K ;");
  ASSERT_TRUE(select);
  EXPECT_EQ(select->list, u"K, (SELECT max FROM U) m ");
  EXPECT_EQ(select->from, u"[Die Tabelle] AS t ");
  EXPECT_EQ(select->table, u"Die Tabelle");
  EXPECT_EQ(select->rest, u"Where K<>'-' ORDER BY K ");
  EXPECT_EQ(plainSelect(u"SELECT * FROM T")->rest, u"");
  EXPECT_EQ(plainSelect(u"SELECT * FROM T t")->from, u"T t");
}

TEST(PlainSelect, IsNothingElse) {
  for (const char16_t* statement : {u"",
                                    u"SELECT",
                                    u"SELECT 1",
                                    u"DELETE FROM T",
                                    u"SELECT DISTINCT K FROM T",
                                    u"SELECT K FROM T, U",
                                    u"SELECT K FROM T JOIN U",
                                    u"SELECT K FROM T t LEFT JOIN U",
                                    u"SELECT K FROM (SELECT * FROM T)",
                                    u"SELECT K FROM main.T",
                                    u"SELECT count(*) FROM T",
                                    u"SELECT row_number() OVER (ORDER BY K) FROM T",
                                    u"SELECT K FROM T GROUP BY K",
                                    u"SELECT K FROM T WHERE 1 UNION SELECT 1",
                                    u"SELECT K FROM T WHERE K='open",
                                    u"SELECT K FROM T; SELECT 1",
                                    u"WITH x AS (SELECT 1) SELECT * FROM x",
                                    u"VALUES (1)",
                                    u"SELECT K FROM T(1)",
                                    u"SELECT K FROM T INDEXED BY i"}) {
    EXPECT_FALSE(plainSelect(statement)) << toUtf8(statement);
  }
}

TEST(SqlTokens, ReadAnythingToItsEnd) {
  // Whatever a text holds, each step takes at least one unit and the end is reached.
  const String units = u"'\"[]`()-/*;?:@$a1. \n\xD800ä=<>!|";
  std::uint32_t seed = 1;
  for (int round = 0; round < 20000; ++round) {
    String text;
    for (int i = 0; i < 12; ++i) {
      seed = seed * 1664525 + 1013904223;
      text += units[seed >> 8 & 0xFFFF ? (seed >> 16) % units.size() : 0];
    }
    Scanner scanner(text);
    std::size_t steps = 0;
    while (scanner.next().kind != Token::Kind::End) ASSERT_LE(++steps, text.size()) << toUtf8(text);
    const Shape shape(text);
    plainSelect(u"SELECT a FROM T WHERE " + text);
  }
}

}  // namespace zqn::ado::sql
