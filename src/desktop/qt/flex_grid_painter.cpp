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

FlexGridPainter::FlexGridPainter(const zqn::FlexGrid& grid, const FlexGridLayout& layout,
                                 const QWidget& widget, QWidget& surface)
    : grid_(grid), layout_(layout), widget_(widget), painter_(&surface) {
  painter_.setFont(widget.font());
  painter_.fillRect(surface.rect(), widget.palette().color(QPalette::Base));
}

void FlexGridPainter::paint(bool focused) {
  for (const GridBand& row : layout_.rows()) {
    for (const GridBand& column : layout_.columns()) paintCell(row, column);
  }
  if (focused) paintCursor();
}

void FlexGridPainter::paintCell(const GridBand& row, const GridBand& column) {
  const zqn::FlexGrid::Cell& cell = grid_.cell(row.index, column.index);
  const QPalette& palette = widget_.palette();
  const bool heading = row.index < grid_.FixedRows() || column.index < grid_.FixedCols();
  const bool highlighted = grid_.isHighlighted(row.index, column.index);
  const QRect whole(column.start, row.start, column.length, row.length);
  const QRect inside = whole.adjusted(0, 0, -line, -line);

  QColor back = palette.color(heading ? QPalette::Window : QPalette::Base);
  QColor fore = palette.color(QPalette::Text);
  if (cell.backColor != 0) back = toQt(cell.backColor, palette);
  if (cell.foreColor != 0) fore = toQt(cell.foreColor, palette);
  if (highlighted) {
    back = palette.color(QPalette::Active, QPalette::Highlight);
    fore = palette.color(QPalette::Active, QPalette::HighlightedText);
  }
  const QColor lines = palette.color(QPalette::Window).darker(heading ? 140 : 115);
  painter_.fillRect(whole, lines);
  painter_.fillRect(inside, back);
  painter_.save();
  painter_.setClipRect(inside);
  if (cell.picture != nullptr) paintPicture(cell, inside);
  if (!cell.text.empty()) paintText(cell, inside, fore);
  painter_.restore();
}

void FlexGridPainter::paintPicture(const zqn::FlexGrid::Cell& cell, const QRect& inside) {
  const QSize size = sizeOf(*cell.picture, widget_);
  const QPoint offset(placed(acrossOf(cell.pictureAlignment), inside.width(), size.width()),
                      placed(downOf(cell.pictureAlignment), inside.height(), size.height()));
  drawPicture(painter_, inside.topLeft() + offset, *cell.picture, widget_);
}

void FlexGridPainter::paintText(const zqn::FlexGrid::Cell& cell, const QRect& inside, const QColor& colour) {
  const QFontMetrics metrics(widget_.font(), &widget_);
  const int room = inside.width() - marginLeft - marginRight;
  QString text = toQt(cell.text);
  text.replace(QLatin1Char('\n'), QLatin1Char(' '));
  if (metrics.horizontalAdvance(text) > room) text = metrics.elidedText(text, Qt::ElideRight, room);
  const int x = placed(acrossOf(cell.alignment), room, metrics.horizontalAdvance(text));
  const int y = placed(downOf(cell.alignment), inside.height(), metrics.height());
  painter_.setPen(colour);
  painter_.drawText(inside.left() + marginLeft + x, inside.top() + y + metrics.ascent(), text);
}

void FlexGridPainter::paintCursor() {
  const auto row = layout_.row(grid_.Row());
  const auto column = layout_.column(grid_.Col());
  if (layout_.columns().empty()) return;
  QRect place(0, 0, layout_.clientWidth(), layout_.clientHeight());
  if (row) {
    const GridBand& last = layout_.columns().back();
    const int width = std::min(last.start + last.length, layout_.clientWidth());
    place = QRect(0, row->start, width, row->length - line);
  }
  if (row && column && grid_.SelectionMode() != zqn::FlexGrid::ByRow) {
    place.setLeft(column->start);
    place.setWidth(column->length - line);
  }
  drawFocusFrame(painter_, place, widget_.palette().color(QPalette::Active, QPalette::Highlight).darker(130));
}

bool FlexGridPainter::isCut(int text, int column) noexcept {
  return text > column - line - marginLeft - marginRight;
}

}  // namespace zqn::qt
