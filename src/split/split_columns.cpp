// SPDX-License-Identifier: MIT
#include "split/split_columns.h"

#include "runtime/convert.h"
#include "split/split_values.h"

namespace zqn {

namespace {

constexpr StringView quantityFormat = u"#,##0.000";
constexpr int right = 7;

struct Design {
  const char16_t* heading;
  /// By SplitKind.
  std::array<int, splitKinds> widths;
};

// clang-format off
constexpr Design designs[] = {
    {u"Menge", {1000, 1000, 1000, 1000}},
    {u"ME", {700, 700, 700, 700}},
    {u"Chargen-Nr.", {-1, 2000, 0, 2000}},
    {u"Verfalldatum", {-1, 1100, 0, 1100}},
    {u"S/N", {-1, 0, 2000, 2000}},
};
// clang-format on
static_assert(std::size(designs) == SplitColumns::Last);

const Design& designOf(int col) {
  if (col < SplitColumns::First || col > SplitColumns::Last) throw RuntimeError(error::SubscriptOutOfRange);
  return designs[col - SplitColumns::First];
}

}  // namespace

const char16_t* splitHeading(int col) { return designOf(col).heading; }

int splitWidth(int col, SplitKind kind) { return designOf(col).widths.at(static_cast<std::size_t>(kind)); }

SplitColumns::SplitColumns(SplitKind kind, StringView ME) {
  const bool batches = kind == SplitKind::Batches || kind == SplitKind::Both;
  const bool serials = kind == SplitKind::Serials || kind == SplitKind::Both;
  columns_ = {{
      {kind == SplitKind::Batches, right, u"1,000", u"", quantityFormat, true, false},
      {false, 1, String(ME), u"", u"", false, false},
      {batches, 1, u"", u"", u"", false, false},
      {batches, 1, u"", u"", u"", false, true},
      {serials, 1, u"", u"", u"", false, false},
  }};
}

SplitColumn& SplitColumns::operator()(int col) {
  if (col < First || col > Last) throw RuntimeError(error::SubscriptOutOfRange);
  return columns_[static_cast<std::size_t>(col - First)];
}

const SplitColumn& SplitColumns::operator()(int col) const { return const_cast<SplitColumns&>(*this)(col); }

bool SplitColumns::isEditable(int col) const { return col >= First && col <= Last && (*this)(col).Editable; }

int SplitColumns::FirstEditCol() const {
  for (int col = First; col <= Last; ++col) {
    if (isEditable(col)) return col;
  }
  return First;
}

int SplitColumns::LastEditCol() const {
  for (int col = Last; col >= First; --col) {
    if (isEditable(col)) return col;
  }
  return First;
}

int SplitColumns::NextEditCol(int col) const {
  for (int next = col + 1; next <= Last; ++next) {
    if (isEditable(next)) return next;
  }
  return col;
}

int SplitColumns::PrevEditCol(int col) const {
  for (int former = col - 1; former >= First; --former) {
    if (isEditable(former)) return former;
  }
  return col;
}

String SplitColumns::cellText(int col, StringView typed) const {
  const SplitColumn& column = (*this)(col);
  if (column.Numeric) return zqn::Format(Val2(typed), column.Format);
  if (!column.Date) return String(typed);
  return Trim(typed).empty() ? String() : ParseDate(typed);
}

}  // namespace zqn
