// SPDX-License-Identifier: MIT
//
// Statements of the host's own, past the recordsets: with parameters, and with the rows as the database holds
// them. Nothing here is seen by a connection's Observer.
//
//     RowSet found = runStatement(connection, u"SELECT Wert FROM Einstellungen WHERE Sektion=?", {section});
#pragma once

#include <vector>

#include "ado/connection.h"
#include "runtime/string.h"
#include "runtime/variant.h"

namespace zqn::host {

struct RowSet {
  ado::RowStore rows;
  std::int64_t changed = 0;
};

/// The values as parameters of a statement; texts are not copied. A Boolean is 1 or 0. Kinds that no column
/// has (object, missing) are a defect of the program.
std::vector<ado::Value> parameters(const std::vector<Variant>& values);

/// Runs one statement and reads all its rows. The provider's errors.
RowSet runStatement(ado::Connection& connection, StringView statement,
                    const std::vector<Variant>& values = {});

/// The values of a row as they are stored: Null, String, and numbers as Long where they fit, else Double.
std::vector<Variant> rowValues(const ado::RowStore& rows, int row);

}  // namespace zqn::host
