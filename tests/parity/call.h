// SPDX-License-Identifier: MIT
//
// How the dialog of a case is called: Param, user, rights, settings.
#pragma once

#include <string>
#include <vector>

#include "parity/random.h"
#include "parity/stage.h"

namespace zqn::parity {

/// The tables that a kind reads and writes, its catalogue first.
std::vector<std::string> tablesOf(int kind);

/// Arguments of the command from "show" on.
std::vector<std::string> anyCall(Random& chance, int kind, const Stage& stage);

}  // namespace zqn::parity
