// SPDX-License-Identifier: MIT
//
// Draws a CommandButton. Enter, Space, Esc and the default button are the form's matter; the mouse and
// assistive technology press it.
#pragma once

#include <QPushButton>

#include "desktop/qt/control_widget.h"
#include "forms/command_button.h"

namespace zqn::qt {

class CommandButton : public QPushButton, public ControlWidget {
 public:
  CommandButton(zqn::CommandButton& model, QWidget* parent);
  bool clicksItself() const override { return true; }

 protected:
  void draw() override;
  void compare(Differences& found) const override;

 private:
  void drawPictureOfModel();

  zqn::CommandButton& model_;
  const zqn::Picture* drawn_ = nullptr;
};

}  // namespace zqn::qt
