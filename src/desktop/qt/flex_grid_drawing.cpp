// SPDX-License-Identifier: MIT
#include "desktop/qt/flex_grid_drawing.h"

#include <algorithm>

#include "desktop/qt/text.h"

namespace zqn::qt {

namespace {

constexpr int line = 1;

QString describe(const DrawnCell& cell) {
  QString words = QStringLiteral("cell %1,%2 with \"%3\"").arg(cell.row).arg(cell.col).arg(cell.text);
  if (cell.picture != nullptr) words += QStringLiteral(", ") + toQt(StringView(cell.picture->name));
  if (cell.highlighted) words += QStringLiteral(", selected");
  const QRect& place = cell.place;
  return words + QStringLiteral(" at %1,%2 %3x%4, colours %5 %6, alignments %7 %8")
                     .arg(place.x())
                     .arg(place.y())
                     .arg(place.width())
                     .arg(place.height())
                     .arg(cell.backColor, 0, 16)
                     .arg(cell.foreColor, 0, 16)
                     .arg(cell.alignment)
                     .arg(cell.pictureAlignment);
}

}  // namespace

FlexGridDrawing::FlexGridDrawing(const zqn::FlexGrid& grid, const FlexGridLayout& layout)
    : cursor_(cursorOf(grid, layout)) {
  cells_.reserve(layout.rows().size() * layout.columns().size());
  for (const GridBand& row : layout.rows()) {
    for (const GridBand& column : layout.columns()) {
      const zqn::FlexGrid::Cell& cell = grid.cell(row.index, column.index);
      cells_.push_back({.row = row.index,
                        .col = column.index,
                        .place = QRect(column.start, row.start, column.length, row.length),
                        .text = toQt(cell.text),
                        .picture = cell.picture,
                        .alignment = cell.alignment,
                        .pictureAlignment = cell.pictureAlignment,
                        .backColor = cell.backColor,
                        .foreColor = cell.foreColor,
                        .heading = row.index < grid.FixedRows() || column.index < grid.FixedCols(),
                        .highlighted = grid.isHighlighted(row.index, column.index)});
    }
  }
}

QRect FlexGridDrawing::cursorOf(const zqn::FlexGrid& grid, const FlexGridLayout& layout) {
  if (layout.columns().empty()) return {};
  const auto row = layout.row(grid.Row());
  const auto column = layout.column(grid.Col());
  QRect place(0, 0, layout.clientWidth(), layout.clientHeight());
  if (row) {
    const GridBand& last = layout.columns().back();
    const int width = std::min(last.start + last.length, layout.clientWidth());
    place = QRect(0, row->start, width, row->length - line);
  }
  if (row && column && grid.SelectionMode() != zqn::FlexGrid::ByRow) {
    place.setLeft(column->start);
    place.setWidth(column->length - line);
  }
  return place;
}

QString FlexGridDrawing::differenceFrom(const FlexGridDrawing& wanted) const {
  const auto [shown, missing] = std::ranges::mismatch(cells_, wanted.cells_);
  if (shown != cells_.end() || missing != wanted.cells_.end()) {
    const QString is = shown != cells_.end() ? describe(*shown) : QStringLiteral("no further cell");
    const QString should = missing != wanted.cells_.end() ? describe(*missing) : QStringLiteral("none");
    return QStringLiteral("shows %1, not %2").arg(is, should);
  }
  return cursor_ == wanted.cursor_ ? QString() : QStringLiteral("frames another cell than the cursor's");
}

}  // namespace zqn::qt
