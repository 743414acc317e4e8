// SPDX-License-Identifier: MIT
//
// A grid of texts with a cursor and a selection, and all that mouse, wheel and keys do to it.
#pragma once

#include <map>
#include <vector>

#include "forms/control.h"
#include "forms/flex_grid_layout.h"
#include "forms/picture.h"

namespace zqn {

namespace error {
constexpr std::int32_t GridRowAlreadyFixed = 30001;
constexpr std::int32_t GridRowOutside = 30002;
constexpr std::int32_t InvalidGridRow = 30009;
constexpr std::int32_t InvalidGridCol = 30010;
constexpr std::int32_t TooManyFixed = 30016;
}  // namespace error

/// Where texts and pictures stand in a cell: 0 to 2 left, 3 to 5 centred, 6 to 8 right, each top, middle,
/// bottom; 9 is left and middle.
namespace cell_alignment {
constexpr int LeftTop = 0;
constexpr int LeftCenter = 1;
constexpr int CenterCenter = 4;
constexpr int RightCenter = 7;
constexpr int General = 9;
}  // namespace cell_alignment

/// Which press of a button it is.
enum class Press { Single, SecondOfDoubleClick };

/// A grid of texts with a cursor and a selection. Rows and columns count from 0; the first FixedRows and
/// FixedCols of them are headings that do not scroll (0 of either is allowed). Code may put the cursor on any
/// cell, headings included; a person puts it on the others. The selection is the rectangle between the
/// cursor (Row, Col) and the opposite corner (RowSel, ColSel):
///
///     grid.Rows(4);
///     grid.TextMatrix(1, 2, u"Stk");
///     grid.Row(1);  // LeaveCell on the old cell, then SelChange, EnterCell, RowColChange on the new one
///     grid.Col(2);  // the same once more: each assignment is a move of its own
///     grid.ColSel(5);  // SelChange
///
/// The grid cannot edit: keys move the cursor, a form writes what is typed.
class FlexGrid : public Control {
 public:
  static constexpr int defaultColWidth = 960;   // twips
  static constexpr int defaultRowHeight = 240;  // twips
  static constexpr int Free = 0, ByRow = 1, ByColumn = 2;

  struct Cell {
    String text;
    int alignment = cell_alignment::General;
    int pictureAlignment = cell_alignment::LeftTop;
    const Picture* picture = nullptr;
    /// 0 for the colour of the grid, or of its headings.
    std::uint32_t backColor = 0, foreColor = 0;
  };

  // ---- size

  int Rows() const noexcept { return static_cast<int>(rows_.size()); }
  int Cols() const noexcept { return static_cast<int>(colWidths_.size()); }
  /// More: empty ones at the end; a cursor on a heading goes to the first cell that is none. Fewer: they go
  /// from the end with what they hold, FixedRows never exceeds what is left, and a cursor or a selection
  /// beyond goes to the last one. Moves of the cursor raise their events. Error 30009, 30010 below 0.
  void Rows(int count);
  void Cols(int count);
  int FixedRows() const noexcept { return fixedRows_; }
  int FixedCols() const noexcept { return fixedCols_; }
  /// Error 30016 unless fewer than Rows, Cols.
  void FixedRows(int count);
  void FixedCols(int count);
  /// A further row, its texts parted by tabs, in front of row `index`, or at the end. Errors 30001 on a fixed
  /// row, 30002 beyond Rows.
  void AddItem(StringView texts, int index = -1);

  // ---- cursor and selection

  int Row() const noexcept { return row_; }
  int Col() const noexcept { return col_; }
  int RowSel() const noexcept { return rowSel_; }
  int ColSel() const noexcept { return colSel_; }
  /// Moves the cursor, headings allowed, and makes it the whole selection. Never scrolls. Errors 30009, 30010
  /// outside; then nothing changes.
  void Row(int row);
  void Col(int col);
  /// The other corner of the selection. Errors as above.
  void RowSel(int row);
  void ColSel(int col);
  /// What a person's click selects: a cell, a row, a column. The present selection stays. Error 380.
  int SelectionMode() const noexcept { return selectionMode_; }
  void SelectionMode(int mode);
  /// A click on a heading selects the whole row or column. True unless set.
  void AllowBigSelection(bool allow) { allowBigSelection_ = allow; }

  // ---- cells

  /// Text of any cell; no event. Error 381 outside.
  const String& TextMatrix(int row, int col) const { return cell(row, col).text; }
  void TextMatrix(int row, int col, StringView text);
  /// These act on the cell at the cursor, which need not be in sight. Error 381 in a grid without cells.
  const String& Text() const { return current().text; }
  void Text(StringView text) { TextMatrix(row_, col_, text); }
  int CellAlignment() const { return current().alignment; }
  void CellAlignment(int alignment);
  std::uint32_t CellBackColor() const { return current().backColor; }
  void CellBackColor(std::uint32_t colour);
  std::uint32_t CellForeColor() const { return current().foreColor; }
  void CellForeColor(std::uint32_t colour);
  const Picture* CellPicture() const { return current().picture; }
  /// nullptr for none. The picture must outlive the grid.
  void CellPicture(const Picture* picture);
  int CellPictureAlignment() const { return current().pictureAlignment; }
  void CellPictureAlignment(int alignment);
  /// Error 381 outside.
  const Cell& cell(int row, int col) const;
  /// The picture of any cell, without moving the cursor. Error 381 outside.
  void setPicture(int row, int col, const Picture* picture);

  // ---- places, in twips

  /// 0 hides; -1 gives the default back. Errors 30010, 30009 outside.
  int ColWidth(int col) const;
  void ColWidth(int col, int width);
  int RowHeight(int row) const;
  void RowHeight(int row, int height);
  /// First row and column behind the headings that are in sight. Too large a value is the largest that leaves
  /// no room behind the last one. A change raises Scroll. Errors 30009, 30010 below 0.
  int TopRow() const noexcept { return topRow_; }
  int LeftCol() const noexcept { return leftCol_; }
  void TopRow(int row);
  void LeftCol(int col);
  /// Some of the row is in sight; headings always are. Error 30009 outside.
  bool RowIsVisible(int row) const;
  /// Place of the cell at the cursor, from the inner side of the grid's frame. Scrolls it into view first.
  int CellLeft();
  int CellTop();
  int CellWidth();
  int CellHeight();
  /// Where the pointer was at the last press, move or release; -1 on no row or column.
  int MouseRow() const noexcept { return mouse_.row; }
  int MouseCol() const noexcept { return mouse_.col; }

  // ---- events

  /// The cursor is about to leave its cell; has come to another one; has done so.
  Event<> LeaveCell{*this, u"LeaveCell"};
  Event<> EnterCell{*this, u"EnterCell"};
  Event<> RowColChange{*this, u"RowColChange"};
  /// Cursor or selection have changed. While a person drags, once at the end.
  Event<> SelChange{*this, u"SelChange"};
  /// TopRow or LeftCol have changed, by a person or by code.
  Event<> Scroll{*this, u"Scroll"};
  /// Button (1 left, 2 right, 4 middle) and shift bits. By then the cursor stands where the left button was
  /// pressed. A double click is two presses, with either button; DblClick follows the second one of the left.
  Event<int, int> MouseDown{*this, u"MouseDown"};
  Event<int, int> MouseUp{*this, u"MouseUp"};

  // ---- for assistive technology

  /// What the grid is called; empty unless set.
  const String& AccessibleName() const noexcept { return accessibleName_; }
  void AccessibleName(StringView name) { accessibleName_ = name; }
  /// The field that the form lays over the cell at the cursor; nullptr for none. It is called by that place.
  const Control* Editor() const noexcept { return editor_; }
  void Editor(const Control* field) { editor_ = field; }
  /// What a picture means; "" unless said.
  String wordsForPicture(const Picture& picture) const;
  void wordsForPicture(const Picture& picture, StringView words) { pictureWords_[&picture] = words; }
  /// Where a cell is: "Chargen-Nr., Zeile 2"; rows below the headings count from 1. Error 381 outside.
  String wordsForPlace(int row, int col) const;

  // ---- for toolkits and automation

  /// Where everything stands on the present desktop; on a screen of another resolution.
  FlexGridLayout layout() const;
  FlexGridLayout layout(double twipsPerPixelX, double twipsPerPixelY) const {
    return FlexGridLayout(*this, twipsPerPixelX, twipsPerPixelY);
  }
  /// The cell is drawn as selected.
  bool isHighlighted(int row, int col) const noexcept;
  /// A button goes down, the form having agreed.
  void userPressed(GridSpot at, int button, int shift, Press press = Press::Single);
  /// The pointer moves with a button down.
  void userDragged(GridSpot at);
  /// A button comes up: MouseUp, and Click where a single press of the left button ends inside the grid.
  /// Nothing when no press of that button was here before.
  void userReleased(GridSpot at, int button, int shift);
  /// A person scrolls: by a bar; by the wheel, in parts of 120 of a notch, positive up and to the left. A
  /// notch is three rows, three columns.
  void userScrolled(int topRow, int leftCol) { scrollTo(topRow, leftCol); }
  void userTurnedWheel(int vertical, int horizontal);
  bool ownKey(const KeyStroke& stroke) override;
  using Control::Property;
  /// Also "TextMatrix(1,2)", "ColWidth(1)", "RowHeight(1)", and "CellPicture(2)": the name of the picture in
  /// the first column of that row.
  Variant Property(StringView name) const override;
  /// Text of the cell at the cursor.
  String content() const override;

 protected:
  FlexGrid(Form& form, const ControlDesign& design, int tabIndex);
  const PropertyEntry* findProperty(StringView name) const override;

 private:
  struct RowOfCells {
    int height = -1;
    std::vector<Cell> cells;
  };
  struct Selection {
    int row, col, rowSel, colSel;
  };
  enum class Drag { None, Cells, Rows, Columns };
  enum class ScrollIntoView { No, Yes };

  const Cell& current() const { return cell(row_, col_); }
  Cell& cellAt(int row, int col);
  template <class T>
  void setInCurrent(T Cell::*member, T value);
  void requireRow(int row) const;
  void requireCol(int col) const;
  bool hasFreeCells() const noexcept { return fixedRows_ < Rows() && fixedCols_ < Cols(); }
  void resized();
  void select(const Selection& wanted, ScrollIntoView scroll = ScrollIntoView::No);
  void selectByMouse(GridSpot at, bool extend);
  void scrollTo(int topRow, int leftCol);
  void scrollIntoView(int row, int col);
  int stepCol(int col, int step) const;
  Variant indexedProperty(StringView name, StringView indices) const;

  std::vector<RowOfCells> rows_;
  std::vector<int> colWidths_;
  int fixedRows_ = 1, fixedCols_ = 1;
  int row_ = 1, col_ = 1, rowSel_ = 1, colSel_ = 1;
  int topRow_ = 1, leftCol_ = 1;
  int selectionMode_ = Free;
  bool allowBigSelection_ = true;
  String accessibleName_;
  const Control* editor_ = nullptr;
  std::map<const Picture*, String> pictureWords_;
  GridSpot mouse_;
  Drag drag_ = Drag::None;
  bool dragged_ = false;
  /// Sum of the buttons that were pressed here and are down still.
  int buttonsDown_ = 0;
  /// The left button was pressed for the first time, not for the second of a double click.
  bool clicks_ = false;
  /// What the wheel has turned beyond whole rows and columns.
  int turnedRows_ = 0, turnedCols_ = 0;
};

/// The two kinds of the platform; what the dialogs use of them is the same.
class MSFlexGrid final : public FlexGrid {
 public:
  MSFlexGrid(Form& form, const ControlDesign& design, int tabIndex) : FlexGrid(form, design, tabIndex) {}
};
class MSHFlexGrid final : public FlexGrid {
 public:
  MSHFlexGrid(Form& form, const ControlDesign& design, int tabIndex) : FlexGrid(form, design, tabIndex) {}
};

}  // namespace zqn
