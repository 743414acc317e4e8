// SPDX-License-Identifier: MIT
//
// The desktop of Qt: a window for every form, a message box for every message box. One application, one
// desktop; the application is the host's:
//
//     QApplication app(argc, argv);
//     qt::configureApplication(app);
//     qt::QtDesktop desktop;
//     Desktop::Scope scope(desktop);
//     dialog.Show(21, param);
//
// Everything runs on the thread of the application, which needs no exec() of its own while a form is open.
#pragma once

#include <QDialog>
#include <QMenu>
#include <QMessageBox>
#include <map>
#include <memory>

#include "desktop/qt/style.h"
#include "forms/desktop.h"

namespace zqn::qt {

class FormWindow;
class MessageWindow;

class QtDesktop : public Desktop {
 public:
  /// A QApplication must exist.
  QtDesktop();
  ~QtDesktop() override;

  void doEvents() override;
  void copyToClipboard(StringView text) override;
  String clipboardText() const override;
  double TwipsPerPixelX() const override;
  double TwipsPerPixelY() const override;

  // ---- for automation, which acts on the widgets as a person does

  /// The window of an open form, and the widget of a control on it; nullptr when the form is not open.
  QDialog* windowOf(const Form& form) const;
  QWidget* widgetOf(const Control& control) const;
  /// Where the mouse acts on a control: the widget itself, or the area of a list that shows the rows.
  QWidget* mouseAreaOf(const Control& control) const;
  /// What the widgets of an open form show otherwise than the model says, a line each; "" when nothing.
  QString differences(const Form& form) const;
  /// The message box that waits, and its button for an answer; nullptr when there is none.
  QMessageBox* openBox() const;
  QPushButton* boxButton(MsgBoxResult result) const;
  /// The menu that is open; nullptr when none is.
  QMenu* openMenu() const { return menu_; }
  /// Presses and releases a key on whatever has the focus in the topmost window.
  void pressKey(const KeyStroke& stroke);

 protected:
  void openWindow(Form& form) override;
  void closeWindow(Form& form) override;
  void runLoop(const std::function<bool()>& done) override;
  MsgBoxResult runMessageBox(const MessageBox& box) override;
  Menu* runPopupMenu(Menu& menu) override;
  void pointerChanged() override;

 private:
  FormWindow* formWindow(const Form& form) const;
  QWidget* topWindow() const;
  void hideClosedForms();

  std::map<const Form*, std::unique_ptr<FormWindow>> windows_;
  MessageWindow* box_ = nullptr;
  QMenu* menu_ = nullptr;
};

}  // namespace zqn::qt
