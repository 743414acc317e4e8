// SPDX-License-Identifier: MIT
#include <gtest/gtest.h>

#include <random>
#include <vector>

#include "runtime/convert.h"
#include "runtime/locale.h"

namespace zqn {
namespace {

int sign(int order) { return (order > 0) - (order < 0); }

// The order in both encodings, which must agree.
int order(StringView left, StringView right) {
  const int utf16 = sign(compareCollated(left, right));
  const int utf8 = sign(compareCollated(toUtf8(left), toUtf8(right)));
  EXPECT_EQ(utf16, utf8) << toUtf8(left) << " / " << toUtf8(right);
  return utf16;
}

TEST(Collation, TextsInAscendingOrder) {
  const StringView ascending[] = {
      u"",        u" ",   u"-",   u"1",    u"10", u"2",  u"a",      u"ä",           u"äb",
      u"abc",     u"abd", u"äbd", u"abda", u"b",  u"m",  u"Mulle",  u"Müller",      u"Mullerin",
      u"n",       u"ñ",   u"o",   u"ö",    u"oe", u"s",  u"ß",      u"Strase",      u"Straße",
      u"Strasse", u"y",   u"ÿ",   u"ÿÿÿ",  u"z",  u"ž",  u"þ",      u"α",           u"ά",
      u"β",       u"е",   u"ё",   u"ж",    u"€",  u"中", u"\uFFFD", u"\xD83D\xDE00"};
  for (std::size_t i = 0; i < std::size(ascending); ++i) {
    for (std::size_t j = 0; j < std::size(ascending); ++j) {
      const int expected = i < j ? -1 : i > j;
      EXPECT_EQ(order(ascending[i], ascending[j]), expected)
          << toUtf8(ascending[i]) << " / " << toUtf8(ascending[j]);
    }
  }
}

TEST(Collation, CaseDoesNotCount) {
  EXPECT_EQ(order(u"abc", u"ABC"), 0);
  EXPECT_EQ(order(u"Müller", u"MÜLLER"), 0);
  EXPECT_EQ(order(u"ÿÿÿ", u"ŸŸŸ"), 0);
  EXPECT_EQ(order(u"STRAẞE", u"straße"), 0);
  EXPECT_EQ(order(u"ΣΑΣ", u"σας"), 0);
  EXPECT_EQ(order(u"ЁЖ", u"ёж"), 0);
  EXPECT_EQ(order(u"ŠŽČ", u"šžč"), 0);
}

TEST(Collation, AccentsCountWhenTheLettersAreTheSame) {
  EXPECT_NE(order(u"a", u"ä"), 0);
  EXPECT_NE(order(u"y", u"ÿ"), 0);
  EXPECT_NE(order(u"e", u"é"), 0);
  EXPECT_NE(order(u"é", u"è"), 0);
  EXPECT_NE(order(u"s", u"ß"), 0);
  EXPECT_NE(order(u"ss", u"ß"), 0);
  EXPECT_EQ(order(u"äa", u"ab"), -1) << "the letter behind decides before the accent does";
  EXPECT_EQ(order(u"aä", u"äa"), -1) << "the first accent decides";
}

TEST(Collation, EveryAccentedLetterSortsBetweenItsPlainLetterAndTheNextOne) {
  struct Row {
    char16_t plain;
    StringView accented;
    char16_t next;
  };
  const Row rows[] = {
      {u'a', u"áàâäãåæąāă", u'b'}, {u'c', u"çćčĉċ", u'd'},   {u'd', u"ďđð", u'e'},
      {u'e', u"éèêëęēĕėě", u'f'},  {u'g', u"ğĝġģ", u'h'},    {u'h', u"ĥħ", u'i'},
      {u'i', u"íìîïĩīĭįı", u'j'},  {u'j', u"ĵ", u'k'},       {u'k', u"ķ", u'l'},
      {u'l', u"łĺļľŀ", u'm'},      {u'n', u"ñńņňŋ", u'o'},   {u'o', u"óòôöõøœőōŏ", u'p'},
      {u'r', u"ŕŗř", u's'},        {u's', u"ßśŝşšșſ", u't'}, {u't', u"ţťŧț", u'u'},
      {u'u', u"úùûüũūŭůűų", u'v'}, {u'w', u"ŵ", u'x'},       {u'y', u"ýÿŷ", u'z'},
      {u'z', u"źżž", u'þ'},        {u'α', u"ά", u'β'},       {u'ι', u"ίϊΐ", u'κ'},
      {u'υ', u"ύϋΰ", u'φ'},        {u'е', u"ёѐ", u'ж'},      {u'и', u"ѝ", u'й'},
  };
  for (const Row& row : rows) {
    for (const char16_t accented : row.accented) {
      for (const char16_t letter : {lowerUnit(accented), upperUnit(accented)}) {
        EXPECT_EQ(order(String{row.plain}, String{letter}), -1) << toUtf8(String{letter});
        EXPECT_EQ(order(String{letter}, String{row.next}), -1) << toUtf8(String{letter});
        EXPECT_EQ(order(String{upperUnit(row.plain), u'b'}, String{letter, u'a'}), 1)
            << toUtf8(String{letter});
      }
    }
  }
}

TEST(Collation, TrailingBlanksDoNotCountBehindSomethingElse) {
  EXPECT_EQ(order(u"B ", u"B"), 0);
  EXPECT_EQ(order(u"B   ", u"b "), 0);
  EXPECT_EQ(order(u"ä ", u"Ä"), 0);
  EXPECT_EQ(order(u" ", u"   "), 0);
  EXPECT_EQ(order(u"", u" "), -1);
  EXPECT_EQ(order(u" ", u"a"), -1);
  EXPECT_NE(order(u" B", u"B"), 0);
  EXPECT_NE(order(u"B\t", u"B"), 0);
  EXPECT_NE(order(u"B\u00A0", u"B"), 0);
  EXPECT_EQ(order(u"B", u"B x"), -1);
}

TEST(Collation, LanguageComparisonCountsEveryBlank) {
  EXPECT_LT(compareIgnoringCase(u"B", u"B "), 0);
  EXPECT_LT(compareIgnoringCase(u" ", u"  "), 0);
  EXPECT_EQ(compareIgnoringCase(u"Müller ", u"MÜLLER "), 0);
}

TEST(Collation, BrokenEncodingsCompareAsTheirReplacement) {
  EXPECT_EQ(sign(compareCollated("a\x80", "a\xEF\xBF\xBD")), 0);
  EXPECT_EQ(order(String{u'a', 0xD800}, u"a\uFFFD"), 0);
  EXPECT_NE(order(String{0xD83D, 0xDE00}, String{0xD83D, 0xDE01}), 0);
}

TEST(Collation, CharactersOfSeveralUnitsAreNeverCutInTwo) {
  for (std::size_t position = 0; position < 12; ++position) {
    const String before(position, u'x');
    EXPECT_EQ(order(before + u"\xD83D\xDE00 rest of it", before + u"\xD83D\xDE01 rest of it"), -1)
        << position;
    EXPECT_EQ(order(before + u"ä rest of it", before + u"å rest of it"), -1) << position;
    EXPECT_EQ(order(before + u"ÿ rest of it", before + u"Ÿ REST OF IT"), 0) << position;
  }
}

class RandomTexts {
 public:
  explicit RandomTexts(unsigned seed) : random_(seed) {}
  String next() {
    // Few beginnings and few letters, so that texts often differ by case, accent or blanks alone.
    static constexpr StringView beginnings[] = {u"", u"", u"Auftrag Nr. ", u"auftrag nr. ", u"Aufträge "};
    static constexpr StringView units = u"aAäÄàbBsSßẞ  zÿ1-_[σςΣ€\xD83D\xDE00";
    String text(beginnings[random_() % std::size(beginnings)]);
    for (auto left = random_() % 5; left > 0; --left) text += units[random_() % units.size()];
    return text;
  }

 private:
  std::mt19937 random_;
};

TEST(Collation, IsAStrictWeakOrderOnRandomTriples) {
  RandomTexts texts(20260305);
  int equalPairs = 0;
  for (int round = 0; round < 300'000; ++round) {
    const String a = texts.next(), b = texts.next(), c = texts.next();
    const int ab = order(a, b), bc = order(b, c), ac = order(a, c);
    ASSERT_EQ(order(b, a), -ab) << toUtf8(a) << " / " << toUtf8(b);
    ASSERT_EQ(order(a, a), 0) << toUtf8(a);
    if (ab <= 0 && bc <= 0) {
      ASSERT_EQ(ac, std::min(ab, bc)) << toUtf8(a) << " / " << toUtf8(b) << " / " << toUtf8(c);
    }
    equalPairs += ab == 0;
  }
  EXPECT_GT(equalPairs, 1000) << "the texts are too different to test equality";
}

TEST(Collation, EqualTextsHaveTheSameHash) {
  RandomTexts texts(7);
  std::vector<String> all;
  for (int i = 0; i < 1500; ++i) all.push_back(texts.next());
  int equalPairs = 0;
  int sameHash = 0;
  for (const String& left : all) {
    for (const String& right : all) {
      const bool equal = compareCollated(left, right) == 0;
      const bool same = hashCollated(left) == hashCollated(right);
      ASSERT_TRUE(same || !equal) << toUtf8(left) << " / " << toUtf8(right);
      equalPairs += equal;
      sameHash += same;
    }
  }
  EXPECT_GT(equalPairs, 2000);
  EXPECT_EQ(sameHash, equalPairs) << "different texts share a hash more often than they should";
}

TEST(LocaleScope, NestsAndPutsTheOuterLocaleBack) {
  EXPECT_EQ(Locale::current().decimal, u',');
  {
    Locale point = Locale::german();
    point.decimal = u'.';
    const Locale::Scope outer(point);
    EXPECT_EQ(CStr(1.5), u"1.5");
    {
      const Locale::Scope inner(Locale::german());
      EXPECT_EQ(CStr(1.5), u"1,5");
    }
    EXPECT_EQ(CStr(1.5), u"1.5");
  }
  EXPECT_EQ(CStr(1.5), u"1,5");
}

}  // namespace
}  // namespace zqn
