// SPDX-License-Identifier: MIT
//
// What the tests ask of every row, sample or generated, and of a set of rows: kinds, lengths, Nulls, keys.
#pragma once

#include <map>
#include <set>
#include <string>

#include "host/database/schema/table.h"

namespace zqn::host {

/// What is wrong with the row, in words; empty when it fits its table.
std::string rowFault(const Table& table, const Row& row);

/// Counts rows for each table and finds keys that are equal under the database's collation.
class RowLedger {
 public:
  /// Notes the row. Returns what is wrong with it (rowFault, or a key that stands already), or "".
  std::string add(const Table& table, const Row& row);

  std::int64_t count(StringView tableName) const;
  /// All values of the column but Null, compared by the collation.
  bool holds(StringView tableName, StringView column, const String& value) const;

 private:
  struct Collated {
    bool operator()(const String& left, const String& right) const;
  };
  struct KeyLess {
    bool operator()(const std::vector<String>& left, const std::vector<String>& right) const;
  };
  std::map<String, std::int64_t> counts_;
  std::map<String, std::set<std::vector<String>, KeyLess>> keys_;
  std::map<std::pair<String, String>, std::set<String, Collated>> values_;
};

}  // namespace zqn::host
