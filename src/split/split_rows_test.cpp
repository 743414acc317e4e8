// SPDX-License-Identifier: MIT
//
// The split text as hosts read and write it.
#include "split/split_rows.h"

#include <limits>

#include "testing/split.h"

namespace zqn::testing {
namespace {

using std::chrono::day;
using std::chrono::month;
using std::chrono::year;
using std::chrono::year_month_day;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

constexpr year_month_day june30{year(2026), month(6), day(30)};

String written(const std::vector<SplitRow>& rows) { return writeSplit(rows); }

TEST(SplitRows, AreWrittenALineEach) {
  EXPECT_EQ(written({{.quantity = 2.5, .unit = u"Stk", .batch = u"L-4711", .expiry = june30},
                     {.quantity = 1, .unit = u"Stk", .serial = u"007"}}),
            u"2,5|\"Stk\"|\"L-4711\"|\"20260630000000\"|\"\"\r\n1|\"Stk\"|\"\"|\"\"|\"007\"");
  EXPECT_EQ(written({}), u"");
}

TEST(SplitRows, AreReadBackAsTheyWereWritten) {
  const std::vector<SplitRow> rows{
      {.quantity = 1234.567, .unit = u"m²", .batch = u"L|1", .expiry = june30, .serial = u"007"},
      {.quantity = 0, .unit = u"", .batch = u" ", .serial = u"12,5"},
      {.quantity = -0.001, .batch = u"ä\nß\t", .expiry = year_month_day(year(9999), month(12), day(31))},
      {.quantity = 1e15},
      {.quantity = 1, .expiry = year_month_day(year(1), month(1), day(1))},
  };
  EXPECT_EQ(readSplit(writeSplit(rows)), rows);
}

TEST(SplitRows, OfAnyTextAreWhatCanBeReadOfIt) {
  EXPECT_THAT(readSplit(u""), IsEmpty());
  EXPECT_THAT(readSplit(u"\r\n  \r\n"), IsEmpty());
  EXPECT_THAT(readSplit(u"2,5|\"Stk\"\r\n\r\n3|\"Stk\"|\"B\"\r\n"),
              ElementsAre(SplitRow{.quantity = 2.5, .unit = u"Stk"},
                          SplitRow{.quantity = 3, .unit = u"Stk", .batch = u"B"}));
  EXPECT_EQ(readSplit(u"abc|Stk|007|\"2026063\"|\"007\"").at(0),
            (SplitRow{.quantity = 0, .unit = u"Stk", .batch = u"7", .serial = u"007"}));
  for (const StringView noDate : {u"20260631", u"20261301", u"2026x630", u"00000101", u"20260600", u""})
    EXPECT_EQ(readSplit(u"1|\"\"|\"\"|\"" + String(noDate) + u"\"").at(0).expiry, std::nullopt)
        << toUtf8(noDate);
  EXPECT_EQ(readSplit(u"1|||20260630").at(0).expiry, june30) << "without quotes and without a time";
}

TEST(SplitRows, ThatTheTextCannotHoldAreRefused) {
  const auto refusal = [](const SplitRow& row) { return errorNumberOf([&] { written({row}); }); };
  EXPECT_EQ(refusal({.quantity = 1, .unit = u"\""}), error::InvalidProcedureCall);
  EXPECT_EQ(refusal({.quantity = 1, .batch = u"a\"b"}), error::InvalidProcedureCall);
  EXPECT_EQ(refusal({.quantity = 1, .serial = u"a\r\nb"}), error::InvalidProcedureCall);
  EXPECT_EQ(refusal({.quantity = std::numeric_limits<double>::infinity()}), error::InvalidProcedureCall);
  EXPECT_EQ(refusal({.quantity = std::numeric_limits<double>::quiet_NaN()}), error::InvalidProcedureCall);
  EXPECT_EQ(refusal({.quantity = 1, .expiry = year_month_day(year(2026), month(6), day(31))}),
            error::InvalidProcedureCall);
  EXPECT_EQ(refusal({.quantity = 1, .expiry = year_month_day(year(10000), month(1), day(1))}),
            error::InvalidProcedureCall);
}

using SplitRowsOfTheDialog = SplitTest;

TEST_F(SplitRowsOfTheDialog, GoInAndComeBack) {
  const std::vector<SplitRow> before{{.quantity = 2, .unit = u"Stk", .batch = u"L-1", .expiry = june30}};
  const Variant result = split(1, writeSplit(before), 5.0, [&] {
    EXPECT_EQ(gridRows().front(), u"2,000|Stk|L-1|30.06.2026|");
    typeAnd(u"007", key::Tab);
    typeAnd(u"311227", key::F9);
  });
  const std::vector<SplitRow> rows = readSplit(CStr(result));
  ASSERT_THAT(rows, SizeIs(2));
  EXPECT_EQ(rows[0], before[0]);
  EXPECT_EQ(rows[1], (SplitRow{.quantity = 3,
                               .unit = u"Stk",
                               .batch = u"007",
                               .expiry = year_month_day(year(2027), month(12), day(31))}));
}

}  // namespace
}  // namespace zqn::testing
