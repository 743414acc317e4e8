// SPDX-License-Identifier: MIT
//
// The text of a quantity split (kind 34) as rows, for hosts: what goes into Param(0), and what comes back.
#pragma once

#include <chrono>
#include <optional>
#include <span>
#include <vector>

#include "runtime/string.h"

namespace zqn {

/// One row of a split: so much of a batch, or a piece with a serial number, or both.
///
///     const std::vector<SplitRow> rows{{.quantity = 2.5, .unit = u"Stk", .batch = u"L-4711"}};
///     VariantArray param{writeSplit(rows), 10.0, u"Stk", std::int32_t{1}, false};
///     for (const SplitRow& row : readSplit(CStr(dialog.Show(34, param)))) store(row.batch, row.quantity);
struct SplitRow {
  double quantity = 0;  ///< In that unit; 1 for a piece.
  /// The dialog shows it as it is and gives new rows the unit of Param(2).
  String unit = {};
  String batch = {};
  /// No value for none.
  std::optional<std::chrono::year_month_day> expiry = {};
  String serial = {};

  bool operator==(const SplitRow&) const = default;  ///< Field by field.
};

/// The rows of a text, in its order. Never fails: lines of blanks are left out, a missing field is empty, a
/// quantity that is no number is 0, and a date that is none is no date. A field without quotes that is a
/// number loses leading zeros and what else is no part of its value.
std::vector<SplitRow> readSplit(StringView text);

/// The text of these rows, from which readSplit makes the same rows again; quantities keep 15 digits. Error 5
/// for a field with a quotation mark or a CR LF inside, which the text cannot hold, for a quantity that is no
/// finite number, and for a date that is not in the calendar from year 1 to 9999.
String writeSplit(std::span<const SplitRow> rows);

}  // namespace zqn
