// SPDX-License-Identifier: MIT
#include "desktop/qt/control_widget.h"

#include <utility>

#include "desktop/qt/colours.h"
#include "desktop/qt/shield.h"
#include "desktop/qt/text.h"
#include "forms/form.h"

namespace zqn::qt {

void Differences::expect(const char* what, const QString& shown, const QString& wanted) {
  if (shown != wanted)
    found_ += QStringLiteral("%1 is \"%2\", not \"%3\"").arg(QLatin1String(what), shown, wanted);
}

void Differences::expect(const char* what, int shown, int wanted) {
  expect(what, QString::number(shown), QString::number(wanted));
}

ControlWidget::ControlWidget(Control& control, QWidget& widget, ColourRoles roles)
    : control_(control), widget_(widget), roles_(roles), drawnBack_(roles.standardBack) {
  widget.setObjectName(toQt(control.fullName()));
  // The focus moves when the model says so; with this policy Qt never moves it by a click, and assistive
  // technology still sees what can take it.
  widget.setFocusPolicy(control.takesFocus() ? Qt::TabFocus : Qt::NoFocus);
}

ControlWidget::~ControlWidget() = default;

void ControlWidget::sync() {
  const Drawing drawing(*this);
  const QRect wanted = place();
  if (widget_.geometry() != wanted) widget_.setGeometry(wanted);
  if (widget_.isHidden() == control_.Visible()) widget_.setVisible(control_.Visible());
  if (widget_.isEnabledTo(widget_.parentWidget()) != control_.Enabled())
    widget_.setEnabled(control_.Enabled());
  const QString tip = toQt(control_.ToolTipText());
  if (widget_.toolTip() != plainTip(tip)) widget_.setToolTip(plainTip(tip));
  if (widget_.accessibleDescription() != description()) widget_.setAccessibleDescription(description());
  drawColours();
  draw();
}

void ControlWidget::drawColours() {
  const std::uint32_t back = control_.BackColor();
  const std::uint32_t fore = foreColor();
  if (back == drawnBack_ && fore == drawnFore_) return;
  drawnBack_ = back;
  drawnFore_ = fore;
  const bool ownBack = back != roles_.standardBack;
  QPalette palette;
  if (ownBack) palette.setColor(roles_.back, toQt(back, QPalette()));
  if (fore != colour::WindowText) {
    palette.setColor(QPalette::Active, roles_.fore, toQt(fore, QPalette()));
    palette.setColor(QPalette::Inactive, roles_.fore, toQt(fore, QPalette()));
  }
  widget_.setPalette(palette);
  if (roles_.back == QPalette::Window) widget_.setAutoFillBackground(ownBack);
}

QString ControlWidget::shows() const {
  if (!control_.isDrawn()) return {};
  Differences found;
  found.expect("Visible", !widget_.isHidden(), control_.Visible());
  found.expect("Enabled", widget_.isEnabledTo(widget_.parentWidget()), control_.Enabled());
  const QRect shown = widget_.geometry();
  const QRect wanted = place();
  found.expect("Left", shown.left(), wanted.left());
  found.expect("Top", shown.top(), wanted.top());
  found.expect("Width", shown.width(), wanted.width());
  found.expect("Height", shown.height(), wanted.height());
  found.expect("ToolTipText", widget_.toolTip(), plainTip(toQt(control_.ToolTipText())));
  found.expect("description", widget_.accessibleDescription(), description());
  compare(found);
  if (found.found().isEmpty()) return {};
  return widget_.objectName() + QStringLiteral(": ") + found.found().join(QStringLiteral(", "));
}

QString ControlWidget::description() const { return toQt(control_.ToolTipText()); }

void ControlWidget::ownKey(const KeyStroke& stroke) { control_.ownKey(stroke); }

bool ControlWidget::reportPress(const QMouseEvent&) { return control_.form().mousePressed(control_); }

bool ControlWidget::pressed(const QMouseEvent&, bool) { return false; }

void ControlWidget::dragged(const QMouseEvent&) {}

bool ControlWidget::pressedTwice(const QMouseEvent& event) { return pressed(event, false); }

void ControlWidget::userClicked() {
  shielded(control_, u"Click", [this] {
    const bool agreed = std::exchange(held_, false) || control_.form().mousePressed(control_);
    if (agreed) control_.form().mouseReleased(control_);
  });
}

}  // namespace zqn::qt
