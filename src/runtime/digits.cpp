// SPDX-License-Identifier: MIT
#include "runtime/digits.h"

#include <array>
#include <charconv>

namespace zqn {

namespace {

template <class Number>
String written(Number value) {
  std::array<char, 32> buffer;
  const auto end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value).ptr;
  return String(buffer.data(), end);
}

}  // namespace

String digits(double value) { return written(value); }

namespace detail {
String wholeDigits(std::int64_t value) { return written(value); }
String wholeDigits(std::uint64_t value) { return written(value); }
}  // namespace detail

}  // namespace zqn
