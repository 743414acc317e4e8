// SPDX-License-Identifier: MIT
//
// Inside the ODBC provider: the keys of a list's rows. A key's handle is its number here, from 0, and stays
// when the key of its row changes.
//
//     KeyTable keys(1);
//     RowHandle row = keys.add(read, 0, {0});
//     std::vector<Value> key = keys.key(row);
#pragma once

#include <span>
#include <vector>

#include "ado/provider.h"

namespace zqn::ado::odbc {

class KeyTable {
 public:
  explicit KeyTable(int columns) : keys_(columns) {}

  /// The handle of this key, one value a column; it is taken in if it is not here.
  RowHandle add(std::span<const Value> key);
  /// The values of a key. Valid until the next call that is not const.
  std::vector<Value> key(RowHandle row) const;
  /// The row has another value in this column of the key now.
  void change(RowHandle row, int column, const Value& value);

 private:
  std::uint32_t& slotOf(std::span<const Value> key);
  void grow();

  static constexpr std::uint32_t Free = 0xFFFFFFFF;
  RowStore keys_;
  std::vector<std::uint32_t> slots_;  // handles; open addressing, a power of two
  std::size_t taken_ = 0;
};

}  // namespace zqn::ado::odbc
