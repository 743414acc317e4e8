// SPDX-License-Identifier: MIT
//
// The design of frmOMRCode. The form's own client area ends a margin beyond its controls.
#pragma once

#include "forms/roster.h"

namespace zqn {

const FormDesign& omrCodeDesign() noexcept;

}  // namespace zqn
