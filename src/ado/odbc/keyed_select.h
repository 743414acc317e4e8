// SPDX-License-Identifier: MIT
//
// Inside the ODBC provider: a plain SELECT over one table whose rows are found again by its primary key.
#pragma once

#include <optional>

#include "ado/odbc/server.h"
#include "ado/select_text.h"

namespace zqn::ado::odbc {

class KeyedSelect {
 public:
  /// No value for another kind of statement, and for a table without a primary key.
  static std::optional<KeyedSelect> of(StringView text, Tables& tables);

  /// The columns of the key, in quotes, in their order.
  std::vector<String> key() const;
  /// Columns under names of their own, so that an ORDER BY never means them.
  static std::vector<String> renamed(std::vector<String> columns);
  /// Those that the described columns of the list do not have, in quotes.
  std::vector<String> missing(const Columns& described) const;
  /// The statement with these columns behind its list.
  String withHidden(const std::vector<String>& hidden) const;
  /// The one row with this key, which is the parameter; such columns behind the list.
  String oneRow(const std::vector<String>& hidden) const;
  /// Its keys alone, with a `?` for each literal of `conditions`, or all.
  String keysWhere(const std::vector<String>& columns) const;
  /// Its keys alone in the order of its rows, which leaves no two in doubt.
  sql::KeysOnly keysInOrder(const Columns& columns) const;
  /// The statement itself says how many rows it wants.
  bool isLimited() const;

  /// Marks key and hidden ones, the last `hidden`; false when they are not all of this table.
  bool mark(Columns& columns, std::size_t hidden) const;
  /// For each column of the key, where it stands.
  std::vector<int> positions(const Columns& columns) const;

 private:
  KeyedSelect(StringView text, const TableInfo& table);

  /// The pieces refer to it; it does not move with this object.
  std::shared_ptr<const String> text_;
  sql::PlainSelect select_;
  String table_;
  std::vector<String> key_;
};

}  // namespace zqn::ado::odbc
