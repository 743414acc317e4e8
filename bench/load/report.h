// SPDX-License-Identifier: MIT
//
// What the crew has seen, as a table for a person.
#pragma once

#include <iosfwd>

#include "options.h"
#include "tally.h"

namespace zqn::load {

/// False when something is wrong, which is then said.
bool report(std::ostream& out, const Options& options, const Tally& tally);

}  // namespace zqn::load
