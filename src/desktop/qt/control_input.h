// SPDX-License-Identifier: MIT
//
// What a person does to the widget of a control, handed to the form before the widget sees it. The form runs
// the events, moves the focus and says whether the widget's own effect may follow.
#pragma once

#include <QMouseEvent>
#include <QObject>

#include "desktop/qt/control_widget.h"

namespace zqn::qt {

class FormWindow;

class ControlInput : public QObject {
 public:
  /// Watches the widget and its mouse area from now on.
  ControlInput(FormWindow& window, ControlWidget& target);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  bool mouse(QMouseEvent& event);
  bool pressed(QMouseEvent& event);
  bool released(const QMouseEvent& event);
  void focusCame();

  FormWindow& window_;
  ControlWidget& target_;
  /// The widget must not see the mouse until the button is up again.
  bool swallowing_ = false;
};

}  // namespace zqn::qt
