// SPDX-License-Identifier: MIT
//
// Draws what nobody acts on, a line; and stands for what is never drawn, a timer or a menu.
#pragma once

#include <QFrame>

#include "desktop/qt/control_widget.h"
#include "forms/decoration.h"

namespace zqn::qt {

class Shape : public QFrame, public ControlWidget {
 public:
  Shape(zqn::Shape& model, QWidget* parent);

 protected:
  void draw() override {}
  void compare(Differences&) const override {}
  void paintEvent(QPaintEvent* event) override;
};

/// Always hidden.
class Undrawn : public QWidget, public ControlWidget {
 public:
  Undrawn(Control& model, QWidget* parent);

 protected:
  void draw() override { hide(); }
  void compare(Differences&) const override {}
};

}  // namespace zqn::qt
