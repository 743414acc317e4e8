// SPDX-License-Identifier: MIT
//
// Numbers as programs write them, whatever the locale. What a person sees is CStr and Format of
// runtime/convert.h.
//
//     u"LIMIT " + digits(1024)
#pragma once

#include <concepts>
#include <cstdint>

#include "runtime/string.h"

namespace zqn {

/// The fewest digits that read back as the same value, the point as decimal sign: "0.1", "-1e+300"; "inf" and
/// "nan" for what is no number.
String digits(double value);

namespace detail {
String wholeDigits(std::int64_t value);
String wholeDigits(std::uint64_t value);
}  // namespace detail

/// "-1234".
template <std::integral Number>
String digits(Number value) {
  if constexpr (std::signed_integral<Number>) {
    return detail::wholeDigits(static_cast<std::int64_t>(value));
  } else {
    return detail::wholeDigits(static_cast<std::uint64_t>(value));
  }
}

}  // namespace zqn
