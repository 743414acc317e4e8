// SPDX-License-Identifier: MIT
#include "runtime/string.h"

#include <gtest/gtest.h>

#include <random>

namespace zqn {
namespace {

TEST(Utf8, RoundTripKeepsEveryCharacter) {
  String all;
  for (char32_t character = 0; character < 0x110000; ++character) {
    if (character >= 0xD800 && character < 0xE000) continue;
    if (character < 0x10000) {
      all += static_cast<char16_t>(character);
    } else {
      all += static_cast<char16_t>(0xD800 + ((character - 0x10000) >> 10));
      all += static_cast<char16_t>(0xDC00 + ((character - 0x10000) & 0x3FF));
    }
  }
  const std::string utf8 = toUtf8(all);
  EXPECT_EQ(utf8.size(), 0x80u + 0x780 * 2 + (0x10000 - 0x800 - 0x800) * 3 + 0x100000 * 4);
  EXPECT_TRUE(fromUtf8(utf8) == all);
}

TEST(Utf8, KnownTexts) {
  struct Row {
    std::string utf8;
    String text;
  };
  const Row rows[] = {
      {"", u""},
      {"abc", u"abc"},
      {"M\xC3\xBCller", u"Müller"},
      {"\xE2\x82\xAC", u"€"},
      {"\xF0\x9F\x98\x80!", u"\xD83D\xDE00!"},
      {std::string("a\0b", 3), String(u"a\0b", 3)},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(fromUtf8(row.utf8), row.text);
    EXPECT_EQ(toUtf8(row.text), row.utf8);
  }
}

TEST(Utf8, EachByteThatStartsNothingValidBecomesAReplacement) {
  struct Row {
    const char* what;
    std::string utf8;
    String text;
  };
  const Row rows[] = {
      {"lone continuation", "a\x80z", u"a\uFFFDz"},
      {"Latin-1", "M\xFCller", u"M\uFFFDller"},
      {"cut short in the middle", "\xE2\x82z", u"\uFFFD\uFFFDz"},
      {"cut short at the end", "a\xE2\x82", u"a\uFFFD\uFFFD"},
      {"overlong two bytes", "\xC0\xAF", u"\uFFFD\uFFFD"},
      {"overlong three bytes", "\xE0\x80\xAF", u"\uFFFD\uFFFD\uFFFD"},
      {"overlong four bytes", "\xF0\x80\x80\xAF", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"encoded surrogate", "\xED\xA0\x80", u"\uFFFD\uFFFD\uFFFD"},
      {"beyond the last character", "\xF4\x90\x80\x80", u"\uFFFD\uFFFD\uFFFD\uFFFD"},
      {"no lead byte at all", "\xFE\xFF", u"\uFFFD\uFFFD"},
      {"a whole character behind a cut one", "\xE2\xC3\xA4", u"\uFFFDä"},
  };
  for (const Row& row : rows) EXPECT_EQ(fromUtf8(row.utf8), row.text) << row.what;
}

TEST(Utf8, SurrogateWithoutItsPartnerBecomesAReplacement) {
  const std::string replacement = "\xEF\xBF\xBD";
  EXPECT_EQ(toUtf8(String{0xD83D}), replacement);
  EXPECT_EQ(toUtf8(String{0xDE00}), replacement);
  EXPECT_EQ(toUtf8(String{0xD83D, u'a'}), replacement + "a");
  EXPECT_EQ(toUtf8(String{0xDE00, 0xD83D}), replacement + replacement);
  EXPECT_EQ(toUtf8(String{0xD83D, 0xD83D, 0xDE00}), replacement + "\xF0\x9F\x98\x80");
}

TEST(Utf8, AnyBytesGiveATextThatSurvives) {
  std::mt19937 random(1);
  for (int round = 0; round < 2000; ++round) {
    std::string bytes;
    for (int i = 0; i < 12; ++i) bytes += static_cast<char>(random());
    const String text = fromUtf8(bytes);
    EXPECT_EQ(fromUtf8(toUtf8(text)), text);
  }
}

TEST(Utf8, ALetterIsReadAtEveryPlaceOfALongText) {
  for (std::size_t position = 0; position < 20; ++position) {
    const std::size_t behind = 20 - position;
    const std::string utf8 = std::string(position, 'x') + "\xC3\xA4" + std::string(behind, 'y');
    EXPECT_EQ(fromUtf8(utf8), String(position, u'x') + u'ä' + String(behind, u'y')) << position;
  }
}

TEST(Utf8, AppendingKeepsWhatStandsInTheBuffer) {
  String buffer = u"Zeile ";
  appendUtf8(buffer, "\xC3\xA4");
  appendUtf8(buffer, "");
  appendUtf8(buffer, "bc");
  EXPECT_EQ(buffer, u"Zeile äbc");
}

}  // namespace
}  // namespace zqn
