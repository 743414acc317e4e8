// SPDX-License-Identifier: MIT
#include "host/command/standard_streams.h"

#include <fcntl.h>
#include <unistd.h>

#include <iostream>

#include "host/database/failure.h"

namespace zqn::host {

namespace {

bool opened(int stream, int forbidden) {
  const int flags = fcntl(stream, F_GETFL);
  return flags >= 0 && (flags & O_ACCMODE) != forbidden;
}

}  // namespace

void prepareStandardStreams() {
  // The lowest free number is what the next file gets. Opened the wrong way round it stays as useless as it was.
  for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO})
    if (fcntl(stream, F_GETFD) < 0) open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
  // Behind stdio a failed read looks like the end of the file.
  std::ios::sync_with_stdio(false);
}

void requireInput() {
  if (!opened(STDIN_FILENO, O_WRONLY))
    throw CommandFailure(ExitStatus::WrongUsage, "standard input is closed; there is nothing to read from");
}

void requireOutput() {
  if (!opened(STDOUT_FILENO, O_RDONLY))
    throw CommandFailure(ExitStatus::CannotOpen, "standard output is closed; there is nowhere to write to");
}

void requireWritten() {
  if (!std::cout.flush())
    throw CommandFailure(ExitStatus::CannotOpen,
                         "standard output cannot be written; the disk may be full, or nobody reads any more");
}

}  // namespace zqn::host
