// SPDX-License-Identifier: MIT
//
// BuildSplit writes any rows whose fields hold no quote so that ParseSplit reads the same rows.
#include "fuzz/input.h"
#include "split/split_columns.h"
#include "split/split_text.h"
#include "split/split_values.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace zqn;
  fuzz::fixTheDay();
  static const SplitColumns columns(SplitKind::Both, u"Stk");
  // The bytes 0 and 1 part rows and fields; each field goes through its cell as if typed.
  std::vector<SplitCells> rows;
  for (const String& line : Split(fuzz::textOf(data, size), StringView(u"\0", 1))) {
    SplitCells cells;
    std::size_t field = 0;
    for (const String& typed : Split(line, u"\x01")) {
      if (field == cells.size()) break;
      const String plain = Replace(Replace(typed, u"\"", u""), u"\r\n", u" ");
      cells[field] = columns.cellText(static_cast<int>(field) + 1, plain);
      ++field;
    }
    if (Val2(cells[SplitQuantity]) != 0) rows.push_back(cells);
  }
  const SplitTable table = ParseSplit(BuildSplit(rows));
  fuzz::check(table.count == static_cast<int>(rows.size()), "each row is a line");
  for (std::size_t i = 0; i < rows.size(); ++i)
    fuzz::check(cellsOf(table.rows[i], SplitKind::Both) == rows[i], "a row reads back as the same row");
  return 0;
}
