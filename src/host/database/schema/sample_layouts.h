// SPDX-License-Identifier: MIT
//
// The layout files of the sample, as they lie in examples/application.
#pragma once

#include <filesystem>
#include <span>
#include <string_view>

namespace zqn::host {

struct SampleLayout {
  std::string_view name, bytes;
};

/// All of them; the build writes this table.
std::span<const SampleLayout> sampleLayouts() noexcept;

/// Writes them into a folder that exists. A file that is there already stays as it is, and one that cannot be
/// written is left out: the dialogs do without.
void writeSampleLayouts(const std::filesystem::path& folder);

}  // namespace zqn::host
