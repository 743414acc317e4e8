// SPDX-License-Identifier: MIT
#include "desktop/qt/picture_box.h"

#include <QPainter>

#include "desktop/qt/colours.h"
#include "desktop/qt/text.h"

namespace zqn::qt {

namespace {

constexpr double standardDpi = 96;

QString nameOf(const zqn::Picture* picture) {
  return picture != nullptr ? toQt(StringView(picture->name)) : QString();
}

}  // namespace

QSize sizeOf(const zqn::Picture& picture, const QPaintDevice& device) {
  return {qRound(picture.width * device.logicalDpiX() / standardDpi),
          qRound(picture.height * device.logicalDpiY() / standardDpi)};
}

void drawPicture(QPainter& painter, QPoint place, const zqn::Picture& picture, const QWidget& widget) {
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.translate(place);
  painter.scale(widget.logicalDpiX() / standardDpi, widget.logicalDpiY() / standardDpi);
  painter.drawImage(QRect(0, 0, picture.width, picture.height),
                    QImage::fromData(picture.gif.data(), static_cast<int>(picture.gif.size()), "GIF"));
  for (const PictureShape& shape : picture.shapes) {
    QPolygonF outline;
    for (const PicturePoint& point : shape.outline) outline << QPointF(point.x, point.y);
    painter.setBrush(toQt(shape.colour, widget.palette()));
    painter.drawPolygon(outline);
  }
  painter.restore();
}

QPixmap pixelsOf(const zqn::Picture& picture, const QWidget& widget) {
  QPixmap pixels(sizeOf(picture, widget) * widget.devicePixelRatioF());
  pixels.setDevicePixelRatio(widget.devicePixelRatioF());
  pixels.fill(Qt::transparent);
  QPainter painter(&pixels);
  drawPicture(painter, {}, picture, widget);
  return pixels;
}

PictureBox::PictureBox(zqn::PictureBox& model, QWidget* parent)
    : QLabel(parent),
      ControlWidget(model, *this, {QPalette::Window, QPalette::WindowText, colour::ButtonFace}),
      model_(model) {}

void PictureBox::draw() {
  drawn_ = model_.Picture();
  if (drawn_ == nullptr) {
    clear();
  } else {
    setPixmap(pixelsOf(*drawn_, *this));
  }
}

void PictureBox::compare(Differences& found) const {
  found.expect("Picture", nameOf(drawn_), nameOf(model_.Picture()));
}

}  // namespace zqn::qt
