// SPDX-License-Identifier: MIT
//
// Draws a field with a text and edits natively: caret, selection, undo, clipboard, context menu, input
// methods. What comes of it is reported to the model at once; what the model makes of that is drawn. Each
// kind of field derives from it:
//
//     class TextBox : public TextEntry { ... };
#pragma once

#include <QLineEdit>
#include <functional>
#include <memory>

#include "desktop/qt/control_widget.h"
#include "forms/text_entry.h"

class QMenu;

namespace zqn::qt {

class TextEntry : public QLineEdit, public ControlWidget {
 public:
  ~TextEntry() override;

  void ownKey(QKeyEvent& event, const KeyStroke& stroke, bool asTyped) override;
  /// A press that brought the focus leaves alone what GotFocus selected.
  bool pressed(const QMouseEvent& event, bool focusCame) override;

 protected:
  TextEntry(zqn::TextEntry& model, QWidget* parent);

  void draw() override;
  void compare(Differences& found) const override;

  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;

 private:
  int shownSelStart() const { return hasSelectedText() ? selectionStart() : cursorPosition(); }
  int shownSelLength() const { return static_cast<int>(selectedText().size()); }
  void edit(const std::function<void()>& natively);
  void report();
  QString pasted(const QString& text) const;
  void joinLines();
  void pasteLine();

  zqn::TextEntry& model_;
  std::unique_ptr<QMenu> menu_;
  /// A native edit is going on; it is reported when it is complete.
  int editing_ = 0;
};

}  // namespace zqn::qt
