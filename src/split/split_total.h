// SPDX-License-Identifier: MIT
//
// The running total of a split.
#pragma once

#include <cstdint>
#include <vector>

namespace zqn {

/// The total of the quantities, kept row by row, so that it is known at once however many rows there are.
/// Quantities of cells have three decimals, as cells show them. Row numbers are the grid's; each row counts
/// as 0 until it is set.
///
///     total.rows(4);
///     total.set(1, 2.5);
///     total.without(3, 2, 7);  // all rows but 3, with 7 in the place of row 2
class SplitTotal {
 public:
  /// So many rows; rows at the end come as 0 and go with what they hold.
  void rows(int count);
  void set(int row, double quantity);
  double at(int row) const { return quantities_[static_cast<std::size_t>(row)]; }

  /// The total of all rows but `excluded`, rounded to six decimals.
  double without(int excluded) const;
  /// The same with a quantity, of any decimals, that row `replaced` does not hold yet.
  double without(int excluded, int replaced, double quantity) const;

 private:
  void add(double quantity, int sign);

  std::vector<double> quantities_;
  /// The sum in thousandths. Quantities too large for that are only counted, and then the sum is made by
  /// adding.
  std::int64_t thousandths_ = 0;
  int tooLarge_ = 0;
};

/// A quantity to six decimals, as sums and targets are compared.
double sixDecimals(double quantity);

}  // namespace zqn
