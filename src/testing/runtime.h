// SPDX-License-Identifier: MIT
//
// Helpers for tests of every floor. Not part of the library.
//
//     EXPECT_EQ(errorNumberOf([&] { CLng(Null); }), error::InvalidUseOfNull);
#pragma once

#include <ostream>
#include <utility>

#include "runtime/error.h"
#include "runtime/variant.h"

namespace zqn {

/// The number of the run-time error that leaves a statement; 0 when none does.
template <class Statement>
std::int32_t errorNumberOf(Statement&& statement) {
  try {
    static_cast<void>(std::forward<Statement>(statement)());
  } catch (const RuntimeError& failure) {
    return failure.number();
  }
  return 0;
}

/// How GoogleTest shows a Variant: kind and value.
inline void PrintTo(const Variant& value, std::ostream* out) {
  constexpr const char* kinds[] = {"Empty",  "Null", "Boolean", "Integer", "Long",
                                   "Double", "Date", "String",  "Object",  "Missing"};
  *out << kinds[static_cast<std::size_t>(value.kind())];
  if (const auto* truth = value.as<bool>()) *out << ' ' << (*truth ? "True" : "False");
  if (const auto* number = value.as<std::int16_t>()) *out << ' ' << *number;
  if (const auto* number = value.as<std::int32_t>()) *out << ' ' << *number;
  if (const auto* number = value.as<double>()) *out << ' ' << *number;
  if (const auto* date = value.as<Date>()) *out << ' ' << date->days;
  if (const auto* text = value.as<String>()) *out << " \"" << toUtf8(*text) << '"';
}

}  // namespace zqn
