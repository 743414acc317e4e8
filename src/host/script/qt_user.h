// SPDX-License-Identifier: MIT
//
// The scripted user's input on the desktop of Qt: real mouse and key events for the widgets, on Qt's
// offscreen platform as well as on a display. The models are never touched.
#pragma once

#include <QPoint>

#include "desktop/qt/qt_desktop.h"
#include "host/script/user_input.h"

namespace zqn::script {

class QtUser : public UserInput {
 public:
  explicit QtUser(qt::QtDesktop& desktop) : desktop_(desktop) {}

  void mouseDown(const MouseTarget& target) override;
  void mouseMove(const MouseTarget& target) override;
  void mouseUp(const MouseTarget& target) override;
  void mouseDownAgain(const MouseTarget& target) override;
  void takeEntry(Control& control, int entry) override;
  void takeItem(Menu& item) override;
  void closeMenu() override;
  void keyDown(Form& form, const Key& key) override;
  void keyUp(Form& form, const Key& key) override;
  void closeBox(Form& form) override;
  void answer(MsgBoxResult button) override;
  bool screenshot(Form& form, const std::filesystem::path& file) override;
  std::vector<String> differences(Form& form) override;

 private:
  void point(const MouseTarget& target);
  QPoint pressedAt(const MouseTarget& target) const;

  qt::QtDesktop& desktop_;
  /// Where the pointer is, in the widget: a button comes up there, wherever a list has scrolled meanwhile.
  QPoint pointer_;
};

}  // namespace zqn::script
