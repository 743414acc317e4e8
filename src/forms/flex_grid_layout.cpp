// SPDX-License-Identifier: MIT
#include "forms/flex_grid_layout.h"

#include <algorithm>
#include <cmath>

#include "forms/flex_grid.h"

namespace zqn {

FlexGridLayout::FlexGridLayout(const FlexGrid& grid, double twipsPerPixelX, double twipsPerPixelY)
    : grid_(grid), twipsPerPixelX_(twipsPerPixelX), twipsPerPixelY_(twipsPerPixelY) {
  // Edges are rounded, not widths: so that columns which fit in twips fit in pixels.
  edges_.reserve(static_cast<std::size_t>(grid.Cols()) + 1);
  int twips = 0;
  edges_.push_back(0);
  for (int col = 0; col < grid.Cols(); ++col) edges_.push_back(pixelsX(twips += grid.ColWidth(col)));
  fixedWidth_ = colEdge(grid.FixedCols());
  for (int row = 0; row < grid.FixedRows(); ++row) fixedHeight_ += rowPixels(row);

  const int width = std::max(0, pixelsX(grid.Width()) - 2 * frame);
  const int height = std::max(0, pixelsY(grid.Height()) - 2 * frame);
  const auto lastTop = [&](int room) { return firstFitting(grid.Rows() - 1, room - fixedHeight_, true); };
  const auto lastLeft = [&](int room) { return firstFitting(grid.Cols() - 1, room - fixedWidth_, false); };
  verticalBar_ = lastTop(height) > grid.FixedRows();
  horizontalBar_ = lastLeft(width - verticalBarWidth()) > grid.FixedCols();
  if (horizontalBar_ && !verticalBar_) {
    verticalBar_ = lastTop(height - horizontalBarHeight()) > grid.FixedRows();
    horizontalBar_ = lastLeft(width - verticalBarWidth()) > grid.FixedCols();
  }
  clientWidth_ = std::max(0, width - verticalBarWidth());
  clientHeight_ = std::max(0, height - horizontalBarHeight());
  lastTopRow_ = std::max(lastTop(clientHeight_), grid.FixedRows());
  lastLeftCol_ = std::max(lastLeft(clientWidth_), grid.FixedCols());

  const auto place = [&](std::vector<GridBand>& bands, int index, int end, int& start, int edge, bool isRow) {
    for (; index < end && start < edge; ++index) {
      const int length = lengthOf(index, isRow);
      if (length > 0) bands.push_back({index, start, length});
      start += length;
    }
  };
  int start = 0;
  place(rows_, 0, grid.FixedRows(), start, clientHeight_, true);
  place(rows_, std::min(grid.TopRow(), lastTopRow_), grid.Rows(), start, clientHeight_, true);
  start = 0;
  place(columns_, 0, grid.FixedCols(), start, clientWidth_, false);
  place(columns_, std::min(grid.LeftCol(), lastLeftCol_), grid.Cols(), start, clientWidth_, false);
}

// ---- pixels

int FlexGridLayout::pixelsX(double twips) const noexcept {
  return static_cast<int>(std::lround(twips / twipsPerPixelX_));
}

int FlexGridLayout::pixelsY(double twips) const noexcept {
  return static_cast<int>(std::lround(twips / twipsPerPixelY_));
}

int FlexGridLayout::twipsX(int pixels) const noexcept {
  return static_cast<int>(std::lround(pixels * twipsPerPixelX_));
}

int FlexGridLayout::twipsY(int pixels) const noexcept {
  return static_cast<int>(std::lround(pixels * twipsPerPixelY_));
}

int FlexGridLayout::verticalBarWidth() const noexcept { return verticalBar_ ? pixelsX(scrollBar) : 0; }

int FlexGridLayout::horizontalBarHeight() const noexcept { return horizontalBar_ ? pixelsY(scrollBar) : 0; }

int FlexGridLayout::rowPixels(int row) const { return pixelsY(grid_.RowHeight(row)); }

int FlexGridLayout::lengthOf(int index, bool isRow) const {
  return isRow ? rowPixels(index) : colEdge(index + 1) - colEdge(index);
}

int FlexGridLayout::firstFitting(int last, int room, bool isRow) const {
  const int least = isRow ? grid_.FixedRows() : grid_.FixedCols();
  int first = last;
  for (int index = last; index >= least; --index) {
    room -= lengthOf(index, isRow);
    if (room < 0) break;
    first = index;
  }
  return first;
}

// ---- what stands where

namespace {

std::optional<GridBand> find(const std::vector<GridBand>& bands, int index) {
  const auto found = std::ranges::find(bands, index, &GridBand::index);
  return found != bands.end() ? std::optional(*found) : std::nullopt;
}

int indexAt(const std::vector<GridBand>& bands, int place) {
  for (const GridBand& band : bands) {
    if (place >= band.start && place < band.start + band.length) return band.index;
  }
  return -1;
}

}  // namespace

std::optional<GridBand> FlexGridLayout::row(int index) const { return find(rows_, index); }

std::optional<GridBand> FlexGridLayout::column(int index) const { return find(columns_, index); }

GridSpot FlexGridLayout::spotAt(GridPlace place) const {
  if (place.x < 0 || place.y < 0 || place.x >= clientWidth_ || place.y >= clientHeight_)
    return {.inside = false};
  return {indexAt(rows_, place.y), indexAt(columns_, place.x)};
}

GridSpot FlexGridLayout::draggedTo(GridPlace place) const {
  GridSpot spot = spotAt({std::clamp(place.x, 0, std::max(0, clientWidth_ - 1)),
                          std::clamp(place.y, 0, std::max(0, clientHeight_ - 1))});
  if (place.y < 0) spot.row = std::max(grid_.TopRow() - 1, grid_.FixedRows());
  if (place.y >= clientHeight_ && spot.row >= 0) spot.row = std::min(spot.row + 1, grid_.Rows() - 1);
  return spot;
}

namespace {

std::optional<int> placeIn(const std::vector<GridBand>& bands, int index, int edge) {
  int start = bands.empty() ? 0 : bands.back().start + bands.back().length;
  int end = edge;
  if (index >= 0) {
    const std::optional<GridBand> band = find(bands, index);
    if (!band) return std::nullopt;
    start = band->start;
    end = std::min(edge, band->start + band->length);
  }
  return start < end ? std::optional((start + end) / 2) : std::nullopt;
}

}  // namespace

std::optional<int> FlexGridLayout::xOf(int col) const { return placeIn(columns_, col, clientWidth_); }

std::optional<int> FlexGridLayout::yOf(int row) const { return placeIn(rows_, row, clientHeight_); }

std::optional<GridPlace> FlexGridLayout::placeOf(GridSpot spot) const {
  const std::optional<int> x = xOf(spot.col);
  const std::optional<int> y = yOf(spot.row);
  return x && y ? std::optional(GridPlace{*x, *y}) : std::nullopt;
}

int FlexGridLayout::topRowShowing(int row) const {
  const int top = std::min(grid_.TopRow(), lastTopRow_);
  if (row < grid_.FixedRows()) return top;
  return std::clamp(top, firstFitting(row, clientHeight_ - fixedHeight_, true), row);
}

int FlexGridLayout::leftColShowing(int col) const {
  const int left = std::min(grid_.LeftCol(), lastLeftCol_);
  if (col < grid_.FixedCols()) return left;
  return std::clamp(left, firstFitting(col, clientWidth_ - fixedWidth_, false), col);
}

}  // namespace zqn
