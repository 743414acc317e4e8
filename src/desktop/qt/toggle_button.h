// SPDX-License-Identifier: MIT
//
// Draws a ToggleButton: a button that is seen to be down while its value is True.
#pragma once

#include <QPushButton>

#include "desktop/qt/control_widget.h"
#include "forms/toggle_button.h"

namespace zqn::qt {

class ToggleButton : public QPushButton, public ControlWidget {
 public:
  ToggleButton(zqn::ToggleButton& model, QWidget* parent);
  bool clicksItself() const override { return true; }

 protected:
  void draw() override;
  void compare(Differences& found) const override;
  /// The model decides what a click makes of the value.
  void nextCheckState() override {}
  void initStyleOption(QStyleOptionButton* option) const override;

 private:
  zqn::ToggleButton& model_;
};

}  // namespace zqn::qt
