// SPDX-License-Identifier: MIT
#include "desktop/qt/command_button.h"

#include "desktop/qt/picture_box.h"
#include "desktop/qt/text.h"

namespace zqn::qt {

CommandButton::CommandButton(zqn::CommandButton& model, QWidget* parent)
    : QPushButton(parent),
      ControlWidget(model, *this, {QPalette::Button, QPalette::ButtonText, colour::ButtonFace}),
      model_(model) {
  setAutoDefault(false);
  setDefault(model.Default());
  connect(this, &QPushButton::clicked, this, [this] { userClicked(); });
}

void CommandButton::draw() {
  if (text() != toQt(model_.Caption())) setText(toQt(model_.Caption()));
  drawPictureOfModel();
}

void CommandButton::drawPictureOfModel() {
  if (drawn_ == model_.Picture()) return;
  drawn_ = model_.Picture();
  if (drawn_ == nullptr) return setIcon({});
  setIconSize(sizeOf(*drawn_, *this));
  setIcon(QIcon(pixelsOf(*drawn_, *this)));
}

void CommandButton::compare(Differences& found) const {
  found.expect("Caption", text(), toQt(model_.Caption()));
}

}  // namespace zqn::qt
