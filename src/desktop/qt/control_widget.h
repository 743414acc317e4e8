// SPDX-License-Identifier: MIT
//
// What the widgets of all kinds of controls have in common. A widget draws its control and never decides: it
// follows the model by sync(), and what a person does comes back to it only through the model. A new kind is
// one class and one line in control_widgets.cpp:
//
//     class Label : public QLabel, public ControlWidget {
//      public:
//       Label(zqn::Label& model, QWidget* parent);
//      protected:
//       void draw() override;                            // model -> widget
//       void compare(Differences& found) const override; // the same, read back
//     };
#pragma once

#include <QMouseEvent>
#include <QPalette>
#include <QStringList>
#include <QWidget>

#include "desktop/qt/scale.h"
#include "forms/control.h"

namespace zqn::qt {

/// What a widget shows otherwise than its model says.
class Differences {
 public:
  void expect(const char* what, const QString& shown, const QString& wanted);
  void expect(const char* what, int shown, int wanted);
  const QStringList& found() const noexcept { return found_; }

 private:
  QStringList found_;
};

/// How a kind of control takes its two colours.
struct ColourRoles {
  QPalette::ColorRole back, fore;
  /// The background that the kind has without being told.
  std::uint32_t standardBack;
};

class ControlWidget {
 public:
  ControlWidget(Control& control, QWidget& widget, ColourRoles roles);
  virtual ~ControlWidget();
  ControlWidget(const ControlWidget&) = delete;
  ControlWidget& operator=(const ControlWidget&) = delete;

  Control& control() const noexcept { return control_; }
  QWidget& widget() const noexcept { return widget_; }
  /// Where the mouse acts on it: the widget, or the area inside that shows the rows.
  virtual QWidget& mouseArea() const { return widget_; }

  /// Draws the model's present state. Changes nothing that is right already, and tells the model nothing.
  void sync();
  /// The widget is being drawn: what it signals is no person's doing.
  bool isDrawing() const noexcept { return drawing_ > 0; }
  /// What differs between widget and model, "" when nothing does.
  QString shows() const;

  // ---- input

  /// A button went down on the mouse area: tells the form, and which place of the widget that is now, before
  /// the focus moves and anything scrolls. False when the click is over.
  virtual bool reportPress(const QMouseEvent& event);

  // called after the form has agreed

  /// The control's own effect of a key, as the handlers left it.
  virtual void ownKey(const KeyStroke& stroke);
  /// The left button went down. `focusCame`: this press brought the focus. True when the widget's own press
  /// must not follow.
  virtual bool pressed(const QMouseEvent& event, bool focusCame);
  /// The pointer has moved while the left button is down since a press that the widget did not see itself.
  virtual void dragged(const QMouseEvent& event);
  /// The second press of a double click.
  virtual bool pressedTwice(const QMouseEvent& event);
  /// The widget finds out by itself that it was clicked, and calls userClicked.
  virtual bool clicksItself() const { return false; }

 protected:
  virtual void draw() = 0;
  virtual void compare(Differences& found) const = 0;
  /// Where and how large it is drawn: as the control says, unless the kind needs more room.
  virtual QRect place() const { return Scale(widget_).rect(control_); }
  /// The colour of what it says.
  virtual std::uint32_t foreColor() const { return control_.ForeColor(); }
  /// What assistive technology reads out beside the name.
  virtual QString description() const;
  /// A click without a mouse (assistive technology) or, after the form agreed to the press, with it.
  void userClicked();

  /// While one lives, the widget is being drawn.
  class Drawing {
   public:
    explicit Drawing(ControlWidget& widget) noexcept : depth_(widget.drawing_) { ++depth_; }
    ~Drawing() { --depth_; }
    Drawing(const Drawing&) = delete;
    Drawing& operator=(const Drawing&) = delete;

   private:
    int& depth_;
  };

 private:
  friend class ControlInput;

  void drawColours();

  Control& control_;
  QWidget& widget_;
  ColourRoles roles_;
  std::uint32_t drawnBack_;
  std::uint32_t drawnFore_ = colour::WindowText;
  int drawing_ = 0;
  /// The form has agreed to a press whose release has not come yet.
  bool held_ = false;
};

}  // namespace zqn::qt
