// SPDX-License-Identifier: MIT
//
// Numbers as decimal digits: what the conversions and the formats have in common. Text in, text out by a
// Locale, never by the process's own locale:
//
//     readNumber(u"(1.234,5)", Locale::german());  // -1234.5
#pragma once

#include <optional>
#include <string>

#include "runtime/locale.h"
#include "runtime/string.h"

namespace zqn {

/// A number as 0.d1d2d3... times ten to the power of `point`, without zeros at either end; zero has no digits
/// and point 0.
struct Decimal {
  static constexpr int SignificantDigits = 15;

  bool negative = false;
  std::string digits;
  int point = 0;

  /// The 15 significant digits that the dialog language shows of a Double. Error 6 for what is no number.
  static Decimal of(double value);
  /// Rounds half away from zero to this many places behind the decimal sign.
  void round(int places);
  /// Digits in front of the decimal sign, "" when below 1, and exactly `places` digits behind it.
  std::string whole() const;
  std::string fraction(int places) const;
};

/// Reads a whole text as CDbl does; no value when it is no number. A number too large for a Double is
/// infinite.
std::optional<double> readNumber(StringView text, const Locale& locale);

/// Reads what Val reads from a text without blanks and takes it off: a sign, digits with a point, an
/// exponent, or &H and &O. 0 when there is no number; too large is infinite.
double takeLeadingNumber(StringView& text);

}  // namespace zqn
