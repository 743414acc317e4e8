// SPDX-License-Identifier: MIT
#include "ado/odbc/connection_string.h"

#include <gtest/gtest.h>

#include "ado/odbc/odbc.h"

namespace zqn::ado::odbc {

static bool operator==(const ConnectionPair& left, const ConnectionPair& right) {
  return left.key == right.key && left.value == right.value;
}

static void PrintTo(const ConnectionPair& pair, std::ostream* out) {
  *out << '[' << toUtf8(pair.key) << "][" << toUtf8(pair.value) << ']';
}

namespace {

using Pairs = std::vector<ConnectionPair>;

TEST(ConnectionString, PairsComeInTheirOrder) {
  EXPECT_EQ(connectionPairs(u"Driver={PostgreSQL Unicode};Server=db;Port=5432;Database=waren"),
            (Pairs{{u"Driver", u"PostgreSQL Unicode"},
                   {u"Server", u"db"},
                   {u"Port", u"5432"},
                   {u"Database", u"waren"}}));
}

TEST(ConnectionString, BlanksAroundKeysAndValuesDoNotCount) {
  EXPECT_EQ(connectionPairs(u" Server = db ; UID=\tanna\n;"), (Pairs{{u"Server", u"db"}, {u"UID", u"anna"}}));
  EXPECT_EQ(connectionPairs(u"PWD= { a } ;UID=b"), (Pairs{{u"PWD", u" a "}, {u"UID", u"b"}}));
}

TEST(ConnectionString, BracesHoldAnything) {
  EXPECT_EQ(connectionPairs(u"PWD={a;b=c};UID=anna"), (Pairs{{u"PWD", u"a;b=c"}, {u"UID", u"anna"}}));
  EXPECT_EQ(connectionPairs(u"PWD={a}}b};UID=anna"), (Pairs{{u"PWD", u"a}b"}, {u"UID", u"anna"}}));
  EXPECT_EQ(connectionPairs(u"PWD={}}};UID=anna"), (Pairs{{u"PWD", u"}"}, {u"UID", u"anna"}}));
  EXPECT_EQ(connectionPairs(u"PWD={};UID=anna"), (Pairs{{u"PWD", u""}, {u"UID", u"anna"}}));
  EXPECT_EQ(connectionPairs(u"PWD={a{b};UID=anna"), (Pairs{{u"PWD", u"a{b"}, {u"UID", u"anna"}}));
}

TEST(ConnectionString, ABraceInsideAValueIsALetter) {
  EXPECT_EQ(connectionPairs(u"PWD=a{b;UID=anna"), (Pairs{{u"PWD", u"a{b"}, {u"UID", u"anna"}}));
}

TEST(ConnectionString, ABraceThatIsNotClosedTakesTheRest) {
  EXPECT_EQ(connectionPairs(u"PWD={a;UID=anna"), (Pairs{{u"PWD", u"a;UID=anna"}}));
  EXPECT_EQ(connectionPairs(u"PWD={a}}"), (Pairs{{u"PWD", u"a}"}}));
  EXPECT_EQ(connectionPairs(u"PWD={"), (Pairs{{u"PWD", u""}}));
}

TEST(ConnectionString, OnlyTheFirstEqualsSignDivides) {
  EXPECT_EQ(connectionPairs(u"INITSTMT=SET a=1"), (Pairs{{u"INITSTMT", u"SET a=1"}}));
  EXPECT_EQ(connectionPairs(u"PWD=;UID="), (Pairs{{u"PWD", u""}, {u"UID", u""}}));
}

TEST(ConnectionString, APieceThatIsNoPairIsAValueWithoutKey) {
  EXPECT_EQ(connectionPairs(u"waren;UID=anna"), (Pairs{{u"", u"waren"}, {u"UID", u"anna"}}));
  EXPECT_EQ(connectionPairs(u"{waren};UID=anna"), (Pairs{{u"", u"{waren}"}, {u"UID", u"anna"}}));
  EXPECT_EQ(connectionPairs(u";; ;"), Pairs{});
  EXPECT_EQ(connectionPairs(u""), Pairs{});
}

TEST(ConnectionString, PairsMakeTheStringAgain) {
  const Pairs pairs{{u"Driver", u"PostgreSQL Unicode"},
                    {u"PWD", u"a;b}c"},
                    {u"UID", u" anna "},
                    {u"Server", u"db"},
                    {u"Option", u""},
                    {u"Note", u"{x"}};
  const String text = connectionString(pairs);
  EXPECT_EQ(text, u"Driver=PostgreSQL Unicode;PWD={a;b}}c};UID={ anna };Server=db;Option=;Note={{x}");
  EXPECT_EQ(connectionPairs(text), pairs);
}

TEST(ConnectionString, AValueIsThatOfTheFirstPairWithTheKeyInAnyCase) {
  EXPECT_EQ(connectionValue(u"SERVER=a;Server=b", u"server"), u"a");
  EXPECT_EQ(connectionValue(u"driver={FreeTDS}", u"Driver"), u"FreeTDS");
  EXPECT_EQ(connectionValue(u"Server=a", u"Port"), u"");
}

TEST(ConnectionString, APasswordIsNotShown) {
  EXPECT_EQ(withoutPassword(u"Driver={PostgreSQL Unicode}; UID=anna;PWD=geheim;Server=db"),
            u"Driver={PostgreSQL Unicode}; UID=anna;PWD=***;Server=db");
  EXPECT_EQ(withoutPassword(u"pwd = {ge;he}}im} ;password=auch"), u"pwd =***;password=***");
  EXPECT_EQ(withoutPassword(u"PWD="), u"PWD=***");
  EXPECT_EQ(withoutPassword(u"PWD={geheim"), u"PWD=***");
  EXPECT_EQ(withoutPassword(u"DSN=waren"), u"DSN=waren");
  EXPECT_EQ(withoutPassword(u""), u"");
}

TEST(ConnectionString, NorTheRestOfAPasswordThatLacksItsBraces) {
  EXPECT_EQ(withoutPassword(u"PWD=ge;heim;weiter;UID=anna;rest"), u"PWD=***;***;***;UID=anna;rest");
}

TEST(ConnectionString, ThatIsTooLongForOdbcIsRefused) {
  const String text = u"Driver={Gibt es nicht};Comment=" + String(40000, u'x');
  try {
    openOdbc(text);
    FAIL();
  } catch (const RuntimeError& failure) {
    EXPECT_EQ(failure.number(), error::ProviderFailure);
    EXPECT_NE(failure.description().find(u"40031 Zeichen statt höchstens 32767"), String::npos)
        << failure.what();
  }
}

}  // namespace
}  // namespace zqn::ado::odbc
