// SPDX-License-Identifier: MIT
//
// What the load program is asked to do.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "runtime/string.h"

namespace zqn::load {

struct Options {
  int clerks = 50;
  int rounds = 10;
  /// Each clerk draws the order of his work from this and his number.
  unsigned seed = 1;
  /// Seconds within which every action must end.
  int limit = 30;
  /// The statements of the dialogs run bare as well.
  bool bare = true;

  /// Where the clerks sit: they are spread over these in turn; the first one makes the tables.
  std::vector<String> servers;
  /// A command of the shell that is started when half of the rounds are over; errors are told then, and no
  /// fault.
  std::string disturbance;

  /// Rows of the list that is measured instead; 0 for the clerks.
  std::int64_t longList = 0;
};

/// The rounds that are not measured: connections, catalogues and prepared statements are made in it.
inline constexpr int WarmUp = 1;

}  // namespace zqn::load
