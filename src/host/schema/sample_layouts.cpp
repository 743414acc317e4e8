// SPDX-License-Identifier: MIT
#include "host/schema/sample_layouts.h"

#include <fstream>
#include <string_view>

namespace zqn::host {

namespace {

using namespace std::string_view_literals;

struct LayoutFile {
  std::string_view name, bytes;
};

constexpr LayoutFile files[] = {
#include "sample_layouts.inc"
};

}  // namespace

void writeSampleLayouts(const std::filesystem::path& folder) {
  for (const LayoutFile& each : files) {
    const std::filesystem::path file = folder / each.name;
    if (!std::filesystem::exists(file)) std::ofstream(file, std::ios::binary) << each.bytes;
  }
}

}  // namespace zqn::host
