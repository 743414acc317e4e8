// SPDX-License-Identifier: MIT
//
// The columns of the split grid, its running total, its marks.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cmath>
#include <random>
#include <set>

#include "split/split_columns.h"
#include "split/split_marks.h"
#include "split/split_total.h"
#include "testing/runtime.h"

namespace zqn {
namespace {

std::vector<int> editable(SplitKind kind) {
  const SplitColumns columns(kind, u"Stk");
  std::vector<int> cols;
  for (int col = 0; col <= 6; ++col) {
    if (columns.isEditable(col)) cols.push_back(col);
  }
  return cols;
}

TEST(SplitColumns, EachKindEditsItsOwn) {
  using ::testing::ElementsAre;
  EXPECT_THAT(editable(SplitKind::Batches), ElementsAre(1, 3, 4));
  EXPECT_THAT(editable(SplitKind::Serials), ElementsAre(5));
  EXPECT_THAT(editable(SplitKind::Both), ElementsAre(3, 4, 5));
  EXPECT_THAT(editable(SplitKind::None), ::testing::IsEmpty());
}

TEST(SplitColumns, ScansSkipWhatIsNeverEdited) {
  const SplitColumns batches(SplitKind::Batches, u"Stk");
  EXPECT_EQ(batches.FirstEditCol(), 1);
  EXPECT_EQ(batches.LastEditCol(), 4);
  EXPECT_EQ(batches.NextEditCol(1), 3);
  EXPECT_EQ(batches.NextEditCol(4), 4);
  EXPECT_EQ(batches.PrevEditCol(3), 1);
  EXPECT_EQ(batches.PrevEditCol(1), 1);
  EXPECT_TRUE(batches.IsLastEditCol(4));
  EXPECT_FALSE(batches.IsLastEditCol(3));
  EXPECT_TRUE(batches.IsFirstEditCol(1));
  const SplitColumns none(SplitKind::None, u"");
  EXPECT_EQ(none.FirstEditCol(), 1);
  EXPECT_EQ(none.LastEditCol(), 1);
  EXPECT_TRUE(none.IsLastEditCol(1));
}

TEST(SplitColumns, ANewRowHasOneUnit) {
  const SplitColumns columns(SplitKind::Both, u"Karton");
  EXPECT_EQ(columns(1).Default, u"1,000");
  EXPECT_EQ(columns(2).Default, u"Karton");
  EXPECT_EQ(columns(3).Default, u"");
  EXPECT_EQ(columns(1).Alignment, 7);
  EXPECT_EQ(errorNumberOf([&] { return columns(0).Alignment; }), error::SubscriptOutOfRange);
  EXPECT_EQ(errorNumberOf([&] { return columns(6).Alignment; }), error::SubscriptOutOfRange);
}

TEST(SplitColumns, WhatIsTypedIsReadByItsColumn) {
  const SplitColumns columns(SplitKind::Both, u"Stk");
  EXPECT_EQ(columns.cellText(1, u"1.5"), u"15,000");
  EXPECT_EQ(columns.cellText(1, u"abc"), u"0,000");
  EXPECT_EQ(columns.cellText(3, u" 1.5 "), u" 1.5 ");
  EXPECT_EQ(columns.cellText(4, u"1.2.2024"), u"01.02.2024");
  EXPECT_EQ(columns.cellText(4, u"  "), u"");
}

// ---- the running total

TEST(SplitTotal, IsThatOfAllRowsButOne) {
  SplitTotal total;
  total.rows(5);
  total.set(1, 2.5);
  total.set(2, 0.001);
  total.set(4, 100);
  EXPECT_EQ(total.without(4), 2.501);
  EXPECT_EQ(total.without(4, 1, 7.1234567), 7.124457) << "six decimals";
  EXPECT_EQ(total.without(4, 4, 50), 2.501) << "the row that does not count";
  total.set(1, 1);
  EXPECT_EQ(total.without(4), 1.001);
}

TEST(SplitTotal, GoesWithItsRows) {
  SplitTotal total;
  total.rows(4);
  total.set(2, 5);
  total.set(3, 7);
  total.rows(3);
  EXPECT_EQ(total.without(0), 5);
  total.rows(4);
  EXPECT_EQ(total.without(0), 5);
}

TEST(SplitTotal, NeverDriftsHoweverOftenItChanges) {
  SplitTotal total;
  total.rows(100);
  std::mt19937 random(7);
  for (int i = 0; i < 100'000; ++i) total.set(static_cast<int>(random() % 100), (random() % 1000) / 1000.0);
  long long thousandths = 0;
  for (int row = 0; row < 99; ++row) thousandths += std::llround(total.at(row) * 1000);
  EXPECT_EQ(total.without(99), static_cast<double>(thousandths) / 1000);
}

TEST(SplitTotal, CountsQuantitiesOfAnySize) {
  SplitTotal total;
  total.rows(4);
  total.set(1, 1e300);
  total.set(2, 1);
  EXPECT_EQ(total.without(3), 1e300);
  EXPECT_EQ(total.without(3, 1, 2), 3);
  total.set(1, 9e9);
  EXPECT_EQ(total.without(3), 9'000'000'001.0);
}

TEST(SplitMarks, AreToldApartByNameAndByShape) {
  using namespace split_marks;
  const std::vector<std::pair<const Picture*, StringView>> named = {
      {&current, u"picCurrent"}, {&currenti, u"picCurrenti"}, {&edit, u"picEdit"},
      {&editi, u"picEditi"},     {&fresh, u"picNew"},         {&freshi, u"picNewi"}};
  std::set<std::pair<std::size_t, const PicturePoint*>> looks;
  for (const auto& [mark, name] : named) {
    EXPECT_EQ(String(mark->name), String(name));
    EXPECT_EQ(mark->width, 14);
    EXPECT_EQ(mark->height, 14);
    const auto& last = mark->shapes.back();
    looks.insert({mark->shapes.size(), last.outline.data()});
  }
  EXPECT_EQ(looks.size(), 6u);
}

}  // namespace
}  // namespace zqn
