// SPDX-License-Identifier: MIT
//
// What somebody probably meant who has misspelt a word.
//
//     closest("shwo", {"kinds", "init", "sql", "show"});  // "show"
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zqn::host {

/// The first of the known words with the fewest changes (a letter more, less or another one, two letters
/// exchanged); empty when more than a third of the letters would have to change.
std::string closest(std::string_view word, const std::vector<std::string>& known);

}  // namespace zqn::host
