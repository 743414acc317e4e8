// SPDX-License-Identifier: MIT
//
// The members of one line of a script, read with the checks that every line needs. Whatever is missing or of
// the wrong kind raises a ScriptError that names the member.
//
//     arguments.text("select"); arguments.wholeNumber("row");
#pragma once

#include <cstdint>
#include <initializer_list>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "host/script/json_values.h"

namespace zqn::script {

/// The whole number that a JSON value is, when it has no more than 32 bits.
std::optional<std::int32_t> wholeNumberIn(const Json& value);

class Arguments {
 public:
  /// `object` is a JSON object that outlives this; `where` is its name in messages, empty for the line
  /// itself.
  explicit Arguments(const Json& object, std::string where = {});

  bool has(const std::string& name) const { return object_.contains(name); }
  /// The member as it stands.
  const Json& any(const std::string& name) const;
  std::string text(const std::string& name) const;
  std::string text(const std::string& name, const std::string& otherwise) const;
  std::int32_t wholeNumber(const std::string& name) const;
  std::int32_t wholeNumber(const std::string& name, std::int32_t otherwise) const;
  /// A whole number within bounds, both included.
  std::int32_t wholeNumber(const std::string& name, std::int32_t least, std::int32_t most) const;
  /// An array of whole numbers.
  std::vector<std::int32_t> wholeNumbers(const std::string& name) const;
  /// The member is `true`.
  void requireTrue(const std::string& name) const;
  /// The members of an inner object, none but those allowed.
  Arguments object(const std::string& name, std::span<const char* const> allowed) const;
  /// No member but those allowed.
  void requireOnly(std::span<const char* const> allowed) const;
  const Json& json() const noexcept { return object_; }

 private:
  [[noreturn]] void mismatch(const std::string& name, const std::string& wanted) const;

  const Json& object_;
  std::string where_;
};

}  // namespace zqn::script
