// SPDX-License-Identifier: MIT
//
// Draws a TextBox.
#pragma once

#include "desktop/qt/text_entry.h"
#include "forms/text_box.h"

namespace zqn::qt {

class TextBox : public TextEntry {
 public:
  TextBox(zqn::TextBox& model, QWidget* parent);

 protected:
  void draw() override;
  void compare(Differences& found) const override;

 private:
  zqn::TextBox& model_;
};

}  // namespace zqn::qt
