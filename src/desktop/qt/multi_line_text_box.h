// SPDX-License-Identifier: MIT
//
// Draws a TextBox of several lines, which break at the field's width. The widget counts a line break as one
// place, the model as many as it has units; texts that come back to the model have CR LF.
#pragma once

#include <QPlainTextEdit>
#include <functional>
#include <memory>

#include "desktop/qt/control_widget.h"
#include "forms/text_box.h"

class QMenu;

namespace zqn::qt {

class MultiLineTextBox : public QPlainTextEdit, public ControlWidget {
 public:
  MultiLineTextBox(zqn::TextBox& model, QWidget* parent);
  ~MultiLineTextBox() override;

  QWidget& mouseArea() const override { return *viewport(); }
  void ownKey(QKeyEvent& event, const KeyStroke& stroke, bool asTyped) override;
  bool pressed(const QMouseEvent& event, bool focusCame) override;

 protected:
  void draw() override;
  void compare(Differences& found) const override;

  void inputMethodEvent(QInputMethodEvent* event) override;
  void insertFromMimeData(const QMimeData* source) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QString shownText() const;
  QString wantedText() const;
  Qt::ScrollBarPolicy wantedScrollBar() const;
  int room() const;
  void edit(const std::function<void()>& natively);
  void report();

  zqn::TextBox& model_;
  std::unique_ptr<QMenu> menu_;
  int editing_ = 0;
};

}  // namespace zqn::qt
