// SPDX-License-Identifier: MIT
#include "runtime/date_text.h"

#include <vector>

#include "runtime/convert.h"

namespace zqn {

std::optional<Date> readDate(StringView text, const Locale&) {
  std::vector<int> numbers;
  bool open = false;
  for (const char16_t unit : text) {
    if (unit >= u'0' && unit <= u'9') {
      if (!open) numbers.push_back(0);
      open = true;
      numbers.back() = numbers.back() * 10 + (unit - u'0');
    } else {
      open = false;
    }
  }
  if (numbers.size() < 3) return std::nullopt;
  return dateSerial(numbers[2], numbers[1], numbers[0]);
}

}  // namespace zqn
