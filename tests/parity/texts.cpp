// SPDX-License-Identifier: MIT
#include "parity/texts.h"

#include <array>
#include <string_view>

namespace zqn::parity {

namespace {

using std::string_view_literals::operator""sv;

constexpr std::array plain{"a"sv, "b"sv, "e"sv, "K"sv, "s"sv, "n"sv, "L"sv, "0"sv, "1"sv,
                           "2"sv, "3"sv, "7"sv, "9"sv, " "sv, "-"sv, "."sv, ","sv};
constexpr std::array german{"ä"sv, "ö"sv, "ü"sv, "ß"sv, "Ä"sv, "Ö"sv, "é"sv, "€"sv};
constexpr std::array signs{"'"sv, "\""sv, "%"sv, "&"sv, "("sv, ")"sv,
                           "|"sv, "_"sv,  "*"sv, ";"sv, "["sv, "\\"sv};
// With marks behind their letter, of two units, joined ones, from right to left, and breaks of many kinds.
constexpr std::array rare{
    "e\u0301"sv, "o\u0308\u0323"sv, "\U0001F600"sv, "\U0001D11E"sv, "\U0001F468\u200D\U0001F469"sv,
    "\u05D0"sv,  "\u0661"sv,        "\u00A0"sv,     "\u00AD"sv,     "\u200B"sv,
    "\u2028"sv,  "\u2029"sv,        "\uFEFF"sv,     "\u0301"sv,     "\u4E2D"sv,
    "\u0001"sv,  "\u000B"sv,        "\u001F"sv,     "\u007F"sv,     "\u0085"sv};
constexpr std::array breaks{"\n"sv, "\r"sv, "\r\n"sv, "\t"sv};
constexpr std::array words{
    "Stahl"sv,        "Müller & Söhne"sv, "sofort"sv,  "L-4711"sv, "12 x 30"sv, "ein zwei"sv,
    "ZWEITE Wahl "sv, "  vorn"sv,         "Größe"sv,   "x"sv,      "-"sv,       " "sv,
    "O'Neill"sv,      "S/N-0001"sv,       "a.b, c;d"sv};
constexpr std::array numbers{"0"sv,  "7"sv,     "14"sv,    "30"sv,    "2,5"sv,     "2.5"sv, "1e400"sv,
                             "-3"sv, "1.000"sv, "99999"sv, "0,001"sv, "2600004"sv, "+1"sv,  "12345678901"sv};
constexpr std::array days{"3112"sv,       "31.12.2026"sv, "1.1.27"sv, "010127"sv, "29.02.2027"sv, "abc"sv,
                          "31.12.9999"sv, "00.00.0000"sv, "1.1."sv,   "15"sv,     "120626"sv};

}  // namespace

std::string anyCharacter(Random& chance) {
  const int kind = chance.between(0, 99);
  if (kind < 55) return std::string(chance.oneOf(plain));
  if (kind < 70) return std::string(chance.oneOf(german));
  if (kind < 80) return std::string(chance.oneOf(signs));
  if (kind < 95) return std::string(chance.oneOf(rare));
  return std::string(chance.oneOf(breaks));
}

std::string anyText(Random& chance) {
  if (chance.percent(45)) return std::string(chance.oneOf(words));
  std::string text;
  for (int left = chance.percent(10) ? chance.between(1, 60) : chance.between(1, 6); left > 0; --left)
    text += anyCharacter(chance);
  return text;
}

std::string anyNumber(Random& chance) { return std::string(chance.oneOf(numbers)); }
std::string anyDay(Random& chance) { return std::string(chance.oneOf(days)); }

std::string anyTable(Random& chance) {
  std::string text;
  const std::string_view lineEnd = chance.oneOf(breaks);
  for (int line = chance.between(1, 3); line > 0; --line) {
    for (int cell = chance.between(1, 3); cell > 0; --cell)
      text += (chance.percent(30) ? anyNumber(chance) : anyText(chance)) + (cell > 1 ? "\t" : "");
    if (line > 1 || chance.percent(50)) text += lineEnd;
  }
  return text;
}

}  // namespace zqn::parity
