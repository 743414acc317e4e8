// SPDX-License-Identifier: MIT
//
// Reading UTF-8 and UTF-16 one character at a time. Used by the conversions of runtime/string.h and by the
// collation; what cannot be read is U+FFFD and one byte or one unit long, so both see the same text:
//
//     while (!text.empty()) use(unicode::take(text));
#pragma once

#include <string_view>

namespace zqn::unicode {

inline constexpr char32_t Replacement = 0xFFFD;

constexpr bool isHighSurrogate(char32_t unit) noexcept { return unit >= 0xD800 && unit < 0xDC00; }
constexpr bool isLowSurrogate(char32_t unit) noexcept { return unit >= 0xDC00 && unit < 0xE000; }

/// The first character of `text`, which must not be empty; it is taken off.
constexpr char32_t take(std::string_view& text) noexcept {
  const auto lead = static_cast<unsigned char>(text.front());
  const std::size_t length = lead < 0xC2 ? 1 : lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : lead < 0xF5 ? 4 : 1;
  if (length == 1 || text.size() < length) {
    text.remove_prefix(1);
    return lead < 0x80 ? lead : Replacement;
  }
  char32_t character = lead & (0x7Fu >> length);
  for (std::size_t i = 1; i < length; ++i) {
    const auto next = static_cast<unsigned char>(text[i]);
    if ((next & 0xC0) != 0x80) {
      text.remove_prefix(1);
      return Replacement;
    }
    character = character << 6 | (next & 0x3F);
  }
  const bool overlong = (length == 3 && character < 0x800) || (length == 4 && character < 0x10000);
  const bool surrogate = character >= 0xD800 && character < 0xE000;
  if (overlong || surrogate || character > 0x10FFFF) {
    text.remove_prefix(1);
    return Replacement;
  }
  text.remove_prefix(length);
  return character;
}

/// The same for UTF-16.
constexpr char32_t take(std::u16string_view& text) noexcept {
  const char32_t unit = text.front();
  if (isHighSurrogate(unit) && text.size() > 1 && isLowSurrogate(text[1])) {
    const char32_t low = text[1];
    text.remove_prefix(2);
    return 0x10000 + ((unit - 0xD800) << 10) + (low - 0xDC00);
  }
  text.remove_prefix(1);
  return unit >= 0xD800 && unit < 0xE000 ? Replacement : unit;
}

}  // namespace zqn::unicode
