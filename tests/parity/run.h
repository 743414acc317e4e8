// SPDX-License-Identifier: MIT
//
// One case on one desktop, in a process of its own with a database of its own: nothing of it is left for the
// next one, a crash is an outcome, and so is a case that never ends.
//
//     Runner runner(stage, seconds);
//     Outcome outcome = runner.think(desktop, arguments, chance, kind);   // makes the script
//     Outcome other = runner.replay(otherDesktop, {arguments, outcome.script});
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "parity/case.h"
#include "parity/desktops.h"
#include "parity/random.h"
#include "parity/stage.h"

namespace zqn::parity {

struct Outcome {
  enum class End { Done, Crashed, Hung };
  End end = End::Crashed;
  /// The lines that the script had, as far as it came.
  std::vector<std::string> script;
  std::vector<std::string> transcript;
  /// Whatever else the process said: warnings of a toolkit, reports of a sanitizer.
  std::vector<std::string> said;

  /// Transcript, remarks and end, line by line: equal for two desktops that agree.
  std::vector<std::string> whole() const;
  bool isClean() const noexcept { return end == End::Done && said.empty(); }
};

class Runner {
 public:
  /// A run that takes longer than so many seconds hangs.
  Runner(const Stage& stage, int seconds) : stage_(stage), seconds_(seconds) {}

  Outcome think(const DesktopEntry& desktop, const std::vector<std::string>& arguments, Random chance,
                int kind) const;
  Outcome replay(const DesktopEntry& desktop, const Case& given) const;

 private:
  using ShowsDialog = std::function<void(Desktop&, script::UserInput&, const std::string& database)>;
  Outcome inProcess(const DesktopEntry& desktop, const ShowsDialog& shows) const;

  const Stage& stage_;
  int seconds_;
};

}  // namespace zqn::parity
