// SPDX-License-Identifier: MIT
//
// LastOfMonth knows a length for the month of any date, and refuses what is no date.
#include "fuzz/input.h"
#include "split/split_values.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zqn;
  fuzz::fixTheDay();
  const String text = fuzz::textOf(data, size);
  int days = 0;
  try {
    days = LastOfMonth(text);
  } catch (const RuntimeError& failure) {
    fuzz::check(failure.number() == error::TypeMismatch && !IsDate(text), "only what is no date is refused");
    return 0;
  }
  fuzz::check(IsDate(text), "what has a month is a date");
  fuzz::check(days >= 28 && days <= 31, "a month has 28 to 31 days");
  // The first of a month itself, as the split asks for it.
  const CivilDate date = civil(CDate(text));
  if (date.day == 1)
    fuzz::check(days == civil({dateSerial(date.year, date.month + 1, 1).days - 1}).day,
                "the length is right");
  return 0;
}
