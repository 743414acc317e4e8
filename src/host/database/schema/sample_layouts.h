// SPDX-License-Identifier: MIT
//
// The layout files of the sample, as they lie in examples/application.
#pragma once

#include <span>
#include <string_view>

namespace zqn::host {

struct SampleLayout {
  std::string_view name, bytes;
};

/// All of them; the build writes this table.
std::span<const SampleLayout> sampleLayouts() noexcept;

}  // namespace zqn::host
