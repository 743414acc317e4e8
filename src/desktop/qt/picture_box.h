// SPDX-License-Identifier: MIT
//
// Draws a PictureBox, and pictures wherever else one is shown: as outlines, as fine as the screen is.
#pragma once

#include <QLabel>

#include "desktop/qt/control_widget.h"
#include "forms/picture_box.h"

class QPainter;

namespace zqn::qt {

/// Size of the picture on a screen of this resolution, in its pixels.
QSize sizeOf(const zqn::Picture& picture, const QPaintDevice& device);
/// Draws the picture with its upper left corner here.
void drawPicture(QPainter& painter, QPoint place, const zqn::Picture& picture, const QWidget& widget);
/// The picture in as many pixels as the widget's screen has for it; transparent where nothing is drawn.
QPixmap pixelsOf(const zqn::Picture& picture, const QWidget& widget);

class PictureBox : public QLabel, public ControlWidget {
 public:
  PictureBox(zqn::PictureBox& model, QWidget* parent);

 protected:
  void draw() override;
  void compare(Differences& found) const override;

 private:
  zqn::PictureBox& model_;
  const zqn::Picture* drawn_ = nullptr;
};

}  // namespace zqn::qt
