// SPDX-License-Identifier: MIT
#include "desktop/headless/grid_mouse.h"

#include "forms/form.h"

namespace zqn::headless {

void GridMouse::goTo(FlexGrid& grid, GridSpot cell) {
  // One bar after the other, as a person scrolls.
  if (cell.row >= 0) grid.userScrolled(grid.layout().topRowShowing(cell.row), grid.LeftCol());
  if (cell.col >= 0) grid.userScrolled(grid.TopRow(), grid.layout().leftColShowing(cell.col));
  const FlexGridLayout layout = grid.layout();
  place_ = layout.placeOf(cell).value_or(layout.middle());
}

bool GridMouse::press(FlexGrid& grid, GridSpot cell, int button, int shift) {
  goTo(grid, cell);
  if (!grid.form().mousePressed(grid)) return false;
  grid.userPressed(grid.layout().spotAt(place_), button, shift);
  return true;
}

bool GridMouse::pressAgain(FlexGrid& grid, int button, int shift) {
  if (!grid.form().mousePressed(grid)) return false;
  grid.userPressed(grid.layout().spotAt(place_), button, shift, Press::SecondOfDoubleClick);
  return true;
}

void GridMouse::drag(FlexGrid& grid, GridSpot cell) {
  goTo(grid, cell);
  grid.userDragged(grid.layout().draggedTo(place_));
}

void GridMouse::release(FlexGrid& grid, GridSpot cell, int button, int shift) {
  const FlexGridLayout layout = grid.layout();
  place_ = layout.placeOf(cell).value_or(place_);
  grid.userReleased(layout.spotAt(place_), button, shift);
}

void clickOn(FlexGrid& grid, GridSpot cell, int button) {
  GridMouse mouse;
  if (mouse.press(grid, cell, button)) mouse.release(grid, cell, button);
}

void doubleClickOn(FlexGrid& grid, GridSpot cell, int button) {
  GridMouse mouse;
  if (!mouse.press(grid, cell, button)) return;
  mouse.release(grid, cell, button);
  if (mouse.pressAgain(grid, button)) mouse.release(grid, cell, button);
}

void drag(FlexGrid& grid, GridSpot from, GridSpot to) {
  GridMouse mouse;
  if (!mouse.press(grid, from)) return;
  mouse.drag(grid, to);
  mouse.release(grid, to);
}

}  // namespace zqn::headless
