// SPDX-License-Identifier: MIT
#include "runtime/string.h"

#include "runtime/unicode.h"

namespace zqn {

String fromUtf8(std::string_view utf8) {
  String text;
  appendUtf8(text, utf8);
  return text;
}

void appendUtf8(String& out, std::string_view utf8) {
  const std::size_t start = out.size();
  // A byte of UTF-8 never needs more than one unit.
  out.resize(start + utf8.size());
  char16_t* target = out.data() + start;
  while (!utf8.empty()) {
    std::size_t ascii = 0;
    while (ascii < utf8.size() && static_cast<unsigned char>(utf8[ascii]) < 0x80) {
      *target++ = static_cast<unsigned char>(utf8[ascii++]);
    }
    utf8.remove_prefix(ascii);
    if (utf8.empty()) break;
    const char32_t character = unicode::take(utf8);
    if (character < 0x10000) {
      *target++ = static_cast<char16_t>(character);
    } else {
      *target++ = static_cast<char16_t>(0xD7C0 + (character >> 10));
      *target++ = static_cast<char16_t>(0xDC00 + (character & 0x3FF));
    }
  }
  out.resize(static_cast<std::size_t>(target - out.data()));
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
