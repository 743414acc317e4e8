// SPDX-License-Identifier: MIT
//
// Letters, digits and blanks of ASCII, whatever the locale: for what programs write and read (keywords of
// SQL, keys of connection strings, numbers in statements).
//
//     ascii::same(u"Pwd", u"PWD");
#pragma once

#include <algorithm>

#include "runtime/string.h"

namespace zqn::ascii {

/// 0 to 9. Takes a unit of UTF-16 or a byte of UTF-8.
constexpr bool isDigit(char32_t unit) noexcept { return unit >= U'0' && unit <= U'9'; }
/// A blank, or one of the control characters U+0009 to U+000D: tab, line ends, form feed.
constexpr bool isBlank(char32_t unit) noexcept { return unit == U' ' || (unit >= U'\t' && unit <= U'\r'); }

/// Folds the letters A to Z; every other unit is itself.
constexpr char16_t upper(char16_t unit) noexcept {
  return unit >= u'a' && unit <= u'z' ? static_cast<char16_t>(unit - 32) : unit;
}
constexpr char16_t lower(char16_t unit) noexcept {
  return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 32) : unit;
}
inline String lower(StringView text) {
  String folded(text);
  std::ranges::transform(folded, folded.begin(), [](char16_t unit) { return lower(unit); });
  return folded;
}

/// Equal but for the case of the letters A to Z. Names that a person gives compare by sameName of
/// runtime/collation.h, which knows all letters.
constexpr bool same(StringView left, StringView right) noexcept {
  return std::ranges::equal(left, right,
                            [](char16_t one, char16_t other) { return upper(one) == upper(other); });
}

/// The text without the blanks at its ends.
constexpr StringView trimmed(StringView text) noexcept {
  while (!text.empty() && isBlank(text.front())) text.remove_prefix(1);
  while (!text.empty() && isBlank(text.back())) text.remove_suffix(1);
  return text;
}

}  // namespace zqn::ascii
