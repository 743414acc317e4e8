// SPDX-License-Identifier: MIT
//
// What the widgets of all text fields share. The model edits: strokes, the place of a press, what an input
// method commits and what assistive technology writes go to it, and its text, selection and caret are drawn.
// A widget says in Qt's words what it shows and how to show it:
//
//     class TextEntry : public QLineEdit, public TextField { ... };
#pragma once

#include <QInputMethodEvent>
#include <QMenu>
#include <memory>

#include "desktop/qt/control_widget.h"
#include "forms/drawn_text.h"
#include "forms/text_entry.h"

class QContextMenuEvent;

namespace zqn::qt {

class TextField : public ControlWidget {
 public:
  ~TextField() override;

  bool pressed(const QMouseEvent& event, bool focusCame) override;
  void dragged(const QMouseEvent& event) override;
  bool pressedTwice(const QMouseEvent& event) override;

 protected:
  TextField(zqn::TextEntry& model, QWidget& widget);

  // ---- what the widget shows; positions count what is drawn

  /// From the end that stays to the caret; equal when nothing is selected.
  struct Selection {
    int anchor, caret;
    friend bool operator==(const Selection&, const Selection&) = default;
  };
  virtual QString shownText() const = 0;
  virtual Selection shownSelection() const = 0;
  /// Puts a text in the place of `length` characters at `at`.
  virtual void showText(int at, int length, const QString& text) = 0;
  virtual void showSelection(Selection selection) = 0;
  /// Which position a point of the mouse area means.
  virtual int positionAt(QPoint point) const = 0;

  void draw() override;
  void compare(Differences& found) const override;
  std::uint32_t foreColor() const override;
  QString description() const override;

  // ---- what the widget hears

  /// Something has edited or selected past the model: assistive technology. The model does it anew.
  void report();
  void openMenu(QContextMenuEvent& event);
  /// The part of the event that the widget shows by itself: what is being composed.
  QInputMethodEvent composition(const QInputMethodEvent& event);
  /// What an input method commits is typed, unit by unit, and form and field hear of it.
  void typeCommitted(const QInputMethodEvent& event);
  /// The button in the middle pastes what is selected elsewhere, where the window system knows of that.
  void releasedElsewhere(const QMouseEvent& event);
  /// The focus has gone, and with it what was shown as selected.
  void focusLeft() { sync(); }
  DrawnText drawnText() const;

 private:
  Selection wantedSelection(const DrawnText& drawn) const;
  int inModel(const QMouseEvent& event) const;
  void offerSelection() const;

  zqn::TextEntry& model_;
  std::unique_ptr<QMenu> menu_;
};

}  // namespace zqn::qt
