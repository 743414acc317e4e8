// SPDX-License-Identifier: MIT
#include "desktop/qt/control_input.h"

#include <QKeyEvent>
#include <utility>

#include "desktop/qt/form_window.h"
#include "desktop/qt/shield.h"

namespace zqn::qt {

ControlInput::ControlInput(FormWindow& window, ControlWidget& target) : window_(window), target_(target) {
  target.widget().installEventFilter(this);
  if (&target.mouseArea() != &target.widget()) target.mouseArea().installEventFilter(this);
}

bool ControlInput::eventFilter(QObject* watched, QEvent* event) {
  const bool onWidget = watched == &target_.widget();
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      // Every key comes as a press, so that the form sees it before any shortcut of Qt's.
      event->accept();
      return true;
    case QEvent::KeyPress:
      return onWidget && window_.keyPressed(static_cast<QKeyEvent&>(*event));
    case QEvent::KeyRelease:
      return onWidget && window_.keyReleased(static_cast<QKeyEvent&>(*event));
    case QEvent::FocusIn:
      if (onWidget) focusCame();
      return false;
    case QEvent::ContextMenu:
      // A press that the form refused opens no menu.
      return window_.form().ActiveControl() != &target_.control() && target_.control().takesFocus();
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      return watched == &target_.mouseArea() && mouse(static_cast<QMouseEvent&>(*event));
    default:
      return false;
  }
}

bool ControlInput::mouse(QMouseEvent& event) {
  switch (event.type()) {
    case QEvent::MouseMove:
      if (swallowing_ && target_.held_ && (event.buttons() & Qt::LeftButton) != 0)
        shielded(target_.control(), u"MouseMove", [&] { target_.dragged(event); });
      return swallowing_;
    case QEvent::MouseButtonRelease:
      return released(event);
    default:
      return pressed(event);
  }
}

bool ControlInput::pressed(QMouseEvent& event) {
  bool swallow = true;
  shielded(target_.control(), u"MouseDown", [&] {
    Control& control = target_.control();
    const bool focusCame = window_.form().ActiveControl() != &control;
    if (!target_.reportPress(event)) return;
    if (event.button() != Qt::LeftButton) {
      swallow = false;
      return;
    }
    const bool twice = event.type() == QEvent::MouseButtonDblClick;
    // Press and release of a double click's second half make no further Click.
    target_.held_ = !twice || target_.clicksItself();
    swallow = twice ? target_.pressedTwice(event) : target_.pressed(event, focusCame);
  });
  swallowing_ = swallow;
  if (swallow) event.accept();
  return swallow;
}

bool ControlInput::released(const QMouseEvent& event) {
  const bool swallow = event.buttons() == Qt::NoButton ? std::exchange(swallowing_, false) : swallowing_;
  if (event.button() != Qt::LeftButton) return swallow;
  const bool inside = target_.mouseArea().rect().contains(event.position().toPoint());
  if (inside && target_.clicksItself()) return swallow;
  if (std::exchange(target_.held_, false) && inside) {
    shielded(target_.control(), u"Click", [this] { window_.form().mouseReleased(target_.control()); });
  }
  return swallow;
}

void ControlInput::focusCame() {
  // Only a focus that came from elsewhere is news: drawing and the form itself move it, too.
  Form& form = window_.form();
  if (window_.isPlacingFocus() || !form.Visible() || form.ActiveControl() == &target_.control()) return;
  shielded(form, u"GotFocus", [&] { form.focusMovedTo(target_.control()); });
}

}  // namespace zqn::qt
