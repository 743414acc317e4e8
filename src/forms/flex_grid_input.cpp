// SPDX-License-Identifier: MIT
//
// What a person does to a grid by mouse and keys, and what automation reads of it.
#include <algorithm>
#include <utility>

#include "forms/flex_grid.h"
#include "forms/form.h"
#include "forms/names.h"
#include "runtime/convert.h"

namespace zqn {

// ---- mouse

void FlexGrid::userPressed(GridSpot at, int button, int shift, Press press) {
  constexpr int left = 1;
  mouse_ = at;
  buttonsDown_ |= button;
  if (button == left) {
    clicks_ = press == Press::Single;
    drag_ = Drag::None;
    dragged_ = false;
    if (at.row >= 0 && at.col >= 0 && hasFreeCells()) selectByMouse(at, (shift & shift::Shift) != 0);
  }
  if (form().Visible()) MouseDown.raise(button, shift);
  if (button == left && press == Press::SecondOfDoubleClick && form().Visible()) DblClick.raise();
}

void FlexGrid::selectByMouse(GridSpot at, bool extend) {
  const int lastRow = Rows() - 1;
  const int lastCol = Cols() - 1;
  const bool rowHeading = at.col < fixedCols_;
  const bool columnHeading = at.row < fixedRows_;
  const int row = columnHeading ? fixedRows_ : at.row;
  const int col = rowHeading ? fixedCols_ : at.col;
  const bool allRows = columnHeading && allowBigSelection_;
  const bool allCols = rowHeading && allowBigSelection_;

  Selection wanted{row, col, allRows ? lastRow : row, allCols ? lastCol : col};
  drag_ = allCols ? Drag::Rows : allRows ? Drag::Columns : Drag::Cells;
  if (selectionMode_ == ByRow) {
    wanted = {row, fixedCols_, wanted.rowSel, lastCol};
    drag_ = Drag::Rows;
  } else if (selectionMode_ == ByColumn) {
    wanted = {fixedRows_, col, lastRow, wanted.colSel};
    drag_ = Drag::Columns;
  }
  if (extend) {
    wanted.row = row_;
    wanted.col = col_;
  }
  select(wanted, ScrollIntoView::Yes);
}

void FlexGrid::userDragged(GridSpot at) {
  mouse_ = at;
  if (drag_ == Drag::None || !hasFreeCells()) return;
  int rowSel = rowSel_;
  int colSel = colSel_;
  if (drag_ != Drag::Columns && at.row >= 0) rowSel = std::clamp(at.row, fixedRows_, Rows() - 1);
  if (drag_ != Drag::Rows && at.col >= 0) colSel = std::clamp(at.col, fixedCols_, Cols() - 1);
  if (drag_ == Drag::Rows) colSel = Cols() - 1;
  if (drag_ == Drag::Columns) rowSel = Rows() - 1;
  if (rowSel == rowSel_ && colSel == colSel_) return;
  rowSel_ = rowSel;
  colSel_ = colSel;
  dragged_ = true;
  changed();
  scrollIntoView(rowSel_, colSel_);
}

void FlexGrid::userReleased(GridSpot at, int button, int shift) {
  constexpr int left = 1;
  if ((buttonsDown_ & button) == 0) return;
  buttonsDown_ &= ~button;
  mouse_ = at;
  const bool click = button == left && std::exchange(clicks_, false) && at.inside;
  if (button == left) drag_ = Drag::None;
  if (button == left && std::exchange(dragged_, false)) SelChange.raise();
  if (form().Visible()) MouseUp.raise(button, shift);
  if (click) form().mouseReleased(*this);
}

// ---- wheel

void FlexGrid::userTurnedWheel(int vertical, int horizontal) {
  constexpr int notch = 120;
  constexpr int linesPerNotch = 3;
  // A wheel that turns back begins anew.
  const auto linesOf = [](int& turned, int by) {
    if (by == 0) return 0;
    if ((turned < 0) != (by < 0)) turned = 0;
    turned += by * linesPerNotch;
    const int lines = turned / notch;
    turned %= notch;
    return lines;
  };
  const int rows = linesOf(turnedRows_, vertical);
  const int cols = linesOf(turnedCols_, horizontal);
  if (rows != 0 || cols != 0) scrollTo(topRow_ - rows, leftCol_ - cols);
}

// ---- keys

int FlexGrid::stepCol(int col, int step) const {
  for (int next = col + step; next >= fixedCols_ && next < Cols(); next += step) {
    if (ColWidth(next) > 0) return next;
  }
  return col;
}

bool FlexGrid::ownKey(const KeyStroke& stroke) {
  if (!hasFreeCells() || (stroke.shift & shift::Alt) != 0) return false;
  const bool extend = (stroke.shift & shift::Shift) != 0;
  const bool whole = (stroke.shift & shift::Ctrl) != 0 || selectionMode_ == ByRow;
  const int lastRow = Rows() - 1;
  const int lastCol = Cols() - 1;
  const FlexGridLayout place = layout();
  const int page = std::max(1, static_cast<int>(place.rows().size()) - fixedRows_ - 1);
  int row = extend ? rowSel_ : row_;
  int col = extend ? colSel_ : col_;
  switch (stroke.code) {
    case key::Up:
      --row;
      break;
    case key::Down:
      ++row;
      break;
    case key::PageUp:
      row -= page;
      break;
    case key::PageDown:
      row += page;
      break;
    case key::Left:
      col = stepCol(col, -1);
      break;
    case key::Right:
      col = stepCol(col, 1);
      break;
    case key::Home:
      col = stepCol(fixedCols_ - 1, 1);
      if (whole) row = fixedRows_;
      break;
    case key::End:
      col = stepCol(lastCol + 1, -1);
      if (whole) row = lastRow;
      break;
    default:
      return false;
  }
  row = std::clamp(row, fixedRows_, lastRow);
  col = std::clamp(col, fixedCols_, lastCol);
  Selection wanted{row, col, row, col};
  if (selectionMode_ == ByRow) wanted = {row, fixedCols_, row, lastCol};
  if (selectionMode_ == ByColumn) wanted = {fixedRows_, col, lastRow, col};
  if (extend) {
    wanted.row = row_;
    wanted.col = col_;
  }
  select(wanted, ScrollIntoView::Yes);
  return true;
}

// ---- automation

String FlexGrid::content() const {
  const bool hasCell = row_ < Rows() && col_ < Cols();
  return hasCell ? cell(row_, col_).text : String();
}

String FlexGrid::wordsForPicture(const Picture& picture) const {
  const auto found = pictureWords_.find(&picture);
  return found != pictureWords_.end() ? found->second : String();
}

String FlexGrid::wordsForPlace(int row, int col) const {
  const String heading = fixedRows_ > 0 ? cell(0, col).text : String();
  static_cast<void>(cell(row, col));
  if (row < fixedRows_) return heading;
  const String words = u"Zeile " + CStr(std::int32_t{row - fixedRows_ + 1});
  return heading.empty() ? words : heading + u", " + words;
}

Variant FlexGrid::indexedProperty(StringView name, StringView indices) const {
  const std::vector<String> parts = Split(indices, u",");
  const auto index = [&](std::size_t i) { return int{CLng(Variant(parts[i]))}; };
  if (sameName(name, u"TextMatrix") && parts.size() == 2) return TextMatrix(index(0), index(1));
  if (parts.size() == 1 && sameName(name, u"ColWidth")) return std::int32_t{ColWidth(index(0))};
  if (parts.size() == 1 && sameName(name, u"RowHeight")) return std::int32_t{RowHeight(index(0))};
  if (parts.size() == 1 && sameName(name, u"CellPicture")) {
    const Picture* picture = cell(index(0), 0).picture;
    return picture != nullptr ? String(picture->name) : String();
  }
  throw RuntimeError(error::NoSuchMember);
}

Variant FlexGrid::Property(StringView name) const {
  const auto open = name.find(u'(');
  if (open != StringView::npos && name.ends_with(u')'))
    return indexedProperty(name.substr(0, open), name.substr(open + 1, name.size() - open - 2));
  return Control::Property(name);
}

namespace {

template <int (FlexGrid::*get)() const, void (FlexGrid::*set)(int)>
constexpr PropertyEntry number(const char16_t* name) {
  return {name,
          [](const Control& c) { return Variant(std::int32_t{(static_cast<const FlexGrid&>(c).*get)()}); },
          [](Control& c, const Variant& value) { (static_cast<FlexGrid&>(c).*set)(int{CLng(value)}); }};
}

}  // namespace

const PropertyEntry* FlexGrid::findProperty(StringView name) const {
  static constexpr PropertyEntry entries[] = {
      number<&FlexGrid::Rows, &FlexGrid::Rows>(u"Rows"),
      number<&FlexGrid::Cols, &FlexGrid::Cols>(u"Cols"),
      number<&FlexGrid::FixedRows, &FlexGrid::FixedRows>(u"FixedRows"),
      number<&FlexGrid::FixedCols, &FlexGrid::FixedCols>(u"FixedCols"),
      number<&FlexGrid::Row, &FlexGrid::Row>(u"Row"),
      number<&FlexGrid::Col, &FlexGrid::Col>(u"Col"),
      number<&FlexGrid::RowSel, &FlexGrid::RowSel>(u"RowSel"),
      number<&FlexGrid::ColSel, &FlexGrid::ColSel>(u"ColSel"),
      number<&FlexGrid::SelectionMode, &FlexGrid::SelectionMode>(u"SelectionMode"),
      number<&FlexGrid::TopRow, &FlexGrid::TopRow>(u"TopRow"),
      number<&FlexGrid::LeftCol, &FlexGrid::LeftCol>(u"LeftCol"),
      number<&FlexGrid::CellAlignment, &FlexGrid::CellAlignment>(u"CellAlignment"),
      number<&FlexGrid::CellPictureAlignment, &FlexGrid::CellPictureAlignment>(u"CellPictureAlignment"),
      {u"MouseRow",
       [](const Control& c) { return Variant(std::int32_t{static_cast<const FlexGrid&>(c).MouseRow()}); },
       nullptr},
      {u"MouseCol",
       [](const Control& c) { return Variant(std::int32_t{static_cast<const FlexGrid&>(c).MouseCol()}); },
       nullptr},
      {u"CellBackColor",
       [](const Control& c) {
         return Variant(double{1.0 * static_cast<const FlexGrid&>(c).CellBackColor()});
       },
       nullptr},
      {u"CellForeColor",
       [](const Control& c) {
         return Variant(double{1.0 * static_cast<const FlexGrid&>(c).CellForeColor()});
       },
       nullptr},
      {u"Text", [](const Control& c) { return Variant(static_cast<const FlexGrid&>(c).Text()); },
       [](Control& c, const Variant& value) { static_cast<FlexGrid&>(c).Text(CStr(value)); }},
  };
  const PropertyEntry* entry = findIn(entries, name);
  return entry != nullptr ? entry : Control::findProperty(name);
}

}  // namespace zqn
