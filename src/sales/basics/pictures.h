// SPDX-License-Identifier: MIT
//
// The pictures of the sales dialogs, 32 by 32 pixels; the magnifier on a small button is 8 by 8.
#pragma once

#include "forms/picture.h"

namespace zqn::pictures {

extern const Picture newSheet;
extern const Picture folder;
extern const Picture twoSheets;
extern const Picture magnifier;

}  // namespace zqn::pictures
