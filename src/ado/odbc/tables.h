// SPDX-License-Identifier: MIT
//
// Inside the ODBC provider: the tables of the database, asked of the driver when they are first needed.
#pragma once

#include <map>
#include <optional>
#include <vector>

#include "ado/odbc/link.h"

namespace zqn::ado::odbc {

struct TableInfo {
  struct Column {
    String name;
    bool boolean = false;
    bool number = false;
  };

  /// As the server stores it.
  String name;
  std::vector<Column> columns;
  /// Columns of the primary key; empty for a view, or a table without one.
  std::vector<String> key;

  /// Found without regard to case; nullptr when there is none.
  const Column* column(StringView asked) const;
};

/// What is known of the tables of one database. Asked of the driver when it is first needed, and kept.
class Tables {
 public:
  explicit Tables(Link& link) : link_(link) {}

  /// A table or view by the name that a statement gives it, without quotes: the one that has it exactly, else
  /// the one that has it in another case. nullptr when there is none. Valid until `forget`.
  const TableInfo* table(StringView asked);
  /// Tables may have changed.
  void forget() noexcept;

 private:
  struct Name {
    String schema, table;
  };
  const std::vector<Name>& names();
  TableInfo read(const Name& name);

  Link& link_;
  std::optional<std::vector<Name>> names_;
  std::map<String, std::optional<TableInfo>, std::less<>> known_;  // by the name asked for
};

}  // namespace zqn::ado::odbc
