// SPDX-License-Identifier: MIT
#include "ado/value_index.h"

#include <bit>

#include "runtime/collation.h"

namespace zqn::ado {

namespace {

std::uint64_t hash(const Value& value) noexcept {
  if (value.kind == Value::Kind::Text) {
    const std::uint64_t text = hashCollated(value.text);
    return text ^ text >> 32;
  }
  const double number = value.kind == Value::Kind::Real ? value.real : static_cast<double>(value.integer);
  return std::bit_cast<std::uint64_t>(number + 0.0) * 0x9E3779B97F4A7C15 >> 32;
}

}  // namespace

std::uint64_t ValueIndex::entry(const Value& value, int row) noexcept {
  return hash(value) << 32 | static_cast<std::uint32_t>(row);
}

ValueIndex::ValueIndex(const RowStore& rows, int column) {
  entries_.reserve(static_cast<std::size_t>(rows.rows()));
  bool texts = false;
  bool numbers = false;
  for (int row = 0; row < rows.rows(); ++row) {
    const Value value = rows.at(row, column);
    if (value.kind == Value::Kind::Null) continue;
    (value.kind == Value::Kind::Text ? texts : numbers) = true;
    entries_.push_back(entry(value, row));
  }
  usable_ = !(texts && numbers);
  std::ranges::sort(entries_);
}

std::span<const std::uint64_t> ValueIndex::alike(const Value& value) const noexcept {
  const std::uint64_t low = entry(value, 0);
  const std::uint64_t high = low | 0xFFFFFFFF;
  const auto begin = std::ranges::lower_bound(entries_, low);
  const auto end = std::ranges::upper_bound(begin, entries_.end(), high);
  return {begin, end};
}

}  // namespace zqn::ado
