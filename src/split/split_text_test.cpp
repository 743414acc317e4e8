// SPDX-License-Identifier: MIT
//
// The split text, read and written.
#include "split/split_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "testing/runtime.h"

namespace zqn {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

Variant field(int index, StringView line) { return GetField(index, line, u'|', u'"'); }

TEST(SplitField, IsTextWhenQuotedAndANumberWhereItIsOne) {
  constexpr StringView line = u"2,5|\"Stk\"|007|\"007\"|L-1";
  EXPECT_EQ(field(1, line), Variant(2.5));
  EXPECT_EQ(field(2, line), Variant(u"Stk"));
  EXPECT_EQ(field(3, line), Variant(7.0)) << "without quotes leading zeros are lost";
  EXPECT_EQ(field(4, line), Variant(u"007"));
  EXPECT_EQ(field(5, line), Variant(u"L-1"));
}

TEST(SplitField, TheNumberOfFieldsIsFieldZero) {
  EXPECT_EQ(field(0, u"1|2|3"), Variant(std::int32_t{3}));
  EXPECT_EQ(field(0, u"1"), Variant(std::int32_t{1}));
  EXPECT_EQ(field(0, u"||"), Variant(std::int32_t{3}));
}

TEST(SplitField, OfAnEmptyLineIsZeroOrTheLine) {
  EXPECT_EQ(field(0, u""), Variant(std::int32_t{0}));
  EXPECT_EQ(field(3, u""), Variant(u""));
}

TEST(SplitField, BeyondTheLastOneIsNull) {
  EXPECT_EQ(field(2, u"1"), Variant(Null));
  EXPECT_EQ(field(2, u"1|"), Variant(u""));
}

TEST(SplitField, KeepsASeparatorInsideQuotesAndNoQuote) {
  EXPECT_EQ(field(1, u"\"a|b\"|c"), Variant(u"a|b"));
  EXPECT_EQ(field(2, u"\"a|b\"|c"), Variant(u"c"));
  EXPECT_EQ(field(1, u"a\"b\"c"), Variant(u"abc"));
  EXPECT_EQ(field(1, u"\"offen|b"), Variant(u"offen|b"));
  EXPECT_EQ(field(1, u"\"\"|b"), Variant(u""));
  EXPECT_EQ(field(1, u"\"1\"2"), Variant(u"12")) << "quoted anywhere is text";
}

TEST(SplitField, ReadsANumberByItsPoint) {
  EXPECT_EQ(field(1, u"1.234,5"), Variant(1.234)) << "the second point ends it";
  EXPECT_EQ(field(1, u"1,5"), Variant(1.5));
  EXPECT_EQ(field(1, u"12a"), Variant(u"12a"));
  EXPECT_EQ(field(1, u"1e3"), Variant(1000.0));
}

// ---- lines

TEST(SplitTable, HasARowForEachLine) {
  EXPECT_EQ(ParseSplit(u"").count, 0);
  EXPECT_THAT(ParseSplit(u"").rows, IsEmpty());
  const SplitTable table = ParseSplit(u"1|\"a\"\r\n2|\"b\"\r\n");
  EXPECT_EQ(table.count, 2);
  ASSERT_THAT(table.rows, SizeIs(2));
  EXPECT_EQ(table.rows[1][0], Variant(2.0));
  EXPECT_EQ(table.rows[1][1], Variant(u"b"));
  EXPECT_TRUE(table.rows[1][4].isNull());
}

TEST(SplitTable, CountsEmptyLinesNotAndYetHasTheirRow) {
  const SplitTable table = ParseSplit(u"1\r\n\r\n   \r\n2");
  EXPECT_EQ(table.count, 2);
  ASSERT_THAT(table.rows, SizeIs(4));
  EXPECT_TRUE(table.rows[1][0].isEmpty());
  EXPECT_TRUE(table.rows[2][0].isEmpty());
  EXPECT_EQ(table.rows[3][0], Variant(2.0));
}

TEST(SplitTable, TakesASingleLineFeedAsPartOfALine) {
  EXPECT_EQ(ParseSplit(u"1|\"a\nb\"").rows[0][1], Variant(u"a\nb"));
}

// ---- cells

SplitCells cells(StringView line, SplitKind kind = SplitKind::Both) {
  return cellsOf(ParseSplit(line).rows.at(0), kind);
}

TEST(SplitRow, ShowsNumberAndDateInTheirForm) {
  EXPECT_THAT(cells(u"2,5|\"Stk\"|\"L-1\"|\"20260630000000\"|\"S7\""),
              ElementsAre(u"2,500", u"Stk", u"L-1", u"30.06.2026", u"S7"));
}

TEST(SplitRow, OfAShortLineHasEmptyCells) {
  EXPECT_THAT(cells(u"3"), ElementsAre(u"3,000", u"", u"", u"", u""));
  EXPECT_THAT(cells(u"|\"Stk\""), ElementsAre(u"0,000", u"Stk", u"", u"", u""));
}

TEST(SplitRow, LeavesOutWhatItsKindDoesNotHave) {
  constexpr StringView line = u"1|\"Stk\"|\"L-1\"|\"20260630000000\"|\"S7\"";
  EXPECT_THAT(cells(line, SplitKind::Batches), ElementsAre(u"1,000", u"Stk", u"L-1", u"30.06.2026", u""));
  EXPECT_THAT(cells(line, SplitKind::Serials), ElementsAre(u"1,000", u"Stk", u"", u"", u"S7"));
}

TEST(SplitRow, CutsAShortDateByPosition) {
  EXPECT_THAT(cells(u"1|||\"202606\""), ElementsAre(u"1,000", u"", u"", u".06.2026", u""));
  EXPECT_THAT(cells(u"1|||202606"), ElementsAre(u"1,000", u"", u"", u".06.2026", u""));
}

// ---- written

TEST(SplitTextOut, QuotesEverythingButTheQuantity) {
  EXPECT_EQ(BuildSplit({{u"1.234,500", u"Stk", u"007", u"30.06.2026", u"S7"}}),
            u"1234,5|\"Stk\"|\"007\"|\"20260630000000\"|\"S7\"");
  EXPECT_EQ(BuildSplit({{u"1,000", u"", u"", u"", u""}}), u"1|\"\"|\"\"|\"\"|\"\"");
}

TEST(SplitTextOut, LeavesARowWithoutQuantityOutButNotItsBreak) {
  const SplitCells zero{u"0,000", u"Stk", u"", u"", u"S0"};
  const SplitCells one{u"1,000", u"Stk", u"", u"", u"S1"};
  const String line = u"1|\"Stk\"|\"\"|\"\"|\"S1\"";
  EXPECT_EQ(BuildSplit({zero, one}), line) << "nothing stands in front of the first line";
  EXPECT_EQ(BuildSplit({one, zero, one}), line + u"\r\n\r\n" + line);
  EXPECT_EQ(BuildSplit({one, zero}), line + u"\r\n");
  EXPECT_EQ(BuildSplit({}), u"");
}

TEST(SplitTextOut, EscapesNothing) {
  EXPECT_EQ(BuildSplit({{u"1,000", u"a\"b", u"c|d", u"", u""}}), u"1|\"a\"b\"|\"c|d\"|\"\"|\"\"");
}

TEST(SplitTextOut, ReadsBackAsTheSameRows) {
  const std::vector<SplitCells> rows{{u"1.234,567", u"Stk", u"L|1", u"29.02.2024", u"007"},
                                     {u"0,001", u"", u" ", u"", u"12,5"},
                                     {u"-5,000", u"m²", u"ä\nß", u"31.12.9999", u""}};
  const SplitTable table = ParseSplit(BuildSplit(rows));
  ASSERT_EQ(table.count, 3);
  for (std::size_t i = 0; i < rows.size(); ++i) EXPECT_EQ(cellsOf(table.rows[i], SplitKind::Both), rows[i]);
}

}  // namespace
}  // namespace zqn
