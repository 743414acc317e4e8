// SPDX-License-Identifier: MIT
#include "forms/names.h"

#include "runtime/ascii.h"
#include "runtime/collation.h"

namespace zqn {

char16_t accessKey(StringView caption) noexcept {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != u'&') continue;
    if (caption[i + 1] != u'&') return upperUnit(caption[i + 1]);
    ++i;
  }
  return u'\0';
}

ControlName splitName(StringView fullName) noexcept {
  const auto open = fullName.find(u'(');
  if (open == StringView::npos || fullName.back() != u')') return {fullName};
  const StringView digits = fullName.substr(open + 1, fullName.size() - open - 2);
  if (digits.empty() || digits.size() > 4) return {fullName};
  int index = 0;
  for (const char16_t digit : digits) {
    if (!ascii::isDigit(digit)) return {fullName};
    index = index * 10 + (digit - u'0');
  }
  return {fullName.substr(0, open), index};
}

}  // namespace zqn
