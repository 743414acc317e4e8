// SPDX-License-Identifier: MIT
#include "desktop/qt/frame.h"

#include <QChildEvent>
#include <QPainter>
#include <QStyle>

#include "desktop/qt/accessible_names.h"
#include "desktop/qt/text.h"

namespace zqn::qt {

Frame::Frame(zqn::Frame& model, QWidget* parent)
    : QGroupBox(parent),
      ControlWidget(model, *this, {QPalette::Window, QPalette::WindowText, colour::ButtonFace}),
      model_(model) {}

QString Frame::words() const {
  QString plain = withoutAccessKey(toQt(model_.Caption()));
  return plain.replace(QLatin1Char('&'), QLatin1String("&&"));
}

void Frame::draw() {
  if (title() != words()) setTitle(words());
}

void Frame::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const QString caption = withoutAccessKey(toQt(model_.Caption()));
  const int line = caption.isEmpty() ? 0 : fontMetrics().height() / 2;
  const QRect words(fontMetrics().averageCharWidth() + 2, 0, fontMetrics().horizontalAdvance(caption) + 4,
                    fontMetrics().height());
  painter.save();
  if (!caption.isEmpty()) painter.setClipRegion(QRegion(rect()).subtracted(words));
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(palette().color(QPalette::Window).darker(140));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, line + 0.5, -0.5, -0.5), 2, 2);
  painter.restore();
  style()->drawItemText(&painter, words, Qt::AlignCenter, palette(), isEnabled(), caption,
                        QPalette::WindowText);
}

void Frame::compare(Differences& found) const { found.expect("Caption", title(), words()); }

void Frame::childEvent(QChildEvent* event) {
  QGroupBox::childEvent(event);
  // A click on what stands in the frame is no click on the frame.
  if (event->polished() && event->child()->isWidgetType())
    static_cast<QWidget*>(event->child())->setAttribute(Qt::WA_NoMousePropagation);
}

}  // namespace zqn::qt
