// SPDX-License-Identifier: MIT
#include "testing/qt/form_checks.h"

#include <QAccessible>
#include <QCheckBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QStyleOptionButton>

#include "desktop/qt/accessible_names.h"
#include "desktop/qt/form_window.h"
#include "desktop/qt/label.h"
#include "desktop/qt/text.h"
#include "forms/day_entry.h"

namespace zqn::qt {

namespace {

/// Designs let a label reach this far into its field, in twips: one pixel.
constexpr int tolerated = 15;
/// What a button needs on both sides of its caption together, in pixels at 96 dpi.
constexpr int buttonMargins = 8;
/// The same for frame and inner margins of a field.
constexpr int fieldMargins = 6;

class Look {
 public:
  explicit Look(Form& form) : form_(form), window_(form, nullptr) {}

  std::vector<std::string> findings() {
    for (const auto& control : form_.controls()) {
      if (!control->isDrawn()) continue;
      lookAtName(*control);
      if (!control->isShown()) continue;
      lookAtText(*control);
      lookAtPlace(*control);
    }
    lookAtTabOrder();
    return std::move(found_);
  }

 private:
  void add(const Control& control, const QString& what) {
    found_.push_back(toUtf8(control.fullName()) + ": " + what.toStdString());
  }

  // ---- texts

  void lookAtText(const Control& control) {
    const QWidget& widget = window_.widgetOf(control)->widget();
    const QFontMetrics metrics = widget.fontMetrics();
    const QString text = widget.property("text").toString();
    const int room = roomForLine(control, widget);
    const int height = Scale(widget).y(control.Height());
    const auto* label = dynamic_cast<const Label*>(&widget);
    if (label != nullptr && label->wordWrap()) {
      const QRect drawn = metrics.boundingRect(QRect(0, 0, room, 0), Qt::TextWordWrap, text);
      if (drawn.width() > room || drawn.height() > height)
        add(control, QStringLiteral("\"%1\" needs %2 by %3 pixels, not %4 by %5")
                         .arg(text)
                         .arg(drawn.width())
                         .arg(drawn.height())
                         .arg(room)
                         .arg(height));
      return;
    }
    const QString line = lineIn(control, text);
    const int width = metrics.horizontalAdvance(line);
    if (!line.isEmpty() && width > room)
      add(control, QStringLiteral("\"%1\" is %2 pixels wide, room is for %3").arg(line).arg(width).arg(room));
    const bool hasLine = control.takesFocus() || !text.isEmpty();
    if (hasLine && metrics.height() > height)
      add(control,
          QStringLiteral("a line is %1 pixels high, room is for %2").arg(metrics.height()).arg(height));
  }

  /// The text that must be seen whole; "" for what a person fills.
  static QString lineIn(const Control& control, const QString& text) {
    switch (control.kind()) {
      case ControlKind::TDBDate:
      case ControlKind::DateInput:
        return toQt(static_cast<const zqn::DayEntry&>(control).Caption()) + QStringLiteral(" 30.06.2026");
      case ControlKind::CheckBox:
      case ControlKind::CommandButton:
      case ControlKind::Label:
      case ControlKind::OptionButton:
      case ControlKind::ToggleButton:
        return withoutAccessKey(text);
      default:
        return {};
    }
  }

  static int roomForLine(const Control& control, const QWidget& widget) {
    const QRect whole(QPoint(0, 0), Scale(widget).size(control.Width(), control.Height()));
    const auto pixels = [&widget](int at96) { return qRound(at96 * widget.logicalDpiX() / 96.0); };
    if (const auto* label = dynamic_cast<const Label*>(&widget))
      return label->wordWrap() ? whole.width() : label->room();
    if (qobject_cast<const QPushButton*>(&widget) != nullptr) return whole.width() - pixels(buttonMargins);
    if (qobject_cast<const QLineEdit*>(&widget) != nullptr) return whole.width() - pixels(fieldMargins);
    const bool isOption = qobject_cast<const QRadioButton*>(&widget) != nullptr;
    if (!isOption && qobject_cast<const QCheckBox*>(&widget) == nullptr) return whole.width();
    QStyleOptionButton option;
    option.initFrom(&widget);
    option.rect = whole;
    const auto words = isOption ? QStyle::SE_RadioButtonContents : QStyle::SE_CheckBoxContents;
    return widget.style()->subElementRect(words, &option, &widget).width();
  }

  // ---- places

  void lookAtPlace(const Control& control) {
    if (control.design().other.Overlaps) return;
    const Control* const container = control.container();
    const int width = container != nullptr ? container->Width() : form_.ScaleWidth();
    const int height = container != nullptr ? container->Height() : form_.ScaleHeight();
    if (control.Left() < 0 || control.Top() < 0 || control.Left() + control.Width() > width + tolerated ||
        control.Top() + control.Height() > height + tolerated)
      add(control, QStringLiteral("leaves the %1 by %2 twips that it stands in").arg(width).arg(height));
    for (const auto& other : form_.controls()) {
      if (other->TabIndex() <= control.TabIndex() || other->container() != container || !other->isShown() ||
          other->design().other.Overlaps)
        continue;
      if (shared(control.Left(), control.Width(), other->Left(), other->Width()) > tolerated &&
          shared(control.Top(), control.Height(), other->Top(), other->Height()) > tolerated)
        add(control, QStringLiteral("overlaps ") + toQt(other->fullName()));
    }
  }

  static int shared(int start, int length, int otherStart, int otherLength) {
    return std::min(start + length, otherStart + otherLength) - std::max(start, otherStart);
  }

  // ---- order and names

  void lookAtTabOrder() {
    const Control* former = nullptr;
    for (const std::string& name : tabOrder(form_)) {
      const Control* const control = form_.findControl(fromUtf8(name));
      if (former != nullptr && control->TabIndex() < former->TabIndex())
        add(*control, QStringLiteral("Tab comes to it after ") + toQt(former->fullName()));
      former = control;
    }
  }

  void lookAtName(const Control& control) {
    QWidget& widget = window_.widgetOf(control)->widget();
    QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(&widget);
    if (accessible == nullptr) {
      add(control, QStringLiteral("assistive technology cannot see it"));
      return;
    }
    if (accessible->role() == QAccessible::NoRole || accessible->role() == QAccessible::Client)
      add(control, QStringLiteral("has no role"));
    if (accessible->text(QAccessible::Name).trimmed().isEmpty()) add(control, QStringLiteral("has no name"));
    if (control.takesFocus() && control.isUsable() && !accessible->state().focusable)
      add(control, QStringLiteral("cannot take the focus of assistive technology"));
  }

  Form& form_;
  FormWindow window_;
  std::vector<std::string> found_;
};

}  // namespace

std::vector<std::string> findingsIn(Form& form) { return Look(form).findings(); }

std::vector<std::string> tabOrder(const Form& form) {
  std::vector<std::string> names;
  const Control* control = form.nextInTabOrder(nullptr, false);
  while (control != nullptr && names.size() < form.controls().size()) {
    const std::string name = toUtf8(control->fullName());
    if (!names.empty() && name == names.front()) break;
    names.push_back(name);
    control = form.nextInTabOrder(control, false);
  }
  return names;
}

}  // namespace zqn::qt
