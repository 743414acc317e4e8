// SPDX-License-Identifier: MIT
//
// Inside the ODBC provider: a statement of the dialogs in the words of one server. What differs: quotes
// around names, comparisons of yes and no, LIKE, literals beyond ASCII, the beginning of a transaction. All
// else stays as it is written.
#pragma once

#include "ado/odbc/dialect.h"

namespace zqn::ado::odbc {

class Catalogue;

enum class Effect { None, Begin, Commit, Rollback, Schema };

struct Translation {
  String text;
  Effect effect = Effect::None;
};

/// Error -2147217900 for an empty text, a quote without its end, a character U+0000, or a second statement.
Translation translate(StringView statement, const Dialect& dialect, Catalogue& catalogue);

}  // namespace zqn::ado::odbc
