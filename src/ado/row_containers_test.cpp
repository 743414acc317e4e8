// SPDX-License-Identifier: MIT
//
// The containers under a recordset: RowStore, RowCache, HandleIndex, ValueIndex.
#include <gtest/gtest.h>

#include "ado/handle_index.h"
#include "ado/row_cache.h"
#include "ado/row_store.h"
#include "ado/value_index.h"
#include "testing/runtime.h"

namespace zqn::ado {

TEST(RowStore, KeepsEachKindOfValue) {
  RowStore rows(2);
  rows.addText("Müller");
  rows.addNull();
  rows.addInteger(std::int64_t{1} << 60);
  rows.addReal(0.5);
  ASSERT_EQ(rows.rows(), 2);
  EXPECT_EQ(rows.at(0, 0).text, u"Müller");
  EXPECT_EQ(rows.at(0, 1).kind, Value::Kind::Null);
  EXPECT_EQ(rows.at(1, 0).integer, std::int64_t{1} << 60);
  EXPECT_EQ(rows.at(1, 1).real, 0.5);
}

TEST(RowStore, ReplacesACellByALongerTextOfItsOwn) {
  RowStore rows(1);
  rows.addText("kurz");
  rows.addText("ein langer Text, der mehr Platz braucht");
  rows.set(0, 0, rows.at(1, 0));
  EXPECT_EQ(rows.at(0, 0).text, rows.at(1, 0).text);
  rows.clear(3);
  EXPECT_EQ(rows.rows(), 0);
}

TEST(RowStore, TakesTwentyBytesForAShortText) {
  RowStore rows(1);
  for (int i = 0; i < (1 << 16); ++i) rows.addText("10");
  EXPECT_LE(rows.bytes(), std::size_t{(1 << 16) * 20 * 2}) << "twice, as buffers grow ahead";
}

TEST(RowCache, KeepsAPageOfNeighbours) {
  RowCache cache(10);
  EXPECT_EQ(cache.find(3), nullptr);
  for (int row = 95; row < 105; ++row) cache.put(row, {Variant(row)});
  for (int row = 95; row < 105; ++row) EXPECT_EQ(*cache.find(row), std::vector<Variant>{Variant(row)});
}

TEST(RowCache, ForgetsTheRowThatHadThePlace) {
  RowCache cache(10);
  cache.put(3, {Variant(u"alt")});
  cache.put(13, {Variant(u"neu")});
  EXPECT_EQ(cache.find(3), nullptr);
  cache.drop(3);
  EXPECT_NE(cache.find(13), nullptr);
  cache.drop(13);
  EXPECT_EQ(cache.find(13), nullptr);
  cache.put(4, {});
  cache.clear();
  EXPECT_EQ(cache.find(4), nullptr);
}

TEST(HandleIndex, KnowsWhereEachHandleStandsAsTheyCome) {
  Handles handles;
  HandleIndex index;
  EXPECT_FALSE(index.rowOf(handles, 1));
  for (std::int64_t i = 0; i < 100000; ++i) {
    handles.push_back(i * 7919 % 100003 - 50000);
    if (i % 3333 == 0) index.extend(handles);
  }
  index.extend(handles);
  for (std::size_t row = 0; row < handles.size(); ++row)
    ASSERT_EQ(index.rowOf(handles, handles[row]), static_cast<int>(row));
  EXPECT_FALSE(index.rowOf(handles, 60000));
  EXPECT_LE(index.bytes(), handles.size() * 12);
}

TEST(ValueIndex, FindsCandidatesInBothDirections) {
  RowStore rows(1);
  for (int i = 0; i < 1000; ++i) rows.addText(i % 10 == 3 ? "Drei" : "andere");
  const ValueIndex index(rows, 0);
  const auto first = [&](int from, int direction) {
    return index.first(Value::of(StringView(u"DREI ")), from, direction,
                       [&](int row) { return rows.at(row, 0).text == u"Drei"; });
  };
  EXPECT_EQ(first(0, 1), 3);
  EXPECT_EQ(first(3, 1), 3);
  EXPECT_EQ(first(4, 1), 13);
  EXPECT_EQ(first(994, 1), -1);
  EXPECT_EQ(first(999, -1), 993);
  EXPECT_EQ(first(993, -1), 993);
  EXPECT_EQ(first(2, -1), -1);
  EXPECT_EQ(index.first(Value::of(StringView(u"fehlt")), 0, 1, [](int) { return true; }), -1);
}

TEST(ValueIndex, TakesWholeNumbersAndFractionsAlike) {
  RowStore rows(1);
  rows.addNull();
  rows.addInteger(5);
  rows.addReal(5);
  rows.addReal(-0.0);
  const ValueIndex index(rows, 0);
  EXPECT_TRUE(index.usable());
  EXPECT_EQ(index.first(Value::of(5.0), 0, 1, [](int) { return true; }), 1);
  EXPECT_EQ(index.first(Value::of(5.0), 2, 1, [](int) { return true; }), 2);
  EXPECT_EQ(index.first(Value::of(std::int64_t{0}), 0, 1, [](int) { return true; }), 3);
}

TEST(ValueIndex, IsOfNoUseWhereTextsAndNumbersMix) {
  RowStore rows(1);
  rows.addText("5");
  rows.addInteger(5);
  EXPECT_FALSE(ValueIndex(rows, 0).usable());
}

}  // namespace zqn::ado
