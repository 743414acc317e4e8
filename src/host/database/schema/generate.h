// SPDX-License-Identifier: MIT
//
// Rows by the number, for benchmarks and for trying a list over a large table. The same number gives the same
// rows on every machine; they are made one by one, so a million need no memory.
//
//     generateRows(1'000'000, [&](const Table& table, const Row& row) { insert(table, row); });
//     generateRows(table(u"Vertriebsstati"), 100'000, sink);   // one table alone
//
// Keys are numbers to the base 36 in capitals, counted from 0, seven digits wide: "0000000" to "000LFLR" for
// a million. Where the dialog's key field is shorter they have its width: three for `Vertriebsstati`,
// `Zahlungsarten`, `ZahlungsartenEK` and `Zahlungsbedingungen`, five for `Preislistenkopf`. After row 46,656
// three digits are used up: `Vertriebsstati` and the payment types go on with four in their wider columns,
// where the list shows the row but the entry field takes the first three characters; `Zahlungsbedingungen`
// ends there, whatever N is. A booking range counts to 46,656 within one origin ("VK"), then the next one
// begins ("H01"). Customers count from 10001, offers from 20000001; every hundredth offer is a template. Text
// blocks are N in all, so a quarter of the payment and shipping types has one.
//
// Reserved rows "-" are not generated. Every 97th row has Null in its texts.
#pragma once

#include <cstdint>

#include "host/database/schema/table.h"

namespace zqn::host {

/// How many of `n` rows the key of the table can hold; the number of sample rows for a table that is no
/// catalogue.
std::int64_t generatedRowCount(const Table& table, std::int64_t n);

/// Hands over generatedRowCount(table, n) rows in the order of their keys' numbers. The table must be empty.
void generateRows(const Table& table, std::int64_t n, const RowSink& sink);

/// The same for all tables, one table after the other.
void generateRows(std::int64_t n, const RowSink& sink);

}  // namespace zqn::host
