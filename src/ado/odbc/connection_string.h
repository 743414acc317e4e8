// SPDX-License-Identifier: MIT
//
// A connection string of ODBC as its pairs: "Driver={PostgreSQL Unicode};Server=db;PWD={a;b}}c}". A value in
// braces may hold anything, a closing brace doubled; keys do not distinguish case.
//
//     for (const ConnectionPair& pair : connectionPairs(text)) ...
#pragma once

#include <vector>

#include "runtime/string.h"

namespace zqn::ado::odbc {

struct ConnectionPair {
  String key;    // without blanks around it
  String value;  // without its braces
};

/// The pairs in their order; a piece without "=" is a pair with an empty key and the piece as its value.
std::vector<ConnectionPair> connectionPairs(StringView connectionString);
/// The string of these pairs, values in braces where they need them.
String connectionString(const std::vector<ConnectionPair>& pairs);
/// The value of the first pair with this key; empty when there is none.
String connectionValue(StringView connectionString, StringView key);
/// The same string, to be shown: values of PWD and Password replaced by "***".
String withoutPassword(StringView connectionString);

}  // namespace zqn::ado::odbc
