// SPDX-License-Identifier: MIT
//
// Numbers and dates as the quantity split reads them: nothing is refused.
#include "split/split_values.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "runtime/convert.h"
#include "runtime/locale.h"
#include "testing/runtime.h"

namespace zqn {
namespace {

class SplitValues : public ::testing::Test {
 protected:
  static Locale in2026() {
    Locale locale = Locale::german();
    locale.now = [] { return dateSerial(2026, 11, 21); };
    return locale;
  }
  Locale::Scope scope_{in2026()};
};

using SplitNumber = SplitValues;
using SplitDay = SplitValues;
using StoredDate = SplitValues;

TEST_F(SplitNumber, APointIsAlwaysAThousandsSign) {
  EXPECT_EQ(Val2(u"1.234,5"), 1234.5);
  EXPECT_EQ(Val2(u"1.5"), 15);
  EXPECT_EQ(Val2(u"1,5"), 1.5);
  EXPECT_EQ(Val2(u"1.2.3"), 123);
}

TEST_F(SplitNumber, ReadsWhatStandsInFrontAndRefusesNothing) {
  EXPECT_EQ(Val2(u"abc"), 0);
  EXPECT_EQ(Val2(u""), 0);
  EXPECT_EQ(Val2(u"12 Stk"), 12);
  EXPECT_EQ(Val2(u" - 3,25"), -3.25);
  EXPECT_EQ(Val2(u"1,2,3"), 1.2);
  EXPECT_EQ(Val2(u"&HFF"), 255);
  EXPECT_EQ(Val2(u"1e3"), 1000);
  EXPECT_EQ(Val2(u"9e999"), 0);
}

TEST_F(SplitNumber, OfAnyValueIsReadFromItsText) {
  EXPECT_EQ(Val2(Null), 0);
  EXPECT_EQ(Val2(Variant()), 0);
  EXPECT_EQ(Val2(1234.5), 1234.5);
  EXPECT_EQ(Val2(std::int32_t{-7}), -7);
  EXPECT_EQ(Val2(true), 0) << "\"Wahr\"";
  EXPECT_EQ(Val2(Missing), 0);
  EXPECT_EQ(Val2(1e300), 1e300);
}

TEST_F(SplitNumber, IsShownWithThreeDecimals) {
  EXPECT_EQ(quantityText(1234.5), u"1.234,500");
  EXPECT_EQ(quantityText(0), u"0,000");
  EXPECT_EQ(quantityText(0.0005), u"0,001");
  EXPECT_EQ(quantityText(-2), u"-2,000");
}

// ---- typed dates

TEST_F(SplitDay, ReadsAlikeWithAndWithoutPoints) {
  for (const char16_t* text : {u"311226", u"31.12.26", u"3112.26", u"31.1226", u"31.12.2026"})
    EXPECT_EQ(ParseDate(text), u"31.12.2026") << toUtf8(text);
  EXPECT_EQ(ParseDate(u"311"), u"31.01.2026");
  EXPECT_EQ(ParseDate(u"5.3"), u"05.03.2026");
}

TEST_F(SplitDay, BeyondTheMonthIsItsLastDay) {
  EXPECT_EQ(ParseDate(u"3102"), u"28.02.2026");
  EXPECT_EQ(ParseDate(u"310224"), u"29.02.2024");
  EXPECT_EQ(ParseDate(u"31.4."), u"30.04.2026");
  EXPECT_EQ(ParseDate(u"99.99.99"), u"31.12.1999");
  EXPECT_EQ(ParseDate(u"31.12.9999"), u"31.12.9999");
}

TEST_F(SplitDay, BelowTheFirstIsTheFirst) {
  EXPECT_EQ(ParseDate(u"0"), u"01.01.2026");
  EXPECT_EQ(ParseDate(u"abc"), u"01.01.2026");
  EXPECT_EQ(ParseDate(u".."), u"01.01.2026");
  EXPECT_EQ(ParseDate(u"-5.-3"), u"05.03.2026") << "signs do not count";
}

TEST_F(SplitDay, TwoDigitsUpToTenYearsAheadStayInThisCentury) {
  EXPECT_EQ(ParseDate(u"1.1.36"), u"01.01.2036");
  EXPECT_EQ(ParseDate(u"1.1.37"), u"01.01.1937");
  EXPECT_EQ(ParseDate(u"1.1.99"), u"01.01.1999");
}

TEST_F(SplitDay, AShortYearTakesThePlaceOfTheLastDigits) {
  EXPECT_EQ(ParseDate(u"1.1.6"), u"01.01.2026");
  EXPECT_EQ(ParseDate(u"1.1.9"), u"01.01.2029");
  EXPECT_EQ(ParseDate(u"1.1.06"), u"01.01.2006");
  EXPECT_EQ(ParseDate(u"1.1.987"), u"01.01.2987");
  EXPECT_EQ(ParseDate(u"1.1.1987"), u"01.01.1987");
  EXPECT_EQ(ParseDate(u"1.1.19871"), u"01.01.1987") << "what follows the year is dropped";
}

TEST_F(SplitDay, AYearThatIsNoneIsThePresentOne) {
  EXPECT_EQ(ParseDate(u"1.1.abcd"), u"01.01.2026");
  EXPECT_EQ(ParseDate(u"1.1.-5"), u"01.01.2026");
  EXPECT_EQ(ParseDate(u"1.1.9e9"), u"01.01.2026");
  EXPECT_EQ(ParseDate(u"1.1.1e3"), u"01.01.1000");
  EXPECT_EQ(ParseDate(u"1.1.0026"), u"01.01.2026") << "no date is before the year 100";
}

TEST_F(SplitDay, WhatWasReadReadsTheSameAgain) {
  for (const char16_t* text : {u"311", u"29022024", u"1.1.987", u"31.12.9999", u"x"})
    EXPECT_EQ(ParseDate(ParseDate(text)), ParseDate(text)) << toUtf8(text);
}

TEST_F(SplitDay, MonthsHaveTheirLength) {
  EXPECT_EQ(LastOfMonth(u"01.02.2026"), 28);
  EXPECT_EQ(LastOfMonth(u"01.02.2000"), 29);
  EXPECT_EQ(LastOfMonth(u"01.12.9999"), 31);
  EXPECT_EQ(errorNumberOf([] { return LastOfMonth(u"heute"); }), error::TypeMismatch);
}

// ---- stored dates

TEST_F(StoredDate, HasFourteenDigitsWithZerosAsTime) {
  EXPECT_EQ(DateToStore(u"03.02.2026"), Variant(u"20260203000000"));
  EXPECT_EQ(DateToStore(u"03.02.2026 14:30"), Variant(u"20260203000000"));
  EXPECT_EQ(DateToStore(u"31.12.9999"), Variant(u"99991231000000"));
}

TEST_F(StoredDate, IsNullForBlanksAndEmptyForNoDate) {
  EXPECT_EQ(DateToStore(u"   "), Variant(Null));
  EXPECT_EQ(DateToStore(Null), Variant(Null));
  EXPECT_EQ(DateToStore(u"32.13.2026"), Variant(u""));
}

TEST_F(StoredDate, IsCutByPosition) {
  EXPECT_EQ(dateFromStore(u"20260203000000"), u"03.02.2026");
  EXPECT_EQ(dateFromStore(u"202602"), u".02.2026");
  EXPECT_EQ(dateFromStore(u"2026020"), u"0.02.2026");
  EXPECT_EQ(dateFromStore(u"x"), u"..x");
}

}  // namespace
}  // namespace zqn
