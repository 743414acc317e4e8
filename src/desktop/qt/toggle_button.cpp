// SPDX-License-Identifier: MIT
#include "desktop/qt/toggle_button.h"

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

void ToggleButton::compare(Differences& found) const {
  found.expect("Caption", text(), toQt(model_.Caption()));
  found.expect("Value", isChecked(), model_.Value());
}

}  // namespace zqn::qt
