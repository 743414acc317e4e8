// SPDX-License-Identifier: MIT
//
// What happens around a dialog: other users who change its rows, a database that fails, settings, information
// dialogs, and what other programs leave on the clipboard.
#pragma once

#include <string>
#include <vector>

#include "host/script/json_values.h"
#include "parity/random.h"
#include "parity/stage.h"

namespace zqn::parity {

/// One line about the world; `tables` are those of the kind.
script::Json anyWorldLine(Random& chance, const std::vector<std::string>& tables, const Stage& stage);

/// A statement that reads a whole table in the order of its key.
std::string readingStatement(const std::string& table);

}  // namespace zqn::parity
