// SPDX-License-Identifier: MIT
//
// What a script reaches outside the dialogs of a Host: its database over a connection of its own, and its
// settings.
//
//     ScriptedUser user(desktop, input, outsideOf(host), faults, script, transcript);
#pragma once

#include "host/script/outside_access.h"
#include "host/session/host.h"

namespace zqn::script {

/// `host` must outlive it. CommandFailure when the second connection cannot be opened.
OutsideAccess outsideOf(const host::Host& host);

}  // namespace zqn::script
