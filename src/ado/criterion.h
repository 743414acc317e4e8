// SPDX-License-Identifier: MIT
//
// The criterion of Find: comparisons of a column with a literal, joined by AND.
//
//     Criterion criterion(u"Buchungskreis=1 AND Herkunft='A'", columns);
//     if (criterion.holds(row)) ...
#pragma once

#include <optional>
#include <vector>

#include "ado/provider.h"

namespace zqn::ado {

class Criterion {
 public:
  /// Errors 3001 for a text that cannot be read, 3265 for a column that is not there, -2147352571 for a text
  /// that is no number in a comparison with a number column.
  Criterion(StringView text, const Columns& columns);

  /// All comparisons hold. Null fits none. Texts compare by compareCollated.
  bool holds(const RowView& row) const;

  /// The comparisons by `=` that an index can answer. They refer to the criterion.
  std::vector<ColumnEquals> equalities() const;
  std::size_t count() const noexcept { return comparisons_.size(); }

  enum class Operator {
    Equal,
    NotEqual,
    Less,
    Greater,
    LessOrEqual,
    GreaterOrEqual,
    Is,
    StartsWith,
    Contains
  };
  struct Comparison {
    int column = 0;
    Operator op = Operator::Equal;
    String text;
    /// The literal as a number, where it is one; for a Boolean column 1 or 0.
    std::optional<double> number;
    bool truth = false;  // a Boolean column

    bool holds(const Value& value) const;
  };

 private:
  std::vector<Comparison> comparisons_;
  const Columns* columns_;
};

}  // namespace zqn::ado
