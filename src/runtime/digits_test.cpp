// SPDX-License-Identifier: MIT
#include "runtime/digits.h"

#include <gtest/gtest.h>

#include <limits>

#include "runtime/ascii.h"

namespace zqn {

TEST(Digits, WriteWholeNumbersOfAnyWidth) {
  EXPECT_EQ(digits(0), u"0");
  EXPECT_EQ(digits(std::int16_t{-7}), u"-7");
  EXPECT_EQ(digits(std::numeric_limits<std::int64_t>::min()), u"-9223372036854775808");
  EXPECT_EQ(digits(std::numeric_limits<std::uint64_t>::max()), u"18446744073709551615");
}

TEST(Digits, WriteADoubleSoThatItReadsBackTheSame) {
  EXPECT_EQ(digits(0.1), u"0.1");
  EXPECT_EQ(digits(-2.5), u"-2.5");
  EXPECT_EQ(digits(1e300), u"1e+300");
  EXPECT_EQ(digits(0.1 + 0.2), u"0.30000000000000004");
}

TEST(Ascii, FoldsItsOwnLettersAlone) {
  EXPECT_TRUE(ascii::same(u"Pwd", u"PWD"));
  EXPECT_FALSE(ascii::same(u"PWD", u"PWDS"));
  EXPECT_FALSE(ascii::same(u"größe", u"GRÖSSE"));
  EXPECT_FALSE(ascii::same(u"ä", u"Ä"));
  EXPECT_EQ(ascii::lower(u"Schlüssel-Ä_Z@["), u"schlüssel-Ä_z@[");
}

TEST(Ascii, TakesBlanksOffBothEnds) {
  EXPECT_EQ(ascii::trimmed(u" \t a b\r\n"), u"a b");
  EXPECT_EQ(ascii::trimmed(u" \n "), u"");
  EXPECT_EQ(ascii::trimmed(u"\u00A0a"), u"\u00A0a");
}

}  // namespace zqn
