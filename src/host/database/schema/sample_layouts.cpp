// SPDX-License-Identifier: MIT
#include "host/database/schema/sample_layouts.h"

#include <fstream>

namespace zqn::host {

void writeSampleLayouts(const std::filesystem::path& folder) {
  for (const SampleLayout& each : sampleLayouts()) {
    const std::filesystem::path file = folder / each.name;
    if (!std::filesystem::exists(file)) std::ofstream(file, std::ios::binary) << each.bytes;
  }
}

}  // namespace zqn::host
