// SPDX-License-Identifier: MIT
#include "forms/flex_grid.h"

#include <algorithm>
#include <utility>

#include "forms/desktop.h"
#include "runtime/convert.h"

namespace zqn {

namespace {

[[noreturn]] void raiseGridError(std::int32_t number, StringView words) {
  throw RuntimeError(number, String(words), u"FlexGrid");
}

bool isOutside(int index, int count) { return index < 0 || index >= count; }

constexpr int twipsPerPixelWithoutDesktop = 15;

}  // namespace

FlexGrid::FlexGrid(Form& form, const ControlDesign& design, int tabIndex)
    : Control(form, design, tabIndex), rows_(2), colWidths_(2, -1) {
  for (RowOfCells& row : rows_) row.cells.resize(colWidths_.size());
}

void FlexGrid::requireRow(int row) const {
  if (isOutside(row, Rows())) raiseGridError(error::InvalidGridRow, u"Ungültiger Wert für Row");
}

void FlexGrid::requireCol(int col) const {
  if (isOutside(col, Cols())) raiseGridError(error::InvalidGridCol, u"Ungültiger Wert für Col");
}

// ---- size

void FlexGrid::Rows(int count) {
  if (count < 0) raiseGridError(error::InvalidGridRow, u"Ungültiger Wert für Rows");
  if (count == Rows()) return;
  const bool grows = count > Rows();
  const auto before = rows_.size();
  rows_.resize(static_cast<std::size_t>(count));
  for (auto i = before; i < rows_.size(); ++i) rows_[i].cells.resize(colWidths_.size());
  fixedRows_ = std::min(fixedRows_, count);
  changed();
  if (grows && row_ < fixedRows_ && fixedRows_ < count) {
    select({fixedRows_, col_, fixedRows_, col_});
  } else {
    resized();
  }
}

void FlexGrid::Cols(int count) {
  if (count < 0) raiseGridError(error::InvalidGridCol, u"Ungültiger Wert für Cols");
  if (count == Cols()) return;
  const bool grows = count > Cols();
  colWidths_.resize(static_cast<std::size_t>(count), -1);
  for (RowOfCells& row : rows_) row.cells.resize(colWidths_.size());
  fixedCols_ = std::min(fixedCols_, count);
  changed();
  if (grows && col_ < fixedCols_ && fixedCols_ < count) {
    select({row_, fixedCols_, row_, fixedCols_});
  } else {
    resized();
  }
}

void FlexGrid::resized() {
  const int lastRow = std::max(Rows() - 1, 0);
  const int lastCol = std::max(Cols() - 1, 0);
  select({std::min(row_, lastRow), std::min(col_, lastCol), std::min(rowSel_, lastRow),
          std::min(colSel_, lastCol)});
  scrollTo(topRow_, leftCol_);
}

void FlexGrid::FixedRows(int count) {
  if (isOutside(count, Rows())) raiseGridError(error::TooManyFixed, u"FixedRows muss kleiner sein als Rows");
  if (fixedRows_ == count) return;
  fixedRows_ = count;
  topRow_ = count;
  changed();
}

void FlexGrid::FixedCols(int count) {
  if (isOutside(count, Cols())) raiseGridError(error::TooManyFixed, u"FixedCols muss kleiner sein als Cols");
  if (fixedCols_ == count) return;
  fixedCols_ = count;
  leftCol_ = count;
  changed();
}

void FlexGrid::AddItem(StringView texts, int index) {
  const int at = index < 0 ? Rows() : index;
  if (at > Rows()) raiseGridError(error::GridRowOutside, u"Die Zeile liegt außerhalb von Rows");
  if (at < fixedRows_ && at < Rows())
    raiseGridError(error::GridRowAlreadyFixed, u"Die Zeile ist eine Überschrift");
  Rows(Rows() + 1);
  std::rotate(rows_.begin() + at, rows_.end() - 1, rows_.end());
  std::vector<Cell>& cells = rows_[static_cast<std::size_t>(at)].cells;
  std::size_t col = 0;
  for (String& text : Split(texts, u"\t")) {
    if (col < cells.size()) cells[col++].text = std::move(text);
  }
  changed();
}

// ---- cursor and selection

void FlexGrid::Row(int row) {
  requireRow(row);
  select({row, col_, row, col_});
}

void FlexGrid::Col(int col) {
  requireCol(col);
  select({row_, col, row_, col});
}

void FlexGrid::RowSel(int row) {
  requireRow(row);
  select({row_, col_, row, colSel_});
}

void FlexGrid::ColSel(int col) {
  requireCol(col);
  select({row_, col_, rowSel_, col});
}

void FlexGrid::SelectionMode(int mode) {
  if (mode < Free || mode > ByColumn) throw RuntimeError(error::InvalidPropertyValue);
  if (std::exchange(selectionMode_, mode) != mode) changed();
}

void FlexGrid::select(const Selection& wanted, ScrollIntoView scroll) {
  const auto differs = [&] {
    return std::pair(wanted.row != row_ || wanted.col != col_,
                     wanted.rowSel != rowSel_ || wanted.colSel != colSel_);
  };
  const auto [moves, extends] = differs();
  if (moves) LeaveCell.raise();
  row_ = wanted.row;
  col_ = wanted.col;
  rowSel_ = wanted.rowSel;
  colSel_ = wanted.colSel;
  if (moves || extends) changed();
  if (scroll == ScrollIntoView::Yes) scrollIntoView(rowSel_, colSel_);
  if (moves || extends) SelChange.raise();
  if (!moves) return;
  EnterCell.raise();
  RowColChange.raise();
}

bool FlexGrid::isHighlighted(int row, int col) const noexcept {
  const auto between = [](int index, int one, int other) {
    return index >= std::min(one, other) && index <= std::max(one, other);
  };
  if (row < fixedRows_ || col < fixedCols_) return false;
  if (!between(row, row_, rowSel_) || !between(col, col_, colSel_)) return false;
  // A single cell is where the cursor stands; whole rows are taken even where there is one column.
  return selectionMode_ == ByRow || row_ != rowSel_ || col_ != colSel_;
}

// ---- cells

const FlexGrid::Cell& FlexGrid::cell(int row, int col) const {
  if (isOutside(row, Rows()) || isOutside(col, Cols())) throw RuntimeError(error::InvalidPropertyArrayIndex);
  return rows_[static_cast<std::size_t>(row)].cells[static_cast<std::size_t>(col)];
}

FlexGrid::Cell& FlexGrid::cellAt(int row, int col) { return const_cast<Cell&>(cell(row, col)); }

void FlexGrid::TextMatrix(int row, int col, StringView text) {
  Cell& target = cellAt(row, col);
  if (target.text == text) return;
  target.text = text;
  changed();
}

template <class T>
void FlexGrid::setInCurrent(T Cell::*member, T value) {
  Cell& target = cellAt(row_, col_);
  if (std::exchange(target.*member, value) != value) changed();
}

void FlexGrid::setPicture(int row, int col, const Picture* picture) {
  if (std::exchange(cellAt(row, col).picture, picture) != picture) changed();
}

void FlexGrid::CellAlignment(int alignment) { setInCurrent(&Cell::alignment, alignment); }

void FlexGrid::CellBackColor(std::uint32_t colour) { setInCurrent(&Cell::backColor, colour); }

void FlexGrid::CellForeColor(std::uint32_t colour) { setInCurrent(&Cell::foreColor, colour); }

void FlexGrid::CellPicture(const Picture* picture) { setInCurrent(&Cell::picture, picture); }

void FlexGrid::CellPictureAlignment(int alignment) { setInCurrent(&Cell::pictureAlignment, alignment); }

// ---- places

int FlexGrid::ColWidth(int col) const {
  requireCol(col);
  const int width = colWidths_[static_cast<std::size_t>(col)];
  return width < 0 ? defaultColWidth : width;
}

void FlexGrid::ColWidth(int col, int width) {
  requireCol(col);
  if (std::exchange(colWidths_[static_cast<std::size_t>(col)], width) != width) changed();
}

int FlexGrid::RowHeight(int row) const {
  requireRow(row);
  const int height = rows_[static_cast<std::size_t>(row)].height;
  return height < 0 ? defaultRowHeight : height;
}

void FlexGrid::RowHeight(int row, int height) {
  requireRow(row);
  if (std::exchange(rows_[static_cast<std::size_t>(row)].height, height) != height) changed();
}

FlexGridLayout FlexGrid::layout() const {
  double x = twipsPerPixelWithoutDesktop;
  double y = twipsPerPixelWithoutDesktop;
  try {
    const Desktop& desktop = Desktop::current();
    x = desktop.TwipsPerPixelX();
    y = desktop.TwipsPerPixelY();
  } catch (const RuntimeError&) {
    // A form may be filled before there is a desktop.
  }
  return layout(x, y);
}

void FlexGrid::TopRow(int row) {
  if (row < 0) raiseGridError(error::InvalidGridRow, u"Ungültiger Wert für TopRow");
  scrollTo(row, leftCol_);
}

void FlexGrid::LeftCol(int col) {
  if (col < 0) raiseGridError(error::InvalidGridCol, u"Ungültiger Wert für LeftCol");
  scrollTo(topRow_, col);
}

void FlexGrid::scrollTo(int topRow, int leftCol) {
  const FlexGridLayout place = layout();
  topRow = std::clamp(topRow, fixedRows_, place.lastTopRow());
  leftCol = std::clamp(leftCol, fixedCols_, place.lastLeftCol());
  if (topRow == topRow_ && leftCol == leftCol_) return;
  topRow_ = topRow;
  leftCol_ = leftCol;
  changed();
  Scroll.raise();
}

void FlexGrid::scrollIntoView(int row, int col) {
  const FlexGridLayout place = layout();
  scrollTo(place.topRowShowing(row), place.leftColShowing(col));
}

bool FlexGrid::RowIsVisible(int row) const {
  requireRow(row);
  return row < fixedRows_ || layout().row(row).has_value();
}

int FlexGrid::CellLeft() {
  scrollIntoView(row_, col_);
  const FlexGridLayout place = layout();
  const auto band = place.column(col_);
  return band ? place.twipsX(band->start) : 0;
}

int FlexGrid::CellTop() {
  scrollIntoView(row_, col_);
  const FlexGridLayout place = layout();
  const auto band = place.row(row_);
  return band ? place.twipsY(band->start) : 0;
}

int FlexGrid::CellWidth() {
  scrollIntoView(row_, col_);
  const FlexGridLayout place = layout();
  const auto band = place.column(col_);
  return band ? place.twipsX(band->length) : 0;
}

int FlexGrid::CellHeight() {
  scrollIntoView(row_, col_);
  const FlexGridLayout place = layout();
  const auto band = place.row(row_);
  return band ? place.twipsY(band->length) : 0;
}

}  // namespace zqn
