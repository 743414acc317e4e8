// SPDX-License-Identifier: MIT
//
// Where a row stands in a keyset: from its handle to its position, at about eight bytes a row. It grows with
// the keys and refers to them.
//
//     HandleIndex index;
//     index.extend(handles);
//     std::optional<int> row = index.rowOf(handles, handle);
#pragma once

#include <cstdint>
#include <deque>
#include <optional>
#include <vector>

#include "ado/provider.h"

namespace zqn::ado {

using Handles = std::deque<RowHandle>;

class HandleIndex {
 public:
  /// Takes in the handles that have come since the last time. They are all different.
  void extend(const Handles& handles);
  /// The position of a handle among those taken in.
  std::optional<int> rowOf(const Handles& handles, RowHandle handle) const noexcept;
  std::size_t bytes() const noexcept { return slots_.capacity() * sizeof(std::uint32_t); }

 private:
  std::size_t slotOf(const Handles& handles, RowHandle handle) const noexcept;

  static constexpr std::uint32_t Free = 0xFFFFFFFF;
  std::vector<std::uint32_t>
      slots_;  // positions; open addressing, a power of two, at most three quarters full
  std::size_t taken_ = 0;
};

}  // namespace zqn::ado
