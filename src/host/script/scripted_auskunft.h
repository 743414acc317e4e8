// SPDX-License-Identifier: MIT
//
// The information dialog while a script runs: it asks nobody, writes its line and answers what the script
// said last, "nothing taken" at first.
#pragma once

#include "host/script/scripted_user.h"

namespace zqn::script {

/// Offers it to the dialogs under its name as long as it lives.
class ScriptedAuskunft {
 public:
  explicit ScriptedAuskunft(ScriptedUser& user);
  ~ScriptedAuskunft();
  ScriptedAuskunft(const ScriptedAuskunft&) = delete;
  ScriptedAuskunft& operator=(const ScriptedAuskunft&) = delete;
};

}  // namespace zqn::script
