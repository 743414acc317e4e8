// SPDX-License-Identifier: MIT
//
// What the fuzz targets share: a text made of the bytes of the fuzzer, a fixed day, and a check that ends the
// run with its own words.
//
//     extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
//       const String text = fuzz::textOf(data, size);
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "runtime/convert.h"
#include "runtime/locale.h"

namespace zqn::fuzz {

/// UTF-8, where the bytes are; U+FFFD for those that are not.
inline String textOf(const std::uint8_t* data, std::size_t size) {
  return fromUtf8({reinterpret_cast<const char*>(data), size});
}

/// The German locale on 21 November 2026, from the first input on.
inline void fixTheDay() {
  static const auto* const scope = [] {
    Locale locale = Locale::german();
    locale.now = [] { return dateSerial(2026, 11, 21); };
    return new Locale::Scope(locale);
  }();
  static_cast<void>(scope);
}

inline void check(bool holds, const char* what) {
  if (holds) return;
  std::fprintf(stderr, "does not hold: %s\n", what);
  std::abort();
}

}  // namespace zqn::fuzz
