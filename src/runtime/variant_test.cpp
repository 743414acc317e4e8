// SPDX-License-Identifier: MIT
#include "runtime/variant.h"

#include <gtest/gtest.h>

#include "testing/runtime.h"

namespace zqn {
namespace {

using Kind = Variant::Kind;

TEST(Variant, CarriesTheKindOfWhatItWasMadeOf) {
  const auto object = std::make_shared<Object>();
  struct Row {
    Variant value;
    Kind kind;
    bool isNumber;
  };
  const Row rows[] = {
      {Variant(), Kind::Empty, false},
      {Null, Kind::Null, false},
      {Missing, Kind::Missing, false},
      {true, Kind::Boolean, true},
      {std::int16_t{5}, Kind::Integer, true},
      {5, Kind::Long, true},
      {5.0, Kind::Double, true},
      {Date{5}, Kind::Date, false},
      {u"5", Kind::String, false},
      {String(u"5"), Kind::String, false},
      {StringView(u"5"), Kind::String, false},
      {object, Kind::Object, false},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(row.value.kind(), row.kind) << testing::PrintToString(row.value);
    EXPECT_EQ(row.value.isNumber(), row.isNumber) << testing::PrintToString(row.value);
  }
}

TEST(Variant, GivesItsValueForItsOwnKindOnly) {
  const Variant number = 5;
  ASSERT_NE(number.as<std::int32_t>(), nullptr);
  EXPECT_EQ(*number.as<std::int32_t>(), 5);
  EXPECT_EQ(number.as<std::int16_t>(), nullptr);
  EXPECT_EQ(number.as<double>(), nullptr);
  EXPECT_EQ(number.as<String>(), nullptr);
}

TEST(Variant, IsTheSameOnlyWithTheSameKindAndValue) {
  EXPECT_EQ(Variant(5), Variant(5));
  EXPECT_EQ(Variant(Null), Variant(Null));
  EXPECT_NE(Variant(5), Variant(6));
  EXPECT_NE(Variant(5), Variant(5.0));
  EXPECT_NE(Variant(), Variant(Null));
  EXPECT_NE(Variant(), Variant(u""));
  EXPECT_NE(Variant(u"a"), Variant(u"A"));
}

TEST(VariantArray, ReadsAndWritesSingleElements) {
  VariantArray array = {u"10", 5, Null};
  EXPECT_EQ(array.size(), 3u);
  EXPECT_EQ(array.dimensions(), 1);
  array.at(1) = u"neu";
  EXPECT_EQ(array.at(1), Variant(u"neu"));
  EXPECT_EQ(array.elements()[0], Variant(u"10"));
}

TEST(VariantArray, IndexOutsideRaisesError) {
  VariantArray array = {1, 2};
  const VariantArray& readOnly = array;
  EXPECT_EQ(errorNumberOf([&] { array.at(2); }), error::SubscriptOutOfRange);
  EXPECT_EQ(errorNumberOf([&] { readOnly.at(2); }), error::SubscriptOutOfRange);
  EXPECT_EQ(errorNumberOf([&] { VariantArray().at(0); }), error::SubscriptOutOfRange);
}

TEST(VariantArray, WithTwoDimensionsEveryIndexRaisesError) {
  VariantArray array({1, 2, 3, 4}, 2);
  EXPECT_EQ(array.dimensions(), 2);
  EXPECT_EQ(errorNumberOf([&] { array.at(0); }), error::SubscriptOutOfRange);
}

}  // namespace
}  // namespace zqn
