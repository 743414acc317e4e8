// SPDX-License-Identifier: MIT
#include "desktop/qt/label.h"

#include "desktop/qt/accessible_names.h"
#include "desktop/qt/text.h"

namespace zqn::qt {

Label::Label(zqn::Label& model, QWidget* parent)
    : QLabel(parent),
      ControlWidget(model, *this, {QPalette::Window, QPalette::WindowText, colour::ButtonFace}),
      model_(model) {
  setTextFormat(Qt::PlainText);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  setTextInteractionFlags(Qt::NoTextInteraction);
}

QString Label::words() const { return withoutAccessKey(toQt(model_.Caption())); }

bool Label::breaksLines() const { return Scale(*this).y(model_.Height()) >= 2 * fontMetrics().height(); }

QRect Label::place() const {
  QRect rect = ControlWidget::place();
  if (!breaksLines()) rect.setWidth(qMax(rect.width(), fontMetrics().horizontalAdvance(words())));
  return rect;
}

void Label::draw() {
  if (text() != words()) setText(words());
  if (wordWrap() != breaksLines()) setWordWrap(breaksLines());
}

void Label::compare(Differences& found) const { found.expect("Caption", text(), words()); }

}  // namespace zqn::qt
