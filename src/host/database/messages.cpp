// SPDX-License-Identifier: MIT
#include "host/database/messages.h"

#include <iostream>

#include "runtime/string.h"

namespace zqn::host {

namespace {

std::string escaped(std::string_view bytes) {
  constexpr std::string_view digits = "0123456789abcdef";
  std::string text;
  for (const char byte : bytes) {
    const auto value = static_cast<unsigned char>(byte);
    if (byte == '\n' || byte == '\r' || byte == '\t') {
      text += byte == '\n' ? "\\n" : byte == '\r' ? "\\r" : "\\t";
    } else {
      text += {'\\', 'x', digits[value >> 4], digits[value & 0xF]};
    }
  }
  return text;
}

bool continues(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) == 0x80; }

/// The bytes of one character, or one byte that belongs to none.
std::string_view characterAt(std::string_view text) {
  std::size_t length = 1;
  while (length < text.size() && length < 4 && continues(text[length])) ++length;
  for (; length > 1; --length) {
    const std::string_view bytes = text.substr(0, length);
    if (toUtf8(fromUtf8(bytes)) == bytes) break;
  }
  return text.substr(0, length);
}

bool isShown(std::string_view character) {
  const auto first = static_cast<unsigned char>(character.front());
  if (character.size() == 1) return first >= 0x20 && first < 0x7F;
  // U+0080 to U+009F are control characters, too.
  return !(first == 0xC2 && static_cast<unsigned char>(character[1]) < 0xA0);
}

}  // namespace

std::string printable(std::string_view text, std::string_view kept) {
  std::string shown;
  while (!text.empty()) {
    const std::string_view character = characterAt(text);
    const bool stays = isShown(character) || kept.find(character) != std::string_view::npos;
    shown += stays ? std::string(character) : escaped(character);
    text.remove_prefix(character.size());
  }
  return shown;
}

void tell(std::string_view sentence) { std::cerr << "zqn-dialog: " << printable(sentence) << std::endl; }

}  // namespace zqn::host
