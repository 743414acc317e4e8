// SPDX-License-Identifier: MIT
//
// Values of the dialog language as JSON, for the transcript, the script and the command line:
//
//     jsonValue(Variant())            // {"empty":true}
//     variantOf(Json::parse("12"))    // a Long
#pragma once

#include <nlohmann/json.hpp>

#include "runtime/variant.h"

namespace zqn::script {

/// Members keep the order in which they were added.
using Json = nlohmann::ordered_json;

/// Text as a JSON string; a surrogate without its partner becomes U+FFFD.
Json jsonText(StringView text);
/// Empty is {"empty":true}, Null null, a Boolean true or false, a number a number (without a point when it is
/// whole), all else text.
Json jsonValue(const Variant& value);
/// Text, Boolean, Null; a number is a Long when it is whole and fits 32 bits, else a Double. Error 13 for an
/// array or an object.
Variant variantOf(const Json& json);

}  // namespace zqn::script
