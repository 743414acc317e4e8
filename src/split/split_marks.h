// SPDX-License-Identifier: MIT
//
// The marks of the split grid's rows, 14 by 14 pixels: an arrow for the current row, a pencil for an edited
// one, a star for the new one. Each in a form for a light row and in one, ending in "i", for a selected row.
#pragma once

#include "forms/picture.h"

namespace zqn::split_marks {

extern const Picture current, currenti;
extern const Picture edit, editi;
extern const Picture fresh, freshi;

}  // namespace zqn::split_marks
