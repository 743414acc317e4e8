// SPDX-License-Identifier: MIT
//
// The lines that do what the desk does: the same call of Show in a C++ program, and in a shell. Ready to
// copy.
//
//     CallToWrite call{.kind = 21, .param = {u"10"}, .database = "sqlite:waren.sqlite"};
//     shellLine(call);  // zqn-dialog show 21 --db sqlite:waren.sqlite -- 10
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "runtime/string.h"

namespace zqn::host {

struct CallToWrite {
  std::int32_t kind;
  std::vector<String> param;
  /// As --db takes it.
  std::string database;
  bool multiselect = false;
  bool generic = false;
};

/// From the dialog to the key; the session is the program's own.
std::string cppLines(const CallToWrite& call);
/// One line, quoted so that a shell passes each argument on as it is.
std::string shellLine(const CallToWrite& call);

}  // namespace zqn::host
