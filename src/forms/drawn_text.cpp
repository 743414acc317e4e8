// SPDX-License-Identifier: MIT
#include "forms/drawn_text.h"

#include <algorithm>

#include "runtime/unicode.h"

namespace zqn {

namespace {

constexpr char16_t breakSign = u'\u21B5';
constexpr char16_t deleteSign = u'\u2421';
constexpr char16_t unknownSign = u'\uFFFD';

/// Has a meaning of its own for a toolkit, or none at all.
bool isUnknown(char16_t unit) {
  return (unit >= 0x80 && unit < 0xA0) || (unit >= 0xFDD0 && unit <= 0xFDEF) || unit >= 0xFFF9 ||
         unit == 0xFEFF;
}

char16_t signOf(char16_t unit) {
  constexpr char16_t pictures = 0x2400;  // one for each control character
  if (unit < u' ') return static_cast<char16_t>(pictures + unit);
  if (unit == u'\x7f') return deleteSign;
  if (unit == u'\u2028' || unit == u'\u2029') return breakSign;
  return isUnknown(unit) ? unknownSign : unit;
}

}  // namespace

DrawnText::DrawnText(StringView stored, Lines lines) : storedSize_(static_cast<int>(stored.size())) {
  text_.reserve(stored.size());
  for (std::size_t i = 0; i < stored.size(); ++i) {
    const char16_t unit = stored[i];
    const char16_t next = i + 1 < stored.size() ? stored[i + 1] : u'\0';
    if (unit == u'\r' || unit == u'\n') {
      if (unit == u'\r' && next == u'\n') {
        longBreaks_.push_back(static_cast<int>(text_.size()));
        ++i;
      }
      text_ += lines == Lines::Several ? u'\n' : breakSign;
    } else if (unicode::isHighSurrogate(unit) && unicode::isLowSurrogate(next)) {
      text_ += unit;
      text_ += next;
      ++i;
    } else {
      const bool half = unicode::isHighSurrogate(unit) || unicode::isLowSurrogate(unit);
      text_ += half ? unknownSign : signOf(unit);
    }
  }
}

int DrawnText::inDrawn(int position) const noexcept {
  position = std::clamp(position, 0, storedSize_);
  int breaksBefore = 0;
  for (const int at : longBreaks_) {
    if (at + breaksBefore >= position) break;
    if (at + breaksBefore + 1 == position) return at;
    ++breaksBefore;
  }
  return std::min(position - breaksBefore, static_cast<int>(text_.size()));
}

int DrawnText::inStored(int position) const noexcept {
  position = std::clamp(position, 0, static_cast<int>(text_.size()));
  return position + static_cast<int>(std::ranges::lower_bound(longBreaks_, position) - longBreaks_.begin());
}

}  // namespace zqn
