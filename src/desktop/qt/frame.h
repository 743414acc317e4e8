// SPDX-License-Identifier: MIT
//
// Draws a Frame, its caption in the upper line. The widgets of the controls in it are its children, so their
// places are relative to it, and they are hidden and disabled with it.
#pragma once

#include <QGroupBox>

#include "desktop/qt/control_widget.h"
#include "forms/frame.h"

namespace zqn::qt {

class Frame : public QGroupBox, public ControlWidget {
 public:
  Frame(zqn::Frame& model, QWidget* parent);

 protected:
  void draw() override;
  void compare(Differences& found) const override;
  void childEvent(QChildEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QString words() const;

  zqn::Frame& model_;
};

}  // namespace zqn::qt
