// SPDX-License-Identifier: MIT
#include "ado/odbc/diagnostics.h"

#include <gtest/gtest.h>

namespace zqn::ado::odbc {

namespace {
std::int32_t numberOf(const char* state, long native = 0) { return errorNumber({state, native, u""}); }
}  // namespace

TEST(Diagnostics, StatesBecomeTheNumbersOfADO) {
  EXPECT_EQ(numberOf("42601"), error::CommandText);
  EXPECT_EQ(numberOf("42703"), error::CommandText);
  EXPECT_EQ(numberOf("42000", 1064), error::CommandText);
  EXPECT_EQ(numberOf("23000", 1052), error::CommandText) << "an ambiguous column";
  EXPECT_EQ(numberOf("42P01"), error::TableNotFound);
  EXPECT_EQ(numberOf("42S02"), error::TableNotFound);
  EXPECT_EQ(numberOf("23505"), error::IntegrityViolation);
  EXPECT_EQ(numberOf("23000", 1062), error::IntegrityViolation);
  EXPECT_EQ(numberOf("HY000", 1267), -2147217913) << "a text that the column's character set does not know";
  EXPECT_EQ(numberOf("HY000", 1364), error::IntegrityViolation) << "no value where one must be";
  EXPECT_EQ(numberOf("40001"), error::RowConflict);
  EXPECT_EQ(numberOf("40P01"), error::RowConflict);
  EXPECT_EQ(numberOf("22001"), error::ProviderDataOverflow);
  EXPECT_EQ(numberOf("22P02"), -2147217913);
  EXPECT_EQ(numberOf("42501"), error::PermissionDenied);
  EXPECT_EQ(numberOf("42000", 1142), error::PermissionDenied);
  EXPECT_EQ(numberOf("28000"), error::ProviderFailure);
  EXPECT_EQ(numberOf("08S01"), error::ProviderFailure);
  EXPECT_EQ(numberOf("HYT00"), error::ProviderFailure);
}

TEST(Diagnostics, KnowALostConnection) {
  for (const char* state : {"08001", "08003", "08S01", "57P01"})
    EXPECT_TRUE(isDrop({state, 0, u""})) << state;
  for (const long native : {2006L, 2013L}) EXPECT_TRUE(isDrop({"HY000", native, u""})) << native;
  EXPECT_FALSE(isDrop({"42P01", 1146, u""}));
  EXPECT_FALSE(isDrop({"", 0, u""}));
}

TEST(Diagnostics, ShowTheServersWordsAlone) {
  EXPECT_EQ(plainWords(u"[unixODBC][Driver Manager]Can't open lib 'x'"), u"Can't open lib 'x'");
  EXPECT_EQ(plainWords(u"ERROR: relation \"fehlt\" does not exist;\nError while executing the query"),
            u"relation \"fehlt\" does not exist");
  EXPECT_EQ(plainWords(u"[ma-3.1.15][10.11]Table 'x.fehlt' doesn't exist"), u"Table 'x.fehlt' doesn't exist");
  EXPECT_EQ(plainWords(u"server closed the connection\n\tThis  means\r\nnothing\n"),
            u"server closed the connection This means nothing");
  EXPECT_EQ(plainWords(u"[dbo]"), u"[dbo]") << "a name that stands alone";
  EXPECT_EQ(plainWords(u""), u"");
}

}  // namespace zqn::ado::odbc
