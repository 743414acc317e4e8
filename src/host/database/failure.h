// SPDX-License-Identifier: MIT
//
// How a command of `zqn-dialog` ends: the exit statuses, and the one exception that ends a command early with
// a sentence for the person at the shell.
//
//     throw CommandFailure(ExitStatus::CannotOpen, "waren.sqlite is a folder; name a file in it");
#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace zqn::host {

enum class ExitStatus : int {
  Done = 0,        ///< `show`: a key came back
  NoKey = 1,       ///< `show` returned Empty, Null or the empty text
  WrongUsage = 2,  ///< the command line cannot be understood
  CannotOpen = 3,  ///< the database, the session, a statement of `sql`, or what the command was to write
  ScriptError = 4  ///< the script could not go on
};

/// The command ends with this status; the text goes to standard error, one sentence that says what was wrong
/// and what would be right.
class CommandFailure : public std::runtime_error {
 public:
  CommandFailure(ExitStatus status, const std::string& message, std::string statement = {})
      : std::runtime_error(message), status_(status), statement_(std::move(statement)) {}
  ExitStatus status() const noexcept { return status_; }
  /// The statement that failed, as it was written; empty where it was none.
  const std::string& statement() const noexcept { return statement_; }

 private:
  ExitStatus status_;
  std::string statement_;
};

}  // namespace zqn::host
