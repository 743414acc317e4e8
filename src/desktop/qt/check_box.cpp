// SPDX-License-Identifier: MIT
#include "desktop/qt/check_box.h"

#include "desktop/qt/text.h"

namespace zqn::qt {

namespace {

Qt::CheckState stateOf(int value) {
  return value == 0 ? Qt::Unchecked : value == 1 ? Qt::Checked : Qt::PartiallyChecked;
}

}  // namespace

CheckBox::CheckBox(zqn::CheckBox& model, QWidget* parent)
    : QCheckBox(parent),
      ControlWidget(model, *this, {QPalette::Window, QPalette::WindowText, colour::ButtonFace}),
      model_(model) {
  connect(this, &QCheckBox::clicked, this, [this] { userClicked(); });
  connect(this, &QCheckBox::stateChanged, this, [this] {
    if (isDrawing()) return;
    // Assistive technology switches the box itself: undone, and done again by the model's rules.
    sync();
    userClicked();
  });
}

void CheckBox::draw() {
  if (text() != toQt(model_.Caption())) setText(toQt(model_.Caption()));
  const Qt::CheckState wanted = stateOf(model_.Value());
  if (checkState() == wanted) return;
  setTristate(wanted == Qt::PartiallyChecked);
  setCheckState(wanted);
}

void CheckBox::compare(Differences& found) const {
  found.expect("Caption", text(), toQt(model_.Caption()));
  found.expect("Value", checkState(), stateOf(model_.Value()));
}

}  // namespace zqn::qt
