// SPDX-License-Identifier: MIT
//
// Draws a FlexGrid of either kind. Every place comes from the layout of the model, so that what a form lays
// over a cell meets it to the pixel; the table view below is there for assistive technology and the scroll
// bars.
#pragma once

#include <QTableView>
#include <optional>

#include "desktop/qt/control_widget.h"
#include "desktop/qt/flex_grid_cells.h"
#include "forms/flex_grid.h"

namespace zqn::qt {

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
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  FlexGridLayout layout() const;
  GridSpot spotAt(const QMouseEvent& event) const;
  /// The same while a button is held, also beyond the edge.
  GridSpot spotNear(const QMouseEvent& event) const;
  void drawBars();
  void drawSelection();
  void scrolled();

  zqn::FlexGrid& model_;
  FlexGridCells cells_;
  QItemSelection drawnSelection_;
  /// The press that is held was the second one of a double click: no Click follows.
  bool twice_ = false;
};

}  // namespace zqn::qt
