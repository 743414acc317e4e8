// SPDX-License-Identifier: MIT
//
// The mouse on a grid without a screen: the calls that a window would make.
#pragma once

#include "forms/flex_grid.h"

namespace zqn::headless {

/// A person's pointer on grids. It stands at a place as on a screen: what is pressed is the cell that the grid
/// shows there at that moment. A cell with -1 is a place beside all rows, all columns.
///
///     GridMouse mouse;
///     mouse.press(grid, {2, 3});
///     mouse.release(grid, {2, 3});
class GridMouse {
 public:
  /// Scrolls the cell into view, goes there and presses a button (1 left, 2 right), with the shift bits of
  /// the keys held. False when the form refused.
  bool press(FlexGrid& grid, GridSpot cell, int button = 1, int shift = shift::None);
  /// The second press of a double click, where the pointer is.
  bool pressAgain(FlexGrid& grid, int button = 1, int shift = shift::None);
  /// Goes to another cell with a button down.
  void drag(FlexGrid& grid, GridSpot cell);
  /// The button comes up, on the cell where that is in sight, else where the pointer is.
  void release(FlexGrid& grid, GridSpot cell, int button = 1, int shift = shift::None);

 private:
  void goTo(FlexGrid& grid, GridSpot cell);

  GridPlace place_;
};

/// Presses and releases once, twice.
void clickOn(FlexGrid& grid, GridSpot cell, int button = 1);
void doubleClickOn(FlexGrid& grid, GridSpot cell, int button = 1);
/// Presses on one cell and releases on another.
void drag(FlexGrid& grid, GridSpot from, GridSpot to);

}  // namespace zqn::headless
