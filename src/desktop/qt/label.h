// SPDX-License-Identifier: MIT
//
// Draws a Label: plain text from the top; a label that is higher than one line breaks its text, a lower one
// shows its whole caption even where it is wider than the label.
#pragma once

#include <QLabel>

#include "desktop/qt/control_widget.h"
#include "forms/label.h"

namespace zqn::qt {

class Label : public QLabel, public ControlWidget {
 public:
  Label(zqn::Label& model, QWidget* parent);

 protected:
  void draw() override;
  void compare(Differences& found) const override;
  QRect place() const override;

 private:
  QString words() const;
  /// Room for a second line.
  bool breaksLines() const;

  zqn::Label& model_;
};

}  // namespace zqn::qt
