// SPDX-License-Identifier: MIT
//
// ParseSplit makes a table of any text; its rows, written and read back, are the same rows as long as no field
// holds a line break. One can: a quote between CR and LF belongs to no field, and so brings them together.
#include "fuzz/input.h"
#include "split/split_text.h"
#include "split/split_values.h"

namespace {

using namespace zqn;

/// Rows that a text can hold: a quantity, a date that is one, no line break.
std::vector<SplitCells> rowsOf(const SplitTable& table) {
  std::vector<SplitCells> rows;
  for (int i = 0; i < table.count; ++i) {
    SplitCells cells = cellsOf(table.rows[static_cast<std::size_t>(i)], SplitKind::Both);
    if (Val2(cells[SplitQuantity]) == 0) continue;
    const String& date = cells[SplitDate];
    const bool blank = Trim(date).empty();
    for (String& cell : cells)
      if (cell.find(u"\r\n") != String::npos) cell.clear();
    if (!blank && (!IsDate(date) || dateFromStore(CStr(DateToStore(date))) != date)) cells[SplitDate].clear();
    rows.push_back(cells);
  }
  return rows;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::fixTheDay();
  const SplitTable table = ParseSplit(fuzz::textOf(data, size));
  fuzz::check(table.count <= static_cast<int>(table.rows.size()), "no more lines count than there are rows");
  const std::vector<SplitCells> rows = rowsOf(table);
  fuzz::check(rowsOf(ParseSplit(BuildSplit(rows))) == rows, "a result reads back as the same rows");
  return 0;
}
