// SPDX-License-Identifier: MIT
//
// Which class of widget draws which kind of control: one line a kind, in control_widgets.cpp.
#pragma once

#include "desktop/qt/control_widget.h"

namespace zqn::qt {

/// A new widget for the control; `parent` owns it.
ControlWidget* makeControlWidget(Control& control, QWidget& parent);

}  // namespace zqn::qt
