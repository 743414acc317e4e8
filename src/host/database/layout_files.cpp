// SPDX-License-Identifier: MIT
#include "host/database/layout_files.h"

#include <fstream>
#include <system_error>

#include "host/database/new_file.h"
#include "host/database/schema/sample_layouts.h"

namespace zqn::host {

void writeSampleLayouts(const std::filesystem::path& folder) {
  for (const SampleLayout& each : sampleLayouts()) {
    const std::filesystem::path place = folder / each.name;
    std::error_code ignored;
    if (std::filesystem::exists(place, ignored)) continue;
    try {
      NewFile file(place);
      std::ofstream content(file.draft(), std::ios::binary);
      content << each.bytes << std::flush;
      const bool whole = content.good();
      content.close();
      if (whole) file.publish();
    } catch (const std::system_error&) {
      // Left out.
    }
  }
}

}  // namespace zqn::host
