// SPDX-License-Identifier: MIT
//
// Paints the cells of a grid that are in sight: backgrounds, lines, pictures, texts, the selection, the
// cursor. A text stands where a text box without a frame over the cell would show it.
#pragma once

#include <QPainter>
#include <QWidget>

#include "forms/flex_grid.h"

namespace zqn::qt {

class FlexGridPainter {
 public:
  /// Paints on `surface`, in the colours and the font of `widget`.
  FlexGridPainter(const zqn::FlexGrid& grid, const FlexGridLayout& layout, const QWidget& widget,
                  QWidget& surface);

  void paint(bool focused);

  /// A text of this width is cut in a column of that width.
  static bool isCut(int text, int column) noexcept;

 private:
  void paintCell(const GridBand& row, const GridBand& column);
  void paintPicture(const zqn::FlexGrid::Cell& cell, const QRect& inside);
  void paintText(const zqn::FlexGrid::Cell& cell, const QRect& inside, const QColor& colour);
  void paintCursor();

  const zqn::FlexGrid& grid_;
  const FlexGridLayout& layout_;
  const QWidget& widget_;
  QPainter painter_;
};

}  // namespace zqn::qt
