// SPDX-License-Identifier: MIT
#include "desktop/qt/field_button.h"

#include <QLineEdit>
#include <QStyle>
#include <utility>

#include "desktop/qt/shield.h"
#include "forms/form.h"

namespace zqn::qt {

FieldButton::FieldButton(QLineEdit& field, Control& model, const QString& name, std::function<void()> open)
    : QToolButton(&field), field_(field) {
  setFocusPolicy(Qt::NoFocus);
  setArrowType(Qt::DownArrow);
  setCursor(Qt::ArrowCursor);
  setAccessibleName(name);
  setToolTip(name + QStringLiteral(" (F4)"));
  connect(this, &QToolButton::clicked, this, [&model, open = std::move(open)] {
    shielded(model, u"MouseDown", [&] {
      if (model.form().mousePressed(model)) open();
    });
  });
}

int FieldButton::side() const {
  return field_.height() - 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth, nullptr, &field_) - 2;
}

int FieldButton::wantedWidth() const { return side() * 3 / 4; }

void FieldButton::place(bool visible) {
  if (isHidden() == visible) setVisible(visible);
  const int width = wantedWidth();
  const int edge = (field_.height() - side()) / 2;
  setGeometry(field_.width() - width - edge, edge, width, side());
  const QMargins margins(0, 0, visible ? width : 0, 0);
  if (field_.textMargins() != margins) field_.setTextMargins(margins);
}

}  // namespace zqn::qt
