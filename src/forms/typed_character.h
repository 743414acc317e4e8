// SPDX-License-Identifier: MIT
//
// Puts a character together that comes as two key strokes, one for each half of it.
//
//     const String character = typed_.take(stroke.character);  // "" after the first half
#pragma once

#include <utility>

#include "runtime/string.h"
#include "runtime/unicode.h"

namespace zqn {

class TypedCharacter {
 public:
  /// The character that this unit completes; empty while a half is missing, and for a second half alone.
  String take(char16_t unit) {
    const char16_t first = std::exchange(first_, u'\0');
    if (unicode::isHighSurrogate(unit)) {
      first_ = unit;
      return {};
    }
    if (!unicode::isLowSurrogate(unit)) return String(1, unit);
    return first == u'\0' ? String() : String{first, unit};
  }
  /// Another key came between.
  void forget() noexcept { first_ = u'\0'; }

 private:
  char16_t first_ = u'\0';
};

}  // namespace zqn
