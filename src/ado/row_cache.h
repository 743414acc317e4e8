// SPDX-License-Identifier: MIT
//
// The rows that a list has drawn lately.
#pragma once

#include <vector>

#include "runtime/variant.h"

namespace zqn::ado {

/// The rows that a list has drawn lately. A page of neighbouring rows never pushes itself out: row n has its
/// place at n modulo the capacity.
///
///     if (const auto* values = cache.find(7)) return (*values)[column];
class RowCache {
 public:
  /// Rows that it keeps at most.
  explicit RowCache(int capacity = 256) : capacity_(capacity) {}

  /// The row's values, nullptr when it is not here. Valid until the next put or clear.
  const std::vector<Variant>* find(int row) const noexcept;
  /// Keeps the row, instead of the one that had its place.
  const std::vector<Variant>& put(int row, std::vector<Variant> values);
  /// The row is read again when it is asked for.
  void drop(int row) noexcept;
  /// All rows are.
  void clear() noexcept { slots_.clear(); }

 private:
  struct Slot {
    int row = -1;
    std::vector<Variant> values;
  };
  std::size_t place(int row) const noexcept { return static_cast<std::size_t>(row % capacity_); }

  int capacity_;
  std::vector<Slot> slots_;  // made at the first put
};

}  // namespace zqn::ado
