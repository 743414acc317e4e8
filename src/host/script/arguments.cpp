// SPDX-License-Identifier: MIT
#include "host/script/arguments.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "host/script/script_error.h"

namespace zqn::script {

std::optional<std::int32_t> wholeNumberIn(const Json& value) {
  using Limits = std::numeric_limits<std::int32_t>;
  if (!value.is_number_integer()) return std::nullopt;
  const double number = value.get<double>();
  if (number < Limits::min() || number > Limits::max()) return std::nullopt;
  return value.get<std::int32_t>();
}

Arguments::Arguments(const Json& object, std::string where) : object_(object), where_(std::move(where)) {}

void Arguments::mismatch(const std::string& name, const std::string& wanted) const {
  const std::string prefix = where_.empty() ? "" : "of \"" + where_ + "\": ";
  throw ScriptError(prefix + "\"" + name + "\" must be " + wanted);
}

const Json& Arguments::any(const std::string& name) const {
  const auto member = object_.find(name);
  if (member == object_.end()) mismatch(name, "given");
  return *member;
}

std::string Arguments::text(const std::string& name) const {
  const Json& member = any(name);
  if (!member.is_string()) mismatch(name, "a text");
  return member.get<std::string>();
}

std::string Arguments::text(const std::string& name, const std::string& otherwise) const {
  return has(name) ? text(name) : otherwise;
}

std::int32_t Arguments::wholeNumber(const std::string& name, std::int32_t least, std::int32_t most) const {
  const std::optional<std::int32_t> value = wholeNumberIn(any(name));
  if (!value || *value < least || *value > most)
    mismatch(name, "a whole number from " + std::to_string(least) + " to " + std::to_string(most));
  return *value;
}

std::int32_t Arguments::wholeNumber(const std::string& name) const {
  using Limits = std::numeric_limits<std::int32_t>;
  return wholeNumber(name, Limits::min(), Limits::max());
}

std::int32_t Arguments::wholeNumber(const std::string& name, std::int32_t otherwise) const {
  return has(name) ? wholeNumber(name) : otherwise;
}

std::vector<std::int32_t> Arguments::wholeNumbers(const std::string& name) const {
  std::vector<std::int32_t> numbers;
  const Json& member = any(name);
  if (!member.is_array()) mismatch(name, "an array of whole numbers");
  for (const Json& each : member) {
    const std::optional<std::int32_t> number = wholeNumberIn(each);
    if (!number) mismatch(name, "an array of whole numbers");
    numbers.push_back(*number);
  }
  return numbers;
}

void Arguments::requireTrue(const std::string& name) const {
  if (any(name) != Json(true)) mismatch(name, "true");
}

Arguments Arguments::object(const std::string& name, std::span<const char* const> allowed) const {
  const Json& member = any(name);
  if (!member.is_object()) mismatch(name, "an object");
  Arguments inner(member, name);
  inner.requireOnly(allowed);
  return inner;
}

void Arguments::requireOnly(std::span<const char* const> allowed) const {
  for (const auto& [name, value] : object_.items()) {
    if (std::ranges::find(allowed, name) != allowed.end()) continue;
    std::string known;
    for (const char* each : allowed) known += (known.empty() ? "\"" : ", \"") + std::string(each) + "\"";
    const std::string prefix = where_.empty() ? "" : "of \"" + where_ + "\": ";
    throw ScriptError(prefix + "unknown member \"" + name + "\"; there is " + known);
  }
}

}  // namespace zqn::script
