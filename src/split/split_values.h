// SPDX-License-Identifier: MIT
//
// How the quantity split reads numbers and dates: it repairs what was typed and refuses nothing. The present
// year comes from Locale::current().
//
//     Val2(u"1.234,5");        // 1234.5: a point is always a thousands sign
//     ParseDate(u"3102");      // "28.02.2026"
//     DateToStore(u"3.2.26");  // "20260203000000"
#pragma once

#include "runtime/variant.h"

namespace zqn {

/// The leading number of a text with points dropped and the comma as decimal sign; 0 for Null, for what has
/// no leading number, and for one too large for a Double.
double Val2(const Variant& value);
/// The quantity as cells and totals show it: "1.234,500".
String quantityText(double quantity);

/// A valid date as dd.mm.yyyy, whatever was typed. "31.12.26", "311226" and "3112.26" are the same day. Day
/// and month beyond their bounds go to the bound, a missing year is the present one, a shorter year takes the
/// place of the last digits of the present one, two digits more than ten years ahead are in the last century.
/// A year below 100 in four digits counts by its last two.
String ParseDate(StringView text);
/// The number of days of the month of a date. Error 13 when the text is no date.
int LastOfMonth(StringView text);

/// A date of a cell as fourteen digits with zeros as time; Null for a text of blanks, "" for one that is no
/// date.
Variant DateToStore(const Variant& value);
/// The cell text of a stored date: its first eight characters, cut by position, whatever they are.
String dateFromStore(StringView stored);

}  // namespace zqn
