// SPDX-License-Identifier: MIT
//
// Draws a FlexGrid of either kind.
#pragma once

#include <QTableView>
#include <optional>

#include "desktop/qt/control_widget.h"
#include "desktop/qt/flex_grid_cells.h"
#include "desktop/qt/flex_grid_drawing.h"
#include "forms/flex_grid.h"

namespace zqn::qt {

/// Every place comes from the layout of the model, so that what a form lays over a cell meets it to the
/// pixel; the table view below is there for assistive technology and the scroll bars. That hears of the cursor
/// once, when all moves of a key are over: by the grid while it has the focus, else by the name of the field
/// over the cell.
class FlexGrid : public QTableView, public ControlWidget {
 public:
  FlexGrid(zqn::FlexGrid& model, QWidget* parent);

  QWidget& mouseArea() const override { return *viewport(); }
  bool pressed(const QMouseEvent& event, bool focusCame) override;
  bool pressedTwice(const QMouseEvent& event) override;
  bool clicksItself() const override { return true; }

  /// Scrolls a cell into view by the scroll bars, as a person does.
  void scrollToCell(GridSpot cell);
  /// A place in the mouse area on a cell that is in sight; -1 for beside all rows, all columns.
  std::optional<QPoint> placeOf(GridSpot cell) const;
  /// The middle of the room for cells.
  QPoint middle() const;

  QRect visualRect(const QModelIndex& index) const override;
  QModelIndex indexAt(const QPoint& place) const override;
  /// The model scrolls, nobody else.
  void scrollTo(const QModelIndex&, ScrollHint) override {}

 protected:
  void draw() override;
  void compare(Differences& found) const override;

  void paintEvent(QPaintEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void updateGeometries() override;
  void scrollContentsBy(int, int) override { viewport()->update(); }
  int horizontalOffset() const override { return 0; }
  int verticalOffset() const override { return 0; }
  void mousePressEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

 private:
  FlexGridLayout layout() const;
  GridSpot spotAt(const QMouseEvent& event) const;
  void drawBars();
  /// The view below follows: how many cells there are, which are selected, which is the current one.
  void settle();
  void nameEditor();
  void scrolled();
  void selectedByAssistance(const QItemSelection& selected);

  zqn::FlexGrid& model_;
  FlexGridCells cells_;
  /// What is on the screen; nothing before the first time.
  std::optional<FlexGridDrawing> painted_;
  /// settle() is to come.
  bool settling_ = false;
};

}  // namespace zqn::qt
