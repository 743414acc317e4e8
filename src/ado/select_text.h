// SPDX-License-Identifier: MIT
//
// Further forms of a plain SELECT: with hidden columns behind its list, with another WHERE, with its keys
// alone. Providers make them from the pieces that sql::plainSelect gives.
//
//     sql::selectText(select, {u"Status"}, u"WHERE Status=?")
#pragma once

#include <vector>

#include "ado/provider.h"
#include "ado/sql_tokens.h"

namespace zqn::ado::sql {

/// "SELECT list, hidden FROM table rest" over lines of their own, as a piece may end in a comment.
String selectText(const PlainSelect& select, const std::vector<String>& hidden, StringView rest);

/// The same rows in the same order, `key` behind the select's own list; without that list, so that an index
/// alone can answer, unless the rows are sorted by something that the list gives.
struct KeysOnly {
  String text;
  /// Where the first column of the key stands.
  int column = 0;
};
/// `columns` are those of the list, and may have hidden ones behind them. `tail` follows at the end.
KeysOnly keysOnly(const PlainSelect& select, const Columns& columns, const std::vector<String>& key,
                  StringView tail = {});

}  // namespace zqn::ado::sql
