// SPDX-License-Identifier: MIT
//
// Rows as a provider delivers them and a snapshot keeps them.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "runtime/string.h"

namespace zqn::ado {

/// A value on its way to or from a database. The text is not owned: a parameter's lives until the call
/// returns, a cell's until its RowStore changes.
struct Value {
  /// What a database stores.
  enum class Kind : std::uint8_t { Null, Integer, Real, Text };

  Kind kind = Kind::Null;    ///< Which of the others counts.
  std::int64_t integer = 0;  ///< Of Kind::Integer.
  double real = 0;           ///< Of Kind::Real.
  StringView text;           ///< Of Kind::Text; not owned.

  /// The value of that kind.
  static Value of(std::int64_t value) { return {Kind::Integer, value, 0, {}}; }
  static Value of(double value) { return {Kind::Real, 0, value, {}}; }
  static Value of(StringView value) { return {Kind::Text, 0, 0, value}; }
};

struct RowView;

/// Rows as a provider delivers them and a snapshot keeps them: sixteen bytes a cell, all texts in one buffer.
/// A provider adds cells in the order of the columns, row after row:
///
///     rows.addText("10");     // UTF-8, converted on the way in
///     rows.addInteger(5);
class RowStore {
 public:
  /// Columns of a row; at least 1 before cells are added.
  explicit RowStore(int columns = 0) : columns_(columns) {}

  int columns() const noexcept { return columns_; }  ///< Cells of a row.
  int rows() const noexcept {                        ///< Whole rows.
    return columns_ == 0 ? 0 : static_cast<int>(cells_.size() / static_cast<std::size_t>(columns_));
  }
  /// Drops all rows, keeps the memory.
  void clear(int columns) noexcept;

  /// The next cell.
  void addNull() { cells_.push_back({Value::Kind::Null, 0, {.integer = 0}}); }
  void addInteger(std::int64_t value) { cells_.push_back({Value::Kind::Integer, 0, {.integer = value}}); }
  void addReal(double value) { cells_.push_back({Value::Kind::Real, 0, {.real = value}}); }
  /// A text, copied.
  void addText(std::string_view utf8);
  void addText(StringView text);
  /// The next cell, of any kind; a text is copied.
  void add(const Value& value);
  /// A copy of a row of another store with as many columns.
  void addRow(const RowView& row);

  /// Row and column from 0, inside the bounds.
  Value at(int row, int column) const noexcept;
  /// Puts another value into a cell. The room of a replaced text is not used again.
  void set(int row, int column, const Value& value);

  /// Memory held, in bytes.
  std::size_t bytes() const noexcept;

 private:
  struct Cell {
    Value::Kind kind;
    std::uint32_t length;  // of a text, in UTF-16 units
    union {
      std::int64_t integer;
      double real;
      std::uint64_t offset;  // of a text, in texts_
    };
  };

  Cell cellOf(const Value& value);
  std::size_t index(int row, int column) const noexcept {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(columns_) +
           static_cast<std::size_t>(column);
  }

  int columns_;
  std::vector<Cell> cells_;
  String texts_;
};

/// One row of a store.
struct RowView {
  const RowStore* store = nullptr;  ///< nullptr for no row.
  int row = 0;                      ///< From 0.

  explicit operator bool() const noexcept { return store != nullptr; }  ///< There is a row.
  /// Column from 0, inside the bounds.
  Value at(int column) const noexcept { return store->at(row, column); }
};

}  // namespace zqn::ado
