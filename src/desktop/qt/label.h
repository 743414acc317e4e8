// SPDX-License-Identifier: MIT
//
// Draws a Label: plain text from the top. A label that is higher than one line breaks its text. A lower one
// shows its whole caption: past its width where nothing stands there, and a little narrower than the font
// would have it where something does.
#pragma once

#include <QLabel>

#include "desktop/qt/control_widget.h"
#include "forms/label.h"

namespace zqn::qt {

class Label : public QLabel, public ControlWidget {
 public:
  Label(zqn::Label& model, QWidget* parent);

  /// Pixels for a line of text: up to the next visible control on the right, or to the edge.
  int room() const;

 protected:
  void draw() override;
  void compare(Differences& found) const override;
  QRect place() const override;

 private:
  QString words() const;
  bool isRightAligned() const;
  /// The design's own part of the font; the rest comes from the window.
  QFont fontStretched(int percent) const;
  /// Room for a second line.
  bool breaksLines() const;
  /// Percent of its natural width that the caption is drawn with.
  int stretch() const;

  zqn::Label& model_;
  int drawnStretch_ = 100;
};

}  // namespace zqn::qt
