// SPDX-License-Identifier: MIT
//
// The split text as the form of kind 34 takes it apart and puts it together. A line a row, CR LF between
// lines; a line is quantity, unit, batch number, expiry date and serial number, "|" between them, the last
// four in double quotes:
//
//     2,5|"Stk"|"L-4711"|"20260630000000"|""
//
// What BuildSplit writes, ParseSplit reads back as the same rows, as long as no field holds a double quote.
// Hosts read and write it through split_rows.h.
#pragma once

#include <array>
#include <vector>

#include "runtime/variant.h"

namespace zqn {

/// The fields of a line in their order.
enum SplitField { SplitQuantity, SplitUnit, SplitBatch, SplitDate, SplitSerial };
constexpr std::size_t splitFields = 5;

/// What is split: a quantity over batches, over serial numbers, over both.
enum class SplitKind { None = 0, Batches = 1, Serials = 2, Both = 3 };
constexpr std::size_t splitKinds = static_cast<std::size_t>(SplitKind::Both) + 1;

/// A line taken apart.
using SplitFields = std::array<Variant, splitFields>;
/// A row as the grid shows it: the texts of its five cells.
using SplitCells = std::array<String, splitFields>;

struct SplitTable {
  /// A row for each line, also for one without text, which is Empty throughout.
  std::vector<SplitFields> rows;
  /// Lines with text. It can be less than there are rows.
  int count = 0;
};

/// Reads a split text; whatever it says, there is a table.
SplitTable ParseSplit(StringView text);

/// Field `index` of a line, counted from 1; index 0 is the number of fields. Separators inside quotes belong
/// to the field, quotes never do. A quoted field is text, an unquoted one with a comma or point as decimal
/// sign a Double, any other text. Null beyond the last field. An empty line gives 0 for index 0, else "".
Variant GetField(int index, StringView line, char16_t separator, char16_t quote);

/// The cell texts of a row of the table: number and date in the form of the grid, and what the kind does not
/// have left empty.
SplitCells cellsOf(const SplitFields& fields, SplitKind kind);

/// Writes the rows. One of quantity 0 is left out, but for its line break: none in front of the first line.
/// Fields go in as they are.
String BuildSplit(const std::vector<SplitCells>& rows);

// ---- what reading and writing are made of

constexpr StringView splitLineBreak = u"\r\n";

/// The lines of a text; nothing behind the last line break is no line.
std::vector<String> splitLines(StringView text);
SplitFields splitFieldsOf(StringView line);
/// A line; the texts are unit, batch number, stored date and serial number, and go in as they are.
String splitLine(double quantity, const std::array<String, splitFields - 1>& texts);

}  // namespace zqn
