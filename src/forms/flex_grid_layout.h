// SPDX-License-Identifier: MIT
//
// Where the rows and columns of a grid stand on a screen of a given resolution.
#pragma once

#include <optional>
#include <vector>

namespace zqn {

class FlexGrid;

/// What is under the pointer: a cell by its row and column, -1 for beside the rows, the columns.
struct GridSpot {
  int row = -1;
  int col = -1;
  /// In the room for cells; else the pointer has left it with a button down.
  bool inside = true;

  bool operator==(const GridSpot&) const = default;
};

/// A place in pixels from the inner side of the grid's frame.
struct GridPlace {
  int x = 0, y = 0;
};

/// A row or column in sight.
struct GridBand {
  int index;
  int start, length;  // pixels; the last one may reach beyond the edge
};

/// Where everything of a grid stands, in whole pixels from the inner side of its frame, as it is scrolled
/// when this is made. The frame is a pixel wide; the last pixel of a cell, right and below, is its line. What
/// draws a grid, points at it or lays something over a cell takes the place from here:
///
///     const FlexGridLayout layout = grid.layout();
///     for (const GridBand& row : layout.rows()) ...  // the rows in sight, row.start, row.length
class FlexGridLayout {
 public:
  static constexpr int frame = 1;        // pixels
  static constexpr int textMargin = 2;   // pixels, left and right of a text, beside the line
  static constexpr int scrollBar = 240;  // twips

  FlexGridLayout(const FlexGrid& grid, double twipsPerPixelX, double twipsPerPixelY);

  /// The room for cells: without frame and scroll bars.
  int clientWidth() const noexcept { return clientWidth_; }
  int clientHeight() const noexcept { return clientHeight_; }
  /// A bar is there when there is something to scroll to.
  bool hasVerticalBar() const noexcept { return verticalBar_; }
  bool hasHorizontalBar() const noexcept { return horizontalBar_; }
  int verticalBarWidth() const noexcept;
  int horizontalBarHeight() const noexcept;
  /// The largest TopRow and LeftCol.
  int lastTopRow() const noexcept { return lastTopRow_; }
  int lastLeftCol() const noexcept { return lastLeftCol_; }

  /// Rows and columns in sight, headings first; hidden ones are left out.
  const std::vector<GridBand>& rows() const noexcept { return rows_; }
  const std::vector<GridBand>& columns() const noexcept { return columns_; }
  /// No value when it is out of sight or hidden.
  std::optional<GridBand> row(int index) const;
  std::optional<GridBand> column(int index) const;
  /// What stands at a place.
  GridSpot spotAt(GridPlace place) const;
  /// What a drag means there: beyond the edge at the side the nearest column, above and below the next row
  /// that is out of sight.
  GridSpot draggedTo(GridPlace place) const;

  /// A place to point at: the middle of what can be seen of a column, a row; for -1 beyond the last one. No
  /// value when nothing of it can be seen.
  std::optional<int> xOf(int col) const;
  std::optional<int> yOf(int row) const;
  std::optional<GridPlace> placeOf(GridSpot spot) const;
  /// The middle of the room for cells.
  GridPlace middle() const noexcept { return {clientWidth_ / 2, clientHeight_ / 2}; }

  /// The TopRow and LeftCol next to the present ones with which the row, the column is in sight as a whole.
  int topRowShowing(int row) const;
  int leftColShowing(int col) const;

  int twipsX(int pixels) const noexcept;
  int twipsY(int pixels) const noexcept;

 private:
  int pixelsX(double twips) const noexcept;
  int pixelsY(double twips) const noexcept;
  int rowPixels(int row) const;
  int colEdge(int col) const { return edges_[static_cast<std::size_t>(col)]; }
  /// The first of the rows, columns up to `last` that fit into the room together; `last` itself fits always.
  int firstFitting(int last, int room, bool isRow) const;
  int lengthOf(int index, bool isRow) const;

  const FlexGrid& grid_;
  double twipsPerPixelX_, twipsPerPixelY_;
  /// Left edge of each column, and behind the last its right one, as if nothing were scrolled.
  std::vector<int> edges_;
  int fixedWidth_ = 0, fixedHeight_ = 0;
  int clientWidth_ = 0, clientHeight_ = 0;
  bool verticalBar_ = false, horizontalBar_ = false;
  int lastTopRow_ = 0, lastLeftCol_ = 0;
  std::vector<GridBand> rows_, columns_;
};

}  // namespace zqn
