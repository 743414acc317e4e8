// SPDX-License-Identifier: MIT
//
// `zqn-dialog show`: one dialog on a desktop, for a person or for a script.
//
//     headless::HeadlessDesktop desktop;
//     script::HeadlessUser input(desktop);
//     return showDialog(options, desktop, input);
#pragma once

#include "forms/desktop.h"
#include "host/command/command_line.h"
#include "host/database/failure.h"
#include "host/script/user_input.h"

namespace zqn::host {

/// Opens the dialog of the options and returns when it is closed. The transcript goes where the options say;
/// unless it goes to standard output the key is printed there, with Multiselect each pick at once instead, a text
/// as it is, anything else as in JSON.
/// With a script its user acts by `input`; without one it is not used. CommandFailure when the database or the
/// files of the options cannot be opened.
ExitStatus showDialog(const Options& options, Desktop& desktop, script::UserInput& input);

}  // namespace zqn::host
