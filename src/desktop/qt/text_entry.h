// SPDX-License-Identifier: MIT
//
// Draws a field of one line. Each kind of field derives from it:
//
//     class TextBox : public TextEntry { ... };
#pragma once

#include <QLineEdit>

#include "desktop/qt/text_field.h"

namespace zqn::qt {

class TextEntry : public QLineEdit, public TextField {
 protected:
  TextEntry(zqn::TextEntry& model, QWidget* parent);

  void draw() override;
  QString shownText() const override { return displayText(); }
  Selection shownSelection() const override;
  void showText(int at, int length, const QString& text) override;
  void showSelection(Selection selection) override;
  int positionAt(QPoint point) const override;

  void keyPressEvent(QKeyEvent* event) override { event->ignore(); }
  void mousePressEvent(QMouseEvent*) override {}
  void mouseMoveEvent(QMouseEvent*) override {}
  void mouseDoubleClickEvent(QMouseEvent*) override {}
  void mouseReleaseEvent(QMouseEvent* event) override { releasedElsewhere(*event); }
  void contextMenuEvent(QContextMenuEvent* event) override { openMenu(*event); }
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  zqn::TextEntry& model_;
};

}  // namespace zqn::qt
