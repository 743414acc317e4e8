// SPDX-License-Identifier: MIT
//
// Draws a TextBox of several lines, which break at the field's width. Up, Down, PageUp and PageDown follow the
// lines as they are drawn: the widget finds the place, the model goes there.
#pragma once

#include <QPlainTextEdit>

#include "desktop/qt/text_field.h"
#include "forms/text_box.h"

namespace zqn::qt {

class MultiLineTextBox : public QPlainTextEdit, public TextField {
 public:
  MultiLineTextBox(zqn::TextBox& model, QWidget* parent);

  QWidget& mouseArea() const override { return *viewport(); }
  void ownKey(const KeyStroke& stroke) override;

 protected:
  void draw() override;
  void compare(Differences& found) const override;
  QString shownText() const override;
  Selection shownSelection() const override;
  void showText(int at, int length, const QString& text) override;
  void showSelection(Selection selection) override;
  int positionAt(QPoint point) const override { return cursorForPosition(point).position(); }

  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
  void mousePressEvent(QMouseEvent*) override {}
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseDoubleClickEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent* event) override { releasedElsewhere(*event); }
  void contextMenuEvent(QContextMenuEvent* event) override { openMenu(*event); }
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  Qt::ScrollBarPolicy wantedScrollBar() const;
  int linesOf(int key) const;

  zqn::TextBox& model_;
};

}  // namespace zqn::qt
