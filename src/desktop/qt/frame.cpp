// SPDX-License-Identifier: MIT
#include "desktop/qt/frame.h"

#include <QChildEvent>

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

void Frame::compare(Differences& found) const { found.expect("Caption", title(), words()); }

void Frame::childEvent(QChildEvent* event) {
  QGroupBox::childEvent(event);
  // A click on what stands in the frame is no click on the frame.
  if (event->polished() && event->child()->isWidgetType())
    static_cast<QWidget*>(event->child())->setAttribute(Qt::WA_NoMousePropagation);
}

}  // namespace zqn::qt
