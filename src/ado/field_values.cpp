// SPDX-License-Identifier: MIT
#include "ado/field_values.h"

#include <cmath>
#include <limits>

#include "ado/enums.h"
#include "ado/raise.h"
#include "runtime/convert.h"
#include "runtime/digits.h"

namespace zqn::ado {

namespace {

template <class Number>
Variant wholeNumber(Number value) {
  using Long = std::numeric_limits<std::int32_t>;
  if (value < Long::min() || value > Long::max()) return static_cast<double>(value);
  return static_cast<std::int32_t>(value);
}

double toNumber(const Variant& value) {
  try {
    if (const bool* truth = value.as<bool>()) return *truth ? -1 : 0;
    if (const Date* date = value.as<Date>()) return date->days;
    return CDbl(value);
  } catch (const RuntimeError& failure) {
    raise(failure.number() == error::Overflow ? error::ProviderDataOverflow : error::ProviderTypeMismatch);
  }
}

Variant wholeNumberWithin(double value, double limit) {
  const double whole = std::nearbyint(value);
  if (!(whole >= -limit - 1 && whole <= limit)) raise(error::ProviderDataOverflow);
  return wholeNumber(whole);
}

Variant toTruth(const Variant& value) {
  try {
    return value.isEmpty() ? false : CBool(value);
  } catch (const RuntimeError&) {
    raise(error::ProviderTypeMismatch);
  }
}

String dateText(Date date) {
  const bool dayOnly = date.days == std::floor(date.days);
  return Format(date, dayOnly ? u"yyyy-mm-dd" : u"yyyy-mm-dd hh:nn:ss");
}

Variant toText(const Column& column, const Variant& value) {
  const Date* date = value.as<Date>();
  String text = date && column.type == adDBTimeStamp ? dateText(*date) : CStr(value);
  if (column.definedSize > 0 && text.size() > static_cast<std::size_t>(column.definedSize)) {
    raise(error::MultipleStep);
  }
  return text;
}

}  // namespace

bool isTextType(int type) noexcept {
  return type == adVarWChar || type == adLongVarWChar || type == adDBTimeStamp;
}

Variant readAs(const Column& column, const Value& stored) {
  switch (stored.kind) {
    case Value::Kind::Null:
      return Null;
    case Value::Kind::Text:
      return stored.text;
    case Value::Kind::Real:
      return stored.real;
    case Value::Kind::Integer:
      break;
  }
  switch (column.type) {
    case adBoolean:
      return stored.integer != 0;
    case adDouble:
    case adNumeric:
      return static_cast<double>(stored.integer);
    default:
      break;
  }
  return isTextType(column.type) ? Variant(digits(stored.integer)) : wholeNumber(stored.integer);
}

Variant convertedFor(const Column& column, const Variant& value) {
  if (column.baseColumn.empty()) raise(error::MultipleStep);
  if (value.isNull()) return Null;
  if (value.isMissing() || value.kind() == Variant::Kind::Object) raise(error::ProviderTypeMismatch);
  switch (column.type) {
    case adBoolean:
      return toTruth(value);
    case adSmallInt:
      return wholeNumberWithin(toNumber(value), std::numeric_limits<std::int16_t>::max());
    case adInteger:
      return wholeNumberWithin(toNumber(value), std::numeric_limits<std::int32_t>::max());
    case adBigInt:
      return wholeNumberWithin(toNumber(value), 0x1p63);
    case adDouble:
    case adNumeric:
      return toNumber(value);
    case adVariant:
      if (value.isNumber()) return toNumber(value);
      [[fallthrough]];
    default:
      return toText(column, value);
  }
}

Value storedAs(const Variant& converted) {
  if (const String* text = converted.as<String>()) return Value::of(StringView(*text));
  if (const bool* truth = converted.as<bool>()) return Value::of(std::int64_t{*truth});
  if (const std::int32_t* whole = converted.as<std::int32_t>()) return Value::of(std::int64_t{*whole});
  if (const double* real = converted.as<double>()) return Value::of(*real);
  return {};
}

}  // namespace zqn::ado
