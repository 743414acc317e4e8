// SPDX-License-Identifier: MIT
#include "host/script/json_values.h"

#include <cmath>
#include <limits>

#include "runtime/convert.h"

namespace zqn::script {

namespace {

/// Up to here every whole number is a double of its own.
constexpr double exactWhole = 9007199254740992.0;

Json jsonNumber(double value) {
  const bool whole = std::trunc(value) == value && std::abs(value) <= exactWhole;
  return whole ? Json(static_cast<std::int64_t>(value)) : Json(value);
}

}  // namespace

Json jsonText(StringView text) { return toUtf8(text); }

Json jsonValue(const Variant& value) {
  switch (value.kind()) {
    case Variant::Kind::Empty:
      return {{"empty", true}};
    case Variant::Kind::Null:
      return nullptr;
    case Variant::Kind::Boolean:
      return *value.as<bool>();
    case Variant::Kind::Integer:
      return *value.as<std::int16_t>();
    case Variant::Kind::Long:
      return *value.as<std::int32_t>();
    case Variant::Kind::Double:
      return jsonNumber(*value.as<double>());
    case Variant::Kind::Date:
    case Variant::Kind::String:
      return jsonText(CStr(value));
    case Variant::Kind::Object:
      return "Object";
    case Variant::Kind::Missing:
      return "Missing";
  }
  return nullptr;
}

Variant variantOf(const Json& json) {
  using Long = std::numeric_limits<std::int32_t>;
  if (json.is_null()) return Null;
  if (json.is_boolean()) return json.get<bool>();
  if (json.is_string()) return fromUtf8(json.get_ref<const std::string&>());
  if (!json.is_number()) throw RuntimeError(error::TypeMismatch);
  const double number = json.get<double>();
  const bool fits = json.is_number_integer() && number >= Long::min() && number <= Long::max();
  return fits ? Variant(json.get<std::int32_t>()) : Variant(number);
}

}  // namespace zqn::script
