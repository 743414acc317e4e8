// SPDX-License-Identifier: MIT
#include "host/script/headless_user.h"
#include "testing/script/script_desktop.h"

namespace zqn::script {

namespace {

class HeadlessScriptDesktop : public ScriptDesktop {
 public:
  Desktop& desktop() override { return desktop_; }
  UserInput& input() override { return input_; }
  bool hasScreen() const override { return false; }

 private:
  headless::HeadlessDesktop desktop_;
  HeadlessUser input_{desktop_};
};

}  // namespace

std::unique_ptr<ScriptDesktop> makeScriptDesktop() { return std::make_unique<HeadlessScriptDesktop>(); }

}  // namespace zqn::script
