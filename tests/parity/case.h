// SPDX-License-Identifier: MIT
//
// One case of the fuzzer: how the command is called, and the lines of its script. Written down it is a script
// as tests/run_script.py takes it, with "# args:" above the lines.
#pragma once

#include <string>
#include <vector>

namespace zqn::parity {

struct Case {
  /// Arguments of the command from "show" on, without database, desktop, script and transcript.
  std::vector<std::string> arguments;
  std::vector<std::string> lines;
};

/// The text of a script file; the remarks stand above it as comments, without line breaks of their own.
std::string scriptText(const Case& shown, const std::vector<std::string>& remarks);

}  // namespace zqn::parity
