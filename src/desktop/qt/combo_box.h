// SPDX-License-Identifier: MIT
//
// Draws a ComboBox. Whether the list is open, and which entry is marked in it, is the model's; keys that come
// to the open list go to the form first, like all others.
#pragma once

#include <QComboBox>

#include "desktop/qt/control_widget.h"
#include "forms/combo_box.h"

namespace zqn::qt {

class ComboBox : public QComboBox, public ControlWidget {
 public:
  ComboBox(zqn::ComboBox& model, QWidget* parent);

  /// The list opens when the click is complete.
  bool pressed(const QMouseEvent& event, bool focusCame) override;
  /// Assistive technology opens the list: the model decides.
  void showPopup() override;

 protected:
  void draw() override;
  void compare(Differences& found) const override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;

 private:
  void drawEntries();
  void drawList();
  bool listShown() const;
  void choose(int index);

  zqn::ComboBox& model_;
};

}  // namespace zqn::qt
