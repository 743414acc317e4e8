// SPDX-License-Identifier: MIT
//
// What is wrong with a case: desktops that disagree, a crash, no end, something on standard error, or a script
// that cannot go on. And the smallest script that still shows it.
//
//     if (const std::optional<Finding> finding = examine(runner, compared, given)) {
//       const Shrunk smallest = shrink(runner, compared, given, *finding);
//     }
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "parity/run.h"

namespace zqn::parity {

struct Finding {
  /// In a few words, the same for all cases of its sort: "headless and qt differ", "qt crashes".
  std::string what;
  /// Where the transcripts part, a line of each desktop, or what was said.
  std::vector<std::string> details;
};

/// The desktops that are held against each other; the first one's transcript is the measure.
using Compared = std::vector<const DesktopEntry*>;

/// Holds the outcomes of one script against each other, in the order of the desktops.
std::optional<Finding> compare(const Compared& compared, const std::vector<Outcome>& outcomes);
/// Runs the case on each desktop.
std::optional<Finding> examine(const Runner& runner, const Compared& compared, const Case& given);

struct Shrunk {
  Case smallest;
  Finding finding;
};

/// Leaves out lines and options, and shortens texts, as long as the same sort of finding comes up. At most
/// `attempts` runs.
Shrunk shrink(const Runner& runner, const Compared& compared, const Case& given, const Finding& finding,
              int attempts = 400);

}  // namespace zqn::parity
