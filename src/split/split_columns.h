// SPDX-License-Identifier: MIT
//
// The columns of the split grid.
#pragma once

#include "split/split_text.h"

namespace zqn {

struct SplitColumn {
  bool Editable = false;
  /// The grid's alignment of cells.
  int Alignment = 1;
  /// Text of a new row.
  String Default;
  /// Text of the current row when the cursor came to it.
  String Saved;
  /// Pattern that a value is written with; empty for as it is.
  StringView Format;
  bool Numeric = false;
  bool Date = false;
};

/// The columns 1 to 5 of the split grid: what each kind shows of them and lets a person edit. Column 0 holds
/// the marks. The scans look at what can be edited only:
///
///     SplitColumns columns(SplitKind::Batches, u"Stk");
///     columns.NextEditCol(1);  // 3: the unit is never edited
class SplitColumns {
 public:
  static constexpr int First = 1, Last = 5;

  SplitColumns() = default;
  SplitColumns(SplitKind kind, StringView ME);

  /// Error 9 outside 1 to 5.
  SplitColumn& operator()(int col);
  const SplitColumn& operator()(int col) const;
  /// False outside 1 to 5.
  bool isEditable(int col) const;

  /// The lowest and the highest editable column; 1 if there is none.
  int FirstEditCol() const;
  int LastEditCol() const;
  /// The next editable column to the right, to the left; `col` itself if there is none.
  int NextEditCol(int col) const;
  int PrevEditCol(int col) const;
  bool IsLastEditCol(int col) const { return NextEditCol(col) == col; }
  bool IsFirstEditCol(int col) const { return PrevEditCol(col) == col; }

  /// A typed text as the cell takes it: numbers read and formatted, dates repaired.
  String cellText(int col, StringView typed) const;

 private:
  std::array<SplitColumn, Last> columns_;
};

/// Headings and widths (twips) of columns 1 to 5; -1 for a width that the kind does not set.
const char16_t* splitHeading(int col);
int splitWidth(int col, SplitKind kind);

}  // namespace zqn
