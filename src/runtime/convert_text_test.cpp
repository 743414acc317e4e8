// SPDX-License-Identifier: MIT
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "runtime/convert.h"
#include "runtime/locale.h"
#include "testing/runtime.h"

namespace zqn {
namespace {

using testing::ElementsAre;

TEST(CStr, WritesEveryKindAsReadInGermany) {
  EXPECT_EQ(CStr(Variant()), u"");
  EXPECT_EQ(CStr(true), u"Wahr");
  EXPECT_EQ(CStr(false), u"Falsch");
  EXPECT_EQ(CStr(std::int16_t{-5}), u"-5");
  EXPECT_EQ(CStr(2147483647), u"2147483647");
  EXPECT_EQ(CStr(1.5), u"1,5");
  EXPECT_EQ(CStr(u" a "), u" a ");
  EXPECT_EQ(CStr(dateSerial(2026, 3, 5)), u"05.03.2026");
  EXPECT_EQ(CStr(dateSerial({2026, 3, 5, 14, 30, 0})), u"05.03.2026 14:30:00");
  EXPECT_EQ(CStr(dateSerial({1899, 12, 30, 14, 30, 0})), u"14:30:00");
  EXPECT_EQ(CStr(Date{0}), u"00:00:00");
}

TEST(Concatenate, TakesNullAsEmptyText) {
  EXPECT_EQ(concatenate(Null), u"");
  EXPECT_EQ(concatenate(Variant()), u"");
  EXPECT_EQ(concatenate(1.5), u"1,5");
  EXPECT_EQ(errorNumberOf([] { concatenate(Missing); }), error::TypeMismatch);
}

TEST(Trim, RemovesBlanksAtBothEndsAndNothingElse) {
  EXPECT_EQ(Trim(u"  a b  "), u"a b");
  EXPECT_EQ(Trim(u"   "), u"");
  EXPECT_EQ(Trim(u""), u"");
  EXPECT_EQ(Trim(u"\ta\r\n"), u"\ta\r\n");
  EXPECT_EQ(Trim(u" \u00A0a "), u"\u00A0a");
}

TEST(Case, UpperAndLowerUnitsArePairs) {
  struct Row {
    StringView upper, lower;
  };
  const Row pairs[] = {
      {u"ABCXYZ", u"abcxyz"},
      {u"ÀÖØÞÄÖÜ", u"àöøþäöü"},
      {u"Ÿ", u"ÿ"},
      {u"ĀĮĲĶĹŇŊŶŹŽȘȚ", u"āįĳķĺňŋŷźžșț"},
      {u"ΑΡΣΫΆΈΉΊΌΎΏ", u"αρσϋάέήίόύώ"},
      {u"АЯЁЂЏҐӀӁӍӐԮ", u"аяёђџґӏӂӎӑԯ"},
  };
  for (const Row& pair : pairs) {
    EXPECT_EQ(UCase(pair.lower), pair.upper);
    EXPECT_EQ(LCase(pair.upper), pair.lower);
    EXPECT_EQ(UCase(pair.upper), pair.upper);
    EXPECT_EQ(LCase(pair.lower), pair.lower);
  }
  EXPECT_EQ(UCase(u"ß×÷µıſ1_€中"), u"ß×÷µıſ1_€中");
  EXPECT_EQ(LCase(u"×÷İ1_€中"), u"×÷İ1_€中");
  EXPECT_EQ(UCase(u"ς"), u"Σ");
  EXPECT_EQ(LCase(u"ẞ"), u"ß");
}

TEST(Case, EveryUnitIsStableAndNoSmallLetterHasTwoCapitals) {
  std::array<int, 0x10000> capitals{};
  for (unsigned unit = 0; unit < 0x10000; ++unit) {
    const auto letter = static_cast<char16_t>(unit);
    EXPECT_EQ(upperUnit(upperUnit(letter)), upperUnit(letter)) << unit;
    EXPECT_EQ(lowerUnit(lowerUnit(letter)), lowerUnit(letter)) << unit;
    if (lowerUnit(letter) != letter) ++capitals[lowerUnit(letter)];
  }
  for (unsigned unit = 0; unit < 0x10000; ++unit) EXPECT_LE(capitals[unit], 1) << unit;
}

TEST(StrComp, IgnoresCaseButNotBlanksOrAccents) {
  EXPECT_EQ(StrComp(u"Abc", u"aBC"), 0);
  EXPECT_EQ(StrComp(u"ÄÖÜÿ", u"äöüŸ"), 0);
  EXPECT_EQ(StrComp(u"a", u"b"), -1);
  EXPECT_EQ(StrComp(u"B", u"a"), 1);
  EXPECT_EQ(StrComp(u"a", u"ä"), -1);
  EXPECT_EQ(StrComp(u"ä", u"b"), -1);
  EXPECT_EQ(StrComp(u"a", u"a "), -1);
  EXPECT_EQ(StrComp(u"", u""), 0);
}

TEST(StrComp, UsesTheComparisonOfTheLocale) {
  Locale reversed = Locale::german();
  reversed.compare = [](StringView left, StringView right) { return 40 * compareIgnoringCase(right, left); };
  const Locale::Scope scope(reversed);
  EXPECT_EQ(StrComp(u"a", u"b"), 1);
  EXPECT_EQ(StrComp(u"b", u"a"), -1);
}

TEST(InStr, CountsFromZeroAndComparesExactly) {
  EXPECT_EQ(InStr(u"RLGA", u"G"), 2u);
  EXPECT_EQ(InStr(u"RLGA", u"g"), String::npos);
  EXPECT_EQ(InStr(u"RLGA", u""), 0u);
  EXPECT_EQ(InStr(u"", u"G"), String::npos);
}

TEST(Replace, ReplacesEveryOccurrenceOnce) {
  EXPECT_EQ(Replace(u"1,2,3", u",", u"."), u"1.2.3");
  EXPECT_EQ(Replace(u"aaa", u"aa", u"a"), u"aa");
  EXPECT_EQ(Replace(u"abc", u"x", u"y"), u"abc");
  EXPECT_EQ(Replace(u"abc", u"", u"y"), u"abc");
  EXPECT_EQ(Replace(u"abab", u"ab", u""), u"");
  EXPECT_EQ(Replace(u"a", u"a", u"aa"), u"aa");
}

TEST(Split, GivesThePartsBetweenTheDelimiters) {
  EXPECT_THAT(Split(u"a|b||c", u"|"), ElementsAre(u"a", u"b", u"", u"c"));
  EXPECT_THAT(Split(u"a\r\nb\r\n", u"\r\n"), ElementsAre(u"a", u"b", u""));
  EXPECT_THAT(Split(u"abc", u","), ElementsAre(u"abc"));
  EXPECT_THAT(Split(u"", u","), ElementsAre(u""));
  EXPECT_THAT(Split(u"abc", u""), ElementsAre(u"abc"));
}

TEST(Equals, ComparesVariantsAsTheLanguageDoes) {
  struct Row {
    Variant left, right;
    std::optional<bool> equal;
  };
  const Row rows[] = {
      {Null, Null, std::nullopt},
      {Null, 5, std::nullopt},
      {Null, Variant(), std::nullopt},
      {Null, u"", std::nullopt},
      {Variant(), Variant(), true},
      {Variant(), 0, true},
      {Variant(), 1, false},
      {Variant(), false, true},
      {Variant(), u"", true},
      {Variant(), u"0", false},
      {5, 5.0, true},
      {5, std::int16_t{5}, true},
      {5, 6, false},
      {true, -1, true},
      {true, 1, false},
      {Date{5}, 5, true},
      {u"a", u"a", true},
      {u"a", u"A", false},
      {u"a", u"a ", false},
      {u"0", 0, false},
      {u"5", 5, false},
      {u"Wahr", true, false},
      {u"05.03.2026", dateSerial(2026, 3, 5), false},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(equals(row.left, row.right), row.equal)
        << testing::PrintToString(row.left) << " = " << testing::PrintToString(row.right);
    EXPECT_EQ(equals(row.right, row.left), row.equal)
        << testing::PrintToString(row.right) << " = " << testing::PrintToString(row.left);
  }
  EXPECT_EQ(errorNumberOf([] { equals(Missing, 5); }), error::TypeMismatch);
  EXPECT_EQ(errorNumberOf([] { equals(Null, std::make_shared<Object>()); }), error::TypeMismatch);
}

}  // namespace
}  // namespace zqn
