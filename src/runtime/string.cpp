// SPDX-License-Identifier: MIT
#include "runtime/string.h"

#include <array>
#include <cstdint>
#include <cstring>

#include "runtime/unicode.h"

namespace zqn {

namespace {

// Most text is ASCII; the compiler converts a block of it in one go.
constexpr std::size_t AsciiBlock = 8;

bool startsWithAsciiBlock(std::string_view utf8) {
  std::uint64_t block;
  static_assert(sizeof block == AsciiBlock);
  if (utf8.size() < AsciiBlock) return false;
  std::memcpy(&block, utf8.data(), AsciiBlock);
  return (block & 0x8080808080808080) == 0;
}

}  // namespace

String fromUtf8(std::string_view utf8) {
  String text;
  appendUtf8(text, utf8);
  return text;
}

void appendUtf8(String& out, std::string_view utf8) {
  // By way of a buffer: growing the text first would write every unit twice.
  std::array<char16_t, 256> buffer;
  while (!utf8.empty()) {
    char16_t* target = buffer.data();
    char16_t* const full = target + buffer.size() - AsciiBlock;
    while (!utf8.empty() && target <= full) {
      if (startsWithAsciiBlock(utf8)) {
        for (std::size_t i = 0; i < AsciiBlock; ++i) target[i] = static_cast<char16_t>(utf8[i]);
        target += AsciiBlock;
        utf8.remove_prefix(AsciiBlock);
        continue;
      }
      const char32_t character = unicode::take(utf8);
      if (character < 0x10000) {
        *target++ = static_cast<char16_t>(character);
      } else {
        *target++ = static_cast<char16_t>(0xD7C0 + (character >> 10));
        *target++ = static_cast<char16_t>(0xDC00 + (character & 0x3FF));
      }
    }
    out.append(buffer.data(), target);
  }
}

std::string toUtf8(StringView text) {
  std::string utf8;
  utf8.reserve(text.size());
  const auto put = [&](char32_t bits) { utf8.push_back(static_cast<char>(bits)); };
  while (!text.empty()) {
    const char32_t character = unicode::take(text);
    if (character < 0x80) {
      put(character);
    } else if (character < 0x800) {
      put(0xC0 | character >> 6);
      put(0x80 | (character & 0x3F));
    } else if (character < 0x10000) {
      put(0xE0 | character >> 12);
      put(0x80 | (character >> 6 & 0x3F));
      put(0x80 | (character & 0x3F));
    } else {
      put(0xF0 | character >> 18);
      put(0x80 | (character >> 12 & 0x3F));
      put(0x80 | (character >> 6 & 0x3F));
      put(0x80 | (character & 0x3F));
    }
  }
  return utf8;
}

}  // namespace zqn
