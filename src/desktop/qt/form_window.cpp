// SPDX-License-Identifier: MIT
#include "desktop/qt/form_window.h"

#include <QAccessible>
#include <QCloseEvent>
#include <QScreen>
#include <QWindow>
#include <algorithm>

#include "desktop/qt/accessible_names.h"
#include "desktop/qt/control_input.h"
#include "desktop/qt/control_widgets.h"
#include "desktop/qt/key_events.h"
#include "desktop/qt/scale.h"
#include "desktop/qt/shield.h"
#include "desktop/qt/text.h"

namespace zqn::qt {

namespace {

constexpr int noticeMargin = 6;

/// Counts how deep code stands in something.
class Within {
 public:
  explicit Within(int& depth) noexcept : depth_(depth) { ++depth_; }
  ~Within() { --depth_; }
  Within(const Within&) = delete;
  Within& operator=(const Within&) = delete;

 private:
  int& depth_;
};

}  // namespace

FormWindow::FormWindow(Form& form, QWidget* parent)
    : QDialog(parent), form_(form), notice_(new QLabel(this)) {
  setObjectName(toQt(form.Name()));
  setWindowFlag(Qt::MSWindowsFixedSizeDialogHint);
  setModal(true);
  notice_->setObjectName(QStringLiteral("notice"));
  notice_->setTextFormat(Qt::PlainText);
  notice_->setContentsMargins(noticeMargin, 0, noticeMargin, 0);
  notice_->hide();
  widgets_.resize(form.controls().size(), nullptr);
  for (const auto& control : form.controls()) makeWidget(*control);
  for (ControlWidget* each : widgets_) {
    inputs_.push_back(std::make_unique<ControlInput>(*this, *each));
    // A label stands below what can be entered, wherever the two meet, and a field over the cells of a grid.
    if (!each->control().takesFocus()) each->widget().lower();
    if (each->control().design().other.Flat) each->widget().raise();
  }
  sync();
}

FormWindow::~FormWindow() = default;

QWidget& FormWindow::makeWidget(Control& control) {
  ControlWidget*& place = widgets_[static_cast<std::size_t>(control.TabIndex())];
  if (place == nullptr) {
    Control* const container = control.container();
    place = makeControlWidget(control, container != nullptr ? makeWidget(*container) : *this);
  }
  return place->widget();
}

ControlWidget* FormWindow::widgetOf(const Control& control) const noexcept {
  return &control.form() == &form_ ? widgets_[static_cast<std::size_t>(control.TabIndex())] : nullptr;
}

void FormWindow::sync() {
  noticeChanged();
  for (ControlWidget* each : widgets_) each->sync();
  nameControls();
}

void FormWindow::nameControls() {
  for (const ControlWidget* each : widgets_) {
    const QString name = accessibleNameOf(each->control());
    if (each->widget().accessibleName() != name) each->widget().setAccessibleName(name);
  }
}

QString FormWindow::differences() const {
  QStringList lines;
  if (windowTitle() != toQt(form_.Caption()))
    lines += QStringLiteral("the window's title is \"%1\"").arg(windowTitle());
  if (notice_->text() != toQt(form_.Notice()) || notice_->isVisibleTo(this) != !form_.Notice().empty())
    lines += QStringLiteral("the notice is \"%1\"").arg(notice_->text());
  if (size() != wantedSize())
    lines += QStringLiteral("the window is %1 by %2 pixels").arg(width()).arg(height());
  for (const ControlWidget* each : widgets_) {
    const QString difference = each->shows();
    if (!difference.isEmpty()) lines += difference;
    const QWidget& widget = each->widget();
    // A field over the cells of a grid is of use only on top of them.
    const bool hasToBeOnTop =
        each->control().design().other.Flat && widget.isVisible() && !widget.size().isEmpty();
    if (hasToBeOnTop && childAt(widget.geometry().center()) != &widget)
      lines += QStringLiteral("%1 is covered").arg(widget.objectName());
  }
  const Control* const active = form_.ActiveControl();
  const QWidget* const wanted = active != nullptr ? &widgetOf(*active)->widget() : nullptr;
  const QWidget* const focused = focusWidget() == this ? nullptr : focusWidget();
  if (form_.Visible() && focused != wanted)
    lines += QStringLiteral("the focus is on \"%1\", not on \"%2\"")
                 .arg(focused != nullptr ? focused->objectName() : QString(),
                      wanted != nullptr ? wanted->objectName() : QString());
  return lines.join(QLatin1Char('\n'));
}

void FormWindow::syncLabels() {
  for (ControlWidget* each : widgets_) {
    if (each->control().kind() == ControlKind::Label) each->sync();
  }
}

// ---- FormView

void FormWindow::controlChanged(Control& control) {
  ControlWidget& changed = *widgetOf(control);
  const QWidget& widget = changed.widget();
  const QRect place = widget.geometry();
  const bool hidden = widget.isHidden();
  {
    // Qt moves the focus away from what is disabled or hidden; the form decides where it goes.
    const Within placing(placing_);
    changed.sync();
  }
  // How much room a label has depends on what stands beside it.
  if (widget.geometry() != place || widget.isHidden() != hidden) syncLabels();
  if (!control.takesFocus()) nameControls();
  placeFocus();
}

void FormWindow::formChanged() {
  if (windowTitle() != toQt(form_.Caption())) setWindowTitle(toQt(form_.Caption()));
  const QSize wanted = wantedSize();
  if (size() != wanted || minimumSize() != wanted || maximumSize() != wanted) setFixedSize(wanted);
}

QSize FormWindow::wantedSize() const {
  const QSize client = Scale(*this).size(form_.ScaleWidth(), form_.ScaleHeight());
  return form_.Notice().empty() ? client : client + QSize(0, notice_->sizeHint().height() + noticeMargin);
}

void FormWindow::noticeChanged() {
  const QString text = toQt(form_.Notice());
  const bool isNew = notice_->text() != text;
  notice_->setText(text);
  notice_->setToolTip(text);
  notice_->setVisible(!text.isEmpty());
  formChanged();
  const int height = notice_->sizeHint().height();
  notice_->setGeometry(0, this->height() - height - noticeMargin / 2, width(), height);
  if (text.isEmpty() || !isNew) return;
  QAccessibleEvent told(notice_, QAccessible::Alert);
  QAccessible::updateAccessibility(&told);
}

void FormWindow::focusChanged() {
  placeFocus();
  // A field drops its selection when it loses the focus; the model keeps it.
  if (Control* active = form_.ActiveControl()) widgetOf(*active)->sync();
}

void FormWindow::placeFocus() {
  if (!form_.Visible()) return;
  const Within placing(placing_);
  Control* const active = form_.ActiveControl();
  QWidget* const wanted = active != nullptr ? &widgetOf(*active)->widget() : this;
  if (focusWidget() != wanted) wanted->setFocus(Qt::OtherFocusReason);
}

// ---- input

bool FormWindow::keyPressed(QKeyEvent& event) {
  const std::vector<KeyStroke> strokes = strokesOf(event);
  for (const KeyStroke& stroke : strokes) {
    shielded(form_, u"KeyDown", [&] {
      const KeyOutcome outcome = form_.keyPressed(stroke);
      if (outcome.own) widgetOf(*form_.ActiveControl())->ownKey(outcome.stroke);
    });
  }
  if (strokes.empty()) return false;
  event.accept();
  return true;
}

bool FormWindow::keyReleased(QKeyEvent& event) {
  const std::vector<KeyStroke> strokes = strokesOf(event);
  if (strokes.empty()) return false;
  event.accept();
  // A key that is held comes as presses alone.
  if (!event.isAutoRepeat())
    shielded(form_, u"KeyUp", [&] { form_.keyReleased(strokes.front().code, strokes.front().shift); });
  return true;
}

void FormWindow::reject() { close(); }

bool FormWindow::event(QEvent* event) {
  if (event->type() == QEvent::ShortcutOverride) {
    event->accept();
    return true;
  }
  return QDialog::event(event);
}

void FormWindow::closeEvent(QCloseEvent* event) {
  // The desktop takes the window away once the form is unloaded.
  event->ignore();
  shielded(form_, u"QueryUnload", [this] { form_.closeBox(); });
}

void FormWindow::showEvent(QShowEvent* event) {
  QDialog::showEvent(event);
  if (event->spontaneous()) return;
  const auto redraw = [this] { sync(); };
  connect(windowHandle(), &QWindow::screenChanged, this, [this, redraw](QScreen* screen) {
    redraw();
    connect(screen, &QScreen::logicalDotsPerInchChanged, this, redraw);
  });
  connect(screen(), &QScreen::logicalDotsPerInchChanged, this, redraw);
}

void FormWindow::keyPressEvent(QKeyEvent* event) { keyPressed(*event); }

void FormWindow::keyReleaseEvent(QKeyEvent* event) { keyReleased(*event); }

bool FormWindow::focusNextPrevChild(bool) { return false; }

}  // namespace zqn::qt
