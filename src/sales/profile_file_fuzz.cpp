// SPDX-License-Identifier: MIT
//
// Feeds the reader of profile files with whatever the fuzzer finds: configure with clang and -DZQN_FUZZ=ON,
// then
//
//     build/profile_file_fuzz -max_total_time=60 share/layouts
#include <cstddef>
#include <cstdint>
#include <cstdlib>

#include "sales/profile_file_checks.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  if (!zqn::testing::faultIn(bytes).empty()) std::abort();
  return 0;
}
