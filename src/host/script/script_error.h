// SPDX-License-Identifier: MIT
//
// How the running of one line ends early: the script is wrong, or the user cannot act as it asks.
#pragma once

#include <stdexcept>
#include <string>

namespace zqn::script {

/// The script cannot go on; the text says what is wrong and what would be right.
class ScriptError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// The user cannot do that now; nothing has changed. Thrown before the first effect of an action.
class Refusal : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace zqn::script
