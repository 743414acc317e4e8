// SPDX-License-Identifier: MIT
//
// Any connection string is pairs; written and read again they are the same pairs, and what is shown of it
// holds no password.
#include "ado/odbc/connection_string.h"

#include <algorithm>

#include "fuzz/input.h"
#include "runtime/ascii.h"

namespace {

using namespace zqn;
using ado::odbc::ConnectionPair;

bool isPassword(const ConnectionPair& pair) {
  return ascii::same(pair.key, u"PWD") || ascii::same(pair.key, u"Password");
}

bool samePair(const ConnectionPair& left, const ConnectionPair& right) {
  return left.key == right.key && left.value == right.value;
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  using namespace ado::odbc;
  const String text = fuzz::textOf(data, size);
  std::vector<ConnectionPair> pairs = connectionPairs(text);
  for (const ConnectionPair& pair : connectionPairs(withoutPassword(text)))
    fuzz::check(!isPassword(pair) || pair.value == u"***", "no password is shown");
  // What is no pair is not written so that it could become one.
  std::erase_if(pairs, [](const ConnectionPair& pair) { return pair.key.empty(); });
  const std::vector<ConnectionPair> again = connectionPairs(connectionString(pairs));
  fuzz::check(std::ranges::equal(again, pairs, samePair), "pairs read back as the same pairs");
  for (const ConnectionPair& pair : pairs) {
    const auto first = std::ranges::find_if(
        pairs, [&](const ConnectionPair& one) { return ascii::same(one.key, pair.key); });
    fuzz::check(connectionValue(connectionString(pairs), pair.key) == first->value,
                "a key has the value of its first pair");
  }
  return 0;
}
