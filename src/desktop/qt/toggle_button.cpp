// SPDX-License-Identifier: MIT
#include "desktop/qt/toggle_button.h"

#include <QStyleOptionButton>

#include "desktop/qt/text.h"

namespace zqn::qt {

ToggleButton::ToggleButton(zqn::ToggleButton& model, QWidget* parent)
    : QPushButton(parent),
      ControlWidget(model, *this, {QPalette::Button, QPalette::ButtonText, colour::ButtonFace}),
      model_(model) {
  setCheckable(true);
  setAutoDefault(false);
  connect(this, &QPushButton::clicked, this, [this] { userClicked(); });
  connect(this, &QPushButton::toggled, this, [this] {
    if (isDrawing()) return;
    // Assistive technology switches the button itself: undone, and done again by the model's rules.
    sync();
    userClicked();
  });
}

void ToggleButton::draw() {
  if (text() != toQt(model_.Caption())) setText(toQt(model_.Caption()));
  if (isChecked() != model_.Value()) setChecked(model_.Value());
}

void ToggleButton::initStyleOption(QStyleOptionButton* option) const {
  QPushButton::initStyleOption(option);
  if (!isChecked() || !isEnabled()) return;
  // Grey alone is hard to tell from a button that is up.
  const QColor up = option->palette.color(QPalette::Button);
  const QColor mark = option->palette.color(QPalette::Active, QPalette::Highlight);
  const auto mixed = [](int a, int b) { return (2 * a + b) / 3; };
  option->palette.setColor(
      QPalette::Button,
      QColor(mixed(up.red(), mark.red()), mixed(up.green(), mark.green()), mixed(up.blue(), mark.blue())));
}

void ToggleButton::compare(Differences& found) const {
  found.expect("Caption", text(), toQt(model_.Caption()));
  found.expect("Value", isChecked(), model_.Value());
}

}  // namespace zqn::qt
