// SPDX-License-Identifier: MIT
#include "desktop/qt/option_button.h"

#include "desktop/qt/text.h"

namespace zqn::qt {

OptionButton::OptionButton(zqn::OptionButton& model, QWidget* parent)
    : QRadioButton(parent),
      ControlWidget(model, *this, {QPalette::Window, QPalette::WindowText, colour::ButtonFace}),
      model_(model) {
  setAutoExclusive(false);
  connect(this, &QRadioButton::clicked, this, [this] { userClicked(); });
  connect(this, &QRadioButton::toggled, this, [this] {
    if (isDrawing()) return;
    // Assistive technology chooses by itself: undone, and done again by the model's rules.
    sync();
    userClicked();
  });
}

void OptionButton::draw() {
  if (text() != toQt(model_.Caption())) setText(toQt(model_.Caption()));
  if (isChecked() != model_.Value()) setChecked(model_.Value());
}

void OptionButton::compare(Differences& found) const {
  found.expect("Caption", text(), toQt(model_.Caption()));
  found.expect("Value", isChecked(), model_.Value());
}

}  // namespace zqn::qt
