// SPDX-License-Identifier: MIT
//
// What the tests ask of every row, sample or generated, and of a set of rows: kinds, lengths, Nulls, keys.
#pragma once

#include <map>
#include <string>
#include <unordered_set>
#include <vector>

#include "host/database/schema/table.h"

namespace zqn::host {

/// What is wrong with the row, in words; empty when it fits its table.
std::string rowFault(const Table& table, const Row& row);

/// Counts rows for each table and finds keys that are equal under the database's collation.
class RowLedger {
 public:
  /// Notes the row. Returns what is wrong with it (rowFault, or a key that stands already), or "".
  std::string add(const Table& table, const Row& row);

  /// Rows of the table so far.
  std::int64_t count(StringView tableName) const;
  /// All values of the column but Null, compared by the collation.
  bool holds(StringView tableName, StringView column, const String& value) const;

 private:
  // Equal by the collation, cell by cell.
  using Key = std::vector<String>;
  struct Hash {
    std::size_t operator()(const String& text) const noexcept;
    std::size_t operator()(const Key& key) const noexcept;
  };
  struct Equal {
    bool operator()(const String& left, const String& right) const noexcept;
    bool operator()(const Key& left, const Key& right) const noexcept;
  };
  struct Rows {
    std::int64_t count = 0;
    std::unordered_set<Key, Hash, Equal> keys;
    std::vector<std::unordered_set<String, Hash, Equal>> values;  // of each column
  };
  std::map<String, Rows, std::less<>> tables_;
};

}  // namespace zqn::host
