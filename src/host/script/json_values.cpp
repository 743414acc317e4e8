// SPDX-License-Identifier: MIT
#include "host/script/json_values.h"

#include <cmath>
#include <limits>
#include <set>
#include <string>
#include <vector>

#include "runtime/convert.h"

namespace zqn::script {

namespace {

/// Up to here every whole number is a double of its own.
constexpr double exactWhole = 9007199254740992.0;

Json jsonNumber(double value) {
  const bool whole = std::trunc(value) == value && std::abs(value) <= exactWhole;
  return whole ? Json(static_cast<std::int64_t>(value)) : Json(value);
}

/// Deeper than anything that is asked for; copying and writing a value go down level by level.
constexpr int deepest = 32;

/// What the library's own reading lets pass.
class Strictness {
 public:
  bool operator()(int depth, Json::parse_event_t event, const Json& parsed) {
    using Event = Json::parse_event_t;
    if (depth > deepest) throw JsonError("is nested deeper than " + std::to_string(deepest) + " levels");
    if (event == Event::object_start) names_.emplace_back();
    if (event == Event::object_end) names_.pop_back();
    if (event == Event::key && !names_.back().insert(parsed.get<std::string>()).second)
      throw JsonError("has the member " + parsed.dump() + " twice");
    return true;
  }

 private:
  /// The members so far of each object that is open.
  std::vector<std::set<std::string>> names_;
};

}  // namespace

Json readJson(std::string_view text) {
  try {
    return Json::parse(
        text, [strictness = Strictness()](int depth, Json::parse_event_t event, const Json& parsed) mutable {
          return strictness(depth, event, parsed);
        });
  } catch (const Json::parse_error& failure) {
    throw JsonError("is no JSON in UTF-8 (byte " + std::to_string(failure.byte) + ")");
  } catch (const Json::out_of_range&) {
    throw JsonError("has a number beyond 1.8e308");
  }
}

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
