// SPDX-License-Identifier: MIT
#include "desktop/qt/qt_desktop.h"

#include <QAbstractEventDispatcher>
#include <QClipboard>
#include <QScreen>
#include <QTimer>
#include <algorithm>
#include <cassert>
#include <utility>

#include "desktop/qt/form_window.h"
#include "desktop/qt/key_events.h"
#include "desktop/qt/message_window.h"
#include "desktop/qt/shield.h"
#include "desktop/qt/text.h"
#include "forms/menu.h"

namespace zqn::qt {

namespace {

constexpr double twipsPerInch = 1440;

/// Gives the focus back to the window below one that has gone. Without a window manager nobody else does.
void activate(QWidget* window) {
  if (window != nullptr) window->activateWindow();
}

}  // namespace

QtDesktop::QtDesktop() { assert(qobject_cast<QApplication*>(QCoreApplication::instance()) != nullptr); }

QtDesktop::~QtDesktop() = default;

void QtDesktop::copyToClipboard(StringView text) { QGuiApplication::clipboard()->setText(toQt(text)); }

String QtDesktop::clipboardText() const { return String(fromQt(QGuiApplication::clipboard()->text())); }

double QtDesktop::TwipsPerPixelX() const {
  return twipsPerInch / QGuiApplication::primaryScreen()->logicalDotsPerInchX();
}

double QtDesktop::TwipsPerPixelY() const {
  return twipsPerInch / QGuiApplication::primaryScreen()->logicalDotsPerInchY();
}

// ---- for automation

FormWindow* QtDesktop::formWindow(const Form& form) const {
  const auto found = windows_.find(&form);
  return found != windows_.end() ? found->second.get() : nullptr;
}

QDialog* QtDesktop::windowOf(const Form& form) const { return formWindow(form); }

QWidget* QtDesktop::widgetOf(const Control& control) const {
  FormWindow* const window = formWindow(control.form());
  return window != nullptr ? &window->widgetOf(control)->widget() : nullptr;
}

QWidget* QtDesktop::mouseAreaOf(const Control& control) const {
  FormWindow* const window = formWindow(control.form());
  return window != nullptr ? &window->widgetOf(control)->mouseArea() : nullptr;
}

QString QtDesktop::differences(const Form& form) const {
  FormWindow* const window = formWindow(form);
  return window != nullptr ? window->differences() : QString();
}

QMessageBox* QtDesktop::openBox() const { return box_; }

QPushButton* QtDesktop::boxButton(MsgBoxResult result) const {
  return box_ != nullptr ? box_->buttonFor(result) : nullptr;
}

QWidget* QtDesktop::topWindow() const {
  if (box_ != nullptr) return box_;
  const Form* const form = activeForm();
  return form != nullptr ? formWindow(*form) : nullptr;
}

void QtDesktop::pressKey(const KeyStroke& stroke) {
  for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
    // The release belongs to whoever has the focus by then.
    QWidget* const window = topWindow();
    if (window == nullptr) return;
    QKeyEvent event = eventOf(stroke, type);
    QWidget* const focused = window->focusWidget();
    QCoreApplication::sendEvent(focused != nullptr ? focused : window, &event);
  }
}

// ---- windows

void QtDesktop::openWindow(Form& form) {
  QWidget* const below = topWindow();
  auto window = std::make_unique<FormWindow>(form, below != nullptr ? below : QApplication::activeWindow());
  form.attach(window.get());
  window->show();
  activate(window.get());
  windows_[&form] = std::move(window);
}

void QtDesktop::closeWindow(Form& form) {
  form.attach(nullptr);
  const auto closing = windows_.find(&form);
  if (closing == windows_.end()) return;
  QWidget* const below = closing->second->parentWidget();
  windows_.erase(closing);
  activate(below);
}

void QtDesktop::hideClosedForms() {
  for (const auto& [form, window] : windows_) {
    if (!form->Visible() && window->isVisible()) window->hide();
  }
}

void QtDesktop::pointerChanged() {
  if (isHourglass()) {
    QGuiApplication::setOverrideCursor(Qt::WaitCursor);
  } else {
    QGuiApplication::restoreOverrideCursor();
  }
}

// ---- loops

void QtDesktop::doEvents() {
  QAbstractEventDispatcher::instance()->processEvents(QEventLoop::AllEvents);
  rethrowShielded();
  KeyStroke stroke;
  while (nextQueuedKey(stroke)) pressKey(stroke);
  rethrowShielded();
}

void QtDesktop::runLoop(const std::function<bool()>& done) {
  QAbstractEventDispatcher* const events = QAbstractEventDispatcher::instance();
  hideClosedForms();
  while (!done()) {
    const bool handled = events->processEvents(QEventLoop::AllEvents);
    rethrowShielded();
    if (done()) return;
    KeyStroke stroke;
    if (nextQueuedKey(stroke)) {
      pressKey(stroke);
    } else if (!handled && tickTimer()) {
      continue;
    } else if (!handled && hasIdleStep()) {
      idleStep();
    } else if (!handled) {
      // Whoever waits is woken up for the next timer.
      QTimer wake;
      if (const auto left = timeToTick()) wake.start(std::max(*left, std::chrono::milliseconds(1)));
      events->processEvents(QEventLoop::WaitForMoreEvents);
    }
    rethrowShielded();
  }
}

MsgBoxResult QtDesktop::runMessageBox(const MessageBox& box) {
  QWidget* const below = topWindow();
  MessageWindow window(box, below);
  MessageWindow* const outer = std::exchange(box_, &window);
  window.show();
  runLoop([&window] { return window.answer().has_value(); });
  box_ = outer;
  window.hide();
  activate(below);
  return *window.answer();
}

Menu* QtDesktop::runPopupMenu(Menu& menu) {
  QMenu window(topWindow());
  QMenu* const outer = std::exchange(menu_, &window);
  Menu* taken = nullptr;
  for (Menu* item : menu.items()) {
    QAction* const action = window.addAction(toQt(item->Caption()));
    action->setObjectName(toQt(item->fullName()));
    action->setEnabled(item->Enabled());
    QObject::connect(action, &QAction::triggered, &window, [&taken, item] { taken = item; });
  }
  window.popup(QCursor::pos());
  runLoop([&window] { return !window.isVisible(); });
  menu_ = outer;
  return taken;
}

}  // namespace zqn::qt
