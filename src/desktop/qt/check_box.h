// SPDX-License-Identifier: MIT
//
// Draws a CheckBox; 2 is the grey state. The whole area of the control takes the click.
#pragma once

#include <QCheckBox>

#include "desktop/qt/control_widget.h"
#include "forms/check_box.h"

namespace zqn::qt {

class CheckBox : public QCheckBox, public ControlWidget {
 public:
  CheckBox(zqn::CheckBox& model, QWidget* parent);
  bool clicksItself() const override { return true; }

 protected:
  void draw() override;
  void compare(Differences& found) const override;
  bool hitButton(const QPoint& position) const override { return rect().contains(position); }
  /// The model decides what a click makes of the value.
  void nextCheckState() override {}

 private:
  zqn::CheckBox& model_;
};

}  // namespace zqn::qt
