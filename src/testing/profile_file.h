// SPDX-License-Identifier: MIT
//
// What holds of every profile file, whatever its bytes. Asked by the tests for thousands of damaged files and
// by the fuzzer for all that it finds; not part of the library.
#pragma once

#include <string>
#include <string_view>

#include "sales/layouts/profile_file.h"

namespace zqn::testing {

/// What is wrong with the answers for these bytes; empty when nothing is.
inline std::string faultIn(std::string_view bytes) {
  const String value = ProfileFile(bytes).value(u"Common", u"Description", u"-");
  if (value.size() > 2047) return "a value is longer than the buffer";
  if (value.find_first_of(u"\r\n") != String::npos) return "a value goes on behind its line";
  if (ProfileFile(bytes).value(u"COMMON", u"description", u"-") != value) return "the case of a name counts";
  // A byte order mark counts at the front alone.
  const std::string before = "[Common]\nDescription=\"erste\"\n" + std::string(bytes);
  if (ProfileFile(before).value(u"common", u"Description", u"-") != u"erste") return "a later line wins";
  return {};
}

}  // namespace zqn::testing
