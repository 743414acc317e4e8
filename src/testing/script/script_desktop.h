// SPDX-License-Identifier: MIT
//
// The desktop on which the tests of scripts run. They are built twice, on the headless desktop and on that of
// Qt: the same script must come to the same transcript.
#pragma once

#include <memory>

#include "forms/desktop.h"
#include "host/script/user_input.h"

namespace zqn::script {

class ScriptDesktop {
 public:
  virtual ~ScriptDesktop() = default;
  virtual Desktop& desktop() = 0;
  virtual UserInput& input() = 0;
  virtual bool hasScreen() const = 0;
};

/// A new desktop with nothing open.
std::unique_ptr<ScriptDesktop> makeScriptDesktop();

}  // namespace zqn::script
