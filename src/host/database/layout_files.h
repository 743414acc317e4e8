// SPDX-License-Identifier: MIT
//
// The layout files of the sample in an application folder.
#pragma once

#include <filesystem>

namespace zqn::host {

/// Writes them into a folder that exists, each whole or not at all. A file that is there already stays as it is,
/// and one that cannot be written is left out: the dialogs do without.
void writeSampleLayouts(const std::filesystem::path& folder);

}  // namespace zqn::host
