// SPDX-License-Identifier: MIT
//
// Conversions of the dialog language, under the field's names. Whatever depends on the country (decimal sign,
// order of a date, upper case, comparison of texts, today) is taken from Locale::current().
//
// Errors: 6 out of range, 13 not of that kind, 94 Null where a value is needed.
#pragma once

#include <concepts>
#include <optional>
#include <vector>

#include "runtime/string.h"
#include "runtime/variant.h"

namespace zqn {

// ---- to text

/// Empty is "", a Boolean "Wahr"/"Falsch", a Date its short form, a number up to 15 significant digits with
/// the decimal sign of the locale. Errors 94 (Null), 13 (object, missing).
String CStr(const Variant& value);
/// The operator `&` of the language: as CStr, but Null is "".
String concatenate(const Variant& value);
/// A Double as CStr writes it: "1234,5", "0,3" for 0.1 + 0.2, "1E+15".
String numberText(double value);

// ---- to numbers

/// Rounds half to even. Texts are read by the locale (CDbl). Errors 6, 13, 94.
std::int16_t CInt(const Variant& value);
std::int32_t CLng(const Variant& value);
/// Texts by the locale: blanks around, sign in front or behind, parentheses for negative, thousands signs
/// anywhere before the decimal sign, exponent e/E/d/D, &H and &O. Errors 6, 13, 94.
double CDbl(const Variant& value);
/// "True", "False", "Wahr", "Falsch" in any case, numeric texts, numbers (0 is False). Errors 13, 94.
bool CBool(const Variant& value);
/// True exactly when CDbl would accept the value; Empty and Boolean are True, Null and Date False.
bool IsNumeric(const Variant& value);
/// The leading number of a text, the point as decimal sign, blanks skipped everywhere; 0 when there is none.
/// Knows &H and &O. A type suffix ends the number. Error 94 for Null, 6 when too large; numbers are converted
/// to text first.
double Val(const Variant& value);
double valOf(StringView text);
template <std::convertible_to<StringView> Text>
double Val(const Text& text) {
  return valOf(text);
}
/// Next lower whole number / cut at the decimal sign / without sign; Null stays Null. Error 13.
Variant Int(const Variant& value);
Variant Fix(const Variant& value);
Variant Abs(const Variant& value);

// ---- dates

/// A date by the locale's order, or year first; see the platform's rules for swapped day and month and
/// two-digit years. Error 13 when the text is no date, 94 for Null.
zqn::Date CDate(const Variant& value);
bool IsDate(const Variant& value);
struct CivilDate {
  int year = 1899, month = 12, day = 30, hour = 0, minute = 0, second = 0;
  bool operator==(const CivilDate&) const = default;
};
CivilDate civil(zqn::Date date);
/// The day of the calendar; month and day beyond their bounds run over into the next month and year.
zqn::Date dateSerial(int year, int month, int day);
zqn::Date dateSerial(const CivilDate& date);
/// Present day and time by the locale's clock.
zqn::Date Now();
zqn::Date Today();

// ---- texts

/// Removes U+0020 at both ends, nothing else.
String Trim(StringView text);
String UCase(StringView text);
String LCase(StringView text);
/// Comparison by the locale without regard to case: -1, 0, 1.
int StrComp(StringView left, StringView right);
/// Position of `needle` from 0, or npos; exact comparison.
std::size_t InStr(StringView text, StringView needle);
String Replace(StringView text, StringView from, StringView to);
std::vector<String> Split(StringView text, StringView delimiter);
/// Format with a numeric pattern ("0.00", "#,##0.000", "00") or a date pattern ("yyyymmddhhnnss",
/// "dd.mm.yyyy"). Null and "" give
/// ""; a text that cannot be converted is returned unchanged. Rounds half away from zero.
String Format(const Variant& value, StringView pattern);

// ---- comparison of Variants

/// The operator `=` of two Variants: Null with anything is Null (no value); a number never equals a text;
/// texts compare exactly.
std::optional<bool> equals(const Variant& left, const Variant& right);

}  // namespace zqn
