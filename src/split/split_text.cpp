// SPDX-License-Identifier: MIT
#include "split/split_text.h"

#include "runtime/convert.h"
#include "split/split_values.h"

namespace zqn {

namespace {

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

std::vector<String> splitLines(StringView text) {
  std::vector<String> lines = Split(text, splitLineBreak);
  if (lines.back().empty()) lines.pop_back();
  return lines;
}

SplitFields splitFieldsOf(StringView line) {
  SplitFields fields;
  for (std::size_t j = 0; j < splitFields; ++j)
    fields[j] = GetField(static_cast<int>(j) + 1, line, separator, quote);
  return fields;
}

SplitTable ParseSplit(StringView text) {
  const std::vector<String> lines = splitLines(text);
  SplitTable table;
  table.rows.resize(lines.size());
  for (std::size_t i = 0; i < lines.size(); ++i) {
    if (Trim(lines[i]).empty()) continue;
    ++table.count;
    table.rows[i] = splitFieldsOf(lines[i]);
  }
  return table;
}

SplitCells cellsOf(const SplitFields& fields, SplitKind kind) {
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

String splitLine(double quantity, const std::array<String, splitFields - 1>& texts) {
  String line = numberText(quantity);
  for (const String& text : texts) line += separator + inQuotes(text);
  return line;
}

String BuildSplit(const std::vector<SplitCells>& rows) {
  String text;
  for (const SplitCells& row : rows) {
    if (!text.empty()) text += splitLineBreak;
    const double quantity = Val2(row[SplitQuantity]);
    if (quantity == 0) continue;
    const String& date = row[SplitDate];
    text +=
        splitLine(quantity, {row[SplitUnit], row[SplitBatch],
                             Trim(date).empty() ? date : concatenate(DateToStore(date)), row[SplitSerial]});
  }
  return text;
}

}  // namespace zqn
