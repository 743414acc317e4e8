// SPDX-License-Identifier: MIT
//
// The program `zqn-dialog` but for its windows. Two executables share it: `zqn-dialog` does all that needs no
// toolkit by itself and starts `zqn-dialog-qt` with the same arguments for the rest.
//
//     int main(int argc, char** argv) { return zqn::host::runProgram(argc, argv, withWindows); }
#pragma once

#include <functional>

#include "host/command/command_line.h"
#include "host/database/failure.h"

namespace zqn::host {

/// Does a command that needs windows: the desk, or `show` on the Qt desktop.
using WithWindows = std::function<ExitStatus(const Options& options)>;

/// Reads the command line, does the command and gives the exit status of the process. Failures are told on
/// standard error.
int runProgram(int argc, char** argv, const WithWindows& withWindows);

}  // namespace zqn::host
