// SPDX-License-Identifier: MIT
//
// What the widget of a grid shows at a moment, cell by cell: the painter paints it, and the check of window
// against form holds it against the grid.
#pragma once

#include <QRect>
#include <QString>
#include <vector>

#include "forms/flex_grid.h"

namespace zqn::qt {

struct DrawnCell {
  int row, col;
  /// With the line to its right and below.
  QRect place;
  QString text;
  const zqn::Picture* picture;
  int alignment, pictureAlignment;
  /// 0 for the colour of the grid, or of its headings.
  std::uint32_t backColor, foreColor;
  bool heading, highlighted;

  bool operator==(const DrawnCell&) const = default;
};

/// The cells in sight and the frame of the cursor, as a grid says them now on a screen of this layout.
class FlexGridDrawing {
 public:
  FlexGridDrawing() = default;
  FlexGridDrawing(const zqn::FlexGrid& grid, const FlexGridLayout& layout);

  const std::vector<DrawnCell>& cells() const noexcept { return cells_; }
  /// Around the cell at the cursor, or its row; around everything when it is out of sight.
  const QRect& cursor() const noexcept { return cursor_; }
  /// How this one differs from what is wanted: a sentence on the first cell that does, "" for none.
  QString differenceFrom(const FlexGridDrawing& wanted) const;

 private:
  static QRect cursorOf(const zqn::FlexGrid& grid, const FlexGridLayout& layout);

  std::vector<DrawnCell> cells_;
  QRect cursor_;
};

}  // namespace zqn::qt
