// SPDX-License-Identifier: MIT
//
// The command `zqn-dialog`. It is not linked with a toolkit: a script on the headless desktop writes its
// first line after 5 milliseconds, and after 15 when Qt is loaded, too; and a machine without Qt can still
// run scripts. For windows it becomes `zqn-dialog-qt`, which stands beside it.
#include <unistd.h>

#include <cerrno>
#include <cstring>
#include <filesystem>

#include "host/command/program.h"

int main(int argc, char** argv) {
  using namespace zqn::host;
  return runProgram(argc, argv, [argv](const Options&) -> ExitStatus {
    const auto twin = std::filesystem::canonical("/proc/self/exe").parent_path() / "zqn-dialog-qt";
    execv(twin.c_str(), argv);
    throw CommandFailure(ExitStatus::CannotOpen, "no windows: '" + twin.string() + "' cannot be started (" +
                                                     std::strerror(errno) + "); use --ui headless");
  });
}
