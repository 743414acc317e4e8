// SPDX-License-Identifier: MIT
//
// The window of a form: a dialog of the form's client area, fixed in size, with a widget for every control.
// It draws the form and hands input on; form and controls hold the state.
#pragma once

#include <QDialog>
#include <QLabel>
#include <memory>
#include <vector>

#include "desktop/qt/control_widget.h"
#include "forms/desktop.h"
#include "forms/form.h"

namespace zqn::qt {

class ControlInput;

class FormWindow : public QDialog, public FormView {
 public:
  /// Makes the widgets; attaches itself to nothing and shows nothing. The form must outlive the window.
  FormWindow(Form& form, QWidget* parent);
  ~FormWindow() override;

  Form& form() const noexcept { return form_; }
  /// nullptr for a control of another form.
  ControlWidget* widgetOf(const Control& control) const noexcept;
  /// Draws everything anew.
  void sync();
  /// What all widgets show otherwise than the model says, one line each; the focus, too. "" when nothing.
  QString differences() const;

  // ---- FormView

  void controlChanged(Control& control) override;
  void formChanged() override;
  void focusChanged() override;
  /// The window grows by one line at its lower edge while the form has a notice.
  void noticeChanged() override;

  // ---- input

  /// A key went down on the control with the focus, or on the window when there is none. False for a key that
  /// the dialogs do not know.
  bool keyPressed(QKeyEvent& event);
  bool keyReleased(QKeyEvent& event);
  /// The window itself is moving the focus or drawing: what comes of it is no person's doing.
  bool isPlacingFocus() const noexcept { return placing_ > 0; }

  /// Esc and the close box ask the form.
  void reject() override;

 protected:
  bool event(QEvent* event) override;
  void closeEvent(QCloseEvent* event) override;
  void showEvent(QShowEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  /// Qt never moves the focus along by itself.
  bool focusNextPrevChild(bool next) override;

 private:
  QWidget& makeWidget(Control& control);
  void placeFocus();
  void nameControls();
  void syncLabels();
  QSize wantedSize() const;

  Form& form_;
  /// In the order of the form's controls.
  std::vector<ControlWidget*> widgets_;
  std::vector<std::unique_ptr<ControlInput>> inputs_;
  QLabel* notice_;
  int placing_ = 0;
};

}  // namespace zqn::qt
