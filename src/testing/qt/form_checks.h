// SPDX-License-Identifier: MIT
//
// What a person would stumble over in the window of a form, found by looking at it: a text that is cut, a
// control below another one or beyond the edge, an order of Tab that is not the roster's, a control that a
// screen reader cannot name.
//
//     EXPECT_THAT(findingsIn(form), IsEmpty());
//
// The resolution is the screen's: run it under QT_FONT_DPI=144 for a screen of 144 dpi.
#pragma once

#include <string>
#include <vector>

#include "forms/form.h"

namespace zqn::qt {

/// One line a finding, empty when all is well. Looks at the controls that are visible now; the form need not
/// be open.
std::vector<std::string> findingsIn(Form& form);

/// The controls that Tab comes to, in its order, from the first one on.
std::vector<std::string> tabOrder(const Form& form);

}  // namespace zqn::qt
