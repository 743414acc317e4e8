// SPDX-License-Identifier: MIT
//
// `zqn-dialog sql`: statements from a text, one after the other, with their rows as JSON.
//
//     echo "SELECT Status, Bezeichnung FROM Vertriebsstati;" | zqn-dialog sql --db sqlite:waren.sqlite
#pragma once

#include <iosfwd>

#include "ado/connection.h"

namespace zqn::host {

/// Runs the statements of `in`, each ended by `;` at a line's end, and writes the rows of each as an array of
/// arrays on a line of its own, `[]` where there are none. CommandFailure (CannotOpen) with the text of the
/// first statement that fails, that is not ended, or of which the rows cannot be written, and when the last one
/// leaves a transaction open. What ran before stays done, but for a transaction that was begun and not ended.
void runStatements(ado::Connection& connection, std::istream& in, std::ostream& out);

}  // namespace zqn::host
