// SPDX-License-Identifier: MIT
#include "split/split_total.h"

#include <cmath>

namespace zqn {

namespace {

constexpr double million = 1e6;
constexpr double thousand = 1e3;
/// Thousandths of a million such quantities fit into 64 bits.
constexpr double largest = 9e9;

bool isTooLarge(double quantity) { return !(std::abs(quantity) <= largest); }

std::int64_t inThousandths(double quantity) { return std::llround(quantity * thousand); }

}  // namespace

void SplitTotal::add(double quantity, int sign) {
  if (isTooLarge(quantity)) {
    tooLarge_ += sign;
  } else {
    thousandths_ += sign * inThousandths(quantity);
  }
}

void SplitTotal::rows(int count) {
  while (static_cast<int>(quantities_.size()) > count) {
    add(quantities_.back(), -1);
    quantities_.pop_back();
  }
  quantities_.resize(static_cast<std::size_t>(count));
}

void SplitTotal::set(int row, double quantity) {
  double& held = quantities_[static_cast<std::size_t>(row)];
  add(held, -1);
  held = quantity;
  add(held, 1);
}

double SplitTotal::without(int excluded) const { return without(excluded, excluded, 0); }

double SplitTotal::without(int excluded, int replaced, double quantity) const {
  if (replaced == excluded) quantity = 0;
  if (tooLarge_ == 0) {
    std::int64_t others = thousandths_ - inThousandths(at(excluded));
    if (replaced != excluded) others -= inThousandths(at(replaced));
    return sixDecimals(static_cast<double>(others) / thousand + quantity);
  }
  double sum = quantity;
  for (int row = 0; row < static_cast<int>(quantities_.size()); ++row) {
    if (row != excluded && row != replaced) sum += at(row);
  }
  return sixDecimals(sum);
}

double sixDecimals(double quantity) {
  const double scaled = quantity * million;
  return std::isfinite(scaled) ? std::round(scaled) / million : quantity;
}

}  // namespace zqn
