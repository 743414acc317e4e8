// SPDX-License-Identifier: MIT
//
// Paints what a grid shows.
#pragma once

#include <QPainter>
#include <QWidget>

#include "desktop/qt/flex_grid_drawing.h"

namespace zqn::qt {

/// Backgrounds, lines, pictures, texts, the selection, the cursor. A text stands where a text box without a
/// frame over the cell would show it.
class FlexGridPainter {
 public:
  /// Paints on `surface`, in the colours and the font of `widget`.
  FlexGridPainter(const QWidget& widget, QWidget& surface);

  void paint(const FlexGridDrawing& drawing, bool focused);

  /// A text of this width is cut in a column of that width.
  static bool isCut(int text, int column) noexcept;

 private:
  void paintCell(const DrawnCell& cell);
  void paintPicture(const DrawnCell& cell, const QRect& inside);
  void paintText(const DrawnCell& cell, const QRect& inside, const QColor& colour);

  const QWidget& widget_;
  QPainter painter_;
};

}  // namespace zqn::qt
