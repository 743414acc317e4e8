// SPDX-License-Identifier: MIT
//
// Conversions of the dialog language, under the field's names. Whatever depends on the country (decimal sign,
// order of a date, comparison of texts, today) is taken from Locale::current().
//
//     CLng(u"2,5");                       // 2
//     Format(1234.5, u"#,##0.000");       // "1.234,500"
//     Format(Now(), u"yyyymmddhhnnss");
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

/// Empty is "", a Boolean "Wahr"/"Falsch", a Date its short form and its time if it has one, a number up to
/// 15 significant digits with the decimal sign of the locale. Errors 94 (Null), 13 (object, missing).
String CStr(const Variant& value);
/// The operator `&` of the language: as CStr, but Null is "".
String concatenate(const Variant& value);
/// A Double as CStr writes it: "1234,5", "0,3" for 0.1 + 0.2, "1E+15". In exponent form from 1E+15 on, and
/// where more than 15 places would be needed behind the decimal sign.
String numberText(double value);

// ---- to numbers

/// Rounds half to even. Texts are read by the locale (CDbl). Errors 6, 13, 94.
std::int16_t CInt(const Variant& value);
std::int32_t CLng(const Variant& value);
/// Texts by the locale: blanks around, sign in front or behind, parentheses for negative, the currency sign,
/// thousands signs anywhere before the decimal sign ("1.5" is 15), exponent e/E/d/D, &H and &O. Errors 6, 13,
/// 94.
double CDbl(const Variant& value);
/// "True", "False", "Wahr", "Falsch" in any case, numeric texts, numbers (0 is False). Errors 13, 94.
bool CBool(const Variant& value);
/// True exactly when CDbl would accept the value; Empty and Boolean are True, Null and Date False.
bool IsNumeric(const Variant& value);
/// The leading number of a text, the point as decimal sign, blanks, tabs and line ends skipped everywhere; 0
/// when there is none. Knows &H and &O. A type suffix ends the number. Error 94 for Null, 6 when too large;
/// what is no text is converted to text first, so that a decimal comma ends the number.
double Val(const Variant& value);
/// Val of a text.
double valOfText(StringView text);
template <std::convertible_to<StringView> Text>
double Val(const Text& text) {
  return valOfText(text);
}
/// The next lower whole number (Int), the number cut at the decimal sign (Fix), without its sign (Abs). The
/// kind stays; a text becomes a Double, a Boolean an Integer; Null stays Null. Errors 6, 13.
Variant Int(const Variant& value);
Variant Fix(const Variant& value);
Variant Abs(const Variant& value);

// ---- dates

/// A text in the locale's order ("5.3.2026", "5-3-26", "5. März 2026"), with day and month swapped where that
/// order is impossible, or year first ("2026-03-05"). Years 0 to 29 are 2000 and later, 30 to 99 1930 and
/// later; day and month alone are in the present year; a time may stand behind, or alone. Numbers are days.
/// Error 13 when the text is no date, 6 outside the years 100 to 9999, 94 for Null.
zqn::Date CDate(const Variant& value);
/// True for a Date and for a text that CDate accepts; False for every number.
bool IsDate(const Variant& value);
/// A point in time taken apart. The default is day 0.
struct CivilDate {
  int year = 1899;                                    ///< 100 to 9999.
  int month = 12;                                     ///< 1 to 12.
  int day = 30;                                       ///< 1 to 31.
  int hour = 0;                                       ///< 0 to 23.
  int minute = 0;                                     ///< 0 to 59.
  int second = 0;                                     ///< 0 to 59.
  bool operator==(const CivilDate&) const = default;  ///< The same second.
};
/// Day and time of the calendar, rounded to whole seconds. Error 6 far outside the years 100 to 9999.
CivilDate civil(zqn::Date date);
/// The day of the calendar; month and day beyond their bounds run over into the next month and year. Error 5
/// far outside the years 100 to 9999.
zqn::Date dateSerial(int year, int month, int day);
zqn::Date dateSerial(const CivilDate& date);
/// Present day and time by the locale's clock.
zqn::Date Now();
zqn::Date Today();

// ---- texts

/// Removes U+0020 at both ends, nothing else.
String Trim(StringView text);
/// Case by the letters of runtime/collation.h, unit by unit: "ß" stays.
String UCase(StringView text);
String LCase(StringView text);
/// Comparison by the locale without regard to case: -1, 0, 1.
int StrComp(StringView left, StringView right);
/// Position of `needle` from 0, or npos; exact comparison.
std::size_t InStr(StringView text, StringView needle);
/// Every occurrence, from the left; nothing for an empty `from`.
String Replace(StringView text, StringView from, StringView to);
/// The parts between the delimiters, at least one: "" gives one empty part.
std::vector<String> Split(StringView text, StringView delimiter);
/// A numeric pattern ("0.00", "#,##0.000", "00", "0%", sections for negative, zero and Null behind ";") or a
/// date pattern of d dd m mm yy yyyy h hh n nn s ss ("yyyymmddhhnnss"; mm behind hours are minutes). Rounds
/// half away from zero. Null and "" give "", unless the pattern has a section for Null; a text that cannot be
/// converted by the locale is returned unchanged. Errors 6 (no date of the calendar), 13 (object, missing).
String Format(const Variant& value, StringView pattern);

// ---- comparison of Variants

/// The operator `=` of two Variants: Null with anything is Null (no value); a number never equals a text;
/// Empty equals 0 and ""; texts compare exactly. Error 13 (object, missing).
std::optional<bool> equals(const Variant& left, const Variant& right);

}  // namespace zqn
