// SPDX-License-Identifier: MIT
//
// All clerks, each a process: starts them, leads them through the phases, and gathers what they have seen.
#pragma once

#include "options.h"
#include "tally.h"

namespace zqn::load {

/// Makes the ground, lets the clerks work on it, and looks at it afterwards. What is wrong is a text under
/// "faults". Seconds of the measured phases are samples under "phase.dialogs" and "phase.bare", in
/// milliseconds.
Tally runCrew(const Options& options);

}  // namespace zqn::load
