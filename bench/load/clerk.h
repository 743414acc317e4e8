// SPDX-License-Identifier: MIT
//
// One clerk at work, in a process of his own. A round has four phases, and all clerks begin each of them
// together:
//
//   Dialogs   he works through the dialogs, on rows of his own, in an order of his own
//   Restore   his rows are put back to where they stood
//   Bare      the very statements that the dialogs have sent, with their parameters, in the same order
//   Rush      everybody writes the same two rows: a counter is raised, a name is saved in its dialog
#pragma once

#include <vector>

#include "channel.h"
#include "options.h"
#include "tally.h"

namespace zqn::load {

enum class Phase { Dialogs, Restore, Bare, Rush, End };

struct PhaseOfRound {
  int round;
  Phase phase;
};

/// What all clerks and the crew go through, in this order.
std::vector<PhaseOfRound> phasesOf(const Options& options);

/// Where a clerk sits: the number of his server.
inline std::size_t serverOf(const Options& options, int clerk) {
  return static_cast<std::size_t>(clerk) % options.servers.size();
}

/// Works through all phases, meeting the others before each. Ends by a signal (SIGALRM) when an action takes
/// too long.
void workAsClerk(int number, const Options& options, Channel& channel, Tally& tally);

}  // namespace zqn::load
