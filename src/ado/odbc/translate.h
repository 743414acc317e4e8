// SPDX-License-Identifier: MIT
//
// Inside the ODBC provider: a statement of the dialogs in the words of one server. What differs: quotes
// around names, comparisons of yes and no, LIKE, literals beyond ASCII, the beginning of a transaction. All
// else stays as it is written.
#pragma once

#include <functional>

#include "ado/odbc/dialect.h"

namespace zqn::ado::odbc {

struct TableInfo;

/// What a statement does besides: to the transaction that the caller has begun, or to the tables. Going back to
/// a savepoint is None.
enum class Effect { None, Begin, Commit, Rollback, Schema };

/// A table by the name that a statement gives it, without quotes; nullptr when there is none.
using TableLookup = std::function<const TableInfo*(StringView name)>;

struct Translation {
  String text;
  Effect effect = Effect::None;
};

/// Error -2147217900 for an empty text, a quote without its end, a character U+0000, or a second statement.
Translation translate(StringView statement, const Dialect& dialect, const TableLookup& lookup);

}  // namespace zqn::ado::odbc
