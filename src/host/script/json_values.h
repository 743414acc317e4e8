// SPDX-License-Identifier: MIT
//
// Values of the dialog language as JSON, for the transcript, the script and the command line:
//
//     jsonValue(Variant())            // {"empty":true}
//     variantOf(Json::parse("12"))    // a Long
#pragma once

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string_view>

#include "runtime/variant.h"

namespace zqn::script {

/// Members keep the order in which they were added.
using Json = nlohmann::ordered_json;

/// A text that readJson does not take; what() says why, as the end of a sentence: "is no JSON (byte 3)".
class JsonError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// Reads what somebody has written. JsonError for a text that is no JSON in UTF-8, for a number that no double
/// holds, for a member that stands twice in an object, and for one nested deeper than 32 levels.
Json readJson(std::string_view text);

/// Text as a JSON string; a surrogate without its partner becomes U+FFFD.
Json jsonText(StringView text);
/// Empty is {"empty":true}, Null null, a Boolean true or false, a number a number (without a point when it is
/// whole), all else text.
Json jsonValue(const Variant& value);
/// Text, Boolean, Null; a number is a Long when it is whole and fits 32 bits, else a Double. Error 13 for an
/// array or an object.
Variant variantOf(const Json& json);

}  // namespace zqn::script
