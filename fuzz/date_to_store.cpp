// SPDX-License-Identifier: MIT
//
// DateToStore gives Null, nothing, or fourteen digits that are read back as the same day.
#include <cmath>

#include "fuzz/input.h"
#include "split/split_values.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zqn;
  fuzz::fixTheDay();
  const String text = fuzz::textOf(data, size);
  const Variant stored = DateToStore(text);
  fuzz::check(stored.isNull() == Trim(text).empty(), "Null is for blanks alone");
  if (stored.isNull()) return 0;
  const String digits = CStr(stored);
  fuzz::check(digits.empty() == !IsDate(text), "only what is no date is empty");
  if (digits.empty()) return 0;
  fuzz::check(digits.size() == 14 && digits.ends_with(u"000000"),
              "a date has fourteen digits, zeros as time");
  const Date day{std::trunc(CDate(text).days)};
  fuzz::check(CDate(dateFromStore(digits)) == day, "it reads back as the same day");
  return 0;
}
