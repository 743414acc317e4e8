// SPDX-License-Identifier: MIT
#include <cmath>
#include <limits>

#include "runtime/convert.h"
#include "runtime/locale.h"
#include "runtime/number_text.h"

namespace zqn {

namespace {

template <class Whole>
Whole rounded(double value) {
  // nearbyint rounds half to even.
  const double whole = std::nearbyint(value);
  if (!(whole >= std::numeric_limits<Whole>::min() && whole <= std::numeric_limits<Whole>::max())) {
    throw RuntimeError(error::Overflow);
  }
  return static_cast<Whole>(whole);
}

// Int, Fix and Abs: Null stays Null, the kind of the argument stays, a text becomes a Double.
template <class Function>
Variant keepingKind(const Variant& value, Function function) {
  switch (value.kind()) {
    case Variant::Kind::Null:
      return Null;
    case Variant::Kind::Empty:
      return std::int16_t{0};
    case Variant::Kind::Date:
      return Date{function(value.as<Date>()->days)};
    case Variant::Kind::Double:
    case Variant::Kind::String:
      return function(CDbl(value));
    default:
      break;
  }
  const double result = function(CDbl(value));
  if (value.kind() != Variant::Kind::Long && result <= std::numeric_limits<std::int16_t>::max()) {
    return static_cast<std::int16_t>(result);
  }
  // The lowest number of a kind has no counterpart in it.
  if (result > std::numeric_limits<std::int32_t>::max()) return result;
  return static_cast<std::int32_t>(result);
}

}  // namespace

std::int16_t CInt(const Variant& value) { return rounded<std::int16_t>(CDbl(value)); }

std::int32_t CLng(const Variant& value) { return rounded<std::int32_t>(CDbl(value)); }

double CDbl(const Variant& value) {
  switch (value.kind()) {
    case Variant::Kind::Empty:
      return 0;
    case Variant::Kind::Boolean:
      return *value.as<bool>() ? -1 : 0;
    case Variant::Kind::Integer:
      return *value.as<std::int16_t>();
    case Variant::Kind::Long:
      return *value.as<std::int32_t>();
    case Variant::Kind::Double:
      return *value.as<double>();
    case Variant::Kind::Date:
      return value.as<Date>()->days;
    case Variant::Kind::Null:
      throw RuntimeError(error::InvalidUseOfNull);
    case Variant::Kind::String:
      break;
    case Variant::Kind::Object:
    case Variant::Kind::Missing:
      throw RuntimeError(error::TypeMismatch);
  }
  const std::optional<double> number = readNumber(*value.as<String>(), Locale::current());
  if (!number) throw RuntimeError(error::TypeMismatch);
  if (std::isinf(*number)) throw RuntimeError(error::Overflow);
  return *number;
}

bool CBool(const Variant& value) {
  if (const String* text = value.as<String>()) {
    const Locale& locale = Locale::current();
    const auto is = [&](StringView word) { return sameName(*text, word); };
    if (is(u"True") || is(locale.trueText)) return true;
    if (is(u"False") || is(locale.falseText)) return false;
  }
  return CDbl(value) != 0;
}

bool IsNumeric(const Variant& value) {
  if (value.isEmpty() || value.isNumber()) return true;
  const String* text = value.as<String>();
  if (!text) return false;
  const std::optional<double> number = readNumber(*text, Locale::current());
  return number && std::isfinite(*number);
}

double Val(const Variant& value) { return valOfText(CStr(value)); }

double valOfText(StringView text) {
  String packed;
  for (const char16_t unit : text) {
    if (unit != u' ' && unit != u'\t' && unit != u'\r' && unit != u'\n') packed.push_back(unit);
  }
  StringView rest = packed;
  const double value = takeLeadingNumber(rest);
  if (std::isinf(value)) throw RuntimeError(error::Overflow);
  return value;
}

Variant Int(const Variant& value) {
  return keepingKind(value, [](double number) { return std::floor(number); });
}

Variant Fix(const Variant& value) {
  return keepingKind(value, [](double number) { return std::trunc(number); });
}

Variant Abs(const Variant& value) {
  return keepingKind(value, [](double number) { return std::abs(number); });
}

}  // namespace zqn
