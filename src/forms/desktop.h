// SPDX-License-Identifier: MIT
//
// What a form needs from the world: windows, message boxes, a queue of keys, a clipboard, the screen. Each
// toolkit implements it once; a form never sees a toolkit's type. The public functions state the order that
// all toolkits share, the protected ones are what a toolkit must do.
//
//     qt::QtDesktop desktop;
//     Desktop::Scope scope(desktop);     // forms shown from now on appear there
//     ORBDialog dialog;
//     dialog.Show(21, param);
#pragma once

#include <chrono>
#include <deque>
#include <functional>
#include <optional>
#include <vector>

#include "forms/keys.h"
#include "forms/message_box.h"
#include "runtime/error.h"
#include "runtime/string.h"

namespace zqn {

class Form;
class Control;
class Menu;
class Timer;

/// The window of one form. Calls come while the form is attached to it; each is cheap and may come for
/// several changes in a row.
class FormView {
 public:
  virtual ~FormView() = default;
  /// Something of the control that is drawn has changed, place and visibility included.
  virtual void controlChanged(Control& control) = 0;
  /// Caption or size of the form has changed.
  virtual void formChanged() = 0;
  /// Form::ActiveControl is another one: the focus belongs there.
  virtual void focusChanged() = 0;
  /// Form::Notice has come, changed or gone.
  virtual void noticeChanged() {}
};

/// Hears what happens on a desktop: a log, a transcript, a test.
class DesktopListener {
 public:
  virtual ~DesktopListener() = default;
  virtual void formShown(Form&) {}                     ///< A window has opened.
  virtual void formClosed(Form&) {}                    ///< A form was unloaded; its window is closed.
  virtual void messageBoxOpened(const MessageBox&) {}  ///< It waits for an answer.
  virtual void popupMenuOpened(const Menu&) {}         ///< It waits for an item to be taken.
  /// A run-time error left an event procedure ("btnDelete_Click"). True: it is dealt with, no box tells the
  /// person.
  virtual bool runtimeErrorRaised(Form&, StringView /*procedure*/, const RuntimeError&) { return false; }
  /// A statement of a procedure that writes ("WriteRecord") has failed, and the procedure went on. The person
  /// has seen no box; the form says it in its notice. The form may be closed already.
  virtual void failurePassedOver(Form&, StringView /*procedure*/, const RuntimeError&) {}
};

class Desktop {
 public:
  virtual ~Desktop() = default;

  /// The desktop that forms appear on. Error 429 when there is none.
  static Desktop& current();
  /// Makes a desktop the current one until the end of the scope.
  class Scope {
   public:
    explicit Scope(Desktop& desktop) noexcept;  ///< Current from now on; the desktop outlives the scope.
    ~Scope();
    Scope(const Scope&) = delete;
    Scope& operator=(const Scope&) = delete;

   private:
    Desktop* former_;
  };

  // ---- what forms ask for

  /// Opens a window for the form and returns when the form is unloaded. Forms nest: the one below is active
  /// again afterwards and its Activate is raised.
  void showModal(Form& form);
  /// Opens a message box and returns the answer.
  MsgBoxResult messageBox(const MessageBox& box);
  /// Opens a menu at the pointer, and returns when it is closed and Click of the item taken has run.
  void popupMenu(Menu& menu);
  /// A run-time error left an event procedure: the person is told its number and words, the form stays.
  void runtimeErrorRaised(Form& form, StringView procedure, const RuntimeError& failure);
  /// A procedure that writes has passed over a failure: the listeners hear of it, and the form's notice says
  /// it.
  void failurePassedOver(Form& form, StringView procedure, const RuntimeError& failure);
  /// Queues keys, written as "{Tab}" or characters; they are pressed after the running handler has come back
  /// to the modal loop, and dropped when the last form closes. Error 5 for a name that is no key; then
  /// nothing is queued.
  void sendKeys(StringView keys);
  /// Lets everything happen that waits in the queue of events, queued keys included, and returns. The form
  /// may be closed by then. The idle step stays with the modal loop.
  virtual void doEvents() = 0;
  /// The mouse pointer over all windows: the hourglass while something takes long, else each window's own.
  void hourglass(bool shown);
  bool isHourglass() const noexcept { return hourglass_; }  ///< The hourglass is shown.
  virtual void copyToClipboard(StringView text) = 0;        ///< Puts a text there.
  virtual String clipboardText() const = 0;                 ///< The text that is there; "" for none.
  virtual double TwipsPerPixelX() const { return 15; }      ///< Twips in one pixel across; 15 at 96 dpi.
  virtual double TwipsPerPixelY() const { return 15; }      ///< Twips in one pixel down; 15 at 96 dpi.

  // ---- what hosts ask for

  /// From now on, or no longer: `listener` hears what happens. It stays its owner's.
  void addListener(DesktopListener* listener) { listeners_.push_back(listener); }
  void removeListener(DesktopListener* listener) { std::erase(listeners_, listener); }
  /// Called whenever a modal loop, of a form or of a message box, has nothing left to do. Each call may do
  /// one thing.
  void whenIdle(std::function<void()> step) { idle_ = std::move(step); }
  /// What the timers of forms go by; the system's time unless set.
  void clock(std::function<std::chrono::milliseconds()> now) { clock_ = std::move(now); }
  /// The form that a person can act on; nullptr when none is open.
  Form* activeForm() const noexcept { return forms_.empty() ? nullptr : forms_.back(); }
  /// The message box that waits for an answer; nullptr when none is open.
  const MessageBox* openMessageBox() const noexcept { return box_; }
  /// The menu that is open; nullptr when none is.
  const Menu* openPopupMenu() const noexcept { return popup_; }
  /// How many message boxes have been opened since the desktop began, run-time errors that a listener dealt
  /// with included: a form compares it to see that one came up meanwhile.
  int messageBoxCount() const noexcept { return boxCount_; }

 protected:
  /// Makes the window and attaches its view; it must stand when the function returns.
  virtual void openWindow(Form& form) = 0;
  /// Takes the window away and detaches the view. The form is no longer visible.
  virtual void closeWindow(Form& form) = 0;
  /// Handles input until `done` answers True. Presses the queued keys (nextQueuedKey) and runs idleStep when
  /// nothing else is left.
  virtual void runLoop(const std::function<bool()>& done) = 0;
  /// Shows a box and waits; an implementation may run runLoop.
  virtual MsgBoxResult runMessageBox(const MessageBox& box) = 0;
  /// Shows a menu and waits; the item that was taken, nullptr for none.
  virtual Menu* runPopupMenu(Menu& menu) = 0;
  /// The mouse pointer has become another one.
  virtual void pointerChanged() {}

  /// Takes the next queued key; False when there is none, and while a message box is open: the keys wait for
  /// the form.
  bool nextQueuedKey(KeyStroke& stroke);
  /// Lets a timer that is due tick; False when none is. A loop asks when no key is queued.
  bool tickTimer();
  /// How long until the next timer is due; nullopt when none runs.
  std::optional<std::chrono::milliseconds> timeToTick();
  bool hasIdleStep() const noexcept { return static_cast<bool>(idle_); }  ///< whenIdle was given a step.
  /// Runs the step once. For desktops, when their loop has nothing left to do.
  void idleStep() {
    if (idle_) idle_();
  }

 private:
  std::chrono::milliseconds now() const;
  /// The timer of the open forms that is due next.
  Timer* nextTimer();

  std::vector<DesktopListener*> listeners_;
  std::function<void()> idle_;
  std::vector<Form*> forms_;
  std::deque<KeyStroke> queue_;
  std::function<std::chrono::milliseconds()> clock_;
  const MessageBox* box_ = nullptr;
  const Menu* popup_ = nullptr;
  int boxCount_ = 0;
  bool hourglass_ = false;
};

}  // namespace zqn
