// SPDX-License-Identifier: MIT
//
// Every kind of control, one row each: its name in rosters and dumps, and how one is made. A new kind starts
// here.
#pragma once

#include <memory>

#include "forms/control.h"

namespace zqn {

/// The kind's name as a roster, a script or a dump writes it: "TextBox".
StringView kindName(ControlKind kind) noexcept;

/// A control as its row of the roster describes it.
std::unique_ptr<Control> makeControl(Form& form, const ControlDesign& design, int tabIndex);

}  // namespace zqn
