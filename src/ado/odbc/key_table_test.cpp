// SPDX-License-Identifier: MIT
#include "ado/odbc/key_table.h"

#include <gtest/gtest.h>

namespace zqn::ado::odbc {

namespace {

std::vector<Value> key(StringView text, std::int64_t number) { return {Value::of(text), Value::of(number)}; }

}  // namespace

TEST(KeyTable, GivesEachKeyOneHandle) {
  KeyTable keys(2);
  EXPECT_EQ(keys.add(key(u"a", 1)), 0);
  EXPECT_EQ(keys.add(key(u"a", 2)), 1);
  EXPECT_EQ(keys.add(key(u"A", 1)), 2) << "the letters as they are stored";
  EXPECT_EQ(keys.add(key(u"a", 1)), 0);
  EXPECT_EQ(keys.key(2)[0].text, u"A");
  EXPECT_EQ(keys.key(1)[1].integer, 2);
}

TEST(KeyTable, TellsNullEmptyTextAndZeroApart) {
  KeyTable keys(1);
  EXPECT_EQ(keys.add(std::vector<Value>{Value{}}), 0);
  EXPECT_EQ(keys.add(std::vector<Value>{Value::of(u"")}), 1);
  EXPECT_EQ(keys.add(std::vector<Value>{Value::of(std::int64_t{0})}), 2);
  EXPECT_EQ(keys.add(std::vector<Value>{Value::of(0.0)}), 3);
  EXPECT_EQ(keys.add(std::vector<Value>{Value::of(u"")}), 1);
}

TEST(KeyTable, HandleStaysWhenTheKeyChanges) {
  KeyTable keys(2);
  keys.add(key(u"a", 1));
  keys.add(key(u"b", 1));
  keys.change(0, 0, Value::of(u"c"));
  EXPECT_EQ(keys.key(0)[0].text, u"c");
  EXPECT_EQ(keys.add(key(u"c", 1)), 0);
  EXPECT_EQ(keys.add(key(u"a", 1)), 2) << "another row has the old key now";
  EXPECT_EQ(keys.add(key(u"b", 1)), 1);
}

TEST(KeyTable, HoldsManyKeys) {
  KeyTable keys(1);
  const auto text = [](int i) { return fromUtf8("k" + std::to_string(i)); };
  for (int i = 0; i < 20000; ++i) {
    const String name = text(i);
    ASSERT_EQ(keys.add(std::vector<Value>{Value::of(StringView(name))}), i);
  }
  for (int i = 0; i < 20000; i += 7) keys.change(i, 0, Value::of(std::int64_t{i}));
  for (int i = 0; i < 20000; ++i) {
    const String name = text(i);
    const Value now = i % 7 == 0 ? Value::of(std::int64_t{i}) : Value::of(StringView(name));
    ASSERT_EQ(keys.add(std::vector<Value>{now}), i);
  }
}

}  // namespace zqn::ado::odbc
