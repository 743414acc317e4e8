// SPDX-License-Identifier: MIT
//
// What one line of a script works with: the desktop and what is open on it, the user's gestures, what lies
// outside the dialog, and the transcript. Its functions find what a line names, and refuse what a person could not act on.
#pragma once

#include <functional>
#include <string>

#include "forms/desktop.h"
#include "host/script/fault_injector.h"
#include "host/script/gestures.h"
#include "host/script/json_values.h"
#include "host/script/outside_access.h"

namespace zqn::script {

struct LineContext {
  Desktop& desktop;
  UserInput& input;
  Gestures& gestures;
  const OutsideAccess& outside;
  FaultInjector& faults;
  AuskunftAnswer& auskunft;
  /// The failures that writing procedures have passed over, as an array of entries.
  Json& passedOver;
  /// Writes one line of the transcript.
  std::function<void(const Json&)> write;

  /// The form on top, also behind a message box. Refusal when none is open.
  Form& form() const;
  /// A control of it by its full name; ScriptError when there is none.
  Control& control(const std::string& name) const;
  /// The form on top, where a person can act on it; Refusal behind a message box, or when it has been closed.
  Form& usableForm() const;
  /// A control that a person can act on; Refusal when it is invisible or disabled.
  Control& usableControl(const std::string& name) const;
};

}  // namespace zqn::script
