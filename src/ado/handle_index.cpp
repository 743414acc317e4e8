// SPDX-License-Identifier: MIT
#include "ado/handle_index.h"

#include <algorithm>
#include <bit>

namespace zqn::ado {

std::size_t HandleIndex::slotOf(const Handles& handles, RowHandle handle) const noexcept {
  const std::uint64_t mixed = static_cast<std::uint64_t>(handle) * 0x9E3779B97F4A7C15;
  const std::size_t mask = slots_.size() - 1;
  std::size_t slot = static_cast<std::size_t>(mixed >> 32) & mask;
  while (slots_[slot] != Free && handles[slots_[slot]] != handle) slot = (slot + 1) & mask;
  return slot;
}

void HandleIndex::extend(const Handles& handles) {
  if (handles.size() == taken_) return;
  if (slots_.size() * 3 < handles.size() * 4) {
    slots_ = std::vector<std::uint32_t>(std::bit_ceil(std::max<std::size_t>(handles.size() * 4 / 3 + 1, 64)),
                                        Free);
    taken_ = 0;
  }
  for (; taken_ < handles.size(); ++taken_) {
    slots_[slotOf(handles, handles[taken_])] = static_cast<std::uint32_t>(taken_);
  }
}

std::optional<int> HandleIndex::rowOf(const Handles& handles, RowHandle handle) const noexcept {
  if (slots_.empty()) return {};
  const std::uint32_t row = slots_[slotOf(handles, handle)];
  return row == Free ? std::nullopt : std::optional(static_cast<int>(row));
}

}  // namespace zqn::ado
