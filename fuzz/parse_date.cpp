// SPDX-License-Identifier: MIT
//
// ParseDate makes a date of any text, and reads what it made as the same date.
#include "fuzz/input.h"
#include "split/split_values.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zqn;
  fuzz::fixTheDay();
  const String date = ParseDate(fuzz::textOf(data, size));
  fuzz::check(IsDate(date), "the result is a date");
  fuzz::check(Format(CDate(date), u"dd.mm.yyyy") == date, "it has the form dd.mm.yyyy");
  fuzz::check(ParseDate(date) == date, "it reads as the same date");
  return 0;
}
