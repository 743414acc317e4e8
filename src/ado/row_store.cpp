// SPDX-License-Identifier: MIT
#include "ado/row_store.h"

namespace zqn::ado {

void RowStore::clear(int columns) noexcept {
  columns_ = columns;
  cells_.clear();
  texts_.clear();
}

void RowStore::addText(std::string_view utf8) {
  const std::size_t offset = texts_.size();
  appendUtf8(texts_, utf8);
  cells_.push_back(
      {Value::Kind::Text, static_cast<std::uint32_t>(texts_.size() - offset), {.offset = offset}});
}

void RowStore::addText(StringView text) { add(Value::of(text)); }

void RowStore::add(const Value& value) { cells_.push_back(cellOf(value)); }

void RowStore::addRow(const RowView& row) {
  for (int column = 0; column < columns_; ++column) add(row.at(column));
}

RowStore::Cell RowStore::cellOf(const Value& value) {
  switch (value.kind) {
    case Value::Kind::Null:
      break;
    case Value::Kind::Integer:
      return {value.kind, 0, {.integer = value.integer}};
    case Value::Kind::Real:
      return {value.kind, 0, {.real = value.real}};
    case Value::Kind::Text: {
      const std::size_t offset = texts_.size();
      texts_.append(value.text);
      return {value.kind, static_cast<std::uint32_t>(value.text.size()), {.offset = offset}};
    }
  }
  return {Value::Kind::Null, 0, {.integer = 0}};
}

Value RowStore::at(int row, int column) const noexcept {
  const Cell& cell = cells_[index(row, column)];
  switch (cell.kind) {
    case Value::Kind::Null:
      break;
    case Value::Kind::Integer:
      return Value::of(cell.integer);
    case Value::Kind::Real:
      return Value::of(cell.real);
    case Value::Kind::Text:
      return Value::of(StringView(texts_).substr(cell.offset, cell.length));
  }
  return {};
}

void RowStore::set(int row, int column, const Value& value) { cells_[index(row, column)] = cellOf(value); }

std::size_t RowStore::bytes() const noexcept {
  return cells_.capacity() * sizeof(Cell) + texts_.capacity() * sizeof(char16_t);
}

}  // namespace zqn::ado
