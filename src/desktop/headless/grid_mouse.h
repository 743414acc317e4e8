// SPDX-License-Identifier: MIT
//
// The mouse on a grid without a screen: the calls that a window would make.
//
//     clickOn(grid, {2, 3});
#pragma once

#include "forms/flex_grid.h"

namespace zqn::headless {

/// Scrolls the cell into view and presses a button on it (1 left, 2 right; -1 beside all rows or columns).
/// False when the form refused, and then no release must follow.
bool pressOn(FlexGrid& grid, GridSpot cell, int button = 1);
/// The pointer goes to another cell, with the left button down.
void dragTo(FlexGrid& grid, GridSpot cell);
/// Presses and releases; the left button raises Click, where the grid can still be used.
void clickOn(FlexGrid& grid, GridSpot cell, int button = 1);
/// Presses on one cell and releases on another.
void drag(FlexGrid& grid, GridSpot from, GridSpot to);

}  // namespace zqn::headless
