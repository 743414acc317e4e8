// SPDX-License-Identifier: MIT
//
// Val2 reads any text as a finite number, and what a cell shows of it reads as the same again.
#include <cmath>

#include "fuzz/input.h"
#include "split/split_values.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zqn;
  const double value = Val2(fuzz::textOf(data, size));
  fuzz::check(std::isfinite(value), "a quantity is finite");
  const String shown = quantityText(value);
  fuzz::check(quantityText(Val2(shown)) == shown, "a quantity that is shown reads as the same");
  return 0;
}
