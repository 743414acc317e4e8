// SPDX-License-Identifier: MIT
//
// Twips as pixels of a window. A twip is 1/1440 inch, and an inch has as many pixels as the screen's logical
// resolution says: 15 twips a pixel at 96 dpi. Fonts are set in points, so texts grow with their controls.
// What a pixel is on the glass (device pixel ratio) is Qt's own matter.
//
//     setGeometry(Scale(*this).rect(control));
#pragma once

#include <QPaintDevice>
#include <QRect>

#include "forms/control.h"

namespace zqn::qt {

class Scale {
 public:
  /// The resolution of the screen that the widget is on.
  explicit Scale(const QPaintDevice& device)
      : pixelsPerTwipX_(device.logicalDpiX() / 1440.0), pixelsPerTwipY_(device.logicalDpiY() / 1440.0) {}

  int x(int twips) const { return qRound(twips * pixelsPerTwipX_); }
  int y(int twips) const { return qRound(twips * pixelsPerTwipY_); }
  int twipsX(int pixels) const { return qRound(pixels / pixelsPerTwipX_); }
  QSize size(int width, int height) const { return {x(width), y(height)}; }
  QRect rect(const Control& control) const {
    return {QPoint(x(control.Left()), y(control.Top())), size(control.Width(), control.Height())};
  }

 private:
  double pixelsPerTwipX_;
  double pixelsPerTwipY_;
};

}  // namespace zqn::qt
