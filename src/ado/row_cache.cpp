// SPDX-License-Identifier: MIT
#include "ado/row_cache.h"

#include <utility>

namespace zqn::ado {

const std::vector<Variant>* RowCache::find(int row) const noexcept {
  if (slots_.empty()) return nullptr;
  const Slot& slot = slots_[place(row)];
  return slot.row == row ? &slot.values : nullptr;
}

const std::vector<Variant>& RowCache::put(int row, std::vector<Variant> values) {
  if (slots_.empty()) slots_.resize(static_cast<std::size_t>(capacity_));
  Slot& slot = slots_[place(row)];
  slot.row = row;
  slot.values = std::move(values);
  return slot.values;
}

void RowCache::drop(int row) noexcept {
  if (!slots_.empty() && slots_[place(row)].row == row) slots_[place(row)].row = -1;
}

}  // namespace zqn::ado
