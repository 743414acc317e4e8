// SPDX-License-Identifier: MIT
//
// Draws a TDBList: a table of the rows that are in sight, the marked one in the colours of its
// HighlightRowStyle. Keys and clicks go to the model, which marks the row. The keys of a large table are read
// on while nothing else is to be done, until the scroll bar tells the true length.
#pragma once

#include <QTableView>
#include <QTimer>

#include "desktop/qt/control_widget.h"
#include "desktop/qt/painted_cells.h"
#include "desktop/qt/tdb_list_rows.h"
#include "forms/tdb_list.h"

namespace zqn::qt {

class TDBList : public QTableView, public ControlWidget {
 public:
  TDBList(zqn::TDBList& model, QWidget* parent);

  QWidget& mouseArea() const override { return *viewport(); }
  bool reportPress(const QMouseEvent& event) override;
  bool pressed(const QMouseEvent& event, bool focusCame) override;
  /// What is typed is the model's.
  void keyboardSearch(const QString&) override {}

 protected:
  void draw() override;
  void compare(Differences& found) const override;

  void paintEvent(QPaintEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  void drawColumns();
  void drawRowStyle();
  void showMarkedRow();
  void columnDragged(int column, int pixels);
  void readOn();
  void assisted(const QItemSelection& selected);
  QString tipFor(const QModelIndex& cell) const;
  int widthOf(int column) const;
  int firstShownColumn() const;
  int lastShownColumn() const;

  zqn::TDBList& model_;
  TDBListRows rows_;
  PaintedCells* cells_;
  QTimer reading_;
  int drawnRow_ = -1;
};

}  // namespace zqn::qt
