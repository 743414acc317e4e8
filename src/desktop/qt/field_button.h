// SPDX-License-Identifier: MIT
//
// The small button at the right edge inside a field, which opens what the field is filled from: a calendar, a
// list. The focus stays in the field.
//
//     FieldButton button_{*this, model_, u"Kalender", [this] { openCalendar(); }};
#pragma once

#include <QToolButton>
#include <functional>

class QLineEdit;

namespace zqn {
class Control;
}

namespace zqn::qt {

class FieldButton : public QToolButton {
 public:
  /// `name` is what assistive technology reads; the tool tip adds the key F4. `open` runs after the form has
  /// agreed to the press.
  FieldButton(QLineEdit& field, Control& model, const QString& name, std::function<void()> open);

  /// How wide it is in a field of this height.
  int wantedWidth() const;
  /// Puts it at the right edge, the text keeps clear of it; or takes it away.
  void place(bool visible);

 private:
  int side() const;

  QLineEdit& field_;
};

}  // namespace zqn::qt
