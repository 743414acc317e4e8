// SPDX-License-Identifier: MIT
//
// A form: named controls made from a roster, the focus among them, the order in which keys and clicks reach
// whom, and the modal life from Load to Unload. Class and order of events are the platform's; a window only
// draws the form and reports raw input.
//
//     class frmHello : public Form {
//      public:
//       frmHello() : Form(design) {
//         btnOK.Click = [this] { UnloadMe(); };
//       }
//       CommandButton& btnOK = Get<CommandButton>(u"btnOK");
//     };
//
// Life: a form is loaded once (ensureLoaded, or Show), shown modally (Show returns when it is unloaded), and
// unloaded (UnloadMe, the close box). Public members of a derived class live on until the object ends.
#pragma once

#include <memory>
#include <vector>

#include "forms/control.h"

namespace zqn {

class FormView;
class CommandButton;
class Menu;

/// What a press of a key has come to, for the desktop that reported it.
struct KeyOutcome {
  /// The control's own effect is to take place: the toolkit calls Control::ownKey.
  bool own = false;
  /// The stroke as the handlers left it: another character, or another code.
  KeyStroke stroke;
};

enum class UnloadMode { CloseBox = 0, Code = 1 };

class Form : public EventOwner {
 public:
  explicit Form(const FormDesign& design);  ///< Not loaded yet; the design outlives the form.
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  const String& Name() const noexcept { return name_; }        ///< As the design says: "frmDialog".
  const String& Caption() const noexcept { return caption_; }  ///< What stands in the title bar.
  void Caption(StringView caption);                            ///< Writes the title bar.
  /// Client area in twips.
  int ScaleWidth() const noexcept { return scaleWidth_; }
  int ScaleHeight() const noexcept { return scaleHeight_; }
  /// Outer size in twips: the client area is 90 narrower and 420 lower.
  int Width() const noexcept { return scaleWidth_ + 90; }
  int Height() const noexcept { return scaleHeight_ + 420; }
  void Width(int twips);
  void Height(int twips);
  bool Visible() const noexcept { return visible_; }  ///< Shown, and not unloaded since.
  /// The form's KeyDown, KeyPress and KeyUp run before the control's. True unless set.
  void KeyPreview(bool preview) { keyPreview_ = preview; }

  // ---- controls

  /// All controls in the order of the roster, that is of the tab index.
  const std::vector<std::unique_ptr<Control>>& controls() const noexcept { return controls_; }
  /// A control by its name and, for an element of a control array, its index; without regard to case. Error
  /// 340 when there is none.
  Control& control(StringView name, int index = -1) const;
  /// By the name a person or a script uses: "Schluessel", "Label1(0)". nullptr when there is none.
  Control* findControl(StringView fullName) const noexcept;
  /// The control of that name as its class. The kind must be the roster's: another one is a defect of the
  /// program.
  template <class C>
  C& Get(StringView name, int index = -1) const {
    return dynamic_cast<C&>(control(name, index));
  }
  /// The control with the focus; nullptr for none.
  Control* ActiveControl() const noexcept { return active_; }
  /// Screen.ActiveControl as the logic asks for it: error 91 when no control has the focus.
  Control& requireActiveControl() const;
  /// Selects the whole text of the control with the focus, so that typing replaces it. Each step that fails
  /// is passed over: without a focus, or in a control without a selection, nothing happens.
  void SelectActiveText();

  // ---- life

  /// Loads the form if it is not loaded: raises Load. Logic calls it before it touches the first control.
  void ensureLoaded();
  /// Shows the form modally and returns when it is unloaded. Error 400 when it is shown already, 364 when
  /// Load unloads it.
  void Show();
  /// Unload Me: QueryUnload, then Unload; either may refuse. Nothing when it is not loaded. A handler of the
  /// two that has refused may unload once more by itself, which asks again; otherwise UnloadMe inside of them
  /// does nothing.
  void UnloadMe();
  /// Load has been raised, and no Unload let through since.
  bool isLoaded() const noexcept { return loaded_; }
  /// What went wrong unasked in the last thing that the person did: a window shows it as one quiet line, which
  /// takes no focus and goes with the next key. "" for nothing.
  const String& Notice() const noexcept { return notice_; }
  void Notice(StringView text);
  /// Opens a menu of this form at the pointer and returns when it is closed; Click of the item that was taken
  /// has run by then.
  void PopupMenu(Menu& menu);

  // ---- events

  Event<> Load{*this, u"Load"};          ///< Before the form is touched for the first time.
  Event<> Activate{*this, u"Activate"};  ///< The window has come to the top.
  /// The key code, which the handler may set to 0, and the shift bits.
  Event<int&, int> KeyDown{*this, u"KeyDown"};
  /// The character that is typed, which the handler may change; 0 takes it away.
  Event<int&> KeyPress{*this, u"KeyPress"};
  Event<int, int> KeyUp{*this, u"KeyUp"};  ///< Key code and shift bits of a key that is let go.
  /// Cancel other than 0 keeps the form open; the second argument is the UnloadMode.
  Event<int&, int> QueryUnload{*this, u"QueryUnload"};
  Event<int&> Unload{*this, u"Unload"};  ///< The form is about to go. Cancel other than 0 keeps it open.

  // ---- for desktops

  /// The window stands: the form becomes visible, Activate is raised, the first control in the tab order gets
  /// the focus unless Activate gave it to another.
  void opened();
  /// The close box was pressed.
  void closeBox() { unload(UnloadMode::CloseBox); }
  /// A key went down. Runs the whole order of key events and moves the focus for Tab; see KeyOutcome for what
  /// is left to do.
  KeyOutcome keyPressed(KeyStroke stroke);
  void keyReleased(int code, int shift);  ///< A key was let go: the form's KeyUp, then the control's.
  /// The left button went down on a control: validates, moves the focus if the control takes it. False when
  /// the click is over (the control cannot be used or stands behind another form or a message box, Validate
  /// refused, or a message box came up meanwhile): no release must follow.
  bool mousePressed(Control& control);
  /// The button was released on the same control: its own effect and Click.
  void mouseReleased(Control& control);
  /// The focus came to a control by other means than key or mouse, such as a screen reader's.
  void focusMovedTo(Control& control);
  /// Neighbour in the tab order that can take the focus; nullptr when there is no other.
  Control* nextInTabOrder(const Control* from, bool backward) const;

  /// The window that draws the form; nullptr while there is none. Set by the desktop.
  FormView* view() const noexcept { return view_; }
  void attach(FormView* view) noexcept { view_ = view; }

  /// Value of a property of the form by its name: "Caption", "Width", "ActiveControl", ... Error 438.
  Variant Property(StringView name) const;

  void eventFailed(StringView event, const RuntimeError& failure) override;

 private:
  friend class Control;

  class Asking;
  void unload(UnloadMode mode);
  bool moveFocus(Control& target, FocusCause cause);
  static void leave(Control& left);
  /// The control with the focus was hidden or disabled: the next one in the tab order gets it.
  void leaveUnusable();
  CommandButton* buttonFor(int code) const;
  bool pressesButton(const KeyStroke& stroke);
  bool pressesAccessKey(const KeyStroke& stroke);

  String name_;
  String caption_;
  String notice_;
  int scaleWidth_, scaleHeight_;
  std::vector<std::unique_ptr<Control>> controls_;
  Control* active_ = nullptr;
  /// The control whose GotFocus was the last: only it is told that it lost the focus.
  Control* entered_ = nullptr;
  FormView* view_ = nullptr;
  bool loaded_ = false;
  bool visible_ = false;
  bool keyPreview_ = true;
  /// The innermost unload that asks its handlers; nullptr while none does.
  const Asking* asking_ = nullptr;
  /// The code of a key that is down and that no event has told of: its release tells nobody. 0 for none.
  int silentKey_ = 0;
};

}  // namespace zqn
