// SPDX-License-Identifier: MIT
//
// The roster of frmDialog, for the form itself and for checks of its shape.
#pragma once

#include "forms/roster.h"

namespace zqn {

extern const FormDesign frmDialogDesign;

}  // namespace zqn
