// SPDX-License-Identifier: MIT
#include "ado/odbc/key_table.h"

#include <algorithm>
#include <bit>

namespace zqn::ado::odbc {

namespace {

bool same(const Value& left, const Value& right) {
  return left.kind == right.kind && left.integer == right.integer && left.real == right.real &&
         left.text == right.text;
}

std::size_t hash(std::span<const Value> key) {
  std::size_t mixed = 0;
  for (const Value& value : key) {
    mixed = (mixed ^ std::hash<StringView>()(value.text) ^ static_cast<std::size_t>(value.integer) ^
             std::bit_cast<std::uint64_t>(value.real)) *
            0x9E3779B97F4A7C15;
    mixed ^= mixed >> 32;
  }
  return mixed;
}

}  // namespace

std::uint32_t& KeyTable::slotOf(std::span<const Value> key) {
  const std::size_t mask = slots_.size() - 1;
  std::size_t slot = hash(key) & mask;
  while (slots_[slot] != Free && !std::ranges::equal(this->key(slots_[slot]), key, same))
    slot = (slot + 1) & mask;
  return slots_[slot];
}

void KeyTable::grow() {
  slots_ = std::vector<std::uint32_t>(std::max<std::size_t>(slots_.size() * 2, 64), Free);
  taken_ = static_cast<std::size_t>(keys_.rows());
  for (int row = 0; row < keys_.rows(); ++row) slotOf(key(row)) = static_cast<std::uint32_t>(row);
}

RowHandle KeyTable::add(std::span<const Value> key) {
  if (taken_ * 4 >= slots_.size() * 3) grow();
  std::uint32_t& slot = slotOf(key);
  if (slot == Free) {
    slot = static_cast<std::uint32_t>(keys_.rows());
    ++taken_;
    for (const Value& value : key) keys_.add(value);
  }
  return slot;
}

std::vector<Value> KeyTable::key(RowHandle row) const {
  std::vector<Value> values;
  values.reserve(static_cast<std::size_t>(keys_.columns()));
  for (int column = 0; column < keys_.columns(); ++column)
    values.push_back(keys_.at(static_cast<int>(row), column));
  return values;
}

void KeyTable::change(RowHandle row, int column, const Value& value) {
  if (taken_ * 4 >= slots_.size() * 3) grow();
  keys_.set(static_cast<int>(row), column, value);
  slotOf(key(row)) = static_cast<std::uint32_t>(row);
  ++taken_;
}

}  // namespace zqn::ado::odbc
