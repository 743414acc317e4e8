// SPDX-License-Identifier: MIT
#include "runtime/collation.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include "runtime/unicode.h"

namespace zqn {

namespace {

// One line is a run of capitals, `step` apart, whose small letters follow at a fixed distance.
struct Capitals {
  char16_t first, last;
  int step;
  int toSmall;
};
constexpr Capitals capitals[] = {
    {u'A', u'Z', 1, 32},     {u'À', u'Ö', 1, 32},     {u'Ø', u'Þ', 1, 32},      // Latin
    {0x0100, 0x012E, 2, 1},  {0x0132, 0x0136, 2, 1},  {0x0139, 0x0147, 2, 1},   //
    {0x014A, 0x0176, 2, 1},  {u'Ÿ', u'Ÿ', 1, -121},   {0x0179, 0x017D, 2, 1},   //
    {0x0218, 0x021A, 2, 1},                                                     //
    {0x0386, 0x0386, 1, 38}, {0x0388, 0x038A, 1, 37}, {0x038C, 0x038C, 1, 64},  // Greek
    {0x038E, 0x038F, 1, 63}, {0x0391, 0x03A1, 1, 32}, {0x03A3, 0x03AB, 1, 32},  //
    {0x03D8, 0x03EE, 2, 1},                                                     //
    {0x0400, 0x040F, 1, 80}, {0x0410, 0x042F, 1, 32}, {0x0460, 0x0480, 2, 1},   // Cyrillic
    {0x048A, 0x04BE, 2, 1},  {0x04C0, 0x04C0, 1, 15}, {0x04C1, 0x04CD, 2, 1},   //
    {0x04D0, 0x052E, 2, 1},                                                     //
};

struct Accented {
  char16_t base;
  StringView letters;
};
constexpr Accented accented[] = {
    {u'a', u"àáâãäåæāăą"}, {u'c', u"çćĉċč"},      {u'd', u"ðďđ"}, {u'e', u"èéêëēĕėęě"}, {u'g', u"ĝğġģ"},
    {u'h', u"ĥħ"},         {u'i', u"ìíîïĩīĭįİı"}, {u'j', u"ĵ"},   {u'k', u"ķĸ"},        {u'l', u"ĺļľŀł"},
    {u'n', u"ñńņňŉŋ"},     {u'o', u"òóôõöøōŏőœ"}, {u'r', u"ŕŗř"}, {u's', u"ßśŝşšſș"},   {u't', u"ţťŧț"},
    {u'u', u"ùúûüũūŭůűų"}, {u'w', u"ŵ"},          {u'y', u"ýÿŷ"}, {u'z', u"źżž"},       {u'α', u"ά"},
    {u'ε', u"έ"},          {u'η', u"ή"},          {u'ι', u"ίϊΐ"}, {u'ο', u"ό"},         {u'υ', u"ύϋΰ"},
    {u'ω', u"ώ"},          {u'е', u"ѐё"},         {u'и', u"ѝ"},
};

constexpr std::size_t TableSize = 0x530;
constexpr char16_t SmallSharpS = u'ß';
constexpr char16_t CapitalSharpS = u'ẞ';

struct Letter {
  char16_t upper, lower;
  char16_t folded;  // what two letters have in common that differ in case only
  char16_t base;    // the folded letter without its accent
};

constexpr std::array<Letter, TableSize> letters = [] {
  std::array<Letter, TableSize> table{};
  for (std::size_t i = 0; i < TableSize; ++i) table[i].upper = table[i].lower = static_cast<char16_t>(i);
  for (const Capitals& run : capitals) {
    for (int capital = run.first; capital <= run.last; capital += run.step) {
      const int small = capital + run.toSmall;
      table[static_cast<std::size_t>(capital)].lower = static_cast<char16_t>(small);
      table[static_cast<std::size_t>(small)].upper = static_cast<char16_t>(capital);
    }
  }
  table[u'ς'].upper = u'Σ';
  for (Letter& letter : table) letter.folded = letter.base = table[letter.upper].lower;
  for (const Accented& family : accented) {
    for (const char16_t letter : family.letters) {
      table[letter].base = family.base;
      table[table[letter].upper].base = family.base;
    }
  }
  return table;
}();

struct Weight {
  char32_t base, accent;
  bool operator==(const Weight&) const = default;
};

Weight weigh(char32_t character) noexcept {
  if (character == CapitalSharpS) character = SmallSharpS;
  if (character >= TableSize) return {character, 0};
  const Letter& letter = letters[character];
  return {letter.base, letter.folded == letter.base ? char32_t{0} : letter.folded};
}

template <class T>
constexpr int order(T left, T right) noexcept {
  return left < right ? -1 : left > right;
}

// Base letters decide before accents do.
template <class Text>
int compareLetters(Text left, Text right) noexcept {
  int accents = 0;
  while (!left.empty() && !right.empty()) {
    const char32_t character = unicode::take(left);
    const char32_t opposite = unicode::take(right);
    if (character == opposite) continue;
    const Weight one = weigh(character);
    const Weight other = weigh(opposite);
    if (one.base != other.base) return order(one.base, other.base);
    if (accents == 0) accents = order(one.accent, other.accent);
  }
  if (left.empty() && right.empty()) return accents;
  return left.empty() ? -1 : 1;
}

// How many units at the beginning are ASCII and the same, found in steps of eight bytes (the last few are
// left to the caller): keys often share a beginning.
template <class Text>
std::size_t sameAsciiBeginning(Text left, Text right, std::size_t common) noexcept {
  using Unit = typename Text::value_type;
  constexpr std::uint64_t beyondAscii = sizeof(Unit) == 1 ? 0x8080808080808080 : 0xFF80FF80FF80FF80;
  constexpr std::size_t step = sizeof(std::uint64_t) / sizeof(Unit);
  std::size_t same = 0;
  for (; common - same >= step; same += step) {
    std::uint64_t one, other;
    std::memcpy(&one, left.data() + same, sizeof one);
    std::memcpy(&other, right.data() + same, sizeof other);
    const std::uint64_t stop = (one ^ other) | (one & beyondAscii);
    if (stop == 0) continue;
    const int sameBits =
        std::endian::native == std::endian::little ? std::countr_zero(stop) : std::countl_zero(stop);
    return same + static_cast<std::size_t>(sameBits) / (8 * sizeof(Unit));
  }
  return same;
}

template <class Text>
int compareTexts(Text left, Text right) noexcept {
  const std::size_t common = std::min(left.size(), right.size());
  for (std::size_t i = sameAsciiBeginning(left, right, common); i < common; ++i) {
    const auto one = static_cast<std::make_unsigned_t<typename Text::value_type>>(left[i]);
    const auto other = static_cast<std::make_unsigned_t<typename Text::value_type>>(right[i]);
    if ((one | other) >= 0x80) {
      left.remove_prefix(i);
      right.remove_prefix(i);
      return compareLetters(left, right);
    }
    if (one != other && letters[one].folded != letters[other].folded) {
      return order(letters[one].folded, letters[other].folded);
    }
  }
  return order(left.size(), right.size());
}

template <class Text>
Text withoutTrailingBlanks(Text text) noexcept {
  while (text.size() > 1 && text.back() == ' ') text.remove_suffix(1);
  return text;
}

}  // namespace

char16_t upperUnit(char16_t unit) noexcept { return unit < TableSize ? letters[unit].upper : unit; }

char16_t lowerUnit(char16_t unit) noexcept {
  if (unit == CapitalSharpS) return SmallSharpS;
  return unit < TableSize ? letters[unit].lower : unit;
}

int compareIgnoringCase(StringView left, StringView right) noexcept { return compareTexts(left, right); }

bool sameName(StringView left, StringView right) noexcept { return compareIgnoringCase(left, right) == 0; }

int compareCollated(StringView left, StringView right) noexcept {
  return compareTexts(withoutTrailingBlanks(left), withoutTrailingBlanks(right));
}

int compareCollated(std::string_view left, std::string_view right) noexcept {
  return compareTexts(withoutTrailingBlanks(left), withoutTrailingBlanks(right));
}

std::size_t hashCollated(StringView text) noexcept {
  text = withoutTrailingBlanks(text);
  std::uint64_t hash = 0xCBF29CE484222325;
  while (!text.empty()) {
    const Weight weight = weigh(unicode::take(text));
    hash = (hash ^ (weight.accent != 0 ? weight.accent : weight.base)) * 0x100000001B3;
  }
  return static_cast<std::size_t>(hash);
}

}  // namespace zqn
