// SPDX-License-Identifier: MIT
//
// The reader of profile files takes any bytes: what it finds it has read by the rules, and it reads nothing
// beyond them.
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "testing/profile_file.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (!zqn::testing::faultIn(bytes).empty()) std::abort();
  return 0;
}
