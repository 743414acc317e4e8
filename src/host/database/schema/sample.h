// SPDX-License-Identifier: MIT
//
// The sample of a database: rows in German, as a technical wholesaler keeps them, at least twelve for each
// catalogue beside the reserved row "-". Every key that a row names stands in its table.
//
//     sampleRows([&](const Table& table, const Row& row) { insert(table, row); });
//
// `Versandformulare` holds a row "-", which gives the two layout combos of the shipping types their blank
// entry. A database without one is made by `DELETE FROM Versandformulare WHERE Layout='-'` afterwards: the
// combos then start with a layout, and a layout text that is not offered falls on that first one.
#pragma once

#include "host/database/schema/table.h"

namespace zqn::host {

/// Hands over each sample row once, all rows of a subject together. The tables must be empty, or at least
/// free of these keys.
void sampleRows(const RowSink& sink);

}  // namespace zqn::host
