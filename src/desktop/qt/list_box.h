// SPDX-License-Identifier: MIT
//
// Draws a ListBox. Which rows are selected, and which has the focus, is the model's; a press of the mouse and
// every key go there.
#pragma once

#include <QListWidget>

#include "desktop/qt/control_widget.h"
#include "desktop/qt/painted_cells.h"
#include "forms/list_box.h"

namespace zqn::qt {

class ListBox : public QListWidget, public ControlWidget {
 public:
  ListBox(zqn::ListBox& model, QWidget* parent);

  QWidget& mouseArea() const override { return *viewport(); }
  bool reportPress(const QMouseEvent& event) override;
  bool pressed(const QMouseEvent& event, bool focusCame) override;
  /// What is typed is the model's.
  void keyboardSearch(const QString&) override {}

 protected:
  void draw() override;
  void compare(Differences& found) const override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  void report();

  zqn::ListBox& model_;
  PaintedCells* cells_;
};

}  // namespace zqn::qt
