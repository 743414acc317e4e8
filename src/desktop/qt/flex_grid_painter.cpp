// SPDX-License-Identifier: MIT
#include "desktop/qt/flex_grid_painter.h"

#include <algorithm>

#include "desktop/qt/colours.h"
#include "desktop/qt/picture_box.h"
#include "desktop/qt/style.h"
#include "desktop/qt/text.h"

namespace zqn::qt {

namespace {

/// What a text box keeps free in front of its text, and behind it for the caret.
constexpr int entryMargin = 2;
constexpr int caret = 2;
constexpr int marginLeft = FlexGridLayout::textMargin + entryMargin;
constexpr int marginRight = entryMargin + caret;
constexpr int line = 1;

enum class Place { Start, Middle, End };

Place acrossOf(int alignment) {
  if (alignment >= 3 && alignment <= 5) return Place::Middle;
  return alignment >= 6 && alignment <= 8 ? Place::End : Place::Start;
}

Place downOf(int alignment) {
  if (alignment >= cell_alignment::General || alignment % 3 == 1) return Place::Middle;
  return alignment % 3 == 0 ? Place::Start : Place::End;
}

int placed(Place place, int room, int size) {
  if (place == Place::Start) return 0;
  // A text box puts the odd pixel above its text.
  return place == Place::Middle ? (room - size + 1) / 2 : room - size;
}

}  // namespace

FlexGridPainter::FlexGridPainter(const QWidget& widget, QWidget& surface)
    : widget_(widget), painter_(&surface) {
  painter_.setFont(widget.font());
  painter_.fillRect(surface.rect(), widget.palette().color(QPalette::Base));
}

void FlexGridPainter::paint(const FlexGridDrawing& drawing, bool focused) {
  for (const DrawnCell& cell : drawing.cells()) paintCell(cell);
  if (!focused || drawing.cursor().isNull()) return;
  const QColor colour = widget_.palette().color(QPalette::Active, QPalette::Highlight).darker(130);
  drawFocusFrame(painter_, drawing.cursor(), colour);
}

void FlexGridPainter::paintCell(const DrawnCell& cell) {
  const QPalette& palette = widget_.palette();
  const QRect inside = cell.place.adjusted(0, 0, -line, -line);

  QColor back = palette.color(cell.heading ? QPalette::Window : QPalette::Base);
  QColor fore = palette.color(QPalette::Text);
  if (cell.backColor != 0) back = toQt(cell.backColor, palette);
  if (cell.foreColor != 0) fore = toQt(cell.foreColor, palette);
  if (cell.highlighted) {
    back = palette.color(QPalette::Active, QPalette::Highlight);
    fore = palette.color(QPalette::Active, QPalette::HighlightedText);
  }
  const QColor lines = palette.color(QPalette::Window).darker(cell.heading ? 140 : 115);
  painter_.fillRect(cell.place, lines);
  painter_.fillRect(inside, back);
  painter_.save();
  painter_.setClipRect(inside);
  if (cell.picture != nullptr) paintPicture(cell, inside);
  if (!cell.text.isEmpty()) paintText(cell, inside, fore);
  painter_.restore();
}

void FlexGridPainter::paintPicture(const DrawnCell& cell, const QRect& inside) {
  const QSize size = sizeOf(*cell.picture, widget_);
  const QPoint offset(placed(acrossOf(cell.pictureAlignment), inside.width(), size.width()),
                      placed(downOf(cell.pictureAlignment), inside.height(), size.height()));
  drawPicture(painter_, inside.topLeft() + offset, *cell.picture, widget_);
}

void FlexGridPainter::paintText(const DrawnCell& cell, const QRect& inside, const QColor& colour) {
  const QFontMetrics metrics(widget_.font(), &widget_);
  const int room = inside.width() - marginLeft - marginRight;
  QString text = cell.text;
  text.replace(QLatin1Char('\n'), QLatin1Char(' '));
  if (metrics.horizontalAdvance(text) > room) text = metrics.elidedText(text, Qt::ElideRight, room);
  const int x = placed(acrossOf(cell.alignment), room, metrics.horizontalAdvance(text));
  const int y = placed(downOf(cell.alignment), inside.height(), metrics.height());
  painter_.setPen(colour);
  painter_.drawText(inside.left() + marginLeft + x, inside.top() + y + metrics.ascent(), text);
}

bool FlexGridPainter::isCut(int text, int column) noexcept {
  return text > column - line - marginLeft - marginRight;
}

}  // namespace zqn::qt
