// SPDX-License-Identifier: MIT
//
// Draws an OptionButton. Which option of a group is chosen is the model's.
#pragma once

#include <QRadioButton>

#include "desktop/qt/control_widget.h"
#include "forms/option_button.h"

namespace zqn::qt {

class OptionButton : public QRadioButton, public ControlWidget {
 public:
  OptionButton(zqn::OptionButton& model, QWidget* parent);
  bool clicksItself() const override { return true; }

 protected:
  void draw() override;
  void compare(Differences& found) const override;
  bool hitButton(const QPoint& position) const override { return rect().contains(position); }
  /// The model decides what a click makes of the group.
  void nextCheckState() override {}

 private:
  zqn::OptionButton& model_;
};

}  // namespace zqn::qt
