// SPDX-License-Identifier: MIT
#include "split/split_text.h"

#include "runtime/convert.h"
#include "split/split_values.h"

namespace zqn {

namespace {

constexpr StringView lineBreak = u"\r\n";
constexpr char16_t separator = u'|';
constexpr char16_t quote = u'"';

/// An unquoted field: a number where it is one.
Variant plainField(const String& field) {
  const String number = Replace(field, u",", u".");
  if (!IsNumeric(number)) return field;
  try {
    return Val(number);
  } catch (const RuntimeError&) {
    return {};
  }
}

String inQuotes(StringView field) { return quote + String(field) + quote; }

}  // namespace

Variant GetField(int index, StringView line, char16_t separator, char16_t quote) {
  if (line.empty()) return index == 0 ? Variant(std::int32_t{0}) : Variant(u"");
  int counter = 1;
  String field;
  bool inside = false;
  bool wasQuoted = false;
  for (const char16_t unit : line) {
    if (unit == quote) {
      inside = !inside;
      if (inside) wasQuoted = true;
    } else if (unit == separator && !inside) {
      if (counter == index) break;
      field.clear();
      wasQuoted = false;
      ++counter;
    } else {
      field += unit;
    }
  }
  if (index == 0) return std::int32_t{counter};
  if (counter < index) return Null;
  return wasQuoted ? Variant(field) : plainField(field);
}

SplitTable ParseSplit(StringView text) {
  std::vector<String> lines = Split(text, lineBreak);
  if (lines.back().empty()) lines.pop_back();
  SplitTable table;
  table.rows.resize(lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (Trim(lines[i]).empty()) continue;
    ++table.count;
    for (std::size_t j = 0; j < splitFields; ++j)
      table.rows[i][j] = GetField(static_cast<int>(j) + 1, lines[i], separator, quote);
  }
  return table;
}

SplitCells cellsOf(const std::array<Variant, splitFields>& fields, SplitKind kind) {
  SplitCells cells;
  for (std::size_t j = 0; j < splitFields; ++j) {
    const bool dropped = (kind == SplitKind::Batches && j == SplitSerial) ||
                         (kind == SplitKind::Serials && (j == SplitBatch || j == SplitDate));
    if (dropped) continue;
    cells[j] = concatenate(fields[j]);
  }
  cells[SplitQuantity] = quantityText(Val2(fields[SplitQuantity]));
  if (!Trim(cells[SplitDate]).empty()) cells[SplitDate] = dateFromStore(cells[SplitDate]);
  return cells;
}

String BuildSplit(const std::vector<SplitCells>& rows) {
  String text;
  for (const SplitCells& row : rows) {
    if (!text.empty()) text += lineBreak;
    const double quantity = Val2(row[SplitQuantity]);
    if (quantity == 0) continue;
    text += numberText(quantity);
    for (std::size_t j = SplitUnit; j < splitFields; ++j) {
      const bool isDate = j == SplitDate && !Trim(row[j]).empty();
      text += separator + inQuotes(isDate ? concatenate(DateToStore(row[j])) : row[j]);
    }
  }
  return text;
}

}  // namespace zqn
