// SPDX-License-Identifier: MIT
//
// The rows of a snapshot by the value of one column: eight bytes a row, built once, so that a later Find
// reads the few rows whose value hashes alike.
//
//     const int row = index.first(value, from, 1, [&](int candidate) { return criterion.holds({&rows,
//     candidate}); });
#pragma once

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <span>
#include <vector>

#include "ado/row_store.h"

namespace zqn::ado {

class ValueIndex {
 public:
  ValueIndex(const RowStore& rows, int column);

  /// False when texts and numbers are mixed in the column: compare row by row then.
  bool usable() const noexcept { return usable_; }
  /// The first row from `from` on, in `direction` (1 or -1), whose value may equal `value`, and that `accept`
  /// takes; -1 for none.
  template <class Accept>
  int first(const Value& value, int from, int direction, Accept&& accept) const;

 private:
  /// The value's hash above, the row below.
  static std::uint64_t entry(const Value& value, int row) noexcept;
  std::span<const std::uint64_t> alike(const Value& value) const noexcept;
  static int rowOf(std::uint64_t entry) noexcept { return static_cast<int>(entry & 0xFFFFFFFF); }

  std::vector<std::uint64_t> entries_;
  bool usable_ = true;
};

template <class Accept>
int ValueIndex::first(const Value& value, int from, int direction, Accept&& accept) const {
  const std::span<const std::uint64_t> rows = alike(value);
  if (direction > 0) {
    const auto start =
        std::ranges::partition_point(rows, [&](std::uint64_t one) { return rowOf(one) < from; });
    const auto found = std::find_if(start, rows.end(), [&](std::uint64_t one) { return accept(rowOf(one)); });
    return found == rows.end() ? -1 : rowOf(*found);
  }
  const auto end = std::ranges::partition_point(rows, [&](std::uint64_t one) { return rowOf(one) <= from; });
  const auto rend = std::make_reverse_iterator(rows.begin());
  const auto found = std::find_if(std::make_reverse_iterator(end), rend,
                                  [&](std::uint64_t one) { return accept(rowOf(one)); });
  return found == rend ? -1 : rowOf(*found);
}

}  // namespace zqn::ado
