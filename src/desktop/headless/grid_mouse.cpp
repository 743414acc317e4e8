// SPDX-License-Identifier: MIT
#include "desktop/headless/grid_mouse.h"

#include "forms/form.h"

namespace zqn::headless {

namespace {

/// Scrolls one bar after the other, as a person does.
void show(FlexGrid& grid, GridSpot cell) {
  if (cell.row >= 0) grid.userScrolled(grid.layout().topRowShowing(cell.row), grid.LeftCol());
  if (cell.col >= 0) grid.userScrolled(grid.TopRow(), grid.layout().leftColShowing(cell.col));
}

void release(FlexGrid& grid, GridSpot cell, int button) {
  grid.userReleased(cell, button, 0);
  if (button == 1) grid.form().mouseReleased(grid);
}

}  // namespace

bool pressOn(FlexGrid& grid, GridSpot cell, int button) {
  show(grid, cell);
  if (!grid.form().mousePressed(grid)) return false;
  grid.userPressed(cell, button, 0);
  return true;
}

void dragTo(FlexGrid& grid, GridSpot cell) {
  show(grid, cell);
  grid.userDragged(cell);
}

void clickOn(FlexGrid& grid, GridSpot cell, int button) {
  if (pressOn(grid, cell, button)) release(grid, cell, button);
}

void drag(FlexGrid& grid, GridSpot from, GridSpot to) {
  if (!pressOn(grid, from)) return;
  dragTo(grid, to);
  release(grid, to, 1);
}

}  // namespace zqn::headless
