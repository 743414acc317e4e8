// SPDX-License-Identifier: MIT
//
// Tables over an enumeration, held against it when they are compiled.
#pragma once

#include <algorithm>
#include <cstddef>
#include <iterator>

namespace zqn {

/// The table has one row for each member of an enumeration that counts from 0 to `last`, and no other. `key`
/// gives the member that a row is for.
///
///     static_assert(hasRowForEach<ControlKind::zqCombo>(kinds, &Kind::kind));
template <auto last, class Table, class Key>
consteval bool hasRowForEach(const Table& table, Key key) {
  constexpr auto count = static_cast<std::size_t>(last) + 1;
  for (std::size_t member = 0; member < count; ++member) {
    if (std::ranges::count(table, static_cast<decltype(last)>(member), key) != 1) return false;
  }
  return std::size(table) == count;
}

}  // namespace zqn
